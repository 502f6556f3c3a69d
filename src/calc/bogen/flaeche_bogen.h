#pragma once
// The area of a circular segment from its chord and the radius or the
// segment height: FlächeBogenB takes the chord from the arc's start and end
// point, FlächeBogenS has it typed. The segment is always the smaller one,
// at most a half circle.
#include <optional>

#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

struct Kreissegment {
  double R = 0, T = 0;
  double alpha = 0;  // radians
  double b = 0, S = 0, P = 0, F = 0;
};

// With mitRadius wert is R, else the segment height P. Nothing when the
// radius is less than half the chord. A failed division leaves its value 0.
std::optional<Kreissegment> KreissegmentAus(double S, double wert, bool mitRadius);

class FlaecheBogenDialog : public RechenDialog {
 protected:
  FlaecheBogenDialog(forms::Forms& forms, core::Anwendung& anwendung, std::string name, std::string caption);
  // Param(param) with the options of radius and segment height beside it,
  // in the form's row zeile, and the fields of the results.
  void SegmentAnlegen(int param, int zeile);
  // The chord, from the rectangular records or the field.
  virtual double Sehne() = 0;
  bool Rechnen() override;
  void Load() override;

 private:
  int param_ = 0;
};

class FlaecheBogenBForm : public FlaecheBogenDialog {
 public:
  FlaecheBogenBForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  double Sehne() override;
};

class FlaecheBogenSForm : public FlaecheBogenDialog {
 public:
  FlaecheBogenSForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  double Sehne() override;
};

}  // namespace kolm::calc
