#pragma once
// The frame every calculation dialog is built on: input points fetched by
// number or typed by hand, numeric parameters, result points with their
// number field and save button, scalar results, and the one protocol of
// Berechnen (polar records made rectangular for the kernel and back, the
// failure box, the offered number, the default button following the input).
// A dialog declares its controls in its constructor and supplies Rechnen.
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/records/records.h"
#include "core/state/zustand.h"
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::calc {

// How the two coordinate captions of a result point are made: the one
// result point of a dialog shows "&X =", numbered ones "X1 =" (nach "1"),
// a centre "MX =" (vor "M"). Polar and M31 change the letters.
struct ErgebnisNamen {
  std::string vor, nach;
  bool zugriffstaste = false;
};
std::pair<std::string, std::string> ErgebnisBeschriftung(const core::Zustand& z, const ErgebnisNamen& namen);

class RechenDialog : public forms::Form {
 public:
  // skizze: the help topic of the sketch; empty for a dialog without Skizze.
  RechenDialog(forms::Forms& forms, core::Anwendung& anwendung, std::string name, std::string caption,
               std::string skizze);

  core::Anwendung& anwendung() const { return anwendung_; }
  core::Zustand& zustand() const;

  // The records, in the order declared. Input records are in the table's
  // form except while Rechnen runs.
  core::Punkt& Eingabe(int i) { return eingaben_.at(static_cast<size_t>(i)).punkt; }
  core::Punkt& Ergebnis(int i = 0) { return ergebnisse_.at(static_cast<size_t>(i)).punkt; }
  int AnzahlEingaben() const { return static_cast<int>(eingaben_.size()); }
  int AnzahlErgebnisse() const { return static_cast<int>(ergebnisse_.size()); }

  // The commands, as their buttons run them.
  void Berechnen();
  void Speichern(int ergebnis = 0);
  // True when the user answered, false when Punkteingabe was cancelled.
  bool PunktEingeben(int eingabe);

 protected:
  // ---- Declaration, in the dialog's constructor
  // Input point n: `PPnNr`, `PPn`, `GetPPn` in frame `Punktn` with caption.
  int EingabePunkt(int n, std::string caption);
  // A named input point (`G1P1`): `G1P1Nr`, `G1P1`, `GetG1P1` in frame rahmen.
  int EingabePunkt(const std::string& name, const std::string& rahmen, std::string caption);
  // `Param(i)` with its caption `Label(i)`.
  void Parameter(int i, std::string caption);
  // A result point: `ErgA`, `ErgB`, `LabelA`, `LabelB` in frame `Ergebnis`,
  // `PktNr` with `LabelAlsNr`, `Speichern`. index -1 for the one result
  // point of a dialog, else the index of each of these arrays.
  int ErgebnisPunkt(int index, std::string rahmenCaption, ErgebnisNamen namen = {"", "", true});
  // `Erg(i)` with its caption `ErgLabel(i)` in frame `FrameErgebnis`.
  void Skalar(int i, std::string caption);
  // The box shown when Rechnen fails; the title defaults to the caption.
  void Fehlermeldung(std::string text, std::string titel = "");

  // ---- The dialog's own part
  // The kernel call on rectangular input records: writes A and B of the
  // result records (and whatever scalars it shows). False on failure: the
  // frame then shows the failure box and leaves the result fields.
  virtual bool Rechnen() = 0;
  // Captions that depend on the coordinate system, beyond the result
  // points'; run at load and after each calculation.
  virtual void Beschriften() {}

  // Param(i) read by ZahlLesen: an empty field counts as 0.
  double Param(int i) const;
  // The same, but nothing after the overflow message, for dialogs that check.
  std::optional<double> ParamGeprueft(int i) const;
  // Erg(i) shows text.
  void SkalarZeigen(int i, const std::string& text);
  // A value in StandardFormat, as inputs and scalar results are shown.
  std::string Standard(double wert) const;

  void Load() override;

  // Letter keys of a number field: store into or take from the variables.
  // Dialogs with number fields of their own (not Param) hand their keys here.
  void ParamTaste(forms::Control& feld, forms::EventArgs& args);

 private:
  struct Eingang {
    std::string name;  // `PP1`, `G1P1`
    core::Punkt punkt;
  };
  struct Ausgang {
    int index;  // of the control arrays, -1 for single controls
    ErgebnisNamen namen;
    core::Punkt punkt;
  };
  int EingangAnlegen(const std::string& name, const std::string& rahmen, std::string caption);
  void NummerGeaendert(int eingabe);
  void ErgebnisBeschriften();
  void ErgebnisZeigen(Ausgang& aus);
  void EingabenRechtwinklig(bool hin);
  int ErgebnisVonIndex(int index) const;

  core::Anwendung& anwendung_;
  std::string fehlerText_, fehlerTitel_;
  std::vector<Eingang> eingaben_;
  std::vector<Ausgang> ergebnisse_;
  int zeile_ = 0;  // next row of the generic layout
};

}  // namespace kolm::calc
