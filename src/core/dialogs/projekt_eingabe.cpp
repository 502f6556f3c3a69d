#include "core/dialogs/projekt_eingabe.h"

#include <cstdlib>
#include <filesystem>

#include "core/catalog/katalog_hilfen.h"
#include "core/catalog/tabellen_eingabe.h"
#include "core/profile/profile.h"

namespace kolm::core {

namespace fs = std::filesystem;
using forms::Control;
using forms::Event;
using forms::EventArgs;

namespace {

std::string OhneEndtrenner(std::string p) {
  while (p.size() > 1 && (p.back() == '/' || p.back() == '\\')) p.pop_back();
  return p;
}

std::string MitTrenner(std::string p) {
  if (!p.empty() && p.back() != '/') p += '/';
  return p;
}

bool Blank(const std::string& text) { return text.find_first_not_of(" \t") == std::string::npos; }

}  // namespace

bool ProjektNameBekannt(const std::string& kolmIni, std::string_view name) {
  const profile::ProfileFile ini = profile::ProfileFile::Load(kolmIni);
  const std::u32string gesucht = katalog_hilfen::Zeichen(name);
  for (const std::string& key : ini.KeyNames("projects"))
    if (katalog_hilfen::VergleichOhneGrossKlein(katalog_hilfen::Zeichen(key), gesucht) == 0) return true;
  return false;
}

std::string StandardBasisOrdner(const Zustand& z, const std::string& demoVerzeichnis) {
  const auto heim = [] {
    const char* home = std::getenv("HOME");
    if (home && *home) return MitTrenner(home);
    std::error_code ec;
    return MitTrenner(fs::current_path(ec).string());
  };
  if (z.ProjektVerzeichnis.empty()) return heim();
  std::error_code ec;
  const fs::path projekt(OhneEndtrenner(katalog_hilfen::Ordner(z.ProjektVerzeichnis)));
  const fs::path demo(OhneEndtrenner(katalog_hilfen::Ordner(demoVerzeichnis)));
  if (!demoVerzeichnis.empty() && (projekt == demo || fs::equivalent(projekt, demo, ec))) return heim();
  const fs::path eltern = projekt.parent_path();
  return eltern.empty() ? heim() : MitTrenner(eltern.string());
}

std::string OrdnerAusEingabe(std::string_view text) {
  std::string t(text);
  while (!t.empty() && (t.back() == ' ' || t.back() == '\t')) t.pop_back();
  while (!t.empty() && (t.front() == ' ' || t.front() == '\t')) t.erase(t.begin());
  if (t.empty()) return {};
  std::error_code ec;
  fs::path p = fs::absolute(fs::path(OhneEndtrenner(katalog_hilfen::Ordner(t))), ec).lexically_normal();
  return MitTrenner(OhneEndtrenner(p.string()));
}

bool OrdnerAnlegen(const std::string& ordner, bool& warSchonDa) {
  std::error_code ec;
  const fs::path p(OhneEndtrenner(ordner));
  warSchonDa = fs::is_directory(p, ec);
  if (warSchonDa) return true;
  if (fs::exists(p, ec)) return false;
  fs::create_directories(p, ec);
  return fs::is_directory(p, ec);
}

// ---- the name and folder fields -----------------------------------------------------------

NameUndOrdner::NameUndOrdner(forms::Form& form, std::string basis) : form_(form) {
  form_.on("TextProjektName", Event::KeyPress, [](Control&, EventArgs& e) {
    if (!StammZeichenZulaessig(static_cast<char32_t>(e.keyAscii))) e.keyAscii = 0;
  });
  form_.on("TextProjektName", Event::Change, [this](Control&, EventArgs&) { nameGeaendert(); });
  form_.on("TextDir", Event::Change, [this](Control&, EventArgs&) {
    if (!setzt_) ordnerGetippt();
    okPruefen();
  });
  form_.on("cmdDurchsuchen", Event::Click, [this](Control&, EventArgs&) { durchsuchen(); });
  setBasis(std::move(basis));
}

std::string NameUndOrdner::ordner() const { return OrdnerAusEingabe(form_.control("TextDir").text()); }
std::string NameUndOrdner::name() const { return form_.control("TextProjektName").text(); }

void NameUndOrdner::setBasis(std::string basis) {
  basis_ = MitTrenner(std::move(basis));
  nameGeaendert();
}

void NameUndOrdner::nameGeaendert() {
  Control& feld = form_.control("TextProjektName");
  // Pasted or set text passes the same filter as typed keys.
  const std::string gefiltert = StammFiltern(feld.text());
  if (gefiltert != feld.text()) {
    feld.setText(gefiltert);  // raises Change again, which does the rest
    return;
  }
  setzt_ = true;
  form_.control("TextDir").setText(gefiltert.empty() ? basis_ : basis_ + gefiltert + "/");
  setzt_ = false;
  okPruefen();
}

void NameUndOrdner::ordnerGetippt() {
  const std::string getippt = OhneEndtrenner(katalog_hilfen::Ordner(form_.control("TextDir").text()));
  if (Blank(getippt)) return;
  const fs::path p(getippt);
  const std::string n = name();
  // A folder ending in the project's name names its base; any other folder
  // is the base itself, for the name to be appended once it changes.
  if (!n.empty() && p.filename().string() == n)
    basis_ = MitTrenner(p.parent_path().string());
  else
    basis_ = MitTrenner(getippt);
}

void NameUndOrdner::durchsuchen() {
  forms::FileDialogService* dateien = form_.services().files;
  if (!dateien) return;
  forms::FileRequest r;
  r.save = true;
  r.title = "Verzeichnis für das Projekt";
  r.directory = basis_;
  r.fileName = name();
  const std::optional<std::string> gewaehlt = dateien->choose(r);
  if (!gewaehlt || Blank(*gewaehlt)) return;
  const std::string ordner = OrdnerAusEingabe(*gewaehlt);
  basis_ = MitTrenner(fs::path(OhneEndtrenner(ordner)).parent_path().string());
  setzt_ = true;
  form_.control("TextDir").setText(ordner);
  setzt_ = false;
  okPruefen();
}

void NameUndOrdner::okPruefen() {
  if (Control* ok = form_.find("OK"))
    ok->setEnabled(!name().empty() && !Blank(form_.control("TextDir").text()));
}

}  // namespace kolm::core
