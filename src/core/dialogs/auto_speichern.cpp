#include "core/dialogs/auto_speichern.h"

#include <algorithm>
#include <string>

#include "core/app/anwendung.h"
#include "forms/utf8.h"
#include "points/numbers/numbers.h"

namespace kolm::core {

using forms::ControlKind;
using forms::Event;

AutoSpeichernForm::AutoSpeichernForm(forms::Forms& forms, Anwendung& anwendung)
    : Form(forms, "AutoSpeichern", "Automatisch speichern"), anwendung_(anwendung) {
  setResizable(false);
  add(ControlKind::CheckBox, "CheckSpeichern").caption("&Automatisch Speichern verwenden").at(0, 0, 1, 3);
  add(ControlKind::Label, "LabelIntervall").caption("&Intervall:").at(1, 0);
  add(ControlKind::TextBox, "Intervall").width(5).at(1, 1);
  add(ControlKind::SpinButton, "SpinIntervall").at(1, 2);
  add(ControlKind::Label, "LabelMinuten").caption("Minuten").at(1, 3);
  add(ControlKind::CommandButton, "OK").caption("OK").asDefault().at(2, 2);
  add(ControlKind::CommandButton, "Cancel").caption("Abbrechen").asCancel().at(2, 3);

  on("SpinIntervall", Event::SpinUp, [this](forms::Control&, forms::EventArgs&) {
    control("Intervall").setText(std::to_string(std::min(minuten() + 1, 9999)));
  });
  on("SpinIntervall", Event::SpinDown, [this](forms::Control&, forms::EventArgs&) {
    control("Intervall").setText(std::to_string(std::max(minuten() - 1, 0)));
  });
  on("OK", Event::Click, [this](forms::Control&, forms::EventArgs&) {
    const int n = minuten();
    anwendung_.IntervallSetzen(control("CheckSpeichern").value() == 1 && n > 0 ? n : 0);
    this->forms().unload(*this);
  });
  on("Cancel", Event::Click, [this](forms::Control&, forms::EventArgs&) { this->forms().unload(*this); });
}

void AutoSpeichernForm::Load() {
  const int intervall = anwendung_.zustand().Intervall;
  control("CheckSpeichern").setValue(intervall > 0 ? 1 : 0);
  control("Intervall").setText(std::to_string(intervall > 0 ? intervall : 5));
}

// Only the whole number of the last four characters of the field counts.
int AutoSpeichernForm::minuten() const {
  const std::string& text = control("Intervall").text();
  const int len = forms::utf8::Length(text);
  const std::string letzte = text.substr(forms::utf8::ByteOffset(text, std::max(0, len - 4)));
  const double wert = numbers::Fix(numbers::Val(letzte));
  return wert < 0 ? 0 : static_cast<int>(std::min(wert, 9999.0));
}

}  // namespace kolm::core
