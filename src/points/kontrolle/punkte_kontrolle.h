#pragma once
#include <optional>

#include "forms/forms.h"
#include "points/tabelle/auswahl.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

// "Punkte Kontrolle": adds to, multiplies, swaps, normalises or rounds the
// points of the range marked in the point grid, and shows one point.
class PunkteKontrolleForm : public forms::Form {
 public:
  PunkteKontrolleForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;

 private:
  struct Werte {
    double a, b, c;
  };
  void repaint();
  void punktZeigen();
  void uebernehmen(forms::Control& quelle);
  void variablenTaste(forms::Control& feld, forms::EventArgs& args);
  // The fields as numbers; the third counts as `ohneDritte` while it is hidden.
  Werte felder(double ohneDritte) const;
  std::optional<Punktbereich> bereich();
  void addieren();
  void multiplizieren();
  void vertauschen();
  void runden();
  void geaendert();

  core::Anwendung& anwendung_;
};

}  // namespace kolm::points
