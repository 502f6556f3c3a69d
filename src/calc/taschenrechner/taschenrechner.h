#pragma once
// Taschenrechner: a calculator in reverse Polish notation. The field Text is
// X, the list Stack holds the registers below it. Operators typed into Text
// act like their buttons; the Bearbeiten menu reaches it through the hidden
// commands Ausschneiden, Kopieren and Einfügen.
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "calc/taschenrechner/stapel.h"
#include "forms/form.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::calc {

class TaschenrechnerForm : public forms::Form {
 public:
  TaschenrechnerForm(forms::Forms& forms, core::Anwendung& anwendung);

  const Stapel& stapel() const { return stapel_; }
  // Text holds a finished result: Enter pushes it, the next digit starts anew.
  bool fertig() const { return fertig_; }

 protected:
  void Load() override;

 private:
  struct Fehler {
    const char* titel;
    const char* text;
  };
  using Pruefung = std::function<std::optional<Fehler>(double x)>;

  void Tasten(forms::Control& feld, forms::EventArgs& args);
  void Knopf(const std::string& name, int index, const std::string& caption, int zeile, int spalte,
             std::function<void()> befehl, int zeilen = 1, int spalten = 1);

  // X as the field reads it; nothing after the overflow message.
  std::optional<double> X();
  // Shows a result as the finished X; false (after the overflow message for
  // an infinite one) when it cannot be shown.
  bool Zeigbar(double wert);
  void Zeigen(double wert);
  void StapelZeigen();
  void Melden(const Fehler& fehler);

  void Einstellig(const std::function<double(double)>& f, const Pruefung& pruefung = {});
  void Zweistellig(const std::function<double(double, double)>& f, const Pruefung& pruefung = {});

  void VorzeichenWechseln();
  void Zurueck();
  void Tauschen();
  void Eingabe();
  void PiTaste();
  void Fakultaet();
  void LetztesLoeschen();
  void StackLoeschen();

  // The value a drag brings, read from the control it started at. The
  // payload of the BlueBox takes this place once it exists.
  std::optional<double> ZahlAusQuelle(const forms::Control& quelle) const;
  void WertSetzen(double wert);

  void Ausschneiden();
  void Kopieren();
  void Einfuegen();

  core::Anwendung& anwendung_;
  Stapel stapel_;
  bool fertig_ = false;
  // The command of each button, by control array and index.
  std::map<std::string, std::map<int, std::function<void()>>> befehle_;
};

// A text read as a number only when it starts as one: a digit, ".", "-" or ",".
std::optional<double> ZahlWennZahl(const std::string& text);

}  // namespace kolm::calc
