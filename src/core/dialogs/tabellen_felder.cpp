#include "core/dialogs/tabellen_felder.h"

#include <algorithm>
#include <string>

#include "core/app/anwendung.h"
#include "points/numbers/numbers.h"

namespace kolm::core {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

TabellenFelderForm::TabellenFelderForm(forms::Forms& forms, Anwendung& anwendung, std::string name,
                                       std::string caption, Art art)
    : Form(forms, std::move(name), std::move(caption)), anwendung_(anwendung), art_(art) {
  setResizable(false);
  add(ControlKind::Label, "LabelTablName").caption("&Name:").at(0, 0);
  add(ControlKind::TextBox, "TablName").width(30).at(0, 1, 1, 3);
  add(ControlKind::Label, "LabelStationierung").caption("&Stationierung:").at(1, 0);
  add(ControlKind::TextBox, "Stationierung").width(12).tip("Stationierung in km, leer für 0").at(1, 1);
  add(ControlKind::Label, "LabelDateiname").caption("&Dateiname:").at(2, 0);
  add(ControlKind::TextBox, "Dateiname").width(12)
      .tip("Name der Dateien der Tabelle: Ziffern, Buchstaben, - und _, höchstens 8 Zeichen").at(2, 1);
  add(ControlKind::Label, "LabelPktDateiName").caption("&Punkt-Datei:").at(3, 0);
  add(ControlKind::TextBox, "PktDateiName").width(12)
      .tip("Name der Punktdatei; zwei Tabellen mit derselben Punktdatei bilden ein Doppelprofil").at(3, 1);
  add(ControlKind::Label, "LabelKoordinatenSystem").caption("&Koordinatensystem:").at(4, 0);
  add(ControlKind::ComboBox, "KoordinatenSystem")
      .items({"Math.links", "M31 rechts", "? Math rechts", "? M31 links"})
      .dropDownList().width(14).at(4, 1);
  add(ControlKind::CheckBox, "CheckPolar").caption("P&olar").at(5, 1);
  add(ControlKind::CheckBox, "CheckDritte").caption("&3D (dritte Koordinate)").at(5, 2, 1, 2);

  add(ControlKind::Frame, "FrameBeschriftung").caption("Beschriftung der Grafik").at(6, 0, 1, 4);
  const char* texte[] = {"nichts automatisch einblenden", "Tabellenname und Maßstab einblenden",
                         "Tabellenname, Maßstab und Stationierung einblenden"};
  for (int i = 0; i < 3; ++i)
    add(ControlKind::OptionButton, "optBeschriftung", i).caption(texte[i]).in("FrameBeschriftung").at(i, 0);
  control("optBeschriftung", 0).setValue(1);
  if (!art_.mitBeschriftung) {
    // A copy keeps its labels and a table's properties have none to choose.
    control("FrameBeschriftung").setVisible(false);
    for (Control* o : array("optBeschriftung")) o->setVisible(false);
  }

  add(ControlKind::CommandButton, "Löschen").caption("&Löschen").tip("Tabelle mit ihren Dateien löschen").at(7, 0);
  if (!art_.mitLoeschen) control("Löschen").setVisible(false);
  add(ControlKind::CommandButton, "OK").caption("OK").asDefault().at(7, 2);
  add(ControlKind::CommandButton, "Cancel").caption("Abbrechen").asCancel().at(7, 3);

  on("TablName", Event::Change, [this](Control& c, EventArgs&) {
    if (!art_.stammFolgtName) return;
    const std::string stamm = DateinameAusName(c.text());
    control("Dateiname").setText(stamm);
    control("PktDateiName").setText(stamm);
  });
  for (const char* feld : {"Dateiname", "PktDateiName"}) {
    on(feld, Event::KeyPress, [](Control&, EventArgs& a) {
      if (!StammZeichenZulaessig(static_cast<char32_t>(a.keyAscii))) a.keyAscii = 0;
    });
    on(feld, Event::Change, [this](Control& c, EventArgs&) { stammFiltern(c); });
  }
  on("Cancel", Event::Click, [this](Control&, EventArgs&) { schliessen(); });
}

// A pasted or set text keeps only what typing would have let through.
void TabellenFelderForm::stammFiltern(Control& feld) {
  const std::string gefiltert = StammFiltern(feld.text());
  if (gefiltert != feld.text()) feld.setText(gefiltert);
}

TabellenEingabe TabellenFelderForm::eingabe() const {
  TabellenEingabe e;
  e.TablName = control("TablName").text();
  e.Stationierung = control("Stationierung").text();
  e.Dateiname = control("Dateiname").text();
  e.PktDateiName = control("PktDateiName").text();
  e.KoordinatenSystem = std::max(0, control("KoordinatenSystem").listIndex());
  e.Dritte = control("CheckDritte").value() == 1;
  e.Polar = control("CheckPolar").value() == 1;
  return e;
}

int TabellenFelderForm::beschriftung() const {
  for (Control* o : array("optBeschriftung"))
    if (o->value() == 1) return o->index();
  return 0;
}

void TabellenFelderForm::felderFuerNeueTabelle() {
  const Zustand& z = anwendung_.zustand();
  control("TablName").setText(NamensVorschlag(z));
  control("Stationierung").setText("");
  control("KoordinatenSystem").setListIndex(KoordinatenSystemEintrag(z.M31, z.Falschdrehend));
  control("CheckPolar").setValue(z.Polar ? 1 : 0);
  control("CheckDritte").setValue(z.Dritte ? 1 : 0);
}

void TabellenFelderForm::felderAusZeile(const Tabelle& t) {
  control("TablName").setText(t.TablName);
  control("Stationierung").setText(numbers::ZahlAlsText(t.Stationierung, "."));
  control("Dateiname").setText(t.Dateiname);
  control("PktDateiName").setText(t.PktDateiName);
  control("KoordinatenSystem").setListIndex(KoordinatenSystemEintrag(t.M31, t.Falschdrehend));
  control("CheckPolar").setValue(t.Polar ? 1 : 0);
  control("CheckDritte").setValue(t.Dritte ? 1 : 0);
}

TabellenEntscheidung TabellenFelderForm::pruefen(TabellenDialog dialog, int eigeneZeile) {
  const TabellenPruefung p =
      TabellenEingabePruefen(anwendung_.zustand(), eingabe(), dialog, eigeneZeile, anwendung_.kontext().dezimalzeichen);
  forms::MessageService* meldungen = services().messages;
  if (!meldungen) return {};
  return TabellenPruefungAbarbeiten(p, *meldungen);
}

void TabellenFelderForm::schliessen() { forms().unload(*this); }

}  // namespace kolm::core
