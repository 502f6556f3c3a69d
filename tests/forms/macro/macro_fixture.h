#pragma once
// Small forms the macro tests drive, and a runner wired to them.
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "forms/macro/runner.h"
#include "forms/scripted.h"

namespace kolm::forms::macro::testing {

using Log = std::vector<std::string>;

inline std::string Num(int n) { return std::to_string(n); }

inline FileRequest Request(bool save, std::string title, std::string filter) {
  FileRequest r;
  r.save = save;
  r.title = std::move(title);
  r.filter = std::move(filter);
  return r;
}

// The main window: menus and a button bar.
class MainForm : public Form {
 public:
  MainForm(Forms& forms, Log& log) : Form(forms, "Main", "Kolm") {
    add(ControlKind::Menu, "MnuDatei").caption("&Datei");
    add(ControlKind::Menu, "MnuDateiÖffnen").caption("Ö&ffnen...").in("MnuDatei");
    add(ControlKind::Menu, "MnuDateiSpeichern").caption("&Speichern").in("MnuDatei").disabled();
    add(ControlKind::Menu, "MnuPunkte").caption("&Punkte").in("MnuDatei");
    add(ControlKind::Menu, "MnuExtras").caption("E&xtras").disabled();
    add(ControlKind::Menu, "MnuExtrasOptionen").caption("&Optionen").in("MnuExtras");
    add(ControlKind::Menu, "MnuVersteckt").caption("Versteckt").in("MnuDatei").hidden();
    for (int i = 0; i < 3; ++i) add(ControlKind::CommandButton, "FnLButton", i).caption("F" + Num(i + 1));
    add(ControlKind::Label, "LabelInfo");

    on("MnuDateiÖffnen", Event::Click, [this, &log](Control&, EventArgs&) {
      const Answer a = services().messages->show({.text = "Tabelle speichern?", .title = "Kolm", .buttons = Buttons::YesNoCancel});
      log.push_back(std::string("Speichern? ") + AnswerCaption(a));
      if (a == Answer::Cancel) return;
      const auto path = services().files->choose(Request(false, "Tabelle öffnen", "Tabellen (*.pkt)|*.pkt"));
      log.push_back("Datei " + path.value_or("(abgebrochen)"));
      if (path) services().status->show("Geöffnet: " + *path);
    });
    on("MnuPunkte", Event::Click, [this](Control&, EventArgs&) { this->forms().show("Eingabe"); });
    on("MnuExtrasOptionen", Event::Click, [&log](Control&, EventArgs&) { log.push_back("Optionen"); });
    on("FnLButton", Event::Click, [&log](Control&, EventArgs& a) { log.push_back("FnLButton " + Num(a.index)); });
  }
};

// A data entry dialog with one control of each kind the macro drives.
class EingabeForm : public Form {
 public:
  EingabeForm(Forms& forms, Log& log) : Form(forms, "Eingabe", "Punkteingabe"), log_(log) {
    add(ControlKind::TextBox, "PP1Nr").tip("Nummer des Punktes");
    add(ControlKind::TextBox, "Bemerkung").multiLine();
    for (int i = 0; i < 3; ++i) add(ControlKind::TextBox, "Param", i);
    add(ControlKind::ComboBox, "Einheit").items({"Neugrad", "Altgrad", "Radiant"}).dropDownList();
    add(ControlKind::ComboBox, "Code").items({"GR", "BA"});
    add(ControlKind::ListBox, "Liste").items({"eins", "zwei", "drei", "vier"}).multiSelect();
    add(ControlKind::ListBox, "Auswahl").items({"Nord", "Süd"});
    add(ControlKind::CheckBox, "Anders").caption("&Anders");
    add(ControlKind::OptionButton, "Art", 0).caption("Gerade");
    add(ControlKind::OptionButton, "Art", 1).caption("Bogen");
    add(ControlKind::Grid, "Grid").grid(5, 3);
    add(ControlKind::CommandButton, "Berechnen").caption("&Berechnen").asDefault();
    add(ControlKind::CommandButton, "Abbrechen").caption("Abbrechen").asCancel();
    add(ControlKind::CommandButton, "Gesperrt").caption("Gesperrt").disabled();
    add(ControlKind::CommandButton, "Versteckt").hidden();
    add(ControlKind::Frame, "Rahmen").caption("Rahmen").disabled();
    add(ControlKind::TextBox, "ImRahmen").in("Rahmen");
    add(ControlKind::Timer, "Uhr").interval(100);
    add(ControlKind::Timer, "Ruhig").interval(100).disabled();
    add(ControlKind::Label, "Ergebnis").caption("");
    add(ControlKind::TabControl, "Register").items({"Allgemein", "Details"});
    add(ControlKind::ListBox, "Quelle").items({"P1", "P2"}).draggable();
    add(ControlKind::TextBox, "Ziel").dropTarget();
    add(ControlKind::CommandButton, "Eingeben").caption("Punkt...");
    add(ControlKind::CommandButton, "Frage").caption("Frage");
    add(ControlKind::CommandButton, "Datei").caption("Datei");
    add(ControlKind::CommandButton, "Löschen").caption("Löschen");
    add(ControlKind::CommandButton, "Schleife").caption("Schleife");

    for (const char* name : {"PP1Nr", "Param", "Bemerkung", "Code"}) {
      const std::string n = name;
      on(n, Event::Change, [&log, n](Control& c, EventArgs& a) {
        log.push_back("Change " + n + (a.index >= 0 ? "(" + Num(a.index) + ")" : "") + "=" + c.text());
      });
    }
    for (const char* name : {"PP1Nr", "Param", "Grid"}) {
      const std::string n = name;
      on(n, Event::KeyDown, [&log, n](Control&, EventArgs& a) {
        log.push_back("KeyDown " + n + " " + Num(a.keyCode) + "/" + Num(a.shift));
      });
      on(n, Event::KeyPress, [&log, n](Control&, EventArgs& a) {
        log.push_back("KeyPress " + n + " " + Num(a.keyAscii));
      });
      on(n, Event::GotFocus, [&log, n](Control&, EventArgs& a) {
        log.push_back("GotFocus " + n + (a.index >= 0 ? "(" + Num(a.index) + ")" : ""));
      });
      on(n, Event::LostFocus, [&log, n](Control&, EventArgs& a) {
        log.push_back("LostFocus " + n + (a.index >= 0 ? "(" + Num(a.index) + ")" : ""));
      });
    }
    on("PP1Nr", Event::KeyUp, [&log](Control&, EventArgs& a) { log.push_back("KeyUp PP1Nr " + Num(a.keyCode)); });
    on("Grid", Event::Change, [&log](Control& g, EventArgs& a) {
      log.push_back("Change Grid " + Num(a.row) + "," + Num(a.col) + "=" + g.cell(a.row, a.col));
    });
    on("Grid", Event::Click, [&log](Control&, EventArgs& a) { log.push_back("Click Grid " + Num(a.row) + "," + Num(a.col)); });
    on("Grid", Event::DblClick, [&log](Control&, EventArgs& a) { log.push_back("DblClick Grid " + Num(a.row) + "," + Num(a.col)); });
    on("Grid", Event::SelChange, [&log](Control& g, EventArgs&) {
      const GridData& d = g.gridData();
      log.push_back("SelChange " + Num(d.row) + "," + Num(d.col) + "-" + Num(d.rowSel) + "," + Num(d.colSel));
    });
    on("Einheit", Event::Click, [&log](Control& c, EventArgs&) { log.push_back("Click Einheit=" + c.text()); });
    on("Auswahl", Event::Click, [&log](Control& c, EventArgs&) { log.push_back("Click Auswahl " + Num(c.listIndex())); });
    on("Auswahl", Event::DblClick, [&log](Control& c, EventArgs&) { log.push_back("DblClick Auswahl " + Num(c.listIndex())); });
    on("Liste", Event::Click, [&log](Control& c, EventArgs&) {
      std::string marked;
      for (int i = 0; i < c.listCount(); ++i)
        if (c.selected(i)) marked += Num(i);
      log.push_back("Click Liste " + marked);
    });
    on("Register", Event::Click, [&log](Control& c, EventArgs&) { log.push_back("Register " + Num(c.listIndex())); });
    on("Anders", Event::Click, [&log](Control& c, EventArgs&) { log.push_back("Click Anders=" + Num(c.value())); });
    on("Art", Event::Click, [&log](Control&, EventArgs& a) { log.push_back("Click Art(" + Num(a.index) + ")"); });
    on("Berechnen", Event::Click, [this, &log](Control&, EventArgs&) {
      log.push_back("Berechnen");
      control("Ergebnis").setCaption("Summe " + control("PP1Nr").text());
    });
    on("Berechnen", Event::GotFocus, [&log](Control&, EventArgs&) { log.push_back("GotFocus Berechnen"); });
    on("Abbrechen", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
    on("Uhr", Event::Timer, [this, &log](Control& t, EventArgs&) {
      log.push_back("Timer");
      if (++ticks == stopAfterTicks) t.setEnabled(false);
    });
    on("Ruhig", Event::Timer, [&log](Control&, EventArgs&) { log.push_back("Timer Ruhig"); });
    on("Quelle", Event::DragStart, [this, &log](Control& c, EventArgs& a) {
      log.push_back("DragStart Quelle");
      a.cancel = refuseDrag;
      (void)c;
    });
    on("Ziel", Event::DragDrop, [&log](Control& c, EventArgs& a) {
      log.push_back("DragDrop Ziel von " + (a.source ? a.source->name() : std::string("?")));
      if (a.source) c.setText(a.source->shownText());
    });
    // Opens the point dialog modally and takes its result.
    on("Eingeben", Event::Click, [this, &log](Control&, EventArgs&) {
      log.push_back("Eingeben: Dialog auf");
      Form* dialog = this->forms().show("Punkt", true);
      log.push_back("Eingeben: Dialog zu");
      (void)dialog;
      control("Ergebnis").setCaption(result);
    });
    on("Frage", Event::Click, [this](Control&, EventArgs&) {
      const auto answer = services().input->ask("Punktnummer?", "Frage", "1");
      control("Ergebnis").setCaption(answer ? "Nummer " + *answer : "abgebrochen");
    });
    on("Datei", Event::Click, [this](Control&, EventArgs&) {
      const auto path = services().files->choose(Request(true, "Speichern unter", "Alle Dateien (*.*)|*.*"));
      control("Ergebnis").setCaption(path ? *path : "keine Datei");
    });
    // Asks again as long as the dialog stays open.
    on("Schleife", Event::Click, [this](Control&, EventArgs&) {
      do this->forms().show("Punkt", true);
      while (this->forms().find("Punkt"));
    });
    on("Löschen", Event::Click, [this](Control&, EventArgs&) {
      const Answer a = services().messages->show({.text = "Punkt 12\r\nwirklich löschen?", .title = "Löschen", .buttons = Buttons::YesNo, .icon = Icon::Question});
      control("Ergebnis").setCaption(AnswerCaption(a));
    });
  }

  ~EingabeForm() override { log_.push_back("Eingabe zerstört"); }

  std::string result;  // written by the point dialog
  bool refuseUnload = false;
  bool refuseDrag = false;
  int ticks = 0;
  int stopAfterTicks = -1;

 protected:
  bool QueryUnload() override { return !refuseUnload; }

 private:
  Log& log_;
};

// The point dialog, shown modally from Eingabe.
class PunktForm : public Form {
 public:
  PunktForm(Forms& forms, Log& log) : Form(forms, "Punkt", "Punkt eingeben") {
    add(ControlKind::TextBox, "Nr");
    add(ControlKind::TextBox, "Y");
    add(ControlKind::CommandButton, "OK").caption("OK").asDefault();
    add(ControlKind::CommandButton, "Cancel").caption("Abbrechen").asCancel();
    add(ControlKind::CommandButton, "Mehr").caption("Mehr...");
    add(ControlKind::CommandButton, "Alles").caption("Alles schließen");
    on("OK", Event::Click, [this, &log](Control&, EventArgs&) {
      log.push_back("Punkt OK");
      if (auto* opener = dynamic_cast<EingabeForm*>(this->forms().find("Eingabe")))
        opener->result = control("Nr").text() + ";" + control("Y").text();
      this->forms().unload(*this);
    });
    on("Cancel", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
    // Closes the opener while the opener's handler still waits for us.
    on("Alles", Event::Click, [this](Control&, EventArgs&) {
      if (Form* opener = this->forms().find("Eingabe")) this->forms().unload(*opener);
      this->forms().unload(*this);
    });
    on("Mehr", Event::Click, [this, &log](Control&, EventArgs&) {
      this->forms().show("Bestätigung", true);
      log.push_back("Bestätigung zu");
    });
  }
};

// A second modal level: hides itself on Ja.
class BestaetigungForm : public Form {
 public:
  BestaetigungForm(Forms& forms, Log& log) : Form(forms, "Bestätigung", "Wirklich?") {
    add(ControlKind::CommandButton, "Ja").caption("Ja");
    on("Ja", Event::Click, [this, &log](Control&, EventArgs&) {
      log.push_back("Bestätigt");
      this->forms().hide(*this);
    });
  }
};

// An environment with a small point table, recording what the macro asked.
class TestEnvironment : public BasicMacroEnvironment {
 public:
  using BasicMacroEnvironment::BasicMacroEnvironment;

  bool openProject(const std::string& dir, std::string& error) override {
    if (dir == "fehlt") {
      error = "Verzeichnis nicht gefunden";
      return false;
    }
    projects.push_back(dir);
    return true;
  }
  void processEvents(int ms) override { waited += ms; }
  bool writePicture(Form& form, const std::string& path) override {
    pictures.push_back(form.name() + " " + path);
    return path != "/nicht/schreibbar.png";
  }
  std::optional<std::array<double, 3>> point(int n, bool& empty, std::string& error) override {
    if (!hasTable) return BasicMacroEnvironment::point(n, empty, error);
    auto it = table.find(n);
    empty = it == table.end();
    if (empty) return std::nullopt;
    return it->second;
  }

  std::vector<std::string> projects, pictures;
  int waited = 0;
  bool hasTable = true;
  std::map<int, std::array<double, 3>> table;
};

struct MacroFixture {
  Log log;  // first: forms write to it until they are destroyed
  ScriptedServices scripted;
  HeadlessHost host;
  Forms forms{scripted.services};
  MacroDialogs dialogs;
  TestEnvironment env{forms};
  std::ostringstream out;
  std::unique_ptr<MacroRunner> runner;

  MacroFixture() {
    forms.setHost(&host);
    forms.registerForm("Main", [this](Forms& f) { return std::make_unique<MainForm>(f, log); });
    forms.registerForm("Eingabe", [this](Forms& f) { return std::make_unique<EingabeForm>(f, log); });
    forms.registerForm("Punkt", [this](Forms& f) { return std::make_unique<PunktForm>(f, log); });
    forms.registerForm("Bestätigung", [this](Forms& f) { return std::make_unique<BestaetigungForm>(f, log); });
    forms.registerForm("Fremd", [](Forms& f) { return std::make_unique<Form>(f, "Fremd", "Fremd"); });
    forms.show("Main");
    runner = std::make_unique<MacroRunner>(forms, dialogs, env, out);
  }

  int run(std::string_view text) {
    out.str("");
    return runner->runText(text, "test.makro");
  }
  // Runs with the Eingabe dialog open and its log cleared.
  int runInEingabe(const std::string& text) {
    forms.show("Eingabe");
    log.clear();
    return run(text);
  }
  EingabeForm& eingabe() { return dynamic_cast<EingabeForm&>(*forms.find("Eingabe")); }
  Control& in(const std::string& name, int index = -1) { return eingabe().control(name, index); }

  std::vector<std::string> lines() const {
    std::vector<std::string> result;
    std::istringstream s(out.str());
    for (std::string line; std::getline(s, line);) result.push_back(line);
    return result;
  }
  // The report lines without the closing summary.
  std::vector<std::string> reports() const {
    std::vector<std::string> all = lines();
    if (!all.empty() && all.back().rfind("test.makro: ", 0) == 0) all.pop_back();
    return all;
  }
};

}  // namespace kolm::forms::macro::testing
