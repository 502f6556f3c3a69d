#include "calc/polygonzug/verdrahtung.h"

#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void PolygonzugDialogeRegistrieren(forms::Forms& /*forms*/, core::Anwendung& /*anwendung*/) {}

void PolygonzugDialogeVerbinden(core::MainForm& /*main*/, core::Anwendung& /*anwendung*/) {}

}  // namespace kolm::calc
