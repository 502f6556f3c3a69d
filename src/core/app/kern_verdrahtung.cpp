#include "core/app/kern_verdrahtung.h"

#include "core/app/anwendung.h"
#include "core/dialogs/auto_speichern.h"
#include "core/dialogs/projekt_dialoge.h"
#include "core/dialogs/tabellen_dialoge.h"
#include "core/main/main_form.h"

namespace kolm::core {

void KernFormulareRegistrieren(forms::Forms& forms, Anwendung& anwendung) {
  forms.registerForm("AutoSpeichern", [&anwendung](forms::Forms& f) {
    return std::make_unique<AutoSpeichernForm>(f, anwendung);
  });
  ProjektDialogeRegistrieren(forms, anwendung);
  TabellenDialogeRegistrieren(forms, anwendung);
}

void KernBefehleVerbinden(MainForm& main, Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuDateiSpeichernTabelle", [&anwendung] { anwendung.TabelleSpeichernBefehl(); });
  main.setCommand("MnuOptionenAutoSpeichern", [&forms] { forms.show("AutoSpeichern", true); });
  ProjektBefehleVerbinden(main, anwendung);
  TabellenBefehleVerbinden(main, anwendung);
  main.onClosing([&anwendung] { return anwendung.SchliessenFragen(); },
                 [&anwendung] { anwendung.Beenden(); });
}

}  // namespace kolm::core
