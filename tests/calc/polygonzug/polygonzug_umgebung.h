#pragma once
// The traverse dialog as the user opens it from the menu, with legs stored
// as points of the table.
#include <string>
#include <utility>
#include <vector>

#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {

using Schenkel = std::vector<std::pair<double, double>>;  // e, Phi

struct PolygonzugUmgebung : MenueUmgebung {
  // Legs as the points erster, erster + 1, ...
  void schenkel(int erster, const Schenkel& legs) {
    for (const auto& [e, phi] : legs) punkt(erster++, e, phi);
  }
  // PA and PE by number, the range, Ausgleichen as asked, then Berechnen.
  RechenDialog& rechnen(const std::string& pa, const std::string& pe, const std::string& start,
                        const std::string& ende, bool ausgleichen) {
    RechenDialog& d = oeffnen("MnuGerMittelnderPolygonzug", "Polygonzug");
    d.control("PP1Nr").setText(pa);
    d.control("PP2Nr").setText(pe);
    d.control("Param", 0).setText(start);
    d.control("Param", 1).setText(ende);
    if (ausgleichen) d.control("CheckAusgleichen").click();
    d.control("Berechnen").click();
    return d;
  }
  const core::Punkt& p(int n) const { return zustand.Punkte[static_cast<size_t>(n)]; }
  // The one message box shown so far.
  void meldung(const std::string& text, forms::Icon icon = forms::Icon::None) {
    ASSERT_EQ(meldungen().size(), 1u);
    EXPECT_EQ(meldungen()[0].message.text, text);
    EXPECT_EQ(meldungen()[0].message.icon, icon);
  }
};

inline constexpr char kFliegend[] = "Berechnung des fliegenden Polygonzugs ist abgeschlossen!";
inline constexpr char kAusgeglichen[] = "Berechnung des ausgeglichenen Polygonzugs ist abgeschlossen!";

}  // namespace kolm::calc::testing
