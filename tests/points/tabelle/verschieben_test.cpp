// Moving a point by dragging its number onto another row.
#include <gtest/gtest.h>

#include "points/eingabe/ueberschreibliste.h"
#include "points/tabelle/punkte_tabelle.h"
#include "tabelle_fixture.h"

namespace kolm::points::test {
namespace {

// A drag from cell [r1, c1] dropped on row r2, as the macro's ziehe does it.
bool Ziehen(Tabelle& t, int r1, int c1, int r2, int c2 = 0) {
  forms::Control& g = t.grid();
  forms::EventArgs start;
  start.row = r1;
  start.col = c1;
  g.setCurrentCell(r1, c1);
  g.raise(forms::Event::DragStart, start);
  if (start.cancel) return false;
  forms::EventArgs drop;
  drop.source = &g;
  drop.row = r2;
  drop.col = c2;
  g.raise(forms::Event::DragDrop, drop);
  return true;
}

TEST(PunkteTabelleVerschieben, ADropOnAnEmptyRowMovesThePointAndLeavesConnections) {
  Tabelle t;
  t.zustand.Kurzbezeichnungen[3].Text = "Mast";
  t.punkt(4, 10, 20, 0, 3);
  t.zustand.Punkte[4].Farbe = 0xFF;
  t.zustand.Verbindungen[5].Von = 4;
  t.zustand.Verbindungen[5].Nach = 9;
  t.oeffnen();
  t.zustand.TabelleGeaendert = core::Falsch;
  ASSERT_TRUE(Ziehen(t, 5, 0, 31));
  EXPECT_TRUE(t.zustand.PunktLeer(4));
  EXPECT_DOUBLE_EQ(t.p(30).A, 10);
  EXPECT_DOUBLE_EQ(t.p(30).B, 20);
  EXPECT_EQ(t.p(30).KurzBez, 3);
  EXPECT_EQ(t.p(30).Farbe, 0xFF);
  EXPECT_EQ(t.p(30).Nummer, 30);
  EXPECT_EQ(t.zelle(5, 2), "");
  EXPECT_EQ(t.zelle(31, 1), "Mast");
  EXPECT_EQ(t.zelle(31, 2), "10.000");
  EXPECT_EQ(t.zustand.Verbindungen[5].Von, 4) << "connections keep their numbers";
  EXPECT_TRUE(t.zustand.TabelleGeaendert);
  EXPECT_TRUE(t.dienste.messages.shown().empty()) << "nothing to ask for an empty target";
}

TEST(PunkteTabelleVerschieben, AUsedTargetIsOverwrittenOnlyAfterTheQuestion) {
  Tabelle t;
  t.zustand.Kurzbezeichnungen[0].Text = "Pkt.";
  t.punkt(1, 1, 2);
  t.punkt(2, 3, 4);
  t.oeffnen();
  t.dienste.messages.queue(forms::Answer::No);
  Ziehen(t, 2, 0, 3);
  ASSERT_EQ(t.dienste.messages.shown().size(), 1u);
  EXPECT_EQ(t.dienste.messages.shown()[0].message.title, "Punkt verschieben");
  EXPECT_EQ(t.dienste.messages.shown()[0].message.text, "Soll Pkt. 2: (3.000/4.000) überschrieben werden?");
  EXPECT_DOUBLE_EQ(t.p(1).A, 1) << "no: both stay";
  EXPECT_DOUBLE_EQ(t.p(2).A, 3);

  t.dienste.messages.queue(forms::Answer::Yes);
  Ziehen(t, 2, 0, 3);
  EXPECT_TRUE(t.zustand.PunktLeer(1));
  EXPECT_DOUBLE_EQ(t.p(2).A, 1);
  EXPECT_EQ(t.zelle(3, 2), "1.000");
  // The old point 2 is in the history and at the top of the BlueBox list.
  const Ueberschreibliste& liste = UeberschreiblisteVon(t.anwendung);
  ASSERT_EQ(liste.Anzahl(), 1);
  EXPECT_DOUBLE_EQ(liste.Eintrag(0).Punkt.A, 3);
  EXPECT_EQ(t.main->control("cmbBlueBox").list().at(0), "Alter Pkt. 2  X= 3.000  Y= 4.000");
}

TEST(PunkteTabelleVerschieben, OnlyTheNumberColumnOfAPointStartsADrag) {
  Tabelle t;
  t.punkt(1, 1, 2);
  t.oeffnen();
  EXPECT_FALSE(Ziehen(t, 2, 2, 10)) << "a value cell";
  EXPECT_FALSE(Ziehen(t, 4, 0, 10)) << "an empty point";
  EXPECT_FALSE(Ziehen(t, 0, 0, 10)) << "the header";
  EXPECT_DOUBLE_EQ(t.p(1).A, 1);
  EXPECT_TRUE(t.zustand.PunktLeer(9));
  EXPECT_TRUE(Ziehen(t, 2, 0, 2)) << "dropped on its own row";
  EXPECT_DOUBLE_EQ(t.p(1).A, 1);
}

TEST(PunkteTabelleVerschieben, TheTimerShowsWhatIsDraggedAndOtherDialogsCanReadIt) {
  Tabelle t;
  t.zustand.Kurzbezeichnungen[0].Text = "Pkt.";
  t.punkt(7, 1, 2);
  forms::Form& f = t.oeffnen();
  forms::EventArgs start;
  start.row = 8;
  start.col = 0;
  t.grid().raise(forms::Event::DragStart, start);
  ASSERT_FALSE(start.cancel);
  EXPECT_TRUE(f.control("tmrDrag").enabled());
  EXPECT_EQ(f.control("tmrDrag").intervalMs(), 200);
  EXPECT_EQ(GezogenerPunkt(t.grid()), 7);
  EXPECT_EQ(GezogenerPunkt(f.control("DragLabel")), 7);
  EXPECT_EQ(GezogenerPunkt(f.control("Speichern")), -1);
  f.control("tmrDrag").raise(forms::Event::Timer);
  EXPECT_FALSE(f.control("tmrDrag").enabled());
  EXPECT_EQ(f.control("DragLabel").captionText(), "Pkt. 7  X= 1.000  Y= 2.000");
  // A drop from another dialog is not a move.
  forms::EventArgs fremd;
  fremd.source = &t.main->control("DragContainer");
  fremd.row = 20;
  t.grid().raise(forms::Event::DragDrop, fremd);
  EXPECT_DOUBLE_EQ(t.p(7).A, 1);
  EXPECT_TRUE(t.zustand.PunktLeer(19));
  EXPECT_EQ(f.control("DragLabel").captionText(), "");
}

TEST(PunkteTabelleVerschieben, ThePointCanGoToTheRowOfAnzahlPunkte) {
  Tabelle t;
  t.punkt(0, 5, 5);
  t.oeffnen();
  Ziehen(t, 1, 0, 1000);
  EXPECT_TRUE(t.zustand.PunktLeer(0));
  EXPECT_DOUBLE_EQ(t.p(999).A, 5);
}

}  // namespace
}  // namespace kolm::points::test
