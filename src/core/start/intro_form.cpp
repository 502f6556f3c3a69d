#include "core/start/intro_form.h"

#include "core/main/help_forms.h"

namespace kolm::core {

using forms::ControlKind;
using forms::Event;

IntroForm::IntroForm(forms::Forms& forms, std::function<void()> geschlossen)
    : Form(forms, "Intro", "Kolm"), geschlossen_(std::move(geschlossen)) {
  setResizable(false);
  setPreferredSize(460, 240);
  add(ControlKind::RichText, "Titel")
      .caption("<div style='text-align:center'><p style='font-size:36pt;font-weight:bold;"
               "color:#1f4e8c;margin:12px'>Kolm</p>"
               "<p style='font-size:12pt'>Vermessung &middot; Querprofile &middot; Mengen</p></div>")
      .at(0, 0, 1, 2);
  add(ControlKind::Label, "LabelVersion")
      .caption(std::string("Version ") + kProgrammVersion).hidden().at(1, 0);
  add(ControlKind::Label, "LabelHinweis").caption(kProgrammBeschreibung).hidden().at(2, 0, 1, 2);
  add(ControlKind::CommandButton, "Weiter").caption("&Weiter").asDefault().asCancel().at(1, 1);
  add(ControlKind::Timer, "Timer2").interval(100);
  add(ControlKind::Timer, "Timer1").interval(5500).disabled();

  on("Timer2", Event::Timer, [this](forms::Control& t, forms::EventArgs&) {
    if (++ticks_ < 10) return;
    t.setEnabled(false);
    control("LabelVersion").setVisible(true);
    control("LabelHinweis").setVisible(true);
    control("Timer1").setEnabled(true);
  });
  on("Timer1", Event::Timer, [this](forms::Control&, forms::EventArgs&) { schliessen(); });
  for (const char* name : {"Titel", "LabelVersion", "LabelHinweis", "Weiter"})
    on(name, Event::Click, [this](forms::Control&, forms::EventArgs&) { schliessen(); });
}

void IntroForm::schliessen() { this->forms().unload(*this); }

void IntroForm::Unload() {
  control("Timer1").setEnabled(false);
  control("Timer2").setEnabled(false);
  if (zu_) return;
  zu_ = true;
  if (geschlossen_) geschlossen_();
}

}  // namespace kolm::core
