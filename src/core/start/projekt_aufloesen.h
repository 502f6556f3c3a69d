#pragma once
#include <functional>
#include <optional>
#include <string>

#include "forms/services.h"

namespace kolm::core {

// What the start needs to know of the file system; tests pass their own.
struct Dateisystem {
  std::function<bool(const std::string&)> verzeichnisDa;
  std::function<bool(const std::string&)> verzeichnisAnlegen;
  std::function<bool(const std::string&)> dateiDa;
  std::function<bool(const std::string& von, const std::string& nach)> dateiKopieren;
  // Section "Project", key Name of a Kolmproj.ini, or the default given.
  std::function<std::string(const std::string& ini, const std::string& vorgabe)> projektName;
};

// The real file system.
Dateisystem EchtesDateisystem();

struct Projektwahl {
  std::string name;         // as the title shows it
  std::string verzeichnis;  // ends in a separator
};

// The project at start without a parameter: the last project, or the demo
// project (with the message) when its folder is gone. demoVerzeichnis is the
// demo project's folder in the program data.
Projektwahl LetztesProjektAufloesen(const std::string& letzterName,
                                    const std::optional<std::string>& verzeichnis,
                                    const std::string& demoVerzeichnis, const Dateisystem& fs,
                                    forms::MessageService* meldungen);

// The project named by the command-line parameter: a trailing separator is
// added, a final "KOLM" folder (any case) taken off, and the "KOLM" folder
// below the given one is the project, created when missing. Nothing (after
// the message "Fehlerhafter Übergabeparameter: ...") when it cannot be
// reached: the program then ends. The name comes from its Kolmproj.ini; an
// unnamed project shows as "[" + folder + "]". A missing LV.MDB is copied
// from the template, with a message when that fails.
std::optional<Projektwahl> ParameterProjektAufloesen(std::string parameter,
                                                     const std::string& programmVerzeichnis,
                                                     const Dateisystem& fs,
                                                     forms::MessageService* meldungen);

}  // namespace kolm::core
