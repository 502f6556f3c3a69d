// Punkt Bezeichnung: the modal choice of a designation, as the point grid
// opens it and reads its answer.
#include <gtest/gtest.h>

#include "kontrolle_hilfen.h"

namespace kolm::points::test {
namespace {

struct Auswahl : Umgebung {
  Auswahl() {
    zustand.Kurzbezeichnungen[0].Text = "Pkt.";
    zustand.Kurzbezeichnungen[3].Text = "Mast";
    zustand.Kurzbezeichnungen[8].Text = "Baum";
  }
  // Opens the dialog as its opener does: load, propose, show modally, read.
  std::string waehle(const std::string& vorschlag, forms::HeadlessHost::ModalAction aktion) {
    host.onModal(std::move(aktion));
    forms::Form& f = *forms.load("PktKurzBezEingabe");
    f.control("Vorschlag").setText(vorschlag);
    forms.show(f, true);
    const std::string ergebnis = f.control("Ergebnis").text();
    forms.unload(f);
    return ergebnis;
  }
};

TEST(PktKurzBezEingabe, OkGivesTheIndexOfTheChosenDesignationAndMarksTheTableChanged) {
  Auswahl a;
  std::vector<std::string> liste;
  std::string vorgeschlagen, titel;
  const std::string ergebnis = a.waehle("3", [&](forms::Form& f) {
    titel = f.caption();
    liste = f.control("List").list();
    vorgeschlagen = f.control("List").shownText();
    f.control("List").setListIndex(2);
    f.control("OK").click();
  });
  EXPECT_EQ(titel, "Punkt Bezeichnung");
  EXPECT_EQ(liste, (std::vector<std::string>{"Pkt.", "Mast", "Baum"})) << "blank entries are left out";
  EXPECT_EQ(vorgeschlagen, "Mast");
  EXPECT_EQ(ergebnis, "8");
  EXPECT_TRUE(core::IstWahr(a.zustand.TabelleGeaendert));
}

TEST(PktKurzBezEingabe, CancelOrClosingTheWindowGivesMinusOneAndChangesNothing) {
  Auswahl a;
  EXPECT_EQ(a.waehle("8", [](forms::Form& f) { f.control("Cancel").click(); }), "-1");
  EXPECT_EQ(a.waehle("8", [](forms::Form& f) { f.forms().unload(f); }), "-1");
  EXPECT_FALSE(core::IstWahr(a.zustand.TabelleGeaendert));
}

TEST(PktKurzBezEingabe, ADoubleClickChoosesAndEachOpeningStartsAfresh) {
  Auswahl a;
  EXPECT_EQ(a.waehle("0", [](forms::Form& f) {
    f.control("List").setListIndex(1);
    f.control("List").doubleClick();
  }), "3");
  // The opener may keep the form loaded; the next opening proposes anew.
  a.host.onModal([](forms::Form& f) { f.control("OK").click(); });
  forms::Form& f = *a.forms.load("PktKurzBezEingabe");
  a.zustand.Kurzbezeichnungen[5].Text = "Neu";
  f.control("Vorschlag").setText("5");
  a.forms.show(f, true);
  EXPECT_EQ(f.control("Ergebnis").text(), "5");
  a.host.onModal([](forms::Form& g) { g.control("Cancel").click(); });
  a.forms.show(f, true);
  EXPECT_EQ(f.control("Ergebnis").text(), "-1");
}

TEST(PktKurzBezEingabe, AProposalOfABlankEntryChoosesNothingAndOkThenGivesMinusOne) {
  Auswahl a;
  std::string gewaehlt = "?";
  EXPECT_EQ(a.waehle("4", [&](forms::Form& f) {
    gewaehlt = std::to_string(f.control("List").listIndex());
    f.control("OK").click();
  }), "-1");
  EXPECT_EQ(gewaehlt, "-1");
  EXPECT_FALSE(core::IstWahr(a.zustand.TabelleGeaendert));
}

}  // namespace
}  // namespace kolm::points::test
