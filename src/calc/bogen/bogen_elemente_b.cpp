#include "calc/bogen/bogen_elemente_b.h"

#include <cmath>

#include "calc/kernel/arcus.h"
#include "calc/kernel/klassisch.h"
#include "calc/kernel/kreise.h"

namespace kolm::calc {

using forms::ControlKind;
using kernel::klassisch::Zuweisen;

namespace {
constexpr char kHinweisT[] = "T>0 rechtsdrehend\nT<0 linksdrehend";
}  // namespace

BogenElementeBForm::BogenElementeBForm(forms::Forms& forms, core::Anwendung& anwendung)
    : BogenElementeDialog(forms, anwendung, "BogenElementeB", "Bogenelemente mit BA, BE") {
  EingabePunkt(1, "Bogenanfang");
  EingabePunkt(2, "Bogenende");
  Parameter(0, "&R=");
  // Beside the two points; the note starts with its longer caption so that
  // the view keeps room for both lines.
  RadiusOderTangente(0, 0, 2);
  add(ControlKind::Label, "Hinweis").caption(kHinweisT).in("FrameRadius").at(1, 0, 1, 2);
  ErgebnisPunkt(0, "Ergebnis Mittelpunkt", {"M", "", false});
  ErgebnisPunkt(1, "Ergebnis W-Punkt", {"W", "", false});
  control("Speichern", 1).setCaption("S&peichern");
  ElementeAnlegen();
  // Beside the two result points, so that the dialog stays low.
  control("FrameErgebnis").at(3, 2, 2, 1);
}

void BogenElementeBForm::RadiusGewaehlt(bool mitRadius) {
  control("Hinweis").setCaption(mitRadius ? "R>0 rechtsdrehend    R<0 linksdrehend"
                                          : kHinweisT);
}

void BogenElementeBForm::Beschriften() {
  // The polar captions carry a hyphen that the common rule lacks.
  if (zustand().Polar == 0) return;
  control("LabelA", 0).setCaption("M-e =");
  control("LabelB", 0).setCaption("M-Phi =");
  control("LabelA", 1).setCaption("W-e =");
  control("LabelB", 1).setCaption("W-Phi =");
}

bool BogenElementeBForm::Rechnen() {
  const core::Punkt &ba = Eingabe(0), &be = Eingabe(1);
  const double c = kernel::klassisch::Abstand(ba.A, ba.B, be.A, be.B);
  if (c == 0) {
    Fehlermeldung(kUngueltig);
    return false;
  }
  const double v = Param(0);
  const double wert = std::fabs(v);
  double R = 0, T = 0, alpha = 0, x = 0;
  if (MitRadius()) {
    R = wert;
    Zuweisen(x, (c / 2) / R);
    alpha = 2 * kernel::ArcusSinus(x);
    Zuweisen(T, R * std::tan(alpha / 2));
  } else {
    T = wert;
    Zuweisen(x, (c / 2) / T);
    alpha = 2 * kernel::ArcusCosinus(x);
    Zuweisen(R, T / std::tan(alpha / 2));
  }
  ElementeZeigen(ElementeAus(R, T, alpha, c));

  double c1a = ba.A, c1b = ba.B, c2a = be.A, c2b = be.B;
  if (!kernel::SchnittKreisKreis(c1a, c1b, R, c2a, c2b, R)) {
    Fehlermeldung("Berechnung nicht durchführbar!");
    return false;
  }
  // Not checked: where the tangent circles miss, the vertex stays on BA or BE.
  double w1a = ba.A, w1b = ba.B, w2a = be.A, w2b = be.B;
  kernel::SchnittKreisKreis(w1a, w1b, T, w2a, w2b, T);
  core::Punkt &m = Ergebnis(0), &w = Ergebnis(1);
  if (v > 0) {
    m.A = c1a, m.B = c1b;
    w.A = w2a, w.B = w2b;
  } else {
    m.A = c2a, m.B = c2b;
    w.A = w1a, w.B = w1b;
  }
  return true;
}

}  // namespace kolm::calc
