#pragma once
// The elements of a circular arc (radius, tangent, central angle, arc,
// chord and the values of the midpoint of the arc) and the dialog part the
// three element dialogs share: the fields of the elements and the choice
// between a given radius and a given tangent.
#include <optional>
#include <string>

#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

struct Bogenelemente {
  double R = 0, T = 0;
  double alpha = 0;  // radians
  double b = 0, S = 0, Xs = 0, Ys = 0, ds = 0, ts = 0;
};

// The elements from R, T and alpha; the chord is 2 R sin(alpha / 2) unless
// given. A failed division (alpha = 0) leaves its value at 0.
Bogenelemente ElementeAus(double R, double T, double alpha, std::optional<double> sehne = std::nullopt);

class BogenElementeDialog : public RechenDialog {
 protected:
  BogenElementeDialog(forms::Forms& forms, core::Anwendung& anwendung, std::string name, std::string caption);

  // Frame FrameRadius with OptionRadius and OptionTangente in the column
  // beside the fields, from the form's row zeile over zeilen rows; the
  // options caption Label(param).
  void RadiusOderTangente(int param, int zeile, int zeilen = 1);
  bool MitRadius() const;
  // Erg(0) .. Erg(8) in frame FrameErgebnis.
  void ElementeAnlegen();
  void ElementeZeigen(const Bogenelemente& e);
  // After the option of radius or tangent changed.
  virtual void RadiusGewaehlt(bool /*mitRadius*/) {}

  void Load() override;

  static constexpr char kUngueltig[] = "Ungültige Parameter!";

 private:
  int radiusParam_ = 0;
};

}  // namespace kolm::calc
