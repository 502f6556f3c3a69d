#pragma once
// Small forms that the form model tests drive.
#include <string>
#include <vector>

#include "forms/forms.h"
#include "forms/scripted.h"

namespace kolm::forms::testing {

// A dialog with the usual parts of a calculation dialog: number fields in a
// frame, options, a list, a grid, a default and a cancel button.
class Eingabe : public Form {
 public:
  explicit Eingabe(Forms& forms) : Form(forms, "Eingabe", "Eingabe") {
    add(ControlKind::Frame, "Punkt1").caption("Punkt &1").at(0, 0);
    add(ControlKind::TextBox, "PP1Nr").in("Punkt1").at(0, 0);
    add(ControlKind::Label, "PP1").in("Punkt1").at(0, 1);
    for (int i = 0; i < 3; ++i) add(ControlKind::TextBox, "Param", i).at(1 + i, 0);
    add(ControlKind::OptionButton, "optArt", 0).caption("Gerade").at(4, 0);
    add(ControlKind::OptionButton, "optArt", 1).caption("Bogen").at(4, 1);
    add(ControlKind::OptionButton, "optAndere").caption("anderswo").in("Punkt1").at(1, 0);
    add(ControlKind::CheckBox, "CheckAnders").caption("&Anders").at(5, 0);
    add(ControlKind::ListBox, "Liste").items({"eins", "zwei", "drei"}).multiSelect().at(6, 0);
    add(ControlKind::ComboBox, "Einheit").items({"Neugrad", "Altgrad", "Radiant"}).dropDownList().at(7, 0);
    add(ControlKind::Grid, "Grid").grid(5, 3).at(8, 0);
    add(ControlKind::CommandButton, "Berechnen").caption("&Berechnen").asDefault().at(9, 0);
    add(ControlKind::CommandButton, "Schließen").caption("&Schließen").asCancel().at(9, 1);
    add(ControlKind::CommandButton, "Repaint").hidden();

    on("Param", Event::Change, [this](Control& c, EventArgs& a) { log.push_back("Change Param(" + std::to_string(a.index) + ")=" + c.text()); });
    on("PP1Nr", Event::KeyPress, [this](Control&, EventArgs& a) {
      log.push_back("KeyPress " + std::to_string(a.keyAscii));
      if (a.keyAscii == 'x') a.keyAscii = 0;   // swallowed
      if (a.keyAscii == ',') a.keyAscii = '.';  // replaced
    });
    on("PP1Nr", Event::KeyDown, [this](Control&, EventArgs& a) { log.push_back("KeyDown " + std::to_string(a.keyCode)); });
    on("PP1Nr", Event::GotFocus, [this](Control&, EventArgs&) { log.push_back("GotFocus PP1Nr"); });
    on("PP1Nr", Event::LostFocus, [this](Control&, EventArgs&) { log.push_back("LostFocus PP1Nr"); });
    on("optArt", Event::Click, [this](Control&, EventArgs& a) { log.push_back("Click optArt(" + std::to_string(a.index) + ")"); });
    on("CheckAnders", Event::Click, [this](Control& c, EventArgs&) { log.push_back("Click CheckAnders=" + std::to_string(c.value())); });
    on("Einheit", Event::Click, [this](Control& c, EventArgs&) { log.push_back("Click Einheit=" + c.text()); });
    on("Berechnen", Event::Click, [this](Control&, EventArgs&) { log.push_back("Berechnen"); });
    on("Schließen", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
    on("Repaint", Event::Click, [this](Control&, EventArgs&) { ++repaints; });
    on("Grid", Event::RowColChange, [this](Control&, EventArgs& a) {
      log.push_back("RowColChange " + std::to_string(a.row) + "," + std::to_string(a.col));
    });
  }

  std::vector<std::string> log;
  int repaints = 0;
  bool refuseUnload = false;
  int loads = 0, unloads = 0;

 protected:
  void Load() override { ++loads; }
  bool QueryUnload() override { return !refuseUnload; }
  void Unload() override { ++unloads; }
};

// Builds a Forms with scripted services and the Eingabe form registered.
struct FormsFixture {
  ScriptedServices scripted;
  HeadlessHost host;
  Forms forms{scripted.services};
  FormsFixture() {
    forms.setHost(&host);
    forms.registerForm("Eingabe", [](Forms& f) { return std::make_unique<Eingabe>(f); });
  }
  Eingabe& eingabe() { return static_cast<Eingabe&>(*forms.load("Eingabe")); }
};

}  // namespace kolm::forms::testing
