#include "calc/absteckdaten/verdrahtung.h"

#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void AbsteckdatenDialogeRegistrieren(forms::Forms& /*forms*/, core::Anwendung& /*anwendung*/) {}

void AbsteckdatenDialogeVerbinden(core::MainForm& /*main*/, core::Anwendung& /*anwendung*/) {}

}  // namespace kolm::calc
