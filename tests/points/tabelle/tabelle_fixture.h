#pragma once
// The point grid in a program without windows: state, Main, the dialog's
// registration and its menu entries, scripted services.
#include <string>

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "forms/keys.h"
#include "forms/scripted.h"
#include "points/punkte_verdrahtung.h"

namespace kolm::points::test {

struct Tabelle {
  forms::ScriptedServices dienste;
  forms::HeadlessHost host;
  forms::Forms forms{dienste.services};
  core::Zustand zustand;
  core::Anwendung anwendung{zustand, forms};
  core::MainForm* main = nullptr;

  Tabelle() {
    forms.setHost(&host);
    core::RegisterMainForms(forms, "/nicht/da");
    main = static_cast<core::MainForm*>(forms.load("Main"));
    anwendung.setMain(main);
    PunkteTabelleRegistrieren(forms, anwendung);
    PunkteTabelleVerbinden(*main, anwendung);
  }
  ~Tabelle() {
    forms.unloadAll();
    forms.setHost(nullptr);
  }

  void punkt(int n, double a, double b, double c = 0, int kurzBez = 0) {
    core::Punkt& p = zustand.Punkte[static_cast<size_t>(n)];
    p.Nummer = static_cast<core::Integer>(n);
    p.A = a;
    p.B = b;
    p.C = c;
    p.KurzBez = static_cast<core::Integer>(kurzBez);
  }
  const core::Punkt& p(int n) const { return zustand.Punkte[static_cast<size_t>(n)]; }

  forms::Form& oeffnen() {
    main->control("MnuTabellePunkte").click();
    return *forms.find("PunkteTabelle");
  }
  forms::Control& grid() { return forms.find("PunkteTabelle")->control("Grid"); }
  const std::string& zelle(int r, int c) { return grid().cell(r, c); }

  // Keys as a user types them into cell [r, c]: "{ENTER}", "{DOWN}", ...
  // stand for their keys, every other character for itself.
  void tippe(int r, int c, const std::string& tasten, int shift = 0) {
    forms::Control& g = grid();
    g.setFocus();
    g.setCurrentCell(r, c);
    taste(tasten, shift);
  }
  void taste(const std::string& tasten, int shift = 0) {
    forms::Control& g = grid();
    for (size_t i = 0; i < tasten.size(); ++i) {
      if (tasten[i] == '{') {
        const size_t ende = tasten.find('}', i);
        const std::string name = tasten.substr(i + 1, ende - i - 1);
        i = ende;
        int code = 0;
        char32_t ch = 0;
        if (name == "ENTER") code = forms::keys::Return, ch = U'\r';
        else if (name == "DOWN") code = forms::keys::Down;
        else if (name == "UP") code = forms::keys::Up;
        else if (name == "LEFT") code = forms::keys::Left;
        else if (name == "RIGHT") code = forms::keys::Right;
        else if (name == "DELETE") code = forms::keys::Delete;
        else if (name == "BACKSPACE") code = forms::keys::Back, ch = 8;
        else if (name == "ESC") code = forms::keys::Escape, ch = 27;
        g.form().sendKey(g, code, shift, ch);
        continue;
      }
      const char32_t ch = static_cast<unsigned char>(tasten[i]);
      g.form().sendKey(g, forms::keys::KeyCodeOfChar(ch), shift, ch);
    }
  }
};

}  // namespace kolm::points::test
