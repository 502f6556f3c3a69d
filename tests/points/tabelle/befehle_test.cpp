// The buttons of the point grid: renaming the selected points, printing the
// list.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <variant>

#include "tabelle_fixture.h"

namespace kolm::points::test {
namespace {

using forms::ControlKind;
using forms::DisplayList;

// Stands in for the designation dialog: the proposal in Vorschlag, the
// chosen index in Ergebnis, -1 when cancelled.
class BezeichnungWahl : public forms::Form {
 public:
  explicit BezeichnungWahl(forms::Forms& f) : Form(f, "PktKurzBezEingabe", "Punkt Bezeichnung") {
    add(ControlKind::TextBox, "Vorschlag").hidden();
    add(ControlKind::TextBox, "Ergebnis").hidden();
  }
};

struct Umbenennen : Tabelle {
  std::string vorschlag;
  Umbenennen() {
    forms.registerForm("PktKurzBezEingabe", [](forms::Forms& f) { return std::make_unique<BezeichnungWahl>(f); });
  }
  void waehlt(const std::string& ergebnis) {
    host.onModal([this, ergebnis](forms::Form& f) {
      vorschlag = f.control("Vorschlag").text();
      f.control("Ergebnis").setText(ergebnis);
      f.forms().unload(f);
    });
  }
};

TEST(PunkteTabelleUmbenennen, TheSelectedPointsTakeTheChosenDesignationAndItsColour) {
  Umbenennen t;
  t.zustand.Kurzbezeichnungen[3].Text = "Hydrant";
  t.zustand.Kurzbezeichnungen[5].Text = "Kanal";
  t.zustand.PunktFarben[5] = {0x0000FF, "Blau"};
  for (int n = 10; n <= 13; ++n) t.punkt(n, n, 1, 0, 3);
  t.zustand.PunktLoeschen(12);  // an empty point in the range
  forms::Form& f = t.oeffnen();
  t.grid().setGridSelection(12, 2, 13, 2);  // points 11 and 12, the cursor on 11
  t.waehlt("5");
  f.control("Umbenennen").click();
  EXPECT_EQ(t.vorschlag, "3") << "the current point's designation is proposed";
  EXPECT_EQ(t.p(10).KurzBez, 3);
  EXPECT_EQ(t.p(11).KurzBez, 5);
  EXPECT_EQ(t.p(11).Farbe, 0x0000FF);
  EXPECT_EQ(t.p(12).KurzBez, 5);
  EXPECT_EQ(t.p(13).KurzBez, 3);
  EXPECT_EQ(t.zelle(12, 1), "Kanal");
  EXPECT_EQ(t.zelle(13, 1), "") << "an empty point shows nothing";
  EXPECT_TRUE(t.zustand.TabelleGeaendert);
  EXPECT_EQ(t.forms.FormGeladen("PktKurzBezEingabe"), -1);
}

TEST(PunkteTabelleUmbenennen, ADesignationWithoutAColourKeepsThePointsColourCancelChangesNothing) {
  Umbenennen t;
  t.zustand.Kurzbezeichnungen[45].Text = "Leitung";
  t.punkt(1, 1, 1);
  t.zustand.Punkte[1].Farbe = 0x123456;
  forms::Form& f = t.oeffnen();
  t.grid().setCurrentCell(2, 2);
  t.waehlt("45");  // beyond the 40 point colours
  f.control("Umbenennen").click();
  EXPECT_EQ(t.p(1).KurzBez, 45);
  EXPECT_EQ(t.p(1).Farbe, 0x123456);
  EXPECT_EQ(t.zelle(2, 1), "Leitung");

  t.zustand.TabelleGeaendert = core::Falsch;
  t.waehlt("-1");
  f.control("Umbenennen").click();
  EXPECT_EQ(t.p(1).KurzBez, 45);
  EXPECT_FALSE(t.zustand.TabelleGeaendert);
  t.waehlt("");  // closed without an answer
  f.control("Umbenennen").click();
  EXPECT_EQ(t.p(1).KurzBez, 45);
}

// ---- printing -------------------------------------------------------------------------

struct Seite {
  std::vector<DisplayList::Text> texte;
  int linien = 0;
};

std::vector<Seite> Seiten(const std::vector<DisplayList>& job) {
  std::vector<Seite> seiten;
  for (const DisplayList& page : job) {
    Seite s;
    for (const auto& cmd : page.commands()) {
      if (const auto* t = std::get_if<DisplayList::Text>(&cmd)) s.texte.push_back(*t);
      if (std::holds_alternative<DisplayList::Line>(cmd)) ++s.linien;
    }
    seiten.push_back(s);
  }
  return seiten;
}

// The texts of a page grouped into lines by their height on the page.
std::vector<std::vector<std::string>> Zeilen(const Seite& s) {
  std::map<double, std::vector<std::pair<double, std::string>>> nachY;
  for (const auto& t : s.texte) nachY[t.y].push_back({t.x, t.text});
  std::vector<std::vector<std::string>> zeilen;
  for (auto& [y, teile] : nachY) {
    std::sort(teile.begin(), teile.end());
    std::vector<std::string> zeile;
    for (auto& [x, text] : teile) zeile.push_back(text);
    zeilen.push_back(zeile);
  }
  return zeilen;
}

TEST(PunkteTabelleDrucken, TheListHasTheHeaderAndOneLinePerPointAsShown) {
  Tabelle t;
  t.zustand.Dritte = core::Wahr;
  t.zustand.Kurzbezeichnungen[0].Text = "Pkt.";
  t.punkt(3, 100.5, 200.25, 3);
  t.punkt(8, -1, 2, 0);
  forms::Form& f = t.oeffnen();
  f.control("Drucken").click();
  ASSERT_EQ(t.dienste.printer.jobs().size(), 1u);
  const std::vector<Seite> seiten = Seiten(t.dienste.printer.jobs()[0]);
  ASSERT_EQ(seiten.size(), 1u);
  const auto zeilen = Zeilen(seiten[0]);
  ASSERT_EQ(zeilen.size(), 3u);
  EXPECT_EQ(zeilen[0], (std::vector<std::string>{"Punkt Nr.", "Bezeichnung", "X =", "Y =", "Z ="}));
  EXPECT_EQ(zeilen[1], (std::vector<std::string>{"3", "Pkt.", "100.500", "200.250", "3.000"}));
  EXPECT_EQ(zeilen[2], (std::vector<std::string>{"8", "Pkt.", "-1.000", "2.000", "0.000"}));
  EXPECT_GE(seiten[0].linien, 4) << "a frame around the page";
  EXPECT_TRUE(f.control("Drucken").enabled()) << "ready for the next list";
}

TEST(PunkteTabelleDrucken, ColumnsStandAtTheSameTabStopsAndAFullPageStartsTheNext) {
  Tabelle t;
  for (int n = 0; n < 150; ++n) t.punkt(n, n + 1, 2);
  forms::Form& f = t.oeffnen();
  f.control("Drucken").click();
  ASSERT_EQ(t.dienste.printer.jobs().size(), 1u);
  const std::vector<DisplayList>& job = t.dienste.printer.jobs()[0];
  const std::vector<Seite> seiten = Seiten(job);
  ASSERT_GE(seiten.size(), 2u);
  int punkte = 0;
  std::set<double> spalten;
  const double hoehe = 287.0;
  for (const Seite& s : seiten) {
    const auto zeilen = Zeilen(s);
    ASSERT_FALSE(zeilen.empty());
    EXPECT_EQ(zeilen[0].at(0), "Punkt Nr.") << "every page starts with the header";
    punkte += static_cast<int>(zeilen.size()) - 1;
    EXPECT_GE(s.linien, 4);
    for (const auto& text : s.texte) {
      spalten.insert(text.x);
      EXPECT_LT(text.y, hoehe - 15) << "inside the frame";
      EXPECT_GT(text.y, 15);
    }
  }
  EXPECT_EQ(punkte, 150) << "every point once, empty slots left out";
  EXPECT_EQ(spalten.size(), 4u) << "four columns at four tab stops";
}

TEST(PunkteTabelleDrucken, AnEmptyTableGivesTheHeaderOnly) {
  Tabelle t;
  forms::Form& f = t.oeffnen();
  f.control("Drucken").click();
  ASSERT_EQ(t.dienste.printer.jobs().size(), 1u);
  const auto seiten = Seiten(t.dienste.printer.jobs()[0]);
  ASSERT_EQ(seiten.size(), 1u);
  EXPECT_EQ(Zeilen(seiten[0]).size(), 1u);
}

}  // namespace
}  // namespace kolm::points::test
