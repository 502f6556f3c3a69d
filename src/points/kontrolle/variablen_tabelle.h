#pragma once
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

// "Variablen": the 26 letter variables in a grid, row 0 "A =" to row 25
// "Z =", the value in column 1. Values are typed into a cell as in the point
// grid; the hidden commands Repaint and ReRead fill the grid from the
// variables and take the cells back.
class VariablenTabelleForm : public forms::Form {
 public:
  VariablenTabelleForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;
  void Unload() override;

 private:
  void repaint();
  void reRead();
  void zeileZeigen(int zeile);
  void tastenDruck(forms::EventArgs& args);
  void tasteUnten(forms::EventArgs& args);
  void uebernehmen();

  core::Anwendung& anwendung_;
  int bearbeitet_ = -1;  // row whose cell holds typed text not yet taken
};

}  // namespace kolm::points
