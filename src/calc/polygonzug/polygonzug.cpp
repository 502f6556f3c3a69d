#include "calc/polygonzug/polygonzug.h"

#include <cmath>
#include <string>

#include "calc/kernel/klassisch.h"
#include "core/app/anwendung.h"
#include "points/eingabe/punkt_speichern.h"
#include "points/koordinaten.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;
// A sum that overflows is skipped and leaves its target as it was.
using kernel::klassisch::Zuweisen;

namespace {

constexpr char kBeschreibung[] =
    "Die gemessenen Werte werden immer unabhängig von der Stellung des Schalters 'Polar'  als (e, Phi)  "
    "interpretiert. Das Ergebnis wird dann in rechtwinkelligen Koordinaten an die Stelle der Meßwerte "
    "gespeichert. PA und PE können auch polar angegeben werden.";
constexpr char kMesswerte[] =
    "Die Punkte von 'Start' bis 'Ende' enthalten die gemessenen Strecken (e) und Winkel (Phi):";
constexpr char kAusgleichen[] =
    "Wenn 'Ausgleichen' gewählt wird, dann wird der Polygonzug nach der Berechnung korrigiert, indem die "
    "Fehler DX und DY jeweils im Verhältnis der gemessenen Strecke e zur Gesamtlänge des Polygonzugs "
    "aufgeteilt werden.";
constexpr char kFrage[] =
    "Die Berechnung ergibt einen relativen Fehler von über 10 Prozent. Eine Fortsetzung der Berechnung "
    "erscheint nicht sinnvoll. Soll die Berechnung trotzdem fortgesetzt werden?";

// Beyond this share of the whole length a misclosure is no measuring error;
// the bound itself still passes.
constexpr double kRelativerFehler = 0.1;

}  // namespace

PolygonzugForm::PolygonzugForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "Polygonzug", "Polygonzug", "Polygonzug") {
  EingabePunkt(1, "Ausgangspunkt PA");
  EingabePunkt(2, "Endpunkt PE");
  Parameter(0, "S&tart:");
  Parameter(1, "E&nde:");
  ErgebnisPunkt(-1, "Fehler bei Ausgleich:", {"", "", false});
  add(ControlKind::Label, "LabelBeschreibung").caption(kBeschreibung).multiLine();
  add(ControlKind::Label, "LabelMesswerte").caption(kMesswerte).multiLine();
  add(ControlKind::CheckBox, "CheckAusgleichen").caption("Aus&gleichen");
  add(ControlKind::Label, "LabelGeschlossen").caption("(nicht für geschlossene Polygonzüge geeignet)");
  add(ControlKind::Label, "LabelAusgleichen").caption(kAusgleichen).multiLine();

  // The notes stand between the groups the frame declared, in reading order.
  control("LabelBeschreibung").at(0, 0, 1, 2);
  control("Punkt1").at(1, 0);
  control("Punkt2").at(1, 1);
  // Side by side, each point's text needs room of its own.
  control("PP1").width(32);
  control("PP2").width(32);
  control("LabelMesswerte").at(2, 0, 1, 2);
  control("Label", 0).at(3, 0);
  control("Param", 0).at(3, 1);
  control("Label", 1).at(4, 0);
  control("Param", 1).at(4, 1);
  control("CheckAusgleichen").at(5, 0);
  control("LabelGeschlossen").at(5, 1);
  control("LabelAusgleichen").at(6, 0, 1, 2);
  control("Ergebnis").at(7, 0, 1, 2);

  on("CheckAusgleichen", Event::Click, [this](forms::Control& c, forms::EventArgs&) {
    control("Punkt2").setEnabled(c.value() != 0);
  });
  on("Berechnen", Event::Click, [this](forms::Control&, forms::EventArgs&) { PolygonzugBerechnen(); });
}

void PolygonzugForm::Load() {
  RechenDialog::Load();
  control("Punkt2").setEnabled(control("CheckAusgleichen").value() != 0);
}

void PolygonzugForm::Beschriften() {
  // The misclosure is a difference of coordinates, in any table.
  const bool m31 = zustand().M31 != 0;
  control("LabelA").setCaption(m31 ? "DY =" : "DX =");
  control("LabelB").setCaption(m31 ? "DX =" : "DY =");
}

forms::Answer PolygonzugForm::Melden(const std::string& text, forms::Buttons knoepfe, forms::Icon symbol) {
  if (!services().messages) return knoepfe == forms::Buttons::YesNo ? forms::Answer::Yes : forms::Answer::OK;
  return services().messages->show({text, caption(), knoepfe, symbol});
}

bool PolygonzugForm::BereichLesen(int& s, int& t) {
  const core::Zustand& z = zustand();
  const int n = z.AnzahlPunkte;
  const std::string& start = control("Param", 0).text();
  const std::string& ende = control("Param", 1).text();
  const double sw = numbers::RundeHalbGerade(numbers::ZahlLesen(start));
  const double tw = numbers::RundeHalbGerade(numbers::ZahlLesen(ende));
  if (numbers::IstLeer(start) || !(sw >= 0 && sw <= n)) {
    Melden("Die Nummer der Startwerte muß im Bereich 0 bis " + std::to_string(n) + " liegen!",
           forms::Buttons::OK, forms::Icon::Critical);
    control("Param", 0).setFocus();
    return false;
  }
  // Ende equal to Start, or to AnzahlPunkte, passes, whatever the message says.
  if (numbers::IstLeer(ende) || !(tw >= sw && tw <= n)) {
    Melden("Die Nummer der Endwerte muß größer als die Startnummer und kleiner als " + std::to_string(n) +
               " sein!",
           forms::Buttons::OK, forms::Icon::Critical);
    control("Param", 1).setFocus();
    return false;
  }
  s = static_cast<int>(sw);
  t = static_cast<int>(tw);
  return true;
}

void PolygonzugForm::PolygonzugBerechnen() {
  core::Zustand& z = zustand();
  const bool polar = z.Polar != 0;
  core::Punkt &pa = Eingabe(0), &pe = Eingabe(1);
  if (polar) {
    points::PolarZuRechtwinklig(z, pa.A, pa.B);
    points::PolarZuRechtwinklig(z, pe.A, pe.B);
  }
  // After a message or a No, PA and PE stay rectangular: the next run
  // converts them once more. A fresh fetch of their numbers mends that.
  int s = 0, t = 0;
  if (!BereichLesen(s, t)) return;
  if (control("CheckAusgleichen").value() == 0) {
    Fliegend(s, t);
  } else if (!Ausgeglichen(s, t)) {
    return;
  }
  if (polar) {
    points::RechtwinkligZuPolar(z, pa.A, pa.B);
    points::RechtwinkligZuPolar(z, pe.A, pe.B);
  }
}

void PolygonzugForm::Fliegend(int s, int t) {
  core::Zustand& z = zustand();
  double ca = Eingabe(0).A, cb = Eingabe(0).B;
  for (int i = s; i <= t; ++i) {
    core::Punkt& p = z.Punkte[static_cast<size_t>(i)];
    points::PolarZuRechtwinklig(z, p.A, p.B);
    Zuweisen(p.A, ca + p.A);
    Zuweisen(p.B, cb + p.B);
    ca = p.A;
    cb = p.B;
  }
  TabelleGeaendert();
  Melden("Berechnung des fliegenden Polygonzugs ist abgeschlossen!", forms::Buttons::OK, forms::Icon::None);
  control("Schließen").setFocus();
}

bool PolygonzugForm::Ausgeglichen(int s, int t) {
  core::Zustand& z = zustand();
  const core::Punkt &pa = Eingabe(0), &pe = Eingabe(1);
  double summe = 0, sa = 0, sb = 0;
  for (int i = s; i <= t; ++i) {
    const core::Punkt& p = z.Punkte[static_cast<size_t>(i)];
    double a = p.A, b = p.B;
    Zuweisen(summe, summe + a);
    points::PolarZuRechtwinklig(z, a, b);
    Zuweisen(sa, sa + a);
    Zuweisen(sb, sb + b);
  }
  double da = 0, db = 0;
  Zuweisen(da, pe.A - pa.A - sa);
  Zuweisen(db, pe.B - pa.B - sb);
  core::Punkt& fehler = Ergebnis();
  fehler.A = da;
  fehler.B = db;
  const std::string& format = z.Einstellungen.ErgebnisFormat;
  control("ErgA").setCaption(numbers::ZahlText(da, format));
  control("ErgB").setCaption(numbers::ZahlText(db, format));

  if (summe != 0 && (std::fabs(da / summe) > kRelativerFehler || std::fabs(db / summe) > kRelativerFehler) &&
      Melden(kFrage, forms::Buttons::YesNo, forms::Icon::Question) != forms::Answer::Yes)
    return false;

  // With no length at all there is nothing to share out: every point keeps
  // the sum of its legs.
  double ca = pa.A, cb = pa.B;
  for (int i = s; i <= t; ++i) {
    core::Punkt& p = z.Punkte[static_cast<size_t>(i)];
    const double anteil = summe != 0 ? p.A / summe : 0;
    points::PolarZuRechtwinklig(z, p.A, p.B);
    Zuweisen(p.A, ca + p.A + anteil * da);
    Zuweisen(p.B, cb + p.B + anteil * db);
    ca = p.A;
    cb = p.B;
  }
  Beschriften();
  TabelleGeaendert();
  Melden("Berechnung des ausgeglichenen Polygonzugs ist abgeschlossen!", forms::Buttons::OK, forms::Icon::None);
  control("PktNr").setText(numbers::ZahlOderLeer(points::NaechsteNummer(z), z.Einstellungen.NummernFormat));
  control("PktNr").setFocus();
  return true;
}

void PolygonzugForm::TabelleGeaendert() {
  zustand().TabelleGeaendert = core::Wahr;
  anwendung().RefreshPunkteTabelle();
  anwendung().RefreshGrafik();
}

}  // namespace kolm::calc
