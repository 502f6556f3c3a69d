#pragma once
// The points that saving overwrote, newest first, so that a point replaced
// by mistake can be dragged back out of the BlueBox list.
#include <string>
#include <vector>

#include "core/records/records.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

// One entry, laid out as a BlueBox payload of kind 4 (a point with its
// number), so that the BlueBox can take it over as it is.
struct UeberschriebenerPunkt {
  core::Integer Art = 4;
  double Wert = 0;            // the point's number, as a payload's value
  core::Integer Nummer = -1;  // the slot the point stood in
  std::string Text;           // "Alter " + the one-line point text
  core::Punkt Punkt;          // the old record, Nummer set to its slot
};

class Ueberschreibliste {
 public:
  static constexpr int Laenge = 7;

  // The old point becomes entry 0; the others move down one place and the
  // eighth falls out.
  void Aufnehmen(UeberschriebenerPunkt eintrag);
  int Anzahl() const { return static_cast<int>(eintraege_.size()); }
  // Entry i, 0 the newest; i must lie in 0 .. Anzahl() - 1.
  const UeberschriebenerPunkt& Eintrag(int i) const { return eintraege_.at(static_cast<size_t>(i)); }
  void Leeren() { eintraege_.clear(); }

 private:
  std::vector<UeberschriebenerPunkt> eintraege_;
};

// The history of the running program: one per Anwendung, reached by every
// dialog through it.
Ueberschreibliste& UeberschreiblisteVon(core::Anwendung& anwendung);

// Puts the old point of slot nummer into the history and shows it at the
// top of Main's cmbBlueBox ("Alter " + one-line text, at most 7 lines, list
// index 0). For PunktSpeichern and for moving a point in the point grid.
void UeberschriebenMerken(core::Anwendung& anwendung, const core::Punkt& alt, int nummer);

}  // namespace kolm::points
