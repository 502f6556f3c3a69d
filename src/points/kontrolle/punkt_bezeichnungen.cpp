#include "points/kontrolle/punkt_bezeichnungen.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/app/anwendung.h"
#include "core/profile/profile.h"
#include "forms/utf8.h"
#include "points/numbers/numbers.h"

namespace kolm::points {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

namespace {

constexpr const char* kTitelNeu = "Kurzbezeichnung hinzufügen";
constexpr const char* kTitelLoeschen = "Kurzbezeichnung löschen";
constexpr const char* kFrageNeu = "Name für die neue Kurzbezeichnung:";
constexpr const char* kGibtEs =
    "Diese Kurzbezeichnung existiert bereits!\nGeben Sie eine andere Kurzbezeichnung ein!";
constexpr const char* kVoll =
    "Es ist leider keine Kurzbezeichnung mehr frei!\n"
    "Löschen Sie zuerst eine nicht mehr benötigte Kurzbezeichnung!";
constexpr const char* kLoeschFrage =
    "Achtung! Alle unter diesem Index gespeicherten Punkt-Bezeichnungen werden gelöscht. Diese Aktion sollte "
    "nur dann ausgeführt werden, wenn wenige Punkte existieren, oder eine Bezeichnung umbenannt wird!\n"
    "Soll die Punkt-Bezeichnung trotzdem gelöscht werden ?";

// Sections and keys as the settings files keep them.
constexpr const char* kAbschnitt = "Punkt-Kurzbezeichnungen";

// StandardDistanz as the dialog lets it be set: 0 puts the captions on their
// points; more than a hundred is no caption distance any more.
constexpr double kDistanzMin = 0;
constexpr double kDistanzMax = 100;
constexpr double kDistanzSchritt = 0.1;
constexpr const char* kDistanzMuster = "0.0";

// A settings value is read back with at most 39 characters.
constexpr int kTextLaenge = static_cast<int>(core::profile::kSettingsBuffer) - 1;

std::string OhneRandBlanks(const std::string& text) {
  const std::size_t anfang = text.find_first_not_of(' ');
  if (anfang == std::string::npos) return "";
  return text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
}

std::string Gekuerzt(const std::string& text, int zeichen) {
  return text.substr(0, forms::utf8::ByteOffset(text, zeichen));
}

}  // namespace

const std::vector<std::string>& DarstellungsOptionen() {
  static const std::vector<std::string> optionen = {
      "S&tandard", "&Punkte",           "&Kreise",           "k&ein",   "Kre&uz   +",
      "K&reuz   x", "K&reuz + im Kreis", "Kre&uz x  im Kreis", "Karo",    "&Quadrat",
  };
  return optionen;
}

const std::vector<std::string>& BeschriftungsOptionen() {
  static const std::vector<std::string> optionen = {
      "keine",
      "Punktnummer",
      "Nummer && Bezeichnung",
      "1. Koordinate senkrecht",
      "2. Koordinate senkrecht",
      "Beide Koord. senkrecht",
      "Beide Koord. senkr. mit Nr.",
      "Beide Koord. senkr. mit Nr. && Bez.",
      "&3. Koord. (waagrecht)",
      "3. &Koordinate mit Nummer",
      "3. K&oordinate mit Bezeichnung",
      "3. Koo&rdinate (ohne Nr. und Bez.)",
      "3. Koordinate senkrecht bei Pkt.",
      "Punktnummer bei VE",
      "Nummer && Bezeichnung bei VE",
      "3. Koordinate bei VE",
      "3. Koord. mit Nummer bei VE",
      "3. Koord. mit Bezeichnung bei VE",
  };
  return optionen;
}

PunktBezeichnungenForm::PunktBezeichnungenForm(forms::Forms& forms, core::Anwendung& anwendung)
    : Form(forms, "PunktBezeichnungen", "Punkt Bezeichnungen"), anwendung_(anwendung) {
  setResizable(false);
  add(ControlKind::Frame, "FrameBezeichnung").caption("Kurzbezeichnung").at(0, 0);
  add(ControlKind::ListBox, "List").width(18).in("FrameBezeichnung").at(0, 0, 1, 2);
  add(ControlKind::CommandButton, "Neu").caption("&Neu...").tip("Eine Kurzbezeichnung hinzufügen")
      .in("FrameBezeichnung").at(1, 0);
  add(ControlKind::CommandButton, "Löschen").caption("&Löschen").tip("Diese Kurzbezeichnung löschen")
      .in("FrameBezeichnung").at(1, 1);
  add(ControlKind::Label, "LabelIndexTitel").caption("Index:").in("FrameBezeichnung").at(2, 0);
  add(ControlKind::Label, "LabelIndex").width(4).in("FrameBezeichnung").at(2, 1);

  add(ControlKind::Frame, "FrameDarst").caption("Darstellung").at(0, 1);
  const auto& darst = DarstellungsOptionen();
  for (int i = 0; i < static_cast<int>(darst.size()); ++i)
    add(ControlKind::OptionButton, "optDarst", i).caption(darst[i]).in("FrameDarst").at(i, 0);

  // Two columns: the captions at the point, then those of the third
  // coordinate and at the comparison plane (VE).
  add(ControlKind::Frame, "FrameBes").caption("Beschriftung").at(0, 2, 1, 2);
  const auto& bes = BeschriftungsOptionen();
  constexpr int ersteSpalte = 8;
  for (int i = 0; i < static_cast<int>(bes.size()); ++i)
    add(ControlKind::OptionButton, "optBes", i).caption(bes[i]).in("FrameBes")
        .at(i < ersteSpalte ? i : i - ersteSpalte, i < ersteSpalte ? 0 : 1);

  add(ControlKind::Frame, "FrameStandard").caption("Für neue Punkte").at(1, 0);
  add(ControlKind::ComboBox, "Combo").dropDownList().width(14).in("FrameStandard").at(0, 0);
  add(ControlKind::CommandButton, "Standard").caption("Als &Standard")
      .tip("Neue Punkte bekommen diese Kurzbezeichnung").in("FrameStandard").at(1, 0);

  add(ControlKind::Frame, "FrameFarbe").caption("Farbe der Punkte").at(1, 1);
  add(ControlKind::ComboBox, "ListPktFarbe").dropDownList().width(14)
      .tip("Alle Punkte dieser Kurzbezeichnung bekommen die gewählte Farbe").in("FrameFarbe").at(0, 0);

  add(ControlKind::Frame, "FrameDistanz").caption("Abstand der Punktbeschriftung").at(1, 2, 1, 2);
  add(ControlKind::Label, "LabelStandardDistanz").caption("Standard&distanz:").in("FrameDistanz").at(0, 0);
  add(ControlKind::TextBox, "txtStandardDistanz").width(6).in("FrameDistanz").at(0, 1);
  add(ControlKind::SpinButton, "spnStandardDistanz").in("FrameDistanz").at(0, 2);
  add(ControlKind::CommandButton, "cmdStdDistanz").caption("auf Standarddistanz setzen")
      .tip("Die Beschriftungen der Punkte dieser Kurzbezeichnung in diesen Abstand bringen")
      .in("FrameDistanz").at(1, 0, 1, 3);

  add(ControlKind::CommandButton, "cmdAlle").caption("&Für alle Punkte")
      .tip("Allen Punkten der Tabelle diese Kurzbezeichnung und Farbe geben").at(2, 0);
  add(ControlKind::CommandButton, "cmdAnwenden").caption("An&wenden").tip("Die Grafik neu zeichnen").at(2, 1);
  add(ControlKind::CommandButton, "Cancel").caption("Schließen").asCancel().at(2, 3);

  on("List", Event::Click, [this](Control& c, EventArgs&) {
    if (!fuellen_) anzeigen(c.listIndex());
  });
  on("Neu", Event::Click, [this](Control&, EventArgs&) { neu(); });
  on("Löschen", Event::Click, [this](Control&, EventArgs&) { loeschen(); });
  on("Standard", Event::Click, [this](Control&, EventArgs&) { standard(); });
  on("optDarst", Event::Click, [this](Control&, EventArgs& a) { darstellung(a.index); });
  on("optBes", Event::Click, [this](Control&, EventArgs& a) { beschriftung(a.index); });
  on("ListPktFarbe", Event::Click, [this](Control& c, EventArgs&) { farbe(c.listIndex()); });
  on("txtStandardDistanz", Event::Change, [this](Control&, EventArgs&) { distanzGeaendert(); });
  on("spnStandardDistanz", Event::SpinUp, [this](Control&, EventArgs&) { distanzSchritt(kDistanzSchritt); });
  on("spnStandardDistanz", Event::SpinDown, [this](Control&, EventArgs&) { distanzSchritt(-kDistanzSchritt); });
  on("cmdStdDistanz", Event::Click, [this](Control&, EventArgs&) { stdDistanz(); });
  on("cmdAlle", Event::Click, [this](Control&, EventArgs&) { alle(); });
  on("cmdAnwenden", Event::Click, [this](Control&, EventArgs&) { anwendung_.RefreshGrafik(); });
  on("Cancel", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
}

void PunktBezeichnungenForm::Load() {
  const core::Zustand& z = anwendung_.zustand();
  fuellen_ = true;
  farben_.clear();
  std::vector<std::string> namen;
  for (std::size_t i = 0; i < z.PunktFarben.size(); ++i) {
    if (z.PunktFarben[i].Name.empty()) continue;
    farben_.push_back(static_cast<int>(i));
    namen.push_back(z.PunktFarben[i].Name);
  }
  control("ListPktFarbe").setList(std::move(namen));
  fuellen_ = false;
  distanzZeigen();
  listenFuellen(z.StandardKurzBezeichnung);
}

int PunktBezeichnungenForm::index() const {
  const std::string& text = control("LabelIndex").captionText();
  if (numbers::IstLeer(text)) return -1;
  const auto k = numbers::CInt(numbers::Val(text));
  if (!k || *k < 0 || *k >= static_cast<int>(anwendung_.zustand().Kurzbezeichnungen.size())) return -1;
  return *k;
}

// List and Combo hold the designations that are not blank; `auswahl` is the
// designation to show, the first one when it is not in the list.
void PunktBezeichnungenForm::listenFuellen(int auswahl) {
  const core::Zustand& z = anwendung_.zustand();
  eintraege_.clear();
  std::vector<std::string> texte;
  int zeile = -1, standardZeile = -1;
  for (std::size_t k = 0; k < z.Kurzbezeichnungen.size(); ++k) {
    if (numbers::IstLeer(z.Kurzbezeichnungen[k].Text)) continue;
    if (static_cast<int>(k) == auswahl) zeile = static_cast<int>(eintraege_.size());
    if (static_cast<int>(k) == z.StandardKurzBezeichnung) standardZeile = static_cast<int>(eintraege_.size());
    eintraege_.push_back(static_cast<int>(k));
    texte.push_back(z.Kurzbezeichnungen[k].Text);
  }
  if (zeile < 0 && !eintraege_.empty()) zeile = 0;
  fuellen_ = true;
  control("List").setList(texte);
  control("List").setListIndex(zeile);
  control("Combo").setList(std::move(texte));
  control("Combo").setListIndex(standardZeile);
  if (standardZeile < 0) control("Combo").setText("");
  fuellen_ = false;
  anzeigen(zeile);
}

// Shows the attributes of the designation on line `eintrag` of List.
void PunktBezeichnungenForm::anzeigen(int eintrag) {
  const core::Zustand& z = anwendung_.zustand();
  const int k = eintrag >= 0 && eintrag < static_cast<int>(eintraege_.size()) ? eintraege_[eintrag] : -1;
  fuellen_ = true;
  control("LabelIndex").setCaption(k >= 0 ? numbers::ZahlText(k, z.Einstellungen.NummernFormat) : "");
  const core::Kurzbezeichnung* b = k >= 0 ? &z.Kurzbezeichnungen[static_cast<std::size_t>(k)] : nullptr;
  for (Control* o : array("optDarst")) o->setValue(b && o->index() == b->Darstellung ? 1 : 0);
  for (Control* o : array("optBes")) o->setValue(b && o->index() == b->Beschriftung ? 1 : 0);
  // The colour list shows the colour the first point of the designation has.
  int farbZeile = -1;
  if (k >= 0) {
    for (int n = 0; n < static_cast<int>(z.Punkte.size()); ++n) {
      const core::Punkt& p = z.Punkte[static_cast<std::size_t>(n)];
      if (p.KurzBez != k || z.PunktLeer(n)) continue;
      for (std::size_t zeile = 0; zeile < farben_.size(); ++zeile)
        if (z.PunktFarben[static_cast<std::size_t>(farben_[zeile])].Farbe == p.Farbe) {
          farbZeile = static_cast<int>(zeile);
          break;
        }
      break;
    }
  }
  control("ListPktFarbe").setListIndex(farbZeile);
  if (farbZeile < 0) control("ListPktFarbe").setText("");
  fuellen_ = false;
  for (const char* befehl : {"Löschen", "cmdStdDistanz", "cmdAlle"}) control(befehl).setEnabled(k >= 0);
}

void PunktBezeichnungenForm::schreiben(const char* abschnitt, const std::string& schluessel,
                                       const std::string& wert) {
  core::Zustand& z = anwendung_.zustand();
  if (z.ProjektIni.empty()) return;
  if (!core::profile::WriteString(z.ProjektIni, abschnitt, schluessel, wert)) z.Einstellungen.IniFehler = true;
}

void PunktBezeichnungenForm::meldung(const std::string& text, const char* titel) {
  if (forms::MessageService* m = services().messages)
    m->show({text, titel, forms::Buttons::OK, forms::Icon::Exclamation});
}

void PunktBezeichnungenForm::neu() {
  core::Zustand& z = anwendung_.zustand();
  forms::InputService* eingabe = services().input;
  if (!eingabe) return;
  const auto antwort = eingabe->ask(kFrageNeu, kTitelNeu, "");
  if (!antwort) return;
  // The settings file keeps neither outer blanks nor more than 39 characters.
  const std::string name = Gekuerzt(OhneRandBlanks(*antwort), kTextLaenge);
  if (name.empty()) return;
  for (const core::Kurzbezeichnung& b : z.Kurzbezeichnungen)
    if (b.Text == name) return meldung(kGibtEs, kTitelNeu);
  const auto frei = std::find_if(z.Kurzbezeichnungen.begin(), z.Kurzbezeichnungen.end(),
                                 [](const core::Kurzbezeichnung& b) { return numbers::IstLeer(b.Text); });
  if (frei == z.Kurzbezeichnungen.end()) return meldung(kVoll, kTitelNeu);
  const int k = static_cast<int>(frei - z.Kurzbezeichnungen.begin());
  frei->Text = name;
  schreiben(kAbschnitt, "Bezeichnung " + numbers::ZahlText(k, z.Einstellungen.NummernFormat), name);
  listenFuellen(k);
  // Points may still carry the index of a deleted designation: they show the new one.
  anwendung_.RefreshPunkteTabelle();
  anwendung_.RefreshGrafik();
}

void PunktBezeichnungenForm::loeschen() {
  core::Zustand& z = anwendung_.zustand();
  const int k = index();
  if (k < 0) return;
  forms::MessageService* m = services().messages;
  if (!m) return;
  forms::Message frage{kLoeschFrage, kTitelLoeschen, forms::Buttons::YesNo, forms::Icon::Exclamation, 1};
  if (m->show(frage) != forms::Answer::Yes) return;
  // The points keep the index; they show an empty designation.
  z.Kurzbezeichnungen[static_cast<std::size_t>(k)].Text.clear();
  schreiben(kAbschnitt, "Bezeichnung " + numbers::ZahlText(k, z.Einstellungen.NummernFormat), "");
  listenFuellen(z.StandardKurzBezeichnung);
  anwendung_.RefreshPunkteTabelle();
  anwendung_.RefreshGrafik();
}

void PunktBezeichnungenForm::standard() {
  core::Zustand& z = anwendung_.zustand();
  const int zeile = control("Combo").listIndex();
  if (zeile < 0 || zeile >= static_cast<int>(eintraege_.size())) return;
  z.StandardKurzBezeichnung = static_cast<core::Integer>(eintraege_[zeile]);
  schreiben(kAbschnitt, "Standard", numbers::ZahlText(z.StandardKurzBezeichnung, z.Einstellungen.NummernFormat));
}

void PunktBezeichnungenForm::darstellung(int wert) {
  const int k = index();
  if (fuellen_ || k < 0) return;
  anwendung_.zustand().Kurzbezeichnungen[static_cast<std::size_t>(k)].Darstellung = static_cast<core::Integer>(wert);
  anwendung_.RefreshGrafik();
}

void PunktBezeichnungenForm::beschriftung(int wert) {
  const int k = index();
  if (fuellen_ || k < 0) return;
  anwendung_.zustand().Kurzbezeichnungen[static_cast<std::size_t>(k)].Beschriftung = static_cast<core::Integer>(wert);
  anwendung_.RefreshGrafik();
}

void PunktBezeichnungenForm::farbe(int zeile) {
  core::Zustand& z = anwendung_.zustand();
  const int k = index();
  if (fuellen_ || k < 0 || zeile < 0 || zeile >= static_cast<int>(farben_.size())) return;
  const core::Long neu = z.PunktFarben[static_cast<std::size_t>(farben_[zeile])].Farbe;
  for (int n = 0; n < static_cast<int>(z.Punkte.size()); ++n) {
    core::Punkt& p = z.Punkte[static_cast<std::size_t>(n)];
    if (p.KurzBez == k && !z.PunktLeer(n)) p.Farbe = neu;
  }
  z.TabelleGeaendert = core::Wahr;
  anwendung_.RefreshGrafik();
}

void PunktBezeichnungenForm::stdDistanz() {
  core::Zustand& z = anwendung_.zustand();
  const int k = index();
  if (k < 0) return;
  const double d = z.StandardDistanz;
  for (int n = 0; n < static_cast<int>(z.Punkte.size()); ++n) {
    core::Punkt& p = z.Punkte[static_cast<std::size_t>(n)];
    if (p.KurzBez != k || z.PunktLeer(n)) continue;
    const double l = std::sqrt(static_cast<double>(p.TextDx) * p.TextDx + static_cast<double>(p.TextDy) * p.TextDy);
    if (l == 0) {
      core::RichtungsVersatz(z.StandardAusrichtung, d, p.TextDx, p.TextDy);
    } else {
      // Only the length changes; the direction stays.
      p.TextDx = static_cast<core::Single>(p.TextDx * d / l);
      p.TextDy = static_cast<core::Single>(p.TextDy * d / l);
    }
  }
  z.TabelleGeaendert = core::Wahr;
  anwendung_.RefreshGrafik();
}

void PunktBezeichnungenForm::alle() {
  core::Zustand& z = anwendung_.zustand();
  const int k = index();
  if (k < 0) return;
  const int zeile = control("ListPktFarbe").listIndex();
  const bool mitFarbe = zeile >= 0 && zeile < static_cast<int>(farben_.size());
  for (int n = 0; n < static_cast<int>(z.Punkte.size()); ++n) {
    if (z.PunktLeer(n)) continue;
    core::Punkt& p = z.Punkte[static_cast<std::size_t>(n)];
    p.KurzBez = static_cast<core::Integer>(k);
    if (mitFarbe) p.Farbe = z.PunktFarben[static_cast<std::size_t>(farben_[zeile])].Farbe;
  }
  z.TabelleGeaendert = core::Wahr;
  anwendung_.RefreshPunkteTabelle();
  anwendung_.RefreshGrafik();
}

void PunktBezeichnungenForm::distanzZeigen() {
  fuellen_ = true;
  control("txtStandardDistanz").setText(numbers::ZahlText(anwendung_.zustand().StandardDistanz, kDistanzMuster));
  fuellen_ = false;
}

// Typed values count at once, within the bounds; the text stays as typed.
void PunktBezeichnungenForm::distanzGeaendert() {
  if (fuellen_) return;
  core::Zustand& z = anwendung_.zustand();
  z.StandardDistanz = std::clamp(numbers::ZahlLesen(control("txtStandardDistanz").text()), kDistanzMin, kDistanzMax);
  z.StandardVersatzBerechnen();
}

void PunktBezeichnungenForm::distanzSchritt(double schritt) {
  core::Zustand& z = anwendung_.zustand();
  // Steps land on the tenths the field shows.
  const double wert = numbers::Val(numbers::ZahlText(z.StandardDistanz + schritt, kDistanzMuster));
  z.StandardDistanz = std::clamp(wert, kDistanzMin, kDistanzMax);
  z.StandardVersatzBerechnen();
  distanzZeigen();
}

}  // namespace kolm::points
