#include "forms/macro/environment.h"

#include <chrono>
#include <thread>

#include "forms/forms.h"

namespace kolm::forms::macro {

bool BasicMacroEnvironment::openProject(const std::string&, std::string& error) {
  error = "Hier lassen sich keine Projekte öffnen";
  return false;
}

void BasicMacroEnvironment::processEvents(int ms) {
  if (ms > 0) std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

bool BasicMacroEnvironment::writePicture(Form&, const std::string&) { return false; }

std::optional<std::array<double, 3>> BasicMacroEnvironment::point(int, bool& empty, std::string& error) {
  empty = false;
  error = "Keine Punkttabelle vorhanden";
  return std::nullopt;
}

Form* BasicMacroEnvironment::openForm(const std::string& name) { return forms_.show(name); }

}  // namespace kolm::forms::macro
