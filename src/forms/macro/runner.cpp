#include "forms/macro/runner.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>

namespace kolm::forms::macro {

namespace {

// Thrown into form code that keeps opening modal forms after the run has
// stopped, so that its handler is left; never passes the runner.
struct Abandoned {};

constexpr int kModalsAfterStop = 20;

std::string Quote(std::string_view text) {
  std::string out = "\"";
  for (char c : NormalizeLineBreaks(text)) {
    if (c == '"') out += "\\\"";
    else if (c == '\\') out += "\\\\";
    else if (c == '\n') out += "\\n";
    else out += c;
  }
  return out + "\"";
}

std::string Number(double v) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed);
  return std::string(buf, r.ptr);
}

const char* KindInGerman(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label: return "ein Bezeichnungsfeld";
    case ControlKind::TextBox: return "ein Textfeld";
    case ControlKind::CheckBox: return "ein Kontrollkästchen";
    case ControlKind::OptionButton: return "ein Optionsfeld";
    case ControlKind::ComboBox: return "ein Kombinationsfeld";
    case ControlKind::ListBox: return "eine Liste";
    case ControlKind::CommandButton: return "eine Schaltfläche";
    case ControlKind::Frame: return "ein Rahmen";
    case ControlKind::Grid: return "ein Raster";
    case ControlKind::PictureBox: return "ein Bildfeld";
    case ControlKind::TabControl: return "ein Register";
    case ControlKind::Timer: return "ein Zeitgeber";
    case ControlKind::SpinButton: return "ein Drehfeld";
    case ControlKind::Menu: return "ein Menüeintrag";
    case ControlKind::RichText: return "eine Textanzeige";
  }
  return "ein Steuerelement";
}

bool CellInside(const Control& grid, const Address& a) {
  return a.row < grid.rows() && a.col < grid.cols();
}

std::string GridShape(const Control& grid) {
  return std::to_string(grid.rows()) + " Zeilen und " + std::to_string(grid.cols()) + " Spalten";
}

std::string DescribeReply(const Reply& r) {
  switch (r.kind) {
    case Reply::Kind::File: return "Datei " + Quote(r.text);
    case Reply::Kind::Input: return "OK " + Quote(r.text);
    default: return r.word;
  }
}

}  // namespace

MacroRunner::MacroRunner(Forms& forms, MacroDialogs& dialogs, MacroEnvironment& environment,
                         std::ostream& out)
    : forms_(forms), dialogs_(dialogs), env_(environment), out_(out) {
  inner_ = forms_.host();
  forms_.setHost(this);
  Services& s = forms_.services();
  oldMessages_ = s.messages;
  oldInput_ = s.input;
  oldFiles_ = s.files;
  s.messages = &dialogs_.messages;
  s.input = &dialogs_.input;
  s.files = &dialogs_.files;
}

MacroRunner::~MacroRunner() {
  if (forms_.host() == this) forms_.setHost(inner_);
  Services& s = forms_.services();
  if (s.messages == &dialogs_.messages) s.messages = oldMessages_;
  if (s.input == &dialogs_.input) s.input = oldInput_;
  if (s.files == &dialogs_.files) s.files = oldFiles_;
}

// ---- running -------------------------------------------------------------------

int MacroRunner::runFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    out_ << path << ": Fehler: Die Makrodatei lässt sich nicht lesen\n";
    return kCannotRun;
  }
  std::ostringstream text;
  text << in.rdbuf();
  return runText(text.str(), path);
}

int MacroRunner::runText(std::string_view text, const std::string& fileName) {
  const Script script = ParseMacro(text, fileName);
  return run(script);
}

int MacroRunner::run(const Script& script) {
  if (!script.ok()) {
    for (const SyntaxError& e : script.errors)
      out_ << script.file << ":" << e.line << ": Fehler: " << e.message << "\n";
    return kCannotRun;
  }
  if (forms_.host() != this) {  // someone installed a host after us: wrap it
    inner_ = forms_.host();
    forms_.setHost(this);
  }
  script_ = &script;
  next_ = 0;
  running_.clear();
  modals_.clear();
  stopped_ = false;
  abandonedModals_ = 0;
  checks_ = failed_ = 0;

  while (!stopped_ && next_ < script.commands.size()) {
    try {
      execute(script.commands[next_++]);
    } catch (const Abandoned&) {
      stopped_ = true;
    }
    // Only here no handler of any form is under way, so unloaded forms
    // can go.
    if (modals_.empty()) forms_.collect();
  }

  for (const QueuedReply& r : dialogs_.queue.pending())
    out_ << r.origin.file << ":" << r.origin.line << ": Hinweis: Die Antwort " << DescribeReply(r.reply)
         << " hat kein Dialog abgeholt\n";
  dialogs_.queue.clear();
  script_ = nullptr;

  if (stopped_) return kCannotRun;
  out_ << script.file << ": " << checks_ << (checks_ == 1 ? " Prüfung, " : " Prüfungen, ");
  if (failed_ == 0) out_ << (checks_ == 1 ? "bestanden" : "alle bestanden") << "\n";
  else out_ << failed_ << " fehlgeschlagen\n";
  return failed_ > 0 ? kCheckFailed : kAllChecksHeld;
}

void MacroRunner::execute(const Command& c) {
  running_.push_back(&c);
  dialogs_.queue.setOrigin({c.file, c.line});
  if (echo_) out_ << c.file << ":" << c.line << ": " << c.source << "\n";
  try {
    perform(c);
  } catch (const CommandError& e) {
    error(&c, e.message);
  } catch (const Abandoned&) {
    // the error that stopped the run is reported already
  }
  running_.pop_back();
  // Boxes shown after a modal form closed belong to the line that opened it.
  if (!running_.empty()) dialogs_.queue.setOrigin({running_.back()->file, running_.back()->line});
}

void MacroRunner::error(const Command* c, const std::string& message) {
  if (stopped_) return;
  stopped_ = true;
  if (c) out_ << c->file << ":" << c->line << ": Fehler: " << message << "\n";
  else out_ << (script_ ? script_->file : std::string("Makro")) << ": Fehler: " << message << "\n";
}

void MacroRunner::perform(const Command& c) {
  switch (c.verb) {
    case Verb::Projekt: {
      if (!modals_.empty())
        throw CommandError{"Solange das modale Formular " + modals_.back().form->name() +
                           " offen ist, lässt sich kein Projekt öffnen"};
      std::string why;
      if (!env_.openProject(c.texts[0], why))
        throw CommandError{"Das Projekt " + Quote(c.texts[0]) + " lässt sich nicht öffnen" +
                           (why.empty() ? std::string() : ": " + why)};
      return;
    }
    case Verb::Menue: return menu(c);
    case Verb::Oeffne: return openForm(c);
    case Verb::Schliesse: return closeForm(c);
    case Verb::Setze: return setText(c);
    case Verb::Tippe: return type(c);
    case Verb::Klicke: return click(c, false);
    case Verb::Doppelklicke: return click(c, true);
    case Verb::Waehle: return choose(c);
    case Verb::Markiere: return mark(c);
    case Verb::Fokus: return focus(c, true);
    case Verb::Verlasse: return focus(c, false);
    case Verb::Ziehe: return drag(c);
    case Verb::Timer: return timer(c);
    case Verb::Warte: return env_.processEvents(c.numbers[0]);
    case Verb::Antworte: return dialogs_.queue.push(c.reply, {c.file, c.line});
    case Verb::Zwischenablage: {
      ClipboardService* clip = forms_.services().clipboard;
      if (!clip) throw CommandError{"Es gibt keine Zwischenablage"};
      return clip->setText(c.texts[0]);
    }
    case Verb::Pruefe:
      return c.property == Prop::None ? checkText(c) : checkProperty(c);
    case Verb::PruefeMeldung: return checkMessage(c);
    case Verb::PruefeKeineMeldung: return checkNoMessage(c);
    case Verb::PruefeStatus: {
      StatusLine* status = forms_.services().status;
      if (!status) throw CommandError{"Es gibt keine Statuszeile"};
      return compare(c, "Statuszeile", c.texts[0], status->text());
    }
    case Verb::PruefePunkt: return checkPoint(c);
    case Verb::PruefeZwischenablage: {
      ClipboardService* clip = forms_.services().clipboard;
      if (!clip) throw CommandError{"Es gibt keine Zwischenablage"};
      return compare(c, "Zwischenablage", c.texts[0], clip->text());
    }
    case Verb::Bild: return picture(c);
  }
}

// ---- modal forms -----------------------------------------------------------------

void MacroRunner::runModal(Form& form) {
  if (!script_) {
    if (inner_) inner_->runModal(form);
    return;
  }
  if (stopped_) {
    // The run is over; a handler that keeps opening modal forms is left.
    if (++abandonedModals_ > kModalsAfterStop) throw Abandoned{};
    return;
  }
  Modal modal{&form, {forms_.loaded().begin(), forms_.loaded().end()},
              running_.empty() ? nullptr : running_.back()};
  modals_.push_back(modal);
  const std::vector<Command>& commands = script_->commands;
  while (!stopped_ && form.loaded() && form.shown()) {
    if (next_ >= commands.size()) {
      error(modal.opener, "Das Makro ist zu Ende, aber das modale Formular " + form.name() + " ist noch offen");
      break;
    }
    execute(commands[next_++]);
  }
  modals_.pop_back();
}

void MacroRunner::formLoaded(Form& form) { if (inner_) inner_->formLoaded(form); }
void MacroRunner::formShown(Form& form) { if (inner_) inner_->formShown(form); }
void MacroRunner::formHidden(Form& form) { if (inner_) inner_->formHidden(form); }
void MacroRunner::formUnloaded(Form& form) { if (inner_) inner_->formUnloaded(form); }

// ---- lookup ----------------------------------------------------------------------

Form& MacroRunner::loadedForm(const std::string& name) const {
  if (Form* f = forms_.find(name)) return *f;
  if (forms_.isRegistered(name)) throw CommandError{"Das Formular " + name + " ist nicht geladen"};
  throw CommandError{"Ein Formular " + name + " gibt es nicht"};
}

Control& MacroRunner::control(const Address& a) const {
  Form& form = loadedForm(a.form);
  if (a.isForm()) throw CommandError{a.written + " nennt kein Steuerelement"};
  Control* found = form.find(a.control, a.index);
  if (!found) {
    const std::vector<Control*> members = form.array(a.control);
    if (members.empty())
      throw CommandError{"Ein Steuerelement " + a.control + " gibt es im Formular " + form.name() + " nicht"};
    if (a.index < 0)
      throw CommandError{a.control + " ist ein Steuerelementfeld; der Index fehlt, etwa " + form.name() + "." +
                         members.front()->address()};
    if (members.size() == 1 && members.front()->index() < 0)
      throw CommandError{a.control + " ist kein Steuerelementfeld; es heißt ohne Index " + form.name() + "." +
                         a.control};
    std::string indices;
    for (const Control* m : members) indices += (indices.empty() ? "" : ", ") + std::to_string(m->index());
    throw CommandError{"Ein " + a.control + "(" + std::to_string(a.index) + ") gibt es nicht; das Feld " +
                       a.control + " hat die Indizes " + indices};
  }
  if (a.isCell() && found->kind() != ControlKind::Grid)
    throw CommandError{a.form + "." + found->address() + " ist " + KindInGerman(found->kind()) +
                       ", kein Raster; nur ein Raster hat Zellen [Z,S]"};
  return *found;
}

// The grid of a cell address, with the cell inside it.
Control& MacroRunner::cellGrid(const Address& a) const {
  Control& grid = control(a);
  if (!CellInside(grid, a))
    throw CommandError{"Die Zelle " + a.written + " liegt außerhalb des Rasters (" + GridShape(grid) + ")"};
  return grid;
}

void MacroRunner::requireReachable(Form& form) const {
  if (!form.shown()) throw CommandError{"Das Formular " + form.name() + " wird nicht angezeigt"};
  if (modals_.empty()) return;
  const Modal& top = modals_.back();
  if (&form != top.form && std::find(top.before.begin(), top.before.end(), &form) != top.before.end())
    throw CommandError{"Solange das modale Formular " + top.form->name() + " offen ist, ist das Formular " +
                       form.name() + " nicht zu bedienen"};
}

// What a user can operate: the form shown and in reach, the control and
// the frames, tab controls or menus it lies in visible and enabled.
void MacroRunner::requireUsable(Control& c, const Address& a) const {
  requireReachable(c.form());
  const bool menu = c.kind() == ControlKind::Menu;
  const std::string who = menu ? "Der Menüeintrag " + c.address() : a.written;
  const std::string cannot = menu ? " und kann nicht ausgeführt werden" : "; ein Benutzer kann es nicht bedienen";
  if (!c.visible()) throw CommandError{who + " ist unsichtbar" + cannot};
  if (!c.enabled()) throw CommandError{who + " ist gesperrt" + cannot};
  std::string container = c.placement().container;
  for (int depth = 0; !container.empty() && depth < 16; ++depth) {
    Control* outer = c.form().find(container);
    if (!outer) {
      const std::vector<Control*> members = c.form().array(container);
      if (members.empty()) break;
      outer = members.front();
    }
    if (!outer->visible()) throw CommandError{who + " liegt in " + outer->address() + ", das unsichtbar ist" + cannot};
    if (!outer->enabled()) throw CommandError{who + " liegt in " + outer->address() + ", das gesperrt ist" + cannot};
    container = outer->placement().container;
  }
}

// Clicking or typing into a control first moves the focus to it, so the
// LostFocus of the field before runs as it does for a user.
void MacroRunner::focusFor(Control& c) const {
  if (forms::TakesFocus(c.kind()) && c.form().activeControl() != &c) c.setFocus();
  if (!c.form().loaded())
    throw CommandError{"Das Formular " + c.form().name() + " wurde beim Wechsel des Fokus geschlossen"};
}

// ---- actions ---------------------------------------------------------------------

void MacroRunner::menu(const Command& c) {
  const Address& a = c.addresses[0];
  if (!forms_.find("Main")) throw CommandError{"Das Hauptfenster Main ist nicht geladen"};
  Control& entry = control(a);
  if (entry.kind() != ControlKind::Menu)
    throw CommandError{"Main." + entry.address() + " ist " + KindInGerman(entry.kind()) + ", kein Menüeintrag"};
  requireUsable(entry, a);
  entry.click();
}

void MacroRunner::openForm(const Command& c) {
  const std::string& name = c.addresses[0].form;
  if (!forms_.isRegistered(name) && !forms_.find(name)) throw CommandError{"Ein Formular " + name + " gibt es nicht"};
  if (!modals_.empty())
    throw CommandError{"Solange das modale Formular " + modals_.back().form->name() + " offen ist, lässt sich " +
                       name + " nicht über das Menü öffnen"};
  // A form whose Load gives up (after a message) is what a user sees too.
  env_.openForm(name);
}

void MacroRunner::closeForm(const Command& c) {
  Form& form = loadedForm(c.addresses[0].form);
  if (!modals_.empty() && &form != modals_.back().form) {
    const Modal& top = modals_.back();
    if (std::find(top.before.begin(), top.before.end(), &form) != top.before.end())
      throw CommandError{"Solange das modale Formular " + top.form->name() + " offen ist, lässt sich " +
                         form.name() + " nicht schließen"};
  }
  forms_.unload(form);  // a form that refuses stays, as on screen
}

void MacroRunner::setText(const Command& c) {
  const Address& a = c.addresses[0];
  const std::string& text = c.texts[0];
  if (a.isCell()) {
    Control& grid = cellGrid(a);
    requireUsable(grid, a);
    focusFor(grid);
    grid.setCurrentCell(a.row, a.col);
    if (grid.cell(a.row, a.col) == text) return;
    grid.setCell(a.row, a.col, text);
    EventArgs args;
    args.row = a.row;
    args.col = a.col;
    grid.raise(Event::Change, args);
    return;
  }
  Control& x = control(a);
  const bool typed = x.kind() == ControlKind::TextBox || (x.kind() == ControlKind::ComboBox && !x.isDropDownList());
  const bool listed = x.kind() == ControlKind::ListBox || x.kind() == ControlKind::ComboBox;
  if (!typed && !listed) {
    if (x.kind() == ControlKind::Grid)
      throw CommandError{"Bei einem Raster nennt setze die Zelle: " + a.written + "[Z,S]"};
    throw CommandError{"setze geht bei Textfeldern, Kombinationsfeldern, Listen und Rasterzellen; " + a.written +
                       " ist " + KindInGerman(x.kind())};
  }
  requireUsable(x, a);
  if (typed) {
    focusFor(x);
    x.setText(text);
    return;
  }
  // A list takes no typed text: the entry of that text is chosen.
  const auto& list = x.list();
  const auto it = std::find(list.begin(), list.end(), text);
  if (it == list.end()) throw CommandError{Quote(text) + " steht nicht in der Liste von " + a.written};
  focusFor(x);
  x.setListIndex(static_cast<int>(it - list.begin()));
}

void MacroRunner::type(const Command& c) {
  const Address& a = c.addresses[0];
  Control& x = a.isCell() ? cellGrid(a) : control(a);
  requireUsable(x, a);
  Form& form = x.form();
  if (form.activeControl() != &x) x.setFocus();
  if (a.isCell()) x.setCurrentCell(a.row, a.col);
  for (size_t k = 0; k < c.keys.size() && !stopped_; ++k) {
    if (!form.loaded() || !form.shown())
      throw CommandError{"Nach " + std::to_string(k) + (k == 1 ? " Taste" : " Tasten") + " ist das Formular " +
                         form.name() + " nicht mehr offen; " + std::to_string(c.keys.size() - k) +
                         " Tasten bleiben übrig"};
    // Keys go where the focus is, as Tab moves it on.
    Control* target = form.activeControl() ? form.activeControl() : &x;
    const KeyStroke& key = c.keys[k];
    form.sendKey(*target, key.keyCode, key.shift, key.ch);
  }
}

void MacroRunner::click(const Command& c, bool twice) {
  const Address& a = c.addresses[0];
  if (a.isCell()) {
    Control& grid = cellGrid(a);
    requireUsable(grid, a);
    focusFor(grid);
    grid.setCurrentCell(a.row, a.col);
    EventArgs args;
    args.row = a.row;
    args.col = a.col;
    grid.raise(twice ? Event::DblClick : Event::Click, args);
    return;
  }
  Control& x = control(a);
  requireUsable(x, a);
  focusFor(x);
  if (twice) x.doubleClick();
  else x.click();
}

void MacroRunner::choose(const Command& c) {
  const Address& a = c.addresses[0];
  Control& x = control(a);
  const int n = c.numbers[0];
  if (x.kind() != ControlKind::ListBox && x.kind() != ControlKind::ComboBox && x.kind() != ControlKind::TabControl)
    throw CommandError{"waehle geht bei Listen, Kombinationsfeldern und Registern; " + a.written + " ist " +
                       KindInGerman(x.kind())};
  if (n >= x.listCount())
    throw CommandError{a.written + " hat keinen Eintrag " + std::to_string(n) + " (ListCount ist " +
                       std::to_string(x.listCount()) + ")"};
  requireUsable(x, a);
  focusFor(x);
  // Choosing the entry that is chosen already still acts, as a click does.
  if (x.listIndex() != n) x.setListIndex(n);
  else if (x.kind() != ControlKind::TabControl) x.raise(Event::Click);
}

void MacroRunner::mark(const Command& c) {
  const Address& a = c.addresses[0];
  Control& x = control(a);
  const std::vector<int>& n = c.numbers;
  if (x.kind() == ControlKind::Grid) {
    if (n.size() != 4) throw CommandError{"Bei einem Raster nimmt markiere vier Zahlen: Z1 S1 Z2 S2"};
    for (int k = 0; k < 4; k += 2)
      if (n[k] >= x.rows() || n[k + 1] >= x.cols())
        throw CommandError{"Die Zelle [" + std::to_string(n[k]) + "," + std::to_string(n[k + 1]) +
                           "] liegt außerhalb des Rasters " + a.written + " (" + GridShape(x) + ")"};
    requireUsable(x, a);
    focusFor(x);
    x.setGridSelection(n[0], n[1], n[2], n[3]);
    return;
  }
  if (x.kind() != ControlKind::ListBox)
    throw CommandError{"markiere geht bei Listen mit Mehrfachauswahl und bei Rastern; " + a.written + " ist " +
                       KindInGerman(x.kind())};
  if (!x.isMultiSelect())
    throw CommandError{a.written + " erlaubt keine Mehrfachauswahl; einen Eintrag wählt waehle"};
  for (int i : n)
    if (i >= x.listCount())
      throw CommandError{a.written + " hat keinen Eintrag " + std::to_string(i) + " (ListCount ist " +
                         std::to_string(x.listCount()) + ")"};
  requireUsable(x, a);
  focusFor(x);
  for (int i = 0; i < x.listCount(); ++i) x.setSelected(i, std::find(n.begin(), n.end(), i) != n.end());
  if (!n.empty() && x.listIndex() != n.back()) x.setListIndex(n.back());
  else x.raise(Event::Click);
}

void MacroRunner::focus(const Command& c, bool enter) {
  const Address& a = c.addresses[0];
  Control& x = a.isCell() ? cellGrid(a) : control(a);
  Form& form = x.form();
  if (!enter) {
    if (form.activeControl() == &x) form.setActiveControl(nullptr);
    else x.raise(Event::LostFocus);
    return;
  }
  requireUsable(x, a);
  if (form.activeControl() == &x) x.raise(Event::GotFocus);
  else x.setFocus();
  if (a.isCell() && form.loaded()) x.setCurrentCell(a.row, a.col);
}

void MacroRunner::drag(const Command& c) {
  const Address& from = c.addresses[0];
  const Address& to = c.addresses[1];
  Control& source = from.isCell() ? cellGrid(from) : control(from);
  Control& target = to.isCell() ? cellGrid(to) : control(to);
  requireUsable(source, from);
  requireUsable(target, to);
  if (!source.isDraggable()) throw CommandError{from.written + " lässt sich nicht ziehen (keine Ziehquelle)"};
  if (!target.isDropTarget()) throw CommandError{"Auf " + to.written + " lässt sich nichts ablegen (kein Ablageziel)"};
  EventArgs start;
  if (from.isCell()) {
    source.setCurrentCell(from.row, from.col);
    start.row = from.row;
    start.col = from.col;
  }
  source.raise(Event::DragStart, start);
  if (start.cancel || stopped_ || !target.form().loaded()) return;  // the source refused the drag
  EventArgs drop;
  drop.source = &source;
  if (to.isCell()) {
    drop.row = to.row;
    drop.col = to.col;
  }
  target.raise(Event::DragDrop, drop);
}

void MacroRunner::timer(const Command& c) {
  const Address& a = c.addresses[0];
  Control& t = control(a);
  if (t.kind() != ControlKind::Timer)
    throw CommandError{a.written + " ist " + KindInGerman(t.kind()) + ", kein Zeitgeber"};
  // A disabled timer, or one without an interval, does not fire; a handler
  // may stop it in between.
  for (int i = 0; i < c.numbers[0]; ++i) {
    if (stopped_ || !t.form().loaded() || !t.enabled() || t.intervalMs() <= 0) break;
    t.raise(Event::Timer);
  }
}

void MacroRunner::picture(const Command& c) {
  Form& form = loadedForm(c.addresses[0].form);
  if (!form.shown()) throw CommandError{"Das Formular " + form.name() + " wird nicht angezeigt"};
  if (!env_.writePicture(form, c.texts[0]))
    throw CommandError{"Das Bild von " + form.name() + " ließ sich nicht nach " + Quote(c.texts[0]) + " schreiben"};
}

// ---- checks ----------------------------------------------------------------------

void MacroRunner::compare(const Command& c, const std::string& subject, const std::string& expected,
                          const std::string& found) {
  ++checks_;
  if (NormalizeLineBreaks(found) != NormalizeLineBreaks(expected)) failCheck(c, subject, Quote(expected), Quote(found));
}

void MacroRunner::failCheck(const Command& c, const std::string& subject, const std::string& expected,
                            const std::string& found) {
  ++failed_;
  out_ << c.file << ":" << c.line << ": Prüfung fehlgeschlagen: " << subject << ": erwartet " << expected
       << ", gefunden " << found << "\n";
}

void MacroRunner::checkText(const Command& c) {
  const Address& a = c.addresses[0];
  const std::string& expected = c.texts[0];
  if (a.isForm()) return compare(c, a.written, expected, loadedForm(a.form).caption());
  Control& x = control(a);
  if (a.isCell()) {
    if (!CellInside(x, a)) {
      ++checks_;
      return failCheck(c, a.written, Quote(expected), "keine solche Zelle (das Raster hat " + GridShape(x) + ")");
    }
    return compare(c, a.written, expected, x.cell(a.row, a.col));
  }
  if (x.kind() == ControlKind::Grid) {
    const GridData& g = x.gridData();
    return compare(c, a.written, expected, x.cell(g.row, g.col));
  }
  compare(c, a.written, expected, x.shownText());
}

void MacroRunner::checkProperty(const Command& c) {
  const Address& a = c.addresses[0];
  if (a.isCell()) {
    if (c.property != Prop::Text) throw CommandError{"Bei einer Zelle lässt sich nur Text prüfen"};
    return checkText(c);
  }
  const std::string found = propertyValue(c, a);
  std::string expected = c.texts[0];
  // An option's Value is a truth value; 0 and 1 (or -1) are accepted for it.
  if (c.property == Prop::Value && (found == TruthText(true) || found == TruthText(false)) &&
      expected != TruthText(true) && expected != TruthText(false))
    expected = TruthText(expected != "0");
  compare(c, a.written + " " + c.propertyWritten, expected, found);
}

std::string MacroRunner::propertyValue(const Command& c, const Address& a) const {
  if (a.isForm()) {
    Form& form = loadedForm(a.form);
    if (c.property == Prop::Caption) return form.caption();
    if (c.property == Prop::Visible) return TruthText(form.shown());
    throw CommandError{"Bei einem Formular lassen sich Caption und Visible prüfen, nicht " + c.propertyWritten};
  }
  Control& x = control(a);
  const bool grid = x.kind() == ControlKind::Grid;
  switch (c.property) {
    case Prop::Enabled: return TruthText(x.enabled());
    case Prop::Visible: return TruthText(x.visible());
    case Prop::Checked:
      if (x.kind() == ControlKind::CheckBox) return TruthText(x.value() == 1);
      if (x.kind() == ControlKind::OptionButton) return TruthText(x.value() != 0);
      return TruthText(x.checked());
    case Prop::Value:
      if (x.kind() == ControlKind::OptionButton) return TruthText(x.value() != 0);
      return std::to_string(x.value());
    case Prop::ListIndex: return std::to_string(x.listIndex());
    case Prop::ListCount: return std::to_string(x.listCount());
    case Prop::List: return c.item < x.listCount() ? x.list()[c.item] : std::string();
    case Prop::Selected: return TruthText(x.selected(c.item));
    case Prop::Tag: return x.tag();
    case Prop::ToolTipText: return x.toolTip();
    case Prop::Caption: return x.captionText();
    case Prop::Text:
      if (grid) return x.cell(x.gridData().row, x.gridData().col);
      if (x.kind() == ControlKind::TextBox || x.kind() == ControlKind::ComboBox) return x.text();
      return x.shownText();
    case Prop::Row: case Prop::Col: case Prop::Rows: case Prop::Cols:
      if (!grid)
        throw CommandError{c.propertyWritten + " gibt es nur bei einem Raster; " + a.written + " ist " +
                           KindInGerman(x.kind())};
      if (c.property == Prop::Row) return std::to_string(x.gridData().row);
      if (c.property == Prop::Col) return std::to_string(x.gridData().col);
      return std::to_string(c.property == Prop::Rows ? x.rows() : x.cols());
    case Prop::None: break;
  }
  throw CommandError{"Unbekannte Eigenschaft " + c.propertyWritten};
}

void MacroRunner::checkMessage(const Command& c) {
  ++checks_;
  const std::string& expected = c.texts[0];
  ShownBox* box = dialogs_.messages.nextUnchecked();
  if (!box) return failCheck(c, "Meldung", Quote(expected), "keine");
  box->checked = true;
  const std::string text = NormalizeLineBreaks(box->message.text);
  if (text != NormalizeLineBreaks(expected)) return failCheck(c, "Meldung", Quote(expected), Quote(text));
  if (c.texts.size() > 1 && box->message.title != c.texts[1])
    failCheck(c, "Titel der Meldung " + Quote(text), Quote(c.texts[1]), Quote(box->message.title));
}

void MacroRunner::checkNoMessage(const Command& c) {
  ++checks_;
  std::vector<const ShownBox*> unchecked;
  for (ShownBox& box : dialogs_.messages.shown())
    if (!box.checked) {
      unchecked.push_back(&box);
      box.checked = true;
    }
  if (unchecked.empty()) return;
  std::string found = Quote(unchecked.front()->message.text);
  if (unchecked.size() > 1) found += " und " + std::to_string(unchecked.size() - 1) + " weitere";
  failCheck(c, "Meldung", "keine", found);
}

void MacroRunner::checkPoint(const Command& c) {
  const int n = c.numbers[0];
  bool empty = false;
  std::string why;
  const std::optional<std::array<double, 3>> p = env_.point(n, empty, why);
  if (!why.empty()) throw CommandError{"Punkt " + std::to_string(n) + ": " + why};
  ++checks_;
  const std::string subject = "Punkt " + std::to_string(n);
  const bool isEmpty = empty || !p;
  const std::string found = isEmpty ? "leer" : Quote(Number((*p)[0]) + " " + Number((*p)[1]) + " " + Number((*p)[2]));
  if (c.expectEmpty) {
    if (!isEmpty) failCheck(c, subject, "leer", found);
    return;
  }
  const std::string expected = Quote(c.coordsWritten[0] + " " + c.coordsWritten[1] + " " + c.coordsWritten[2]);
  if (isEmpty) return failCheck(c, subject, expected, found);
  for (int k = 0; k < 3; ++k) {
    const double diff = std::fabs((*p)[k] - c.coords[k]);
    // A difference of exactly the tolerance holds, whatever rounding the
    // binary numbers of large coordinates bring.
    const double slack = 8 * std::numeric_limits<double>::epsilon() * std::max(std::fabs((*p)[k]), std::fabs(c.coords[k]));
    if (!(diff <= c.tolerance + slack)) {
      failCheck(c, subject + " (Toleranz " + Number(c.tolerance) + ")", expected, found);
      return;
    }
  }
}

}  // namespace kolm::forms::macro
