// Punkt Bezeichnungen: the designations, what each draws, the colour of
// their points, the standard entry and the caption distance.
#include <gtest/gtest.h>

#include <cmath>

#include "core/settings/einstellungen_datei.h"
#include "kontrolle_hilfen.h"
#include "points/koordinaten.h"
#include "points/kontrolle/punkt_bezeichnungen.h"
#include "points/numbers/numbers.h"

namespace kolm::points::test {
namespace {

struct Bezeichnungen : Umgebung {
  forms::Form* f = nullptr;
  // As the settings of a project without entries give them.
  Bezeichnungen() {
    zustand.Kurzbezeichnungen[0].Text = "Pkt.";
    const auto& farben = core::StandardFarben();
    for (std::size_t i = 0; i < farben.size(); ++i) zustand.PunktFarben[i] = {farben[i].Farbe, farben[i].Name};
  }
  forms::Form& oeffnen() {
    f = &zeige("PunktBezeichnungen");
    return *f;
  }
  forms::Control& c(const char* name, int index = -1) { return f->control(name, index); }
  // Chooses the line of the designation in List, as a click on it does.
  void waehle(const std::string& text) {
    const auto& liste = c("List").list();
    const auto it = std::find(liste.begin(), liste.end(), text);
    ASSERT_NE(it, liste.end()) << text;
    c("List").setListIndex(static_cast<int>(it - liste.begin()));
  }
  void neu(std::optional<std::string> antwort) {
    dienste.input.queue(std::move(antwort));
    c("Neu").click();
  }
};

TEST(PunktBezeichnungen, NeuTakesTheFirstBlankEntryAndWritesItToTheProjectAtOnce) {
  Bezeichnungen b;
  b.zustand.Kurzbezeichnungen[1].Text = "Mast";
  forms::Form& f = b.oeffnen();
  EXPECT_EQ(f.caption(), "Punkt Bezeichnungen");
  EXPECT_EQ(b.c("List").list(), (std::vector<std::string>{"Pkt.", "Mast"}));
  b.neu("  Schacht ");
  ASSERT_EQ(b.dienste.input.prompts(), std::vector<std::string>{"Name für die neue Kurzbezeichnung:"});
  EXPECT_EQ(b.zustand.Kurzbezeichnungen[2].Text, "Schacht") << "outer blanks would not survive the file";
  EXPECT_EQ(b.ini("Punkt-Kurzbezeichnungen", "Bezeichnung 2"), "Schacht");
  EXPECT_EQ(b.c("List").list(), (std::vector<std::string>{"Pkt.", "Mast", "Schacht"}));
  EXPECT_EQ(b.c("List").shownText(), "Schacht");
  EXPECT_EQ(b.c("LabelIndex").captionText(), "2");
  EXPECT_EQ(b.c("Combo").list(), b.c("List").list());
  EXPECT_TRUE(b.meldungen().empty());
}

TEST(PunktBezeichnungen, AnAnswerIsCutRefusedOrIgnoredAndKeyedInTheNumberFormat) {
  const std::string vorhanden =
      "Kurzbezeichnung hinzufügen: Diese Kurzbezeichnung existiert bereits!\nGeben Sie eine andere "
      "Kurzbezeichnung ein!";
  const struct {
    std::vector<std::optional<std::string>> antworten;
    const char* format;
    std::string eintrag;  // entry 1 afterwards, "" for none
    const char* schluessel;  // its key in the project file
    std::string meldung;
  } faelle[] = {
      {{std::string(50, 'x')}, "###0", std::string(39, 'x'), "Bezeichnung 1", ""},  // what the file gives back
      {{std::nullopt, "", "   "}, "###0", "", "", ""},                               // cancelled or empty
      {{"Pkt."}, "###0", "", "", vorhanden},
      {{"Baum"}, "000", "Baum", "Bezeichnung 001", ""},
  };
  for (const auto& fall : faelle) {
    SCOPED_TRACE(fall.format + std::string(" ") + fall.eintrag);
    Bezeichnungen b;
    b.zustand.Einstellungen.NummernFormat = fall.format;
    b.oeffnen();
    for (const auto& antwort : fall.antworten) b.neu(antwort);
    const auto& text = b.zustand.Kurzbezeichnungen[1].Text;
    if (fall.eintrag.empty()) {
      EXPECT_TRUE(numbers::IstLeer(text)) << text;
      EXPECT_FALSE(b.ordner.iniDa()) << "nothing was written";
    } else {
      EXPECT_EQ(text, fall.eintrag);
      EXPECT_EQ(b.ini("Punkt-Kurzbezeichnungen", fall.schluessel), fall.eintrag);
      EXPECT_EQ(b.c("LabelIndex").captionText(), fall.schluessel + std::string("Bezeichnung ").size());
    }
    EXPECT_EQ(b.meldungen(), fall.meldung.empty() ? std::vector<std::string>{} : std::vector{fall.meldung});
  }
}

TEST(PunktBezeichnungen, TheHundredAndFirstDesignationIsRefused) {
  Bezeichnungen b;
  for (int k = 1; k < core::AnzahlKurzbezeichnungen - 1; ++k)
    b.zustand.Kurzbezeichnungen[static_cast<std::size_t>(k)].Text = "B" + std::to_string(k);
  b.oeffnen();
  b.neu("Hundert");
  EXPECT_EQ(b.zustand.Kurzbezeichnungen[99].Text, "Hundert");
  EXPECT_EQ(b.c("List").listCount(), 100);
  b.neu("Zuviel");
  EXPECT_EQ(b.meldungen(), std::vector<std::string>{
                               "Kurzbezeichnung hinzufügen: Es ist leider keine Kurzbezeichnung mehr frei!\n"
                               "Löschen Sie zuerst eine nicht mehr benötigte Kurzbezeichnung!"});
  EXPECT_EQ(b.c("List").listCount(), 100);
  EXPECT_EQ(b.ini("Punkt-Kurzbezeichnungen", "Bezeichnung 99"), "Hundert");
}

TEST(PunktBezeichnungen, DeletingAUsedDesignationAsksThenBlanksItAndThePointsKeepTheirIndex) {
  Bezeichnungen b;
  for (int k = 1; k <= 3; ++k) b.zustand.Kurzbezeichnungen[static_cast<std::size_t>(k)].Text = "B" + std::to_string(k);
  b.zustand.Kurzbezeichnungen[4].Text = "Mast";
  b.punkt(10, 1, 2).KurzBez = 4;
  b.forms.show("PunkteTabelle");
  b.oeffnen();
  b.waehle("Mast");
  EXPECT_EQ(b.c("LabelIndex").captionText(), "4");
  EXPECT_EQ(b.zelle(10, 1), "Mast");

  b.dienste.messages.queue(forms::Answer::No);
  b.c("Löschen").click();
  const std::string frage =
      "Kurzbezeichnung löschen: Achtung! Alle unter diesem Index gespeicherten Punkt-Bezeichnungen werden "
      "gelöscht. Diese Aktion sollte nur dann ausgeführt werden, wenn wenige Punkte existieren, oder eine "
      "Bezeichnung umbenannt wird!\nSoll die Punkt-Bezeichnung trotzdem gelöscht werden ?";
  ASSERT_EQ(b.meldungen(), std::vector<std::string>{frage});
  EXPECT_EQ(b.dienste.messages.shown()[0].message.buttons, forms::Buttons::YesNo);
  EXPECT_EQ(b.zustand.Kurzbezeichnungen[4].Text, "Mast");

  b.dienste.messages.queue(forms::Answer::Yes);
  b.c("Löschen").click();
  EXPECT_EQ(b.zustand.Kurzbezeichnungen[4].Text, "");
  EXPECT_EQ(b.ini("Punkt-Kurzbezeichnungen", "Bezeichnung 4"), "");
  EXPECT_EQ(b.zustand.Punkte[10].KurzBez, 4);
  EXPECT_EQ(Bezeichnung(b.zustand, 4), "") << "the point shows an empty designation";
  EXPECT_EQ(b.c("List").list(), (std::vector<std::string>{"Pkt.", "B1", "B2", "B3"}));
  EXPECT_EQ(b.zelle(10, 1), "") << "the point grid shows it at once";

  b.neu("Laterne");
  EXPECT_EQ(b.zustand.Kurzbezeichnungen[4].Text, "Laterne") << "the freed entry is the first blank one";
  EXPECT_EQ(b.zelle(10, 1), "Laterne") << "the point still carrying the index takes the new name";
}

TEST(PunktBezeichnungen, StandardMakesTheComboEntryTheOneOfNewPointsAndWritesIt) {
  Bezeichnungen b;
  b.zustand.Kurzbezeichnungen[7].Text = "Grenze";
  b.oeffnen();
  EXPECT_EQ(b.c("Combo").text(), "Pkt.");
  b.c("Combo").setListIndex(1);
  EXPECT_EQ(b.zustand.StandardKurzBezeichnung, 0) << "only the button makes it the standard";
  b.c("Standard").click();
  EXPECT_EQ(b.zustand.StandardKurzBezeichnung, 7);
  EXPECT_EQ(b.ini("Punkt-Kurzbezeichnungen", "Standard"), "7");
  b.zustand.PunktLoeschen(20);
  EXPECT_EQ(b.zustand.Punkte[20].KurzBez, 7) << "a cleared slot takes the new standard";
}

TEST(PunktBezeichnungen, TheOptionsShowAndSetSymbolAndCaptionOfTheChosenDesignation) {
  Bezeichnungen b;
  b.zustand.Kurzbezeichnungen[2].Text = "Mast";
  b.zustand.Kurzbezeichnungen[2].Darstellung = 4;
  b.zustand.Kurzbezeichnungen[2].Beschriftung = 13;
  b.forms.show("Grafik");
  b.oeffnen();
  EXPECT_EQ(b.f->array("optDarst").size(), 10u);
  ASSERT_EQ(b.f->array("optBes").size(), 18u);
  EXPECT_EQ(b.c("optBes", 2).captionText(), "Nummer && Bezeichnung");
  EXPECT_EQ(b.c("optBes", 12).captionText(), "3. Koordinate senkrecht bei Pkt.");
  EXPECT_EQ(b.c("optDarst", 0).value(), 1) << "Pkt. draws the standard symbol";
  b.waehle("Mast");
  EXPECT_EQ(b.c("optDarst", 4).value(), 1);
  EXPECT_EQ(b.c("optDarst", 0).value(), 0);
  EXPECT_EQ(b.c("optBes", 13).value(), 1);
  EXPECT_EQ(b.grafikGezeichnet, 0) << "showing an entry changes nothing";

  b.c("optDarst", 9).click();
  b.c("optBes", 1).click();
  EXPECT_EQ(b.zustand.Kurzbezeichnungen[2].Darstellung, 9);
  EXPECT_EQ(b.zustand.Kurzbezeichnungen[2].Beschriftung, 1);
  EXPECT_EQ(b.zustand.Kurzbezeichnungen[0].Darstellung, 0);
  EXPECT_EQ(b.grafikGezeichnet, 2);
  b.waehle("Pkt.");
  EXPECT_EQ(b.c("optDarst", 0).value(), 1);
  EXPECT_EQ(b.c("optBes", 0).value(), 1);
}

TEST(PunktBezeichnungen, AColourGoesToEveryPointOfTheDesignation) {
  Bezeichnungen b;
  b.zustand.Kurzbezeichnungen[2].Text = "Mast";
  b.punkt(1, 1, 1).KurzBez = 2;
  b.punkt(2, 2, 2).KurzBez = 0;
  b.punkt(3, 3, 3).KurzBez = 2;
  b.zustand.Punkte[4].KurzBez = 2;  // an empty slot
  b.oeffnen();
  b.waehle("Mast");
  const auto& namen = b.c("ListPktFarbe").list();
  const auto rot = std::find(namen.begin(), namen.end(), "Rot");
  ASSERT_NE(rot, namen.end());
  b.c("ListPktFarbe").setListIndex(static_cast<int>(rot - namen.begin()));
  EXPECT_EQ(b.zustand.Punkte[1].Farbe, 255);
  EXPECT_EQ(b.zustand.Punkte[3].Farbe, 255);
  EXPECT_EQ(b.zustand.Punkte[2].Farbe, 0);
  EXPECT_EQ(b.zustand.Punkte[4].Farbe, 0) << "an empty slot is no point";
  EXPECT_TRUE(core::IstWahr(b.zustand.TabelleGeaendert));
  b.waehle("Pkt.");
  EXPECT_EQ(b.c("ListPktFarbe").shownText(), "Schwarz");
  b.waehle("Mast");
  EXPECT_EQ(b.c("ListPktFarbe").shownText(), "Rot") << "the list shows the colour of the points";
}

TEST(PunktBezeichnungen, StdDistanzSetsTheCaptionDistanceKeepingItsDirection) {
  Bezeichnungen b;
  b.zustand.StandardDistanz = 0.5;
  b.zustand.StandardAusrichtung = 4;  // to the right and below
  b.punkt(1, 1, 1).TextDx = 3;
  b.zustand.Punkte[1].TextDy = -4;
  b.punkt(2, 2, 2);  // offset 0 / 0
  b.zustand.Punkte[2].TextDx = b.zustand.Punkte[2].TextDy = 0;
  b.punkt(3, 3, 3).KurzBez = 1;
  b.zustand.Kurzbezeichnungen[1].Text = "Andere";
  b.zustand.Punkte[3].TextDx = 2;
  b.oeffnen();
  EXPECT_EQ(b.c("cmdStdDistanz").captionText(), "auf Standarddistanz setzen");
  b.waehle("Pkt.");
  b.c("cmdStdDistanz").click();
  EXPECT_FLOAT_EQ(b.zustand.Punkte[1].TextDx, 0.3f);
  EXPECT_FLOAT_EQ(b.zustand.Punkte[1].TextDy, -0.4f);
  EXPECT_FLOAT_EQ(b.zustand.Punkte[2].TextDx, 0.5f) << "0 / 0 takes the standard direction";
  EXPECT_FLOAT_EQ(b.zustand.Punkte[2].TextDy, -0.5f);
  EXPECT_FLOAT_EQ(b.zustand.Punkte[3].TextDx, 2) << "another designation";
  EXPECT_TRUE(core::IstWahr(b.zustand.TabelleGeaendert));
}

TEST(PunktBezeichnungen, AStandardDistanzOfZeroSetInTheDialogPutsTheCaptionsOnTheirPoints) {
  Bezeichnungen b;
  b.punkt(1, 1, 1).TextDx = 0.1f;
  b.zustand.Punkte[1].TextDy = 0.1f;
  b.punkt(2, 2, 2);
  b.oeffnen();
  EXPECT_EQ(b.c("txtStandardDistanz").text(), "0.1");
  b.c("txtStandardDistanz").setText("0");
  EXPECT_EQ(b.zustand.StandardDistanz, 0) << "unlike the settings file, the dialog takes 0";
  EXPECT_EQ(b.zustand.StandardTextDx, 0);
  b.c("cmdStdDistanz").click();
  EXPECT_EQ(b.zustand.Punkte[1].TextDx, 0);
  EXPECT_EQ(b.zustand.Punkte[1].TextDy, 0);
  EXPECT_EQ(b.zustand.Punkte[2].TextDx, 0);
  EXPECT_EQ(b.zustand.Punkte[2].TextDy, 0);
}

TEST(PunktBezeichnungen, TheSpinButtonStepsByATenthWithinItsBounds) {
  Bezeichnungen b;
  b.zustand.StandardDistanz = 0.25;
  b.oeffnen();
  EXPECT_EQ(b.c("txtStandardDistanz").text(), "0.3");
  EXPECT_EQ(b.zustand.StandardDistanz, 0.25) << "showing the value does not change it";
  auto& spin = b.c("spnStandardDistanz");
  spin.raise(forms::Event::SpinDown);
  spin.raise(forms::Event::SpinDown);
  EXPECT_EQ(b.c("txtStandardDistanz").text(), "0.1");
  spin.raise(forms::Event::SpinDown);
  spin.raise(forms::Event::SpinDown);
  EXPECT_EQ(b.c("txtStandardDistanz").text(), "0.0");
  EXPECT_EQ(b.zustand.StandardDistanz, 0);
  spin.raise(forms::Event::SpinUp);
  EXPECT_DOUBLE_EQ(b.zustand.StandardDistanz, 0.1);
  b.c("txtStandardDistanz").setText("250");
  EXPECT_EQ(b.zustand.StandardDistanz, 100);
  spin.raise(forms::Event::SpinUp);
  EXPECT_EQ(b.c("txtStandardDistanz").text(), "100.0");
  b.c("txtStandardDistanz").setText("1,5");
  EXPECT_DOUBLE_EQ(b.zustand.StandardDistanz, 1.5);
  EXPECT_FLOAT_EQ(b.zustand.StandardTextDx, 1.5f) << "new points take the new distance";
}

TEST(PunktBezeichnungen, AlleGivesEveryPointTheDesignationAndItsColour) {
  Bezeichnungen b;
  b.zustand.Kurzbezeichnungen[5].Text = "Baum";
  b.punkt(1, 1, 1);
  b.punkt(8, 8, 8).KurzBez = 3;
  b.forms.show("PunkteTabelle");
  b.oeffnen();
  b.waehle("Baum");
  EXPECT_EQ(b.c("ListPktFarbe").listIndex(), -1);
  b.c("cmdAlle").click();
  EXPECT_EQ(b.zustand.Punkte[1].KurzBez, 5);
  EXPECT_EQ(b.zustand.Punkte[8].KurzBez, 5);
  EXPECT_EQ(b.zustand.Punkte[2].KurzBez, 0) << "empty slots stay as they are";
  EXPECT_EQ(b.zustand.Punkte[1].Farbe, 0) << "no colour chosen, none given";
  EXPECT_EQ(b.zelle(8, 1), "Baum") << "the point grid shows it at once";
  b.c("ListPktFarbe").setListIndex(3);  // Blau
  b.zustand.Punkte[8].KurzBez = 0;
  b.c("cmdAlle").click();
  EXPECT_EQ(b.zustand.Punkte[8].KurzBez, 5);
  EXPECT_EQ(b.zustand.Punkte[8].Farbe, b.zustand.PunktFarben[3].Farbe);
}

TEST(PunktBezeichnungen, TheCaptionsOfTheOptionsAreTheValuesTheGraphicDraws) {
  const auto& bes = BeschriftungsOptionen();
  ASSERT_EQ(bes.size(), 18u);
  EXPECT_EQ(bes.front(), "keine");
  EXPECT_EQ(bes[8], "&3. Koord. (waagrecht)");
  for (std::size_t i = 13; i < bes.size(); ++i) EXPECT_NE(bes[i].find("bei VE"), std::string::npos) << i;
  const auto& darst = DarstellungsOptionen();
  ASSERT_EQ(darst.size(), 10u);
  EXPECT_EQ(darst[0], "S&tandard");
  EXPECT_EQ(darst[9], "&Quadrat");
}

}  // namespace
}  // namespace kolm::points::test
