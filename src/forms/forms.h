#pragma once
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/form.h"
#include "forms/services.h"

namespace kolm::forms {

// What shows forms: the Qt shell, the macro run, or nothing in unit tests.
class FormHost {
 public:
  virtual ~FormHost() = default;
  virtual void formLoaded(Form& form) = 0;
  virtual void formShown(Form& form) = 0;
  virtual void formHidden(Form& form) = 0;
  virtual void formUnloaded(Form& form) = 0;
  // Returns once the modal form is hidden or unloaded.
  virtual void runModal(Form& form) = 0;
};

using FormFactory = std::function<std::unique_ptr<Form>(Forms&)>;

// The loaded forms of the program and the factories of all it knows.
class Forms {
 public:
  explicit Forms(Services& services);
  ~Forms();

  Services& services() const { return services_; }
  void setHost(FormHost* host) { host_ = host; }
  FormHost* host() const { return host_; }

  void registerForm(std::string name, FormFactory factory);
  bool isRegistered(std::string_view name) const;
  std::vector<std::string> registeredNames() const;

  // Position of the loaded form of that name, searched from the last loaded
  // to the first; -1 when it is not loaded.
  int FormGeladen(std::string_view name) const;
  Form* find(std::string_view name) const;
  const std::vector<Form*>& loaded() const { return loadedView_; }

  // Loads a registered form once (Load runs, the stored position is read);
  // an already loaded one is returned as it is. Nullptr for an unknown name.
  Form* load(std::string_view name);
  // Loads if need be and shows it; a modal form returns when it closes.
  Form* show(std::string_view name, bool modal = false);
  void show(Form& form, bool modal = false);
  void hide(Form& form);
  // QueryUnload, then Unload; the position is stored. False when the form
  // refused. The object itself lives on until collect() so that a handler
  // may unload its own form.
  bool unload(Form& form);
  // Unloads every form, last loaded first, without asking.
  void unloadAll();
  // Destroys unloaded forms; call where no handler of theirs runs.
  void collect();

  // The form the user works in: the one shown last, or the child window the
  // shell reports as activated. Falls back to the last shown form when it
  // unloads; nullptr when none is shown.
  Form* active() const { return active_; }
  void setActive(Form* form);

  // Triggers the hidden command of a loaded form; nothing when it is not loaded.
  void trigger(std::string_view formName, std::string_view command);

 private:
  struct Entry {
    std::string name;
    FormFactory factory;
  };
  void rebuildView();
  void fallBackActive(const Form* leaving);

  Services& services_;
  FormHost* host_ = nullptr;
  std::vector<Entry> registry_;
  std::vector<std::unique_ptr<Form>> loaded_;
  std::vector<Form*> loadedView_;
  std::vector<std::unique_ptr<Form>> unloaded_;
  Form* active_ = nullptr;
};

}  // namespace kolm::forms
