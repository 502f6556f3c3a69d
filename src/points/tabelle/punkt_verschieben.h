#pragma once
// Moving a point to another number, as a drag in the number column of the
// point grid does.
namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

// Moves the point of slot von to slot nach (both 0 .. AnzahlPunkte). A used
// target is overwritten only after the overwrite question titled "Punkt
// verschieben"; its old point then goes to the overwrite history. The
// source is cleared, connections keep their numbers, both grid rows are
// repainted and the table is marked changed. False when nothing moved: an
// empty source, the same slot, a number out of range or a "Nein".
bool PunktVerschieben(core::Anwendung& anwendung, int von, int nach);

}  // namespace kolm::points
