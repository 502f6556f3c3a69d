#pragma once
// The stakeout dialog as the user opens it from the menu.
#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {

struct AbsteckUmgebung : MenueUmgebung {
  RechenDialog& oeffnen() { return MenueUmgebung::oeffnen("MnuGerAbsteckdaten", "Absteckdaten"); }
  // The run mode with station number, first source, count and first target.
  RechenDialog& lauf(const std::string& a, const std::string& p, const std::string& n, const std::string& s) {
    RechenDialog& d = oeffnen();
    d.control("CheckMehrere").setValue(1);
    d.control("PP1Nr").setText(a);
    d.control("PP2Nr").setText(p);
    d.control("Anz").setText(n);
    d.control("PktNr").setText(s);
    d.control("Berechnen").click();
    return d;
  }
  const core::Punkt& p(int n) const { return zustand.Punkte[static_cast<size_t>(n)]; }
  std::string letzteMeldung() { return meldungen().empty() ? "" : meldungen().back().message.text; }
};

}  // namespace kolm::calc::testing
