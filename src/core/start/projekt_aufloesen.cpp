#include "core/start/projekt_aufloesen.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

#include "core/io/files.h"

namespace kolm::core {

namespace {

bool EndetMitTrenner(const std::string& p) { return !p.empty() && (p.back() == '/' || p.back() == '\\'); }

std::string MitTrenner(std::string p) {
  if (!EndetMitTrenner(p)) p += '/';
  return p;
}

std::string Gross(std::string s) {
  std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return std::toupper(c); });
  return s;
}

void Melden(forms::MessageService* m, const std::string& text, const std::string& titel,
            forms::Icon icon = forms::Icon::Exclamation) {
  if (m) m->show({text, titel, forms::Buttons::OK, icon});
}

}  // namespace

Dateisystem EchtesDateisystem() {
  namespace fs = std::filesystem;
  Dateisystem d;
  d.verzeichnisDa = [](const std::string& p) { return io::DirectoryExists(p); };
  d.verzeichnisAnlegen = [](const std::string& p) {
    std::error_code ec;
    fs::create_directories(p, ec);
    return io::DirectoryExists(p);
  };
  d.dateiDa = [](const std::string& p) { return io::FileExists(p); };
  d.dateiKopieren = [](const std::string& von, const std::string& nach) {
    return io::CopyFileAtomically(von, nach);
  };
  d.projektName = nullptr;  // set by whoever knows the profile files
  return d;
}

Projektwahl LetztesProjektAufloesen(const std::string& letzterName,
                                    const std::optional<std::string>& verzeichnis,
                                    const std::string& demoVerzeichnis, const Dateisystem& fs,
                                    forms::MessageService* meldungen) {
  const std::string dir = verzeichnis.value_or(demoVerzeichnis);
  if (fs.verzeichnisDa && fs.verzeichnisDa(dir)) return {letzterName, MitTrenner(dir)};
  Melden(meldungen,
         "Das Projekt '" + letzterName + "' konnte nicht im Verzeichnis [" + dir +
             "] gefunden werden. Kolm öffnet nun das Demo Projekt.",
         "Nicht vorhandenes Laufwerk oder Ordner");
  return {"Demo Projekt", MitTrenner(demoVerzeichnis)};
}

std::optional<Projektwahl> ParameterProjektAufloesen(std::string parameter,
                                                     const std::string& programmVerzeichnis,
                                                     const Dateisystem& fs,
                                                     forms::MessageService* meldungen) {
  parameter = MitTrenner(parameter);
  const std::string gross = Gross(parameter);
  if (gross.size() >= 6 && gross.compare(gross.size() - 5, 4, "KOLM") == 0 &&
      (gross[gross.size() - 6] == '/' || gross[gross.size() - 6] == '\\'))
    parameter.erase(parameter.size() - 5);
  const std::string fehler = "Fehlerhafter Übergabeparameter: Der Pfad '" + parameter +
                             "' konnte nicht gefunden werden. Kolm wird beendet!";
  if (!fs.verzeichnisDa(parameter)) {
    Melden(meldungen, fehler, "Starten von KOLM", forms::Icon::Critical);
    return std::nullopt;
  }
  const std::string projekt = parameter + "KOLM/";
  if (!fs.verzeichnisDa(projekt) && !fs.verzeichnisAnlegen(projekt)) {
    Melden(meldungen, fehler, "Starten von KOLM", forms::Icon::Critical);
    return std::nullopt;
  }

  Projektwahl wahl{"Projekt", projekt};
  if (fs.projektName) wahl.name = fs.projektName(projekt + "Kolmproj.ini", "Projekt");
  if (wahl.name == "Projekt") wahl.name = "[" + projekt + "]";

  // A project opened this way must have a database.
  const std::string lv = projekt + "LV.MDB";
  if (!fs.dateiDa(lv)) {
    std::string muster = programmVerzeichnis + "LVMuster.MDB";
    if (!fs.dateiDa(muster)) {
      const std::string pfad = Gross(projekt);
      const size_t obj = pfad.find("OBJ.");
      if (obj != std::string::npos) muster = projekt.substr(0, obj + 1) + "bj.gen/LVMuster.MDB";  // keeps the "O"
    }
    if (!fs.dateiDa(muster) || !fs.dateiKopieren(muster, lv))
      Melden(meldungen,
             muster + "' ist nicht vorhanden! Kolm wird trotzdem gestartet, es sind aber keine LV Daten vorhanden!",
             "Starten von KOLM");
  }
  return wahl;
}

}  // namespace kolm::core
