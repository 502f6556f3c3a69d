#pragma once
// The running program without windows, for the point dialogs' tests: the
// state, Main, scripted services and stand-ins for the dialogs that the
// saving refreshes.
#include <memory>
#include <string>
#include <vector>

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "forms/scripted.h"
#include "support/befehls_protokoll.h"

namespace kolm::points::testing {

// A loaded dialog that records which of its hidden commands ran.
using Protokoll = kolm::testhilfen::BefehlsProtokoll;

struct Umgebung {
  forms::ScriptedServices dienste;
  forms::HeadlessHost host;
  forms::Forms forms{dienste.services};
  core::Zustand zustand;
  core::Anwendung anwendung{zustand, forms};

  Umgebung() {
    forms.setHost(&host);
    for (const char* name : {"PunkteTabelle", "Grafik", "VariablenTabelle"})
      forms.registerForm(name, [name](forms::Forms& f) {
        return std::make_unique<Protokoll>(f, name, std::initializer_list<const char*>{"Repaint", "RepaintPunkt", "ReRead"});
      });
    core::RegisterMainForms(forms, "/nicht/da");
    anwendung.setMain(static_cast<core::MainForm*>(forms.load("Main")));
  }

  core::MainForm& main() { return *anwendung.main(); }
  Protokoll& dialog(const char* name) { return static_cast<Protokoll&>(*forms.load(name)); }

  void punkt(int n, double a, double b, double c = 0, int kurzBez = 0) {
    core::Punkt& p = zustand.Punkte[static_cast<size_t>(n)];
    p.Nummer = static_cast<core::Integer>(n);
    p.A = a;
    p.B = b;
    p.C = c;
    p.KurzBez = static_cast<core::Integer>(kurzBez);
  }

  std::vector<forms::ShownMessage>& meldungen() { return dienste.messages.shown(); }
};

inline core::Punkt Rekord(double a, double b, double c = 0, int kurzBez = 0) {
  core::Punkt p;
  p.A = a;
  p.B = b;
  p.C = c;
  p.KurzBez = static_cast<core::Integer>(kurzBez);
  p.Nummer = 77;  // whatever the dialog had; saving sets it
  return p;
}

}  // namespace kolm::points::testing
