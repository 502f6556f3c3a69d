#include "calc/eilinie/verdrahtung.h"

#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void EilinienDialogeRegistrieren(forms::Forms& /*forms*/, core::Anwendung& /*anwendung*/) {}

void EilinienDialogeVerbinden(core::MainForm& /*main*/, core::Anwendung& /*anwendung*/) {}

}  // namespace kolm::calc
