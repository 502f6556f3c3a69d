#include "calc/verdrahtung.h"

#include <memory>

#include "calc/polygonzug/polygonzug.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void PolygonzugDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("Polygonzug",
                     [&anwendung](forms::Forms& f) { return std::make_unique<PolygonzugForm>(f, anwendung); });
}

void PolygonzugDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuGerMittelnderPolygonzug", [&forms] { forms.show("Polygonzug"); });
}

}  // namespace kolm::calc
