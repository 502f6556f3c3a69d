#include "core/dialogs/tabellen_auswahl.h"

#include <algorithm>
#include <string>

#include "core/app/anwendung.h"
#include "core/catalog/katalog.h"
#include "core/io/files.h"
#include "core/tables/tabellen_dateien.h"
#include "forms/keys.h"
#include "points/numbers/numbers.h"

namespace kolm::core {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

namespace {

constexpr int MaxBuchstaben = 40;
constexpr forms::Rgb Weiss = 0xFFFFFF;

}  // namespace

TabellenAuswahlForm::TabellenAuswahlForm(forms::Forms& forms, Anwendung& anwendung)
    : Form(forms, "Tabellenauswahl", "Tabelle öffnen"), anwendung_(anwendung) {
  setResizable(false);
  add(ControlKind::ListBox, "List").width(28).tip("Doppelklick öffnet die Tabelle").at(0, 0, 3, 1);
  add(ControlKind::PictureBox, "imgVorschau").tip("Vorschau der Grafik beim letzten Speichern").at(0, 1, 1, 2);

  add(ControlKind::Frame, "FrameTabelle").caption("Tabelle").at(1, 1);
  add(ControlKind::Label, "TitelStationierung").caption("Stationierung:").in("FrameTabelle").at(0, 0);
  add(ControlKind::Label, "LabelStationierung").width(12).in("FrameTabelle").at(0, 1);
  add(ControlKind::Label, "TitelDateiname").caption("Dateiname:").in("FrameTabelle").at(1, 0);
  add(ControlKind::Label, "LabelDateiname").width(12).in("FrameTabelle").at(1, 1);
  add(ControlKind::Label, "TitelPunkteDatei").caption("Punkt-Datei:").in("FrameTabelle").at(2, 0);
  add(ControlKind::Label, "LabelPunkteDatei").width(12).in("FrameTabelle").at(2, 1);

  add(ControlKind::Frame, "FrameKoordinatensystem").caption("Koordinatensystem").at(1, 2);
  add(ControlKind::Label, "LabelSystem").width(12).in("FrameKoordinatensystem").at(0, 0);
  add(ControlKind::Label, "LabelPolar").width(12).in("FrameKoordinatensystem").at(0, 1);
  add(ControlKind::Label, "LabelDritte").width(12).in("FrameKoordinatensystem").at(1, 0);
  add(ControlKind::Label, "LabelDrehsinn").width(12).in("FrameKoordinatensystem").at(1, 1);

  add(ControlKind::Frame, "FrameSortierung").caption("Sortierung").at(2, 1, 1, 2);
  add(ControlKind::Label, "LabelBuchstaben").caption("&Buchstaben:").in("FrameSortierung").at(0, 0);
  add(ControlKind::TextBox, "MinMatch").width(4)
      .tip("So viele Anfangsbuchstaben des Namens zählen, dann die Stationierung (0 bis 40)")
      .in("FrameSortierung").at(0, 1);
  add(ControlKind::SpinButton, "Spin1").in("FrameSortierung").at(0, 2);
  add(ControlKind::CommandButton, "Anwenden").caption("&Anwenden").tip("Tabellen jetzt sortieren")
      .in("FrameSortierung").at(0, 3);

  add(ControlKind::CommandButton, "OK").caption("Ö&ffnen").asDefault().at(3, 1);
  add(ControlKind::CommandButton, "Cancel").caption("Abbrechen").asCancel().at(3, 2);
  // Hidden command: the catalogue changed elsewhere.
  add(ControlKind::CommandButton, "ReRead").hidden();
  control("MinMatch").setText("0");

  on("List", Event::Click, [this](Control&, EventArgs&) { anzeigen(); });
  on("List", Event::DblClick, [this](Control&, EventArgs&) { oeffnen(); });
  on("MinMatch", Event::KeyPress, [](Control&, EventArgs& a) {
    const char32_t c = static_cast<char32_t>(a.keyAscii);
    if (c >= 32 && !(c >= U'0' && c <= U'9') && c != U'-') a.keyAscii = 0;
  });
  on("MinMatch", Event::Change, [this](Control& c, EventArgs&) {
    const double wert = numbers::Val(c.text());
    if (wert > MaxBuchstaben) c.setText(std::to_string(MaxBuchstaben));
    else if (wert < 0) c.setText("0");
  });
  on("Spin1", Event::SpinUp, [this](Control&, EventArgs&) { schritt(1); });
  on("Spin1", Event::SpinDown, [this](Control&, EventArgs&) { schritt(-1); });
  // The arrow keys step the number as the spin button does.
  for (const char* name : {"MinMatch", "Spin1"})
    on(name, Event::KeyDown, [this](Control&, EventArgs& a) {
      if (a.keyCode != forms::keys::Up && a.keyCode != forms::keys::Down) return;
      schritt(a.keyCode == forms::keys::Up ? 1 : -1);
      a.keyCode = 0;
    });
  on("Anwenden", Event::Click, [this](Control&, EventArgs&) { sortieren(); });
  on("OK", Event::Click, [this](Control&, EventArgs&) { oeffnen(); });
  on("Cancel", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
  on("ReRead", Event::Click, [this](Control&, EventArgs&) { listeFuellen(zeileVon(control("List").listIndex())); });
}

void TabellenAuswahlForm::Load() {
  gefragt_ = false;
  listeFuellen(anwendung_.zustand().AktiveTabelle);
}

void TabellenAuswahlForm::Activate() {
  // The picture box knows its size only once it is shown.
  anzeigen();
}

int TabellenAuswahlForm::zeileVon(int eintrag) const {
  if (eintrag < 0 || eintrag >= static_cast<int>(zeilen_.size())) return -1;
  return zeilen_[static_cast<std::size_t>(eintrag)];
}

void TabellenAuswahlForm::listeFuellen(int zeile) {
  const Zustand& z = anwendung_.zustand();
  zeilen_.clear();
  std::vector<std::string> namen;
  int gewaehlt = -1;
  for (std::size_t n = 0; n < z.Tabellen.size(); ++n) {
    if (!ZeileBenannt(z.Tabellen[n])) continue;
    if (static_cast<int>(n) == zeile) gewaehlt = static_cast<int>(zeilen_.size());
    zeilen_.push_back(static_cast<int>(n));
    namen.push_back(z.Tabellen[n].TablName);
  }
  Control& list = control("List");
  list.setList(std::move(namen));
  list.setListIndex(gewaehlt);
  anzeigen();
}

void TabellenAuswahlForm::anzeigen() {
  const Zustand& z = anwendung_.zustand();
  const int zeile = zeileVon(control("List").listIndex());
  const Tabelle* t = zeile >= 0 ? &z.Tabellen[static_cast<std::size_t>(zeile)] : nullptr;
  if (t && !ZeileBenannt(*t)) t = nullptr;
  control("LabelStationierung")
      .setCaption(t ? numbers::ZahlText(t->Stationierung, z.Einstellungen.StationierungsFormat) : "");
  control("LabelDateiname").setCaption(t ? t->Dateiname : "");
  control("LabelPunkteDatei").setCaption(t ? t->PktDateiName : "");
  control("LabelSystem").setCaption(!t ? "" : t->M31 ? "M31" : "mathem.");
  control("LabelPolar").setCaption(!t ? "" : t->Polar ? "Polar" : "Rechtw.");
  control("LabelDritte").setCaption(!t ? "" : t->Dritte ? "3-D" : "2-D");
  control("LabelDrehsinn").setCaption(!t ? "" : t->Falschdrehend ? "falsch-dreh." : "richtig-dreh");
  vorschauZeigen(t ? t->Dateiname : "");
}

// The picture keeps its proportions and stands in the middle of the box.
void TabellenAuswahlForm::vorschauZeigen(const std::string& datei) {
  forms::DisplayList& bild = control("imgVorschau").picture();
  bild.clear(Weiss);
  if (numbers::IstLeer(datei) || !services().images) return;
  const std::string pfad = TabellenDatei(anwendung_.zustand(), datei, ".jpg");
  if (!io::FileExists(pfad)) return;
  const std::optional<forms::Image> vorschau = services().images->read(pfad);
  if (!vorschau || vorschau->empty()) return;
  const double w = vorschau->width, h = vorschau->height;
  const double boxW = std::max(1, bild.deviceWidth()), boxH = std::max(1, bild.deviceHeight());
  const double f = std::max(w / boxW, h / boxH);
  const double breite = boxW * f, hoehe = boxH * f;
  bild.setScale(0, 0, breite, hoehe);
  bild.image(*vorschau, (breite - w) / 2, (hoehe - h) / 2, w, h);
}

void TabellenAuswahlForm::schritt(int um) {
  control("MinMatch").setText(std::to_string(std::clamp(buchstaben() + um, 0, MaxBuchstaben)));
}

int TabellenAuswahlForm::buchstaben() const {
  const double wert = numbers::Fix(numbers::Val(control("MinMatch").text()));
  return static_cast<int>(std::clamp(wert, 0.0, static_cast<double>(MaxBuchstaben)));
}

void TabellenAuswahlForm::sortieren() {
  Zustand& z = anwendung_.zustand();
  const int zeile = zeileVon(control("List").listIndex());
  const std::string gewaehlt = zeile >= 0 ? z.Tabellen[static_cast<std::size_t>(zeile)].TablName : "";
  TabellenSortieren(z, buchstaben());
  anwendung_.KatalogSpeichern();
  int neu = -1;
  for (std::size_t n = 0; n < z.Tabellen.size() && neu < 0 && !gewaehlt.empty(); ++n)
    if (z.Tabellen[n].TablName == gewaehlt) neu = static_cast<int>(n);
  listeFuellen(neu);
}

void TabellenAuswahlForm::oeffnen() {
  const Zustand& z = anwendung_.zustand();
  const int zeile = zeileVon(control("List").listIndex());
  if (zeile < 0 || !ZeileBenannt(z.Tabellen[static_cast<std::size_t>(zeile)])) return;
  // Opened from the name in the main window nobody has asked yet.
  if (!gefragt_) anwendung_.SpeichernFragen();
  anwendung_.TabelleOeffnen(zeile);
  forms().unload(*this);
}

}  // namespace kolm::core
