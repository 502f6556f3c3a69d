#include "forms/forms.h"

#include <algorithm>

#include "forms/names.h"

namespace kolm::forms {

Forms::Forms(Services& services) : services_(services) {}

Forms::~Forms() {
  for (auto& f : loaded_) f->loaded_ = false;
  loaded_.clear();
  unloaded_.clear();
}

void Forms::registerForm(std::string name, FormFactory factory) {
  const std::string key = NameKey(name);
  for (Entry& e : registry_)
    if (NameKey(e.name) == key) {
      e.factory = std::move(factory);
      return;
    }
  registry_.push_back({std::move(name), std::move(factory)});
}

bool Forms::isRegistered(std::string_view name) const {
  const std::string key = NameKey(name);
  return std::any_of(registry_.begin(), registry_.end(),
                     [&](const Entry& e) { return NameKey(e.name) == key; });
}

std::vector<std::string> Forms::registeredNames() const {
  std::vector<std::string> names;
  for (const Entry& e : registry_) names.push_back(e.name);
  return names;
}

int Forms::FormGeladen(std::string_view name) const {
  const std::string key = NameKey(name);
  for (int i = static_cast<int>(loaded_.size()) - 1; i >= 0; --i)
    if (NameKey(loaded_[i]->name()) == key) return i;
  return -1;
}

Form* Forms::find(std::string_view name) const {
  const int i = FormGeladen(name);
  return i < 0 ? nullptr : loaded_[i].get();
}

void Forms::rebuildView() {
  loadedView_.clear();
  for (auto& f : loaded_) loadedView_.push_back(f.get());
}

Form* Forms::load(std::string_view name) {
  if (Form* f = find(name)) return f;
  const std::string key = NameKey(name);
  auto it = std::find_if(registry_.begin(), registry_.end(),
                         [&](const Entry& e) { return NameKey(e.name) == key; });
  if (it == registry_.end()) return nullptr;
  std::unique_ptr<Form> made = it->factory(*this);
  if (!made) return nullptr;
  Form* form = made.get();
  form->loaded_ = true;
  loaded_.push_back(std::move(made));
  rebuildView();
  if (services_.placements && form->storesPlacement())
    if (auto stored = services_.placements->read(form->name())) form->placement_ = *stored;
  form->Load();
  if (!form->loaded_) return nullptr;  // Load gave up and unloaded the form
  if (host_) host_->formLoaded(*form);
  return form;
}

Form* Forms::show(std::string_view name, bool modal) {
  Form* form = load(name);
  if (form) show(*form, modal);
  return form;
}

void Forms::setActive(Form* form) {
  if (form && !form->loaded_) return;
  active_ = form;
}

void Forms::show(Form& form, bool modal) {
  if (!form.loaded_) return;
  const bool wasShown = form.shown_;
  form.shown_ = true;
  form.modal_ = modal;
  active_ = &form;
  if (host_) host_->formShown(form);
  if (!wasShown || modal) form.Activate();
  if (modal && host_ && form.loaded_ && form.shown_) host_->runModal(form);
}

void Forms::hide(Form& form) {
  if (!form.shown_) return;
  form.shown_ = false;
  if (active_ == &form) fallBackActive(&form);
  if (host_) host_->formHidden(form);
}

bool Forms::unload(Form& form) {
  if (!form.loaded_) return true;
  if (!form.QueryUnload()) return false;
  form.Unload();
  if (!form.loaded_) return true;  // Unload itself unloaded the form
  if (services_.placements && form.storesPlacement())
    services_.placements->write(form.name(), form.placement_);
  form.loaded_ = false;
  form.shown_ = false;
  form.notifyUnloaded();
  if (active_ == &form) fallBackActive(&form);
  if (host_) host_->formUnloaded(form);
  auto it = std::find_if(loaded_.begin(), loaded_.end(),
                         [&](const std::unique_ptr<Form>& f) { return f.get() == &form; });
  if (it != loaded_.end()) {
    unloaded_.push_back(std::move(*it));
    loaded_.erase(it);
    rebuildView();
  }
  return true;
}

void Forms::unloadAll() {
  while (!loaded_.empty()) {
    Form& form = *loaded_.back();
    form.Unload();
    if (form.loaded_) {
      if (services_.placements && form.storesPlacement())
        services_.placements->write(form.name(), form.placement_);
      form.loaded_ = false;
      form.shown_ = false;
      form.notifyUnloaded();
      if (active_ == &form) fallBackActive(&form);
      if (host_) host_->formUnloaded(form);
    }
    if (!loaded_.empty() && loaded_.back().get() == &form) {
      unloaded_.push_back(std::move(loaded_.back()));
      loaded_.pop_back();
    }
    rebuildView();
  }
}

void Forms::fallBackActive(const Form* leaving) {
  active_ = nullptr;
  for (auto it = loaded_.rbegin(); it != loaded_.rend(); ++it)
    if (it->get() != leaving && (*it)->loaded_ && (*it)->shown_) {
      active_ = it->get();
      return;
    }
}

void Forms::collect() { unloaded_.clear(); }

void Forms::trigger(std::string_view formName, std::string_view command) {
  if (Form* f = find(formName)) f->trigger(command);
}

}  // namespace kolm::forms
