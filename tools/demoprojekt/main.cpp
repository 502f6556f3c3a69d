// Writes the demo project "Demo Projekt" into the program data with the
// program's own writers, reads it back with its readers and checks it. The
// project is made in a folder beside the target and moved into place only
// when it passed, so a failed run leaves the previous demo as it was.
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "core/catalog/projekte.h"
#include "projekt.h"

namespace fs = std::filesystem;

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "Aufruf: %s PROJEKTORDNER\n", argv[0]);
    return 2;
  }
  fs::path ziel = fs::path(argv[1]).lexically_normal();
  if (!ziel.has_filename()) ziel = ziel.parent_path();
  fs::path arbeit = ziel;
  arbeit += ".neu";
  std::error_code ec;
  try {
    // Only a project folder (or nothing) is replaced, never other data.
    if (fs::exists(ziel) && !(fs::is_directory(ziel) && (fs::is_empty(ziel) || kolm::core::IstProjektOrdner(ziel.string()))))
      throw std::runtime_error(ziel.string() + " ist kein Projektordner und wird nicht ersetzt");
    fs::remove_all(arbeit);
    fs::create_directories(arbeit);
    const kolm::demo::DemoModell modell = kolm::demo::DemoErzeugen(arbeit.string());
    kolm::demo::DemoPruefen(arbeit.string(), modell);
    // The old demo is moved aside first, so a failing rename loses nothing.
    fs::path alt = ziel;
    alt += ".alt";
    fs::remove_all(alt);
    if (fs::exists(ziel)) fs::rename(ziel, alt);
    fs::rename(arbeit, ziel);
    fs::remove_all(alt);
  } catch (const std::exception& e) {
    fs::remove_all(arbeit, ec);
    std::fprintf(stderr, "%s: Demo-Projekt nicht erzeugt: %s\n", argv[0], e.what());
    return 1;
  }
  return 0;
}
