#pragma once
// What the tests of the point dialogs share: the program's core with
// scripted services, a project folder with its Kolmproj.ini, the point grid,
// and a stand-in for the graphic that counts its repaints.
#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <memory>
#include <string>

#include "core/app/anwendung.h"
#include "core/profile/profile.h"
#include "core/state/zustand.h"
#include "forms/keys.h"
#include "forms/scripted.h"
#include "points/punkte_verdrahtung.h"
#include "support/test_ordner.h"

namespace kolm::points::test {

// The graphic, as far as these dialogs reach it: it counts its Repaint.
class GrafikAttrappe : public forms::Form {
 public:
  GrafikAttrappe(forms::Forms& f, int& neuGezeichnet) : Form(f, "Grafik", "Grafik") {
    add(forms::ControlKind::CommandButton, "Repaint").hidden();
    on("Repaint", forms::Event::Click, [&neuGezeichnet](forms::Control&, forms::EventArgs&) { ++neuGezeichnet; });
  }
};

struct Projektordner : kolm::testhilfen::TestOrdner {
  Projektordner() : TestOrdner("kontrolle") {}
  std::string ini() const { return datei("Kolmproj.ini"); }
  bool iniDa() const { return gibt("Kolmproj.ini"); }
};

struct Umgebung {
  forms::ScriptedServices dienste;
  forms::HeadlessHost host;
  forms::Forms forms{dienste.services};
  core::Zustand zustand;
  core::Anwendung anwendung{zustand, forms};
  Projektordner ordner;
  int grafikGezeichnet = 0;

  Umgebung() {
    forms.setHost(&host);
    zustand.ProjektVerzeichnis = ordner.pfad.string() + "/";
    zustand.ProjektIni = ordner.ini();
    PunkteKontrolleRegistrieren(forms, anwendung);
    PunkteTabelleRegistrieren(forms, anwendung);
    forms.registerForm("Grafik", [this](forms::Forms& f) { return std::make_unique<GrafikAttrappe>(f, grafikGezeichnet); });
  }
  ~Umgebung() {
    forms.unloadAll();
    forms.collect();
  }

  forms::Form& zeige(const char* name) { return *forms.show(name); }

  // Opens the point grid and marks the rows of points von .. bis.
  void markiere(int von, int bis) {
    forms::Form& tabelle = *forms.show("PunkteTabelle");
    tabelle.control("Grid").setGridSelection(von + 1, 1, bis + 1, 4);
  }

  // A cell of the point grid as the user sees it: column 1 the designation,
  // 2 to 4 the coordinates.
  std::string zelle(int punkt, int spalte) const {
    const forms::Form* tabelle = forms.find("PunkteTabelle");
    return tabelle ? tabelle->control("Grid").cell(punkt + 1, spalte) : "<zu>";
  }

  core::Punkt& punkt(int n, double a, double b, double c = 0) {
    core::Punkt& p = zustand.Punkte[static_cast<std::size_t>(n)];
    p.Nummer = static_cast<core::Integer>(n);
    p.A = a;
    p.B = b;
    p.C = c;
    return p;
  }

  std::string ini(const char* abschnitt, const std::string& schluessel) const {
    return core::profile::ReadString(ordner.ini(), abschnitt, schluessel, "<fehlt>", 100);
  }

  // The messages shown so far, each as "title: text".
  std::vector<std::string> meldungen() {
    std::vector<std::string> texte;
    for (const auto& m : dienste.messages.shown()) texte.push_back(m.message.title + ": " + m.message.text);
    return texte;
  }
};

// Types a text into a control key by key, as the keyboard does.
inline void Tippe(forms::Control& c, const std::string& text) {
  for (char ch : text) {
    const int shift = (ch >= 'A' && ch <= 'Z') ? forms::keys::ShiftMask : 0;
    c.form().sendKey(c, forms::keys::KeyCodeOfChar(static_cast<char32_t>(ch)), shift, static_cast<char32_t>(ch));
  }
}

inline void Taste(forms::Control& c, int keyCode, char32_t ch = 0, int shift = 0) {
  c.form().sendKey(c, keyCode, shift, ch);
}

}  // namespace kolm::points::test
