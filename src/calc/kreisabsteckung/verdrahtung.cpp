#include "calc/kreisabsteckung/verdrahtung.h"

#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void KreisAbsteckDialogeRegistrieren(forms::Forms& /*forms*/, core::Anwendung& /*anwendung*/) {}

void KreisAbsteckDialogeVerbinden(core::MainForm& /*main*/, core::Anwendung& /*anwendung*/) {}

}  // namespace kolm::calc
