#include "calc/ausrundung/ausrundung.h"

#include <cmath>

#include "calc/kernel/arcus.h"
#include "calc/kernel/klassisch.h"
#include "points/koordinaten.h"
#include "points/numbers/konstanten.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;
using kernel::klassisch::Zuweisen;
using numbers::Pi;

namespace {
struct Gegeben {
  const char* name;
  const char* caption;
  const char* feld;
};
// In the order they stand; the tangent length is the one given at the start.
const Gegeben kGegeben[] = {{"OptionTangente", "&Tangentenlänge", "&T="},
                            {"OptionRadius", "&Radius", "&R="},
                            {"OptionSehne", "S&ehne", "&S="},
                            {"OptionBogen", "B&ogenlänge", "&b="},
                            {"optionDS", "&ds (Gegenstich)", "&ds="}};
constexpr char kTitel[] = "Ausrundung";
}  // namespace

AusrundungForm::AusrundungForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "Ausrundung", kTitel, "Ausrundung") {
  EingabePunkt(1, "Punkt P1");
  EingabePunkt(2, "Punkt P2");
  EingabePunkt(3, "Punkt P3");
  Parameter(0, "&T=");
  // What the value is stands beside the points.
  add(ControlKind::Frame, "FrameGegeben").caption("Gegeben").at(0, 2, 2, 1);
  int zeile = 0;
  for (const Gegeben& g : kGegeben) {
    add(ControlKind::OptionButton, g.name).caption(g.caption).in("FrameGegeben").at(zeile++, 0);
    const std::string feld = g.feld;
    on(g.name, Event::Click, [this, feld](forms::Control&, forms::EventArgs&) {
      control("Label", 0).setCaption(feld);
    });
  }
  Skalar(0, "Radius");
  Skalar(1, "Tangente");
  // The old screen wrote w in the Symbol font.
  Skalar(2, "ω");
  Skalar(3, "Bogen b");
  Skalar(4, "ds");
  ErgebnisPunkt(0, "Ergebnis 1.Tangentenpunkt", {"", "1", false});
  ErgebnisPunkt(1, "Ergebnis 2.Tangentenpunkt", {"", "2", false});
  control("Speichern", 1).setCaption("S&peichern");
  // Side by side, so the dialog fits on a small screen: the elements beside
  // P3 and the field, the second tangent point beside the first.
  control("FrameErgebnis").at(2, 2, 2, 1);
  control("Ergebnis", 1).at(control("Ergebnis", 0).placement().row, 2);
}

void AusrundungForm::Load() {
  RechenDialog::Load();
  control("OptionTangente").setValue(1);
  control("Label", 0).setCaption("&T=");
}

void AusrundungForm::Melden(const std::string& text, forms::Icon icon) {
  if (services().messages) services().messages->show({text, kTitel, forms::Buttons::OK, icon});
}

bool AusrundungForm::Rechnen() {
  const core::Punkt &p1 = Eingabe(0), &p2 = Eingabe(1), &p3 = Eingabe(2);
  // The tangent points start as copies of P1 and P2: height and
  // designation come from there.
  Ergebnis(0) = p1;
  Ergebnis(1) = p2;
  Ergebnis(0).Nummer = Ergebnis(1).Nummer = -1;
  // The interior angle at the corner, folded into 0 .. below Pi: a straight
  // line (Pi) becomes 0 like a line doubled back.
  double w = kernel::WinkelAusSeiten(p1.A, p1.B, p2.A, p2.B, p3.A, p3.B);
  w = (w / Pi - std::floor(w / Pi)) * Pi;
  if (w == 0 || w == Pi) {
    Melden("P1, P2, und P3 liegen auf einer Geraden. Es kann daher kein Kreisbogen eingerechnet werden!",
           forms::Icon::Exclamation);
    return false;
  }
  const double alpha = Pi - w;
  const double wert = Param(0);
  // A statement that fails leaves its target at 0, as the old code did.
  double r = 0;
  if (control("OptionRadius").value()) {
    r = wert;
  } else if (control("OptionSehne").value()) {
    Zuweisen(r, (wert / 2) / std::sin(alpha / 2));
  } else if (control("OptionBogen").value()) {
    Zuweisen(r, wert / alpha);
  } else if (control("optionDS").value()) {
    // Not the inverse of the ds shown below: the tangent is not squared here,
    // and users know the values this gives.
    Zuweisen(r, wert / (std::sqrt(1 + 1 / std::tan(w / 2)) - 1));
  } else {
    Zuweisen(r, wert / std::tan(alpha / 2));
  }
  double t = 0, b = 0, ds = 0;
  Zuweisen(t, r * std::tan(alpha / 2));
  Zuweisen(b, alpha * r);
  Zuweisen(ds, std::sqrt(r * r + t * t) - r);
  const core::Zustand& z = zustand();
  SkalarZeigen(0, Standard(r));
  SkalarZeigen(1, Standard(t));
  SkalarZeigen(2, Standard(w / z.WinkelFaktor));
  SkalarZeigen(3, numbers::ZahlText(b, z.Einstellungen.ErgebnisFormat));
  SkalarZeigen(4, numbers::ZahlText(ds, z.Einstellungen.ErgebnisFormat));
  if (!Tangentenpunkt(p1, t,
                      "Achtung! Die Tangentenlänge ist größer als der Abstand zwischen Punkt P1 und Punkt P2. "
                      "Der Tangentenpunkt T1 liegt NICHT zwischen P1 und P2!",
                      Ergebnis(0)))
    return false;
  return Tangentenpunkt(p3, t,
                        "Achtung! Die Tangentenlänge ist größer als der Abstand zwischen Punkt P2 und Punkt P3. "
                        "Der Tangentenpunkt T2 liegt NICHT zwischen P2 und P3!",
                        Ergebnis(1));
}

bool AusrundungForm::Tangentenpunkt(const core::Punkt& p, double t, const char* warnung, core::Punkt& ergebnis) {
  const core::Punkt& p2 = Eingabe(1);
  if (p.A == p2.A && p.B == p2.B) {
    Melden("Kein Einrechnen möglich, da keine Richtung vorhanden ist!", forms::Icon::None);
    return false;
  }
  // The side goes through the table's polar form and back with length t, so
  // its direction carries the rounding of the user's angle unit.
  double a = p.A - p2.A, b = p.B - p2.B;
  points::RechtwinkligZuPolar(zustand(), a, b);
  if (a < t) Melden(warnung, forms::Icon::Exclamation);
  a = t;
  points::PolarZuRechtwinklig(zustand(), a, b);
  Zuweisen(ergebnis.A, p2.A + a);
  Zuweisen(ergebnis.B, p2.B + b);
  return true;
}

}  // namespace kolm::calc
