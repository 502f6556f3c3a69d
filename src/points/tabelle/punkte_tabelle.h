#pragma once
// The dialog PunkteTabelle: every slot of the active table as a row of one
// grid, typed into cell by cell, cleared with Delete, moved by dragging its
// number, renamed, saved and printed.
#include <string>

#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

class PunkteTabelleForm : public forms::Form {
 public:
  PunkteTabelleForm(forms::Forms& forms, core::Anwendung& anwendung);

  // The hidden commands, also reached through trigger().
  // The whole grid from the table: rows, columns, captions, one bulk update.
  void Repaint();
  // The row of Anwendung::PunktZumAuffrischen().
  void RepaintPunkt();
  // The cells back into the table: changed rows are read by ZahlLesen,
  // rows left all blank clear their point; marks the table changed, and
  // the graphic redraws when a point changed.
  void ReRead();

 protected:
  void Load() override;
  void Unload() override;

 private:
  forms::Control& grid() const;
  void zeileSchreiben(int nummer);
  bool formStimmt() const;
  double zellwert(int zeile, int spalte) const;

  void tasteGedrueckt(forms::EventArgs& a);
  void tasteUnten(forms::EventArgs& a);
  void ZelleUebernehmen();
  void markierteZellenLeeren();

  void ziehenBeginnen(forms::EventArgs& a);
  void ziehenAnzeigen();
  void ablegen(forms::EventArgs& a);

  void umbenennen();

  core::Anwendung& anwendung_;
  // The cell being typed into; the grid has no editor of its own.
  struct Bearbeitung {
    int zeile = -1, spalte = -1;
    std::string text;
    bool aktiv() const { return zeile >= 0; }
  } bearbeitung_;
  int quelle_ = -1;  // point whose number is being dragged
};

// The point a drag from the point grid carries (its number column or its
// DragLabel), for dialogs that take dropped points; -1 for any other source.
int GezogenerPunkt(const forms::Control& quelle);

}  // namespace kolm::points
