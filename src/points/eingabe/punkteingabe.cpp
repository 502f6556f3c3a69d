#include "points/eingabe/punkteingabe.h"

#include "core/app/anwendung.h"
#include "points/eingabe/eingabe_text.h"
#include "points/eingabe/punkt_speichern.h"
#include "points/koordinaten.h"
#include "points/numbers/numbers.h"
#include "points/variablen.h"

namespace kolm::points {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

namespace {
const char* const kFelder[] = {"TextA", "TextB", "TextC"};
const char* const kLabels[] = {"LabelA", "LabelB", "LabelC"};
}  // namespace

PunkteingabeForm::PunkteingabeForm(forms::Forms& forms, core::Anwendung& anwendung)
    : Form(forms, "Punkteingabe", "Punkteingabe"), anwendung_(anwendung) {
  setResizable(false);
  // The designation stands before the number, as "Pkt. 12" reads.
  add(ControlKind::Label, "LabelPunktKurzBez").caption("Pkt.").at(0, 0);
  add(ControlKind::TextBox, "PunktNr").width(6).at(0, 1)
      .tip("Nummer eines Punktes der Tabelle: füllt die Koordinaten");
  for (int i = 0; i < 3; ++i) {
    add(ControlKind::Label, kLabels[i]).width(6).at(1 + i, 0);
    add(ControlKind::TextBox, kFelder[i]).width(16).at(1 + i, 1, 1, 2);
  }
  add(ControlKind::CheckBox, "CheckAnders").caption("&Polar").at(4, 1, 1, 2)
      .tip("Diesen Punkt in der anderen Form eingeben");
  add(ControlKind::CommandButton, "OK").caption("OK").asDefault().at(5, 1);
  add(ControlKind::CommandButton, "Cancel").caption("Abbrechen").asCancel().at(5, 2);
  // Where the answer waits for the opener once the dialog is hidden.
  add(ControlKind::TextBox, "Ergebnis").hidden();

  on("PunktNr", Event::Change, [this](Control&, EventArgs&) { NummerGeaendert(); });
  for (const char* feld : kFelder) {
    on(feld, Event::Change, [this](Control& c, EventArgs&) { FeldGeaendert(c); });
    on(feld, Event::KeyPress, [this](Control& c, EventArgs& a) { Taste(c, a); });
  }
  on("CheckAnders", Event::Click, [this](Control&, EventArgs&) { BeschriftungenSetzen(); });
  on("OK", Event::Click, [this](Control&, EventArgs&) { Ok(); });
  on("Cancel", Event::Click, [this](Control&, EventArgs&) {
    control("Ergebnis").setText("");
    this->forms().unload(*this);
  });
}

void PunkteingabeForm::Load() {
  const core::Zustand& z = anwendung_.zustand();
  const bool dritte = z.Dritte != 0;
  control("LabelC").setVisible(dritte);
  control("TextC").setVisible(dritte);
  std::string bezeichnung = Bezeichnung(z, z.StandardKurzBezWert());
  if (numbers::IstLeer(bezeichnung)) bezeichnung = "Pkt.";
  control("LabelPunktKurzBez").setCaption(bezeichnung);
  control("CheckAnders").setCaption(z.Polar ? "&Rechtwinkelig" : "&Polar");
  control("CheckAnders").setValue(0);
  control("Ergebnis").setText("");
  BeschriftungenSetzen();
}

void PunkteingabeForm::BeschriftungenSetzen() {
  const core::Zustand& z = anwendung_.zustand();
  const Koordinatennamen n = control("CheckAnders").value() == 1 ? AndereBeschriftung(z, true)
                                                                 : KoordinatenBeschriftung(z, true);
  control("LabelA").setCaption(n.a);
  control("LabelB").setCaption(n.b);
  control("LabelC").setCaption(n.c);
}

void PunkteingabeForm::Felder(const core::Punkt& punkt) {
  const core::Zustand& z = anwendung_.zustand();
  const std::string& format = z.Einstellungen.StandardFormat;
  fuellt_ = true;
  // The values are in the table's form: the check goes back with them.
  control("CheckAnders").setValue(0);
  control("TextA").setText(numbers::ZahlText(punkt.A, format));
  control("TextB").setText(numbers::ZahlText(punkt.B, format));
  control("TextC").setText(numbers::ZahlText(punkt.C, format));
  if (punkt.KurzBez >= 0 && punkt.KurzBez < 100)
    control("LabelPunktKurzBez").setCaption(Bezeichnung(z, punkt.KurzBez));
  fuellt_ = false;
}

void PunkteingabeForm::NummerGeaendert() {
  const core::Zustand& z = anwendung_.zustand();
  const int n = NummerAmEnde(z, control("PunktNr").text());
  if (n < 0 || n >= static_cast<int>(z.Punkte.size())) return;
  Felder(z.Punkte[static_cast<size_t>(n)]);
}

// Typing a coordinate makes it a point of its own, no longer the numbered one.
void PunkteingabeForm::FeldGeaendert(Control& feld) {
  if (fuellt_ || activeControl() != &feld) return;
  control("PunktNr").setText("");
}

void PunkteingabeForm::Taste(Control& feld, EventArgs& args) {
  std::string text = feld.text();
  switch (VariablenTaste(anwendung_.zustand(), args.keyAscii, text)) {
    case VariablenWirkung::Keine: return;
    case VariablenWirkung::Gespeichert: anwendung_.RefreshVariablen(); return;
    case VariablenWirkung::Eingesetzt:
      feld.setText(text);
      feld.setSelection(static_cast<int>(text.size()), 0);
      return;
  }
}

void PunkteingabeForm::Ok() {
  std::string antwort;
  for (int i = 0; i < 3; ++i) {
    if (!control(kFelder[i]).visible()) continue;
    if (!antwort.empty()) antwort += '\r';
    antwort += EingabeZeile(control(kLabels[i]).captionText(), control(kFelder[i]).text());
  }
  control("Ergebnis").setText(antwort);
  this->forms().hide(*this);
}

void PunkteingabeForm::Vorbelegen(const core::Punkt& punkt, bool mitNummer) {
  const core::Zustand& z = anwendung_.zustand();
  if (mitNummer && punkt.Nummer >= 0)
    control("PunktNr").setText(numbers::ZahlText(punkt.Nummer, z.Einstellungen.NummernFormat));
  Felder(punkt);
}

const std::string& PunkteingabeForm::Ergebnis() const { return control("Ergebnis").text(); }

PunktEingabeAntwort PunktEingeben(core::Anwendung& anwendung, const core::Punkt& vorschlag, bool mitNummer) {
  forms::Forms& forms = anwendung.forms();
  auto* dialog = dynamic_cast<PunkteingabeForm*>(forms.load("Punkteingabe"));
  if (!dialog) return {};
  dialog->Vorbelegen(vorschlag, mitNummer);
  forms.show(*dialog, true);
  PunktEingabeAntwort antwort;
  // Cancel and the close box unload the dialog; OK only hides it.
  if (dialog->loaded()) {
    antwort.text = dialog->Ergebnis();
    antwort.punktNr = dialog->control("PunktNr").text();
    forms.unload(*dialog);
  }
  return antwort;
}

}  // namespace kolm::points
