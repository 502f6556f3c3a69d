#include "core/dialogs/projekt_neu.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "core/app/anwendung.h"
#include "core/catalog/projekte.h"
#include "core/profile/profile.h"
#include "core/settings/einstellungen_datei.h"

namespace kolm::core {

namespace fs = std::filesystem;
using forms::Answer;
using forms::Buttons;
using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;
using forms::Icon;

namespace {
constexpr const char* kTitel = "Neues Projekt";
}  // namespace

const std::vector<int>& ProjektNeuPunktAnzahlen() {
  static const std::vector<int> anzahlen = {MinAnzahlPunkte, 1999, 4999, MaxAnzahlPunkte};
  return anzahlen;
}

void NeuesProjektAnlegen(Anwendung& anwendung, const std::string& name, const std::string& ordner,
                         int anzahlPunkte) {
  Zustand& z = anwendung.zustand();
  forms::BusyGuard busy(anwendung.dienste().busy);
  // The project left: its catalogue and active table, as on opening another.
  if (!z.ProjektIni.empty()) {
    anwendung.KatalogSpeichern();
    profile::WriteString(z.ProjektIni, "Defaults", "Aktive Tabelle", std::to_string(z.AktiveTabelle));
  }
  if (::chdir(ordner.c_str()) != 0) {
    // The folder was made moments ago; the files below name it in full.
  }
  z.ProjektName = name;
  z.ProjektVerzeichnis = ordner;
  z.ProjektIni = ProjektIniPfad(ordner);
  // The settings write this as the project's name.
  z.Einstellungen.ProjektTitel = name;
  anwendung.TitelSetzen();
  anwendung.ProjektEintragen(name, ordner);
  profile::WriteString(z.ProjektIni, "Project", "Name", name);

  z.Laden = Wahr;
  z.AllesLeeren();
  if (anwendung.lvPruefen) anwendung.lvPruefen(ordner, true);
  z.AktiveTabelle = -1;
  z.TabelleGeaendert = Falsch;
  z.PunkteDimensionieren(anzahlPunkte);
  // Written now rather than on leaving the program: a project opened later
  // must find its number of points, and its catalogue without a message.
  EinstellungsKontext k(z, anwendung.dienste());
  ProjektEinstellungenSchreiben(k);
  anwendung.KatalogSpeichern();
  anwendung.HauptfensterAusAktiverZeile();
  z.Laden = Falsch;
  anwendung.NachTabellenwechselAuffrischen();
}

ProjektNeuForm::ProjektNeuForm(forms::Forms& forms, Anwendung& anwendung)
    : Form(forms, "ProjektNeu", kTitel), anwendung_(anwendung) {
  setResizable(false);
  add(ControlKind::Label, "LabelName").caption("&Projektname:").at(0, 0);
  add(ControlKind::TextBox, "TextProjektName").width(24).at(0, 1);
  add(ControlKind::Label, "LabelPfad").caption("&Verzeichnis:").at(1, 0);
  add(ControlKind::TextBox, "TextDir").width(46).at(1, 1);
  add(ControlKind::CommandButton, "cmdDurchsuchen").caption("&Durchsuchen...").at(1, 2);
  add(ControlKind::Label, "LabelPunkte").caption("&Anzahl Punkte:").at(2, 0);
  std::vector<std::string> eintraege;
  for (int n : ProjektNeuPunktAnzahlen()) eintraege.push_back(std::to_string(n));
  add(ControlKind::ComboBox, "cmb").items(eintraege).dropDownList().width(8).at(2, 1);
  // OK and Abbrechen stand apart on the right, as in the system's dialogs.
  add(ControlKind::CommandButton, "OK").caption("OK").asDefault().width(12).at(0, 3);
  add(ControlKind::CommandButton, "Cancel").caption("Abbrechen").asCancel().width(12).at(1, 3);

  felder_ = std::make_unique<NameUndOrdner>(
      *this, StandardBasisOrdner(anwendung_.zustand(), anwendung_.DemoVerzeichnis()));
  on("OK", Event::Click, [this](Control&, EventArgs&) { ok(); });
  on("Cancel", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
}

void ProjektNeuForm::Load() {
  // The open project's number of points, or the next larger entry.
  const auto& anzahlen = ProjektNeuPunktAnzahlen();
  const int jetzt = anwendung_.zustand().AnzahlPunkte;
  const auto it = std::find_if(anzahlen.begin(), anzahlen.end(), [jetzt](int n) { return n >= jetzt; });
  control("cmb").setListIndex(it == anzahlen.end() ? static_cast<int>(anzahlen.size()) - 1
                                                   : static_cast<int>(it - anzahlen.begin()));
  control("TextProjektName").setFocus();
}

void ProjektNeuForm::ok() {
  const std::string name = felder_->name();
  const std::string ordner = felder_->ordner();
  if (name.empty() || ordner.empty()) return;
  forms::MessageService* meldungen = services().messages;
  const auto frage = [&](std::string text, Buttons knoepfe, Icon icon, int standard = 0) {
    forms::Message m{std::move(text), kTitel, knoepfe, icon, standard};
    return meldungen ? meldungen->show(m) : Answer::OK;
  };

  if (ProjektNameBekannt(anwendung_.zustand().ProgrammIni, name)) {
    frage("Es existiert schon ein Projekt unter dem Namen '" + name + "'!\nEs wird kein neues Projekt angelegt.",
          Buttons::OK, Icon::Exclamation);
    return;
  }
  std::error_code ec;
  if (fs::is_directory(ordner, ec)) {
    if (frage("Verzeichnis " + ordner + " existiert bereits!", Buttons::OKCancel, Icon::Exclamation) != Answer::OK)
      return;
  } else {
    bool warDa = false;
    if (!OrdnerAnlegen(ordner, warDa)) {
      // Going on would leave a project whose files cannot be written.
      frage("Das Verzeichnis " + ordner + " konnte nicht angelegt werden!", Buttons::OK, Icon::Exclamation);
      return;
    }
  }
  if (IstProjektOrdner(ordner)) {
    const Answer a = frage(std::string("Im Verzeichnis ") + ordner + " existiert bereits eine " + ProjektDatei +
                               "Datei!\nVorsicht, wenn Sie OK wählen, dann kann ein bestehendes Projekt "
                               "gelöscht werden!",
                           Buttons::OKCancel, Icon::Exclamation, 1);
    if (a != Answer::OK) return;
    fs::remove(ordner + ProjektDatei, ec);
  }

  const int anzahl = ProjektNeuPunktAnzahlen()[std::clamp(control("cmb").listIndex(), 0,
                                                          static_cast<int>(ProjektNeuPunktAnzahlen().size()) - 1)];
  this->forms().unload(*this);
  NeuesProjektAnlegen(anwendung_, name, ordner, anzahl);
}

}  // namespace kolm::core
