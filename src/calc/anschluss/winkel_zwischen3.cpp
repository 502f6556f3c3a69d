#include "calc/anschluss/winkel_zwischen3.h"

#include "calc/kernel/arcus.h"
#include "calc/kernel/winkel.h"
#include "core/app/anwendung.h"

namespace kolm::calc {

namespace {
// Below the input points, above the buttons of the frame.
constexpr int ErgebnisZeile = 50;
}  // namespace

WinkelZwischen3Form::WinkelZwischen3Form(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "WinkelZwischen3", "Winkel zw. 3 Punkten", "WinkelZwischen3") {
  EingabePunkt(1, "Punkt P1");
  EingabePunkt(2, "Punkt P2");
  EingabePunkt(3, "Punkt P3");
  // One result only: `Erg` is a single control here, not an array.
  add(forms::ControlKind::Frame, "FrameErgebnis").at(ErgebnisZeile, 0, 1, 2);
  add(forms::ControlKind::Label, "ErgLabel").caption("Winkel:").in("FrameErgebnis").at(0, 0);
  add(forms::ControlKind::Label, "Erg").in("FrameErgebnis").at(0, 1).width(14).draggable();
}

bool WinkelZwischen3Form::Rechnen() {
  const core::Punkt &p1 = Eingabe(0), &p2 = Eingabe(1), &p3 = Eingabe(2);
  const double w = kernel::WinkelNormieren(kernel::WinkelAusSeiten(p1.A, p1.B, p2.A, p2.B, p3.A, p3.B)) /
                   zustand().WinkelFaktor;
  control("Erg").setCaption(Standard(w));
  return true;
}

}  // namespace kolm::calc
