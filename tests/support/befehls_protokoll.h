#pragma once
// A stand-in for a dialog another part of the program refreshes: it has the
// hidden commands it is given and records which of them ran.
#include <initializer_list>
#include <string>
#include <vector>

#include "forms/forms.h"

namespace kolm::testhilfen {

class BefehlsProtokoll : public forms::Form {
 public:
  BefehlsProtokoll(forms::Forms& f, std::string name, std::initializer_list<const char*> befehle)
      : Form(f, name, name) {
    for (const char* befehl : befehle) {
      add(forms::ControlKind::CommandButton, befehl).hidden();
      on(befehl, forms::Event::Click,
         [this, befehl](forms::Control&, forms::EventArgs&) { gerufen.push_back(befehl); });
    }
  }
  std::vector<std::string> gerufen;
};

}  // namespace kolm::testhilfen
