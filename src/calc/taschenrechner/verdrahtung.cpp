#include "calc/taschenrechner/verdrahtung.h"

#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void TaschenrechnerDialogeRegistrieren(forms::Forms& /*forms*/, core::Anwendung& /*anwendung*/) {}

void TaschenrechnerDialogeVerbinden(core::MainForm& /*main*/, core::Anwendung& /*anwendung*/) {}

}  // namespace kolm::calc
