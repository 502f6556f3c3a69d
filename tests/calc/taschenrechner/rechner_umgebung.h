#pragma once
// The calculator as the program wires it, with the Bearbeiten menu, and a
// hand that types into its display as the keyboard does.
#include <string>

#include "calc/frame/menue_umgebung.h"
#include "calc/taschenrechner/taschenrechner.h"
#include "forms/keys.h"
#include "points/eingabe/bearbeiten.h"

namespace kolm::calc::testing {

struct RechnerUmgebung : MenueUmgebung {
  RechnerUmgebung() { points::BearbeitenVerbinden(*anwendung.main(), anwendung); }

  TaschenrechnerForm& rechner() {
    anwendung.main()->control("MnuWerTaschenrechner").click();
    return static_cast<TaschenrechnerForm&>(*forms.find("Taschenrechner"));
  }
  forms::Control& text() { return rechner().control("Text"); }
  std::string anzeige() { return text().text(); }
  std::vector<std::string> stack() { return rechner().control("Stack").list(); }

  // Each character as its key: "\r" is Enter, "\b" Backspace.
  void tippe(const std::string& tasten) {
    namespace keys = forms::keys;
    for (const char c : tasten) {
      forms::Control& feld = text();
      if (c == '\r')
        feld.form().sendKey(feld, keys::Return, 0, U'\r');
      else if (c == '\b')
        feld.form().sendKey(feld, keys::Back, 0, 8);
      else
        feld.form().sendKey(feld, keys::KeyCodeOfChar(static_cast<char32_t>(c)), 0, static_cast<char32_t>(c));
    }
  }
  void klicke(const char* knopf, int index = -1) { rechner().control(knopf, index).click(); }
  // Types a value, runs a button, returns the display.
  std::string mit(const std::string& x, const char* knopf, int index) {
    tippe(x);
    klicke(knopf, index);
    return anzeige();
  }
  void winkeleinheit(int eintrag) { anwendung.main()->control("ComboWinkelEinheit").setListIndex(eintrag); }
};

}  // namespace kolm::calc::testing
