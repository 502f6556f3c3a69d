// Punkte Kontrolle as the user works with it: a range marked in the point
// grid, values in the fields, one of the commands.
#include <gtest/gtest.h>

#include "kontrolle_hilfen.h"
#include "points/numbers/konstanten.h"

namespace kolm::points::test {
namespace {

constexpr const char* kKeinBereich =
    "Punkte Kontrolle: Bitte wählen Sie zuerst unter 'Ansicht': 'Punkte' und markieren Sie den zu "
    "bearbeitenden Bereich!";
constexpr const char* kNullWarnung =
    "Multiplizieren von Punktkoordinaten: Achtung: Multiplikation mit einer Komponente, die auf 0 gesetzt "
    "ist, löscht alle entsprechenden Einträge!";

struct Kontrolle : Umgebung {
  forms::Form& f;
  Kontrolle(bool dritte = true) : f((zustand.Dritte = dritte ? core::Wahr : core::Falsch, zeige("PunkteKontrolle"))) {}
  void felder(const char* a, const char* b, const char* c) {
    f.control("TextA").setText(a);
    f.control("TextB").setText(b);
    f.control("TextC").setText(c);
  }
  void klicke(const char* befehl) { f.control(befehl).click(); }
};

void ErwartePunkt(const core::Zustand& z, int n, double a, double b, double c) {
  const core::Punkt& p = z.Punkte[static_cast<std::size_t>(n)];
  EXPECT_DOUBLE_EQ(p.A, a) << "Punkt " << n;
  EXPECT_DOUBLE_EQ(p.B, b) << "Punkt " << n;
  EXPECT_DOUBLE_EQ(p.C, c) << "Punkt " << n;
}

TEST(PunkteKontrolle, WithThePointGridClosedEveryCommandOnlyShowsTheMessage) {
  Kontrolle k;
  k.punkt(1, 10, 20, 30);
  k.zustand.Polar = core::Falsch;
  k.felder("1", "0", "2");
  for (const char* befehl : {"Addieren", "Multiplizieren", "Vertauschen", "Runden"}) {
    SCOPED_TRACE(befehl);
    k.dienste.messages.shown().clear();
    k.klicke(befehl);
    EXPECT_EQ(k.meldungen(), std::vector<std::string>{kKeinBereich}) << "not even the zero-factor warning first";
  }
  ErwartePunkt(k.zustand, 1, 10, 20, 30);
  EXPECT_FALSE(core::IstWahr(k.zustand.TabelleGeaendert));
  EXPECT_EQ(k.grafikGezeichnet, 0);
}

TEST(PunkteKontrolle, AddierenAddsTheFieldsToTheMarkedPointsOnlyAndRefreshesGridAndGraphic) {
  Kontrolle k;
  k.forms.show("Grafik");
  k.punkt(0, 1, 1, 1);
  k.punkt(1, 10, 20, 30);
  k.punkt(2, -5, 0, 2.5);
  k.punkt(4, 7, 7, 7);
  k.markiere(1, 3);  // 3 is empty, 0 and 4 lie outside
  k.felder("1,5", "-2", "");  // comma read as point, an empty field adds nothing
  k.klicke("Addieren");
  ErwartePunkt(k.zustand, 0, 1, 1, 1);
  ErwartePunkt(k.zustand, 1, 11.5, 18, 30);
  ErwartePunkt(k.zustand, 2, -3.5, -2, 2.5);
  EXPECT_TRUE(k.zustand.PunktLeer(3)) << "without chkLeere an empty point stays empty";
  ErwartePunkt(k.zustand, 4, 7, 7, 7);
  EXPECT_TRUE(core::IstWahr(k.zustand.TabelleGeaendert));
  EXPECT_EQ(k.zelle(1, 2), "11.500");
  EXPECT_EQ(k.zelle(2, 3), "-2.000");
  EXPECT_EQ(k.zelle(3, 2), "");
  EXPECT_EQ(k.grafikGezeichnet, 1);
  EXPECT_TRUE(k.meldungen().empty());
}

TEST(PunkteKontrolle, AddierenWithLeereEintraegeTurnsEmptySlotsOfTheRangeIntoPoints) {
  Kontrolle k;
  EXPECT_EQ(k.f.control("chkLeere").captionText(), "leere &Einträge verwenden");
  k.punkt(5, 1, 2, 3);
  k.markiere(5, 7);
  k.f.control("chkLeere").click();
  k.felder("100", "200", "0,5");
  k.klicke("Addieren");
  ErwartePunkt(k.zustand, 5, 101, 202, 3.5);
  ErwartePunkt(k.zustand, 6, 100, 200, 0.5);
  ErwartePunkt(k.zustand, 7, 100, 200, 0.5);
  EXPECT_FALSE(k.zustand.PunktLeer(7));
  EXPECT_EQ(k.zustand.Punkte[7].Nummer, 7);
  EXPECT_TRUE(k.zustand.PunktLeer(8));
}

TEST(PunkteKontrolle, AHiddenThirdFieldAddsNothingAndMultipliesByOne) {
  Kontrolle k(false);
  EXPECT_FALSE(k.f.control("TextC").visible());
  k.punkt(1, 10, 20, 4);  // a height left from an earlier 3D table
  k.markiere(1, 1);
  k.felder("2", "2", "");
  k.klicke("Multiplizieren");
  EXPECT_TRUE(k.meldungen().empty()) << "the hidden field is no zero factor";
  ErwartePunkt(k.zustand, 1, 20, 40, 4);
  k.f.control("TextC").setText("9");
  k.klicke("Addieren");
  ErwartePunkt(k.zustand, 1, 22, 42, 4);
}

TEST(PunkteKontrolle, MultiplizierenByOneChangesNothingAndOtherFactorsScaleEachComponent) {
  Kontrolle k;
  k.punkt(2, 1234.5678, -0.001, 99.25);
  k.punkt(3, 3, 4, 5);
  k.markiere(2, 3);
  k.felder("1", "1", "1");
  k.klicke("Multiplizieren");
  ErwartePunkt(k.zustand, 2, 1234.5678, -0.001, 99.25);
  ErwartePunkt(k.zustand, 3, 3, 4, 5);
  k.felder("-1", "0.5", "2,5");
  k.klicke("Multiplizieren");
  ErwartePunkt(k.zustand, 3, -3, 2, 12.5);
  EXPECT_TRUE(k.meldungen().empty());
}

TEST(PunkteKontrolle, AZeroFactorWarnsFirstCancelKeepsThePointsOkEmptiesThem) {
  Kontrolle k;
  k.punkt(1, 10, 20, 30);
  k.punkt(2, 1, 2, 3);
  k.forms.show("Grafik");
  k.markiere(1, 2);
  k.felder("2", "", "1");  // an empty field reads as 0
  k.dienste.messages.queue(forms::Answer::Cancel);
  k.klicke("Multiplizieren");
  ASSERT_EQ(k.meldungen(), std::vector<std::string>{kNullWarnung});
  EXPECT_EQ(k.dienste.messages.shown()[0].message.buttons, forms::Buttons::OKCancel);
  ErwartePunkt(k.zustand, 1, 10, 20, 30);
  EXPECT_FALSE(core::IstWahr(k.zustand.TabelleGeaendert));
  EXPECT_EQ(k.grafikGezeichnet, 0);

  k.dienste.messages.queue(forms::Answer::OK);
  k.klicke("Multiplizieren");
  ErwartePunkt(k.zustand, 1, 20, 0, 30);
  EXPECT_TRUE(core::IstWahr(k.zustand.TabelleGeaendert));

  k.felder("0", "0", "0");
  k.dienste.messages.queue(forms::Answer::OK);
  k.klicke("Multiplizieren");
  EXPECT_TRUE(k.zustand.PunktLeer(1));
  EXPECT_TRUE(k.zustand.PunktLeer(2));
  EXPECT_EQ(k.dienste.messages.shown().size(), 3u);
}

TEST(PunkteKontrolle, VertauschenSwapsTheFirstTwoCoordinatesOfARectangularTable) {
  Kontrolle k;
  EXPECT_EQ(k.f.control("Vertauschen").captionText(), "&Vertausche X-Y");
  k.punkt(1, 10, 20, 30);
  k.punkt(3, -1, 2, 0);
  k.markiere(1, 3);
  k.klicke("Vertauschen");
  ErwartePunkt(k.zustand, 1, 20, 10, 30);
  ErwartePunkt(k.zustand, 3, 2, -1, 0);
  EXPECT_TRUE(k.zustand.PunktLeer(2));
  EXPECT_EQ(k.zelle(1, 2), "20.000");
  EXPECT_EQ(k.zelle(1, 3), "10.000");
}

TEST(PunkteKontrolle, InAPolarTableVertauschenNormalisesTheDirectionsInTheAngleUnit) {
  Kontrolle k;
  k.zustand.Polar = core::Wahr;
  k.anwendung.RefreshPunkteKontrolle();
  EXPECT_EQ(k.f.control("Vertauschen").captionText(), "&Winkel normieren");
  EXPECT_EQ(k.f.control("LabelA").captionText(), "&e =");
  EXPECT_EQ(k.f.control("LabelB").captionText(), "&Phi =");
  k.zustand.WinkelFaktor = numbers::WinkelFaktorFuer(0);  // Neugrad
  k.punkt(1, 10, 450, 1);
  k.punkt(2, 20, -100, 2);
  k.punkt(3, 30, 399.5, 3);
  k.markiere(1, 3);
  k.klicke("Vertauschen");
  EXPECT_NEAR(k.zustand.Punkte[1].B, 50, 1e-9);
  EXPECT_NEAR(k.zustand.Punkte[2].B, 300, 1e-9);
  EXPECT_NEAR(k.zustand.Punkte[3].B, 399.5, 1e-9);
  EXPECT_DOUBLE_EQ(k.zustand.Punkte[1].A, 10) << "the distance stays";
}

TEST(PunkteKontrolle, RundenFollowsTheResultFormatAndLeavesAnUnusedThirdCoordinate) {
  {
    Kontrolle k;  // the default result format: three decimals
    k.punkt(1, 1.23456, 2.0004, -7.77777);
    k.punkt(2, 1000.0005, -0.0004, 3);
    k.markiere(1, 2);
    k.klicke("Runden");
    ErwartePunkt(k.zustand, 1, 1.235, 2, -7.778);
    ErwartePunkt(k.zustand, 2, 1000.001, 0, 3);
    EXPECT_TRUE(core::IstWahr(k.zustand.TabelleGeaendert));
  }
  Kontrolle k(false);
  k.zustand.Einstellungen.ErgebnisFormat = "0.0";
  k.punkt(4, 12.349, 0.06, 1.23456);
  k.markiere(4, 4);
  k.klicke("Runden");
  ErwartePunkt(k.zustand, 4, 12.3, 0.1, 1.23456);
}

TEST(PunkteKontrolle, ItsLabelsFollowTheCoordinateSystemOfTheTable) {
  Kontrolle k;
  EXPECT_EQ(k.f.caption(), "Punkte Kontrolle");
  EXPECT_EQ(k.f.control("LabelA").captionText(), "&X =");
  EXPECT_EQ(k.f.control("LabelB").captionText(), "&Y =");
  EXPECT_EQ(k.f.control("LabelC").captionText(), "&Z =");
  EXPECT_TRUE(k.f.control("TextC").visible());
  k.zustand.M31 = core::Wahr;
  k.zustand.Dritte = core::Falsch;
  k.anwendung.RefreshPunkteKontrolle();
  EXPECT_EQ(k.f.control("LabelA").captionText(), "&Y =");
  EXPECT_EQ(k.f.control("LabelB").captionText(), "&X =");
  EXPECT_FALSE(k.f.control("LabelC").visible());
  EXPECT_FALSE(k.f.control("TextC").visible());
  k.zustand.Dritte = core::Wahr;
  k.anwendung.RefreshPunkteKontrolle();
  EXPECT_EQ(k.f.control("LabelC").captionText(), "&H =");
  EXPECT_TRUE(k.f.control("TextC").visible());
}

TEST(PunkteKontrolle, PunktNrShowsThePointOfItsLastFourCharactersWithItsDesignation) {
  Kontrolle k;
  k.zustand.Kurzbezeichnungen[3].Text = "Mast";
  k.punkt(12, 1234.5, -2, 0.25).KurzBez = 3;
  k.f.control("PunktNr").setText("12");
  EXPECT_EQ(k.f.control("TextA").text(), "1234.500");
  EXPECT_EQ(k.f.control("TextB").text(), "-2.000");
  EXPECT_EQ(k.f.control("TextC").text(), "0.250");
  EXPECT_EQ(k.f.control("LabelPunktKurzBez").captionText(), "Mast");

  k.felder("1", "2", "3");
  k.f.control("PunktNr").setText("1000");  // beyond the 999 numbers of the table
  EXPECT_EQ(k.f.control("TextA").text(), "1");
  k.f.control("PunktNr").setText("");
  EXPECT_EQ(k.f.control("TextA").text(), "1") << "a blank number shows no point";
  k.f.control("PunktNr").setText("990012");  // "0012"
  EXPECT_EQ(k.f.control("TextA").text(), "1234.500");
}

TEST(PunkteKontrolle, APointDraggedFromTheGridShowsInTheFields) {
  Kontrolle k;
  k.punkt(7, 5, 6, 7);
  forms::Control& grid = k.forms.show("PunkteTabelle")->control("Grid");
  grid.setCurrentCell(8, 0);
  forms::EventArgs ziehen;
  grid.raise(forms::Event::DragStart, ziehen);
  ASSERT_FALSE(ziehen.cancel);
  forms::EventArgs drop;
  drop.source = &grid;
  k.f.control("PunktNr").raise(forms::Event::DragDrop, drop);
  EXPECT_EQ(k.f.control("PunktNr").text(), "7");
  EXPECT_EQ(k.f.control("TextB").text(), "6.000");
}

TEST(PunkteKontrolle, LetterKeysInTheFieldsStoreAndInsertVariables) {
  Kontrolle k;
  forms::Form& variablen = k.zeige("VariablenTabelle");
  k.f.setActiveControl(&k.f.control("TextA"));
  Tippe(k.f.control("TextA"), "12,5A");
  EXPECT_EQ(k.f.control("TextA").text(), "12,5") << "the capital letter is swallowed";
  EXPECT_DOUBLE_EQ(k.zustand.Variablen[0], 12.5);
  EXPECT_EQ(variablen.control("Grid").cell(0, 1), "12.500") << "the open variable grid shows it";
  k.f.control("TextB").setText("99");
  Tippe(k.f.control("TextB"), "a");
  EXPECT_EQ(k.f.control("TextB").text(), "12.500");
  k.punkt(1, 1, 1, 1);
  k.markiere(1, 1);
  k.felder("", "", "");
  Tippe(k.f.control("TextC"), "a");
  k.klicke("Addieren");
  ErwartePunkt(k.zustand, 1, 1, 1, 13.5);
}

}  // namespace
}  // namespace kolm::points::test
