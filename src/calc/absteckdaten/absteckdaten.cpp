#include "calc/absteckdaten/absteckdaten.h"

#include <cmath>
#include <string>

#include "core/app/anwendung.h"
#include "points/koordinaten.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;

namespace {
// Runs of this many points and more report their progress in the status
// line, every so many points.
constexpr int kLangerLauf = 1000;
constexpr int kMeldeSchritt = 500;

std::string Ganz(double wert) { return std::to_string(static_cast<long long>(wert)); }
}  // namespace

AbsteckdatenForm::AbsteckdatenForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "Absteckdaten", "Absteckdaten", "Absteckdaten") {
  EingabePunkt(1, "Ausgangspunkt A");
  EingabePunkt(2, "Punkt P");
  ErgebnisPunkt(-1, "Ergebnis: polare Absteckdaten", {"", "", false});

  add(ControlKind::Frame, "FrameMehrere").at(20, 0, 1, 2);
  add(ControlKind::CheckBox, "CheckMehrere").caption("&mehrere Punkte").in("FrameMehrere").at(0, 0, 1, 4);
  add(ControlKind::Label, "Label", 0).caption("A&b Punkt P ").in("FrameMehrere").at(1, 0);
  add(ControlKind::TextBox, "Anz").in("FrameMehrere").at(1, 1).width(6);
  add(ControlKind::SpinButton, "SpinAnz").in("FrameMehrere").at(1, 2);
  add(ControlKind::Label, "Label", 1)
      .caption("Punkte berechnen und ab \"Als Nr.:\" abspeichern.")
      .in("FrameMehrere")
      .at(2, 0, 1, 4);

  on("CheckMehrere", Event::Click, [this](forms::Control&, forms::EventArgs&) { MehrereUmschalten(); });
  on("SpinAnz", Event::SpinUp, [this](forms::Control&, forms::EventArgs&) { AnzahlDrehen(1); });
  on("SpinAnz", Event::SpinDown, [this](forms::Control&, forms::EventArgs&) { AnzahlDrehen(-1); });
  on("Anz", Event::GotFocus, [](forms::Control& feld, forms::EventArgs&) {
    feld.setSelection(0, static_cast<int>(feld.text().size()));
  });
  on("Berechnen", Event::Click, [this](forms::Control&, forms::EventArgs&) {
    if (control("CheckMehrere").value() == 1)
      MehrereBerechnen();
    else
      Berechnen();
  });
}

void AbsteckdatenForm::Load() {
  RechenDialog::Load();
  MehrereUmschalten();
}

void AbsteckdatenForm::Beschriften() {
  // Distance and direction whatever the system: the old caption was a q in
  // the Symbol font.
  control("LabelA").setCaption("e =");
  control("LabelB").setCaption("θ =");
}

void AbsteckdatenForm::MehrereUmschalten() {
  const bool an = control("CheckMehrere").value() == 1;
  for (const char* name : {"Anz", "SpinAnz"}) control(name).setEnabled(an);
  control("Label", 0).setEnabled(an);
  control("Label", 1).setEnabled(an);
}

void AbsteckdatenForm::AnzahlDrehen(int schritt) {
  forms::Control& anz = control("Anz");
  anz.setText(numbers::ZahlText(numbers::ZahlLesen(anz.text()) + schritt, zustand().Einstellungen.NummernFormat));
}

bool AbsteckdatenForm::Rechnen() {
  core::Punkt& r = Ergebnis();
  const double da = Eingabe(1).A - Eingabe(0).A, db = Eingabe(1).B - Eingabe(0).B;
  // A distance beyond the number range is no result: the fields stay.
  if (!std::isfinite(da * da + db * db)) return false;
  r.A = da;
  r.B = db;
  // In a polar table the frame turns the result into distance and direction
  // itself, as it does with every result it shows there.
  if (zustand().Polar == 0) points::RechtwinkligZuPolar(zustand(), r.A, r.B);
  return true;
}

void AbsteckdatenForm::Abbruch(const std::string& text, const char* feld) {
  if (forms::MessageService* m = services().messages)
    m->show({text, forms::ProgrammName, forms::Buttons::OK, forms::Icon::Critical});
  control(feld).setFocus();
}

void AbsteckdatenForm::MehrereBerechnen() {
  core::Zustand& z = zustand();
  const bool polar = z.Polar != 0;
  core::Punkt &a = Eingabe(0), &p = Eingabe(1);
  if (polar) {
    points::PolarZuRechtwinklig(z, a.A, a.B);
    points::PolarZuRechtwinklig(z, p.A, p.B);
  }
  // A refused run ends here and leaves both records rectangular, as users
  // of the program have always found them; only a run turns them back.
  if (!MehrereRechnen()) return;
  if (polar) {
    points::RechtwinkligZuPolar(z, a.A, a.B);
    points::RechtwinkligZuPolar(z, p.A, p.B);
  }
}

bool AbsteckdatenForm::MehrereRechnen() {
  core::Zustand& z = zustand();
  const std::string& nummern = z.Einstellungen.NummernFormat;
  const double anzahl = z.AnzahlPunkte;
  const std::string& pText = control("PP2Nr").text();
  const std::string& sText = control("PktNr").text();
  const double n = numbers::RundeHalbGerade(numbers::ZahlLesen(control("Anz").text()));
  const double p = numbers::RundeHalbGerade(numbers::ZahlLesen(pText));
  const double s = numbers::RundeHalbGerade(numbers::ZahlLesen(sText));

  if (!(n >= 1)) {
    Abbruch("Die Anzahl der zu berechnenden Punkt muß mindestens eins betragen.", "Anz");
    return false;
  }
  if (numbers::IstLeer(pText) || p < 0 || p > anzahl) {
    Abbruch("Die Punktnummer des Punktes P muß zwischen 0 und " + numbers::ZahlText(anzahl, nummern) +
                " liegen. Der Punkt darf also nicht händisch eingegeben werden, sondern muß mit Nummer "
                "aufgerufen werden.",
            "PP2Nr");
    return false;
  }
  if (numbers::IstLeer(sText) || s < 0 || s > anzahl) {
    Abbruch("Die Punktnummer des ersten Punktes zum Abspeichern muß zwischen 0 und " +
                numbers::ZahlText(anzahl, nummern) + " liegen.",
            "PktNr");
    return false;
  }
  if (p + n > anzahl + 1) {
    Abbruch("Sie können ab Punkt " + Ganz(p) + " nicht mehr als " + numbers::ZahlText(anzahl - p + 1, nummern) +
                " Punkte berechnen lassen.",
            "Anz");
    return false;
  }
  if (s + n > anzahl + 1) {
    Abbruch("Sie können ab Punkt " + Ganz(s) + " nicht mehr als " + numbers::ZahlText(anzahl - s + 1, nummern) +
                " Punkte abspeichern lassen.",
            "Anz");
    return false;
  }
  // From here every number lies in the table.
  const int N = static_cast<int>(n), P = static_cast<int>(p), S = static_cast<int>(s);
  if ((S >= P && S <= P + N - 1) || (P >= S && P <= S + N - 1)) {
    forms::MessageService* m = services().messages;
    const forms::Message frage{
        "Die Bereiche der einzulesenden und der abzuspeichernden Punkte überschneiden sich. Die ürsprünglichen "
        "Koordinaten werden nach der Berechnung nicht mehr zur verfügung stehen. Soll die Berechnung trotzdem "
        "durchgeführt werden ?",
        "Absteckdaten berechnen", forms::Buttons::YesNo, forms::Icon::Question};
    if (!m || m->show(frage) != forms::Answer::Yes) return false;
  }
  if (static_cast<size_t>(P + N) > z.Punkte.size() || static_cast<size_t>(S + N) > z.Punkte.size()) return false;

  bool ueberlauf = false;
  {
    forms::BusyGuard busy(services().busy);
    const core::Punkt& a = Eingabe(0);
    const bool lang = N >= kLangerLauf;
    const auto melden = [&](int fertig) {
      anwendung().Status("Absteckdaten: " + std::to_string(fertig) + " von " + std::to_string(N) +
                         " Punkten berechnet");
    };
    for (int k = 0; k < N; ++k) {
      // Read every source point before its slot may be overwritten.
      const int i = P <= S ? N - 1 - k : k;
      const core::Punkt& quelle = z.Punkte[static_cast<size_t>(P + i)];
      double da = quelle.A - a.A, db = quelle.B - a.B;
      if (!std::isfinite(da * da + db * db)) {
        ueberlauf = true;
        break;
      }
      points::RechtwinkligZuPolar(z, da, db);
      core::Punkt& ziel = z.Punkte[static_cast<size_t>(S + i)];
      ziel.A = da;
      ziel.B = db;
      if (lang && ((k + 1) % kMeldeSchritt == 0 || k + 1 == N)) melden(k + 1);
    }
  }

  z.TabelleGeaendert = core::Wahr;
  anwendung().RefreshPunkteTabelle();
  anwendung().RefreshGrafik();
  anwendung().RefreshBerechnen();
  anwendung().RefreshBerechnungen();
  control("PP2").setCaption("");
  control("ErgA").setCaption("");
  control("ErgB").setCaption("");
  if (forms::MessageService* m = services().messages) {
    if (ueberlauf)
      m->show({"Fehler 6:  Overflow\nBeim Berechnen der Absteckdaten trat folgender Fehler auf:", forms::ProgrammName,
               forms::Buttons::OK, forms::Icon::None});
    else
      m->show({"Die Absteckdaten wurden erfolgreich berechnet!", forms::ProgrammName, forms::Buttons::OK,
               forms::Icon::Information});
  }
  return true;
}

}  // namespace kolm::calc
