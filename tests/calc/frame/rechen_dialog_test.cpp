// The protocol every calculation dialog shares, on a small dialog of the
// family: fetching and typing points, parameters, Berechnen and Speichern;
// and Distanz as the user opens it from the menu and fills it. Distanz's
// captions, a worked M31 case and a polar table are covered end to end by
// the rechnen_anschluss_polar_m31 macro.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "calc/frame/menue_umgebung.h"
#include "forms/keys.h"
#include "points/koordinaten.h"
#include "points/numbers/numbers.h"

namespace kolm::calc::testing {
namespace {

void tippe(forms::Form& f, forms::Control& c, const std::string& zeichen) {
  c.setFocus();
  for (char ch : zeichen) f.sendKey(c, forms::keys::KeyCodeOfChar(ch), 0, static_cast<char32_t>(ch));
}

// The result captions at load are the system 0 row of ResultCaptionsFollowTheSystem.
TEST(RechenDialog, AtLoadEveryRecordIsUnnumberedAndTheDeclaredCaptionsAreShown) {
  Umgebung u;
  Probe& d = u.probe();
  EXPECT_EQ(d.Eingabe(0).Nummer, -1);
  EXPECT_EQ(d.Eingabe(1).Nummer, -1);
  EXPECT_EQ(d.Ergebnis().Nummer, -1);
  EXPECT_EQ(d.control("LabelAlsNr").captionText(), "Als &Nr.:");
  EXPECT_EQ(d.control("Punkt1").captionText(), "Punkt P1");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&s=");
}

TEST(RechenDialog, ANumberFetchesItsPointAndShowsIt) {
  Umgebung u;
  u.zustand.Dritte = core::Wahr;
  u.punkt(12, 100.5, -20, 3);
  Probe& d = u.probe();
  d.control("Speichern").setDefault(true);
  d.control("PP1Nr").setText("12");
  EXPECT_EQ(d.Eingabe(0).Nummer, 12);
  EXPECT_DOUBLE_EQ(d.Eingabe(0).A, 100.5);
  EXPECT_DOUBLE_EQ(d.Eingabe(0).C, 3);
  EXPECT_EQ(d.control("PP1").captionText(), "X = 100.500\rY = -20.000\rZ = 3.000");
  EXPECT_TRUE(d.control("Berechnen").isDefault()) << "Enter calculates after an input";
}

TEST(RechenDialog, OnlyTheLastFourCharactersOfANumberCountAndOthersKeepThePoint) {
  Umgebung u;
  u.punkt(12, 1, 2);
  u.punkt(7, 5, 6);
  Probe& d = u.probe();
  struct Fall { const char* text; int nummer; double a; bool bleibt; };
  // "6,6" reads 6.6 and rounds to 7; blank or out of range texts keep the
  // previous point silently.
  for (const Fall& f : {Fall{"1000012", 12, 1, false}, Fall{"Pkt 6,6", 7, 5, false}, Fall{"5000", 7, 5, true},
                        Fall{"", 7, 5, true}, Fall{"   ", 7, 5, true}, Fall{"-1", 7, 5, true},
                        Fall{"xyz9999", 7, 5, true}}) {
    const std::string gezeigt = d.control("PP2").captionText();
    d.control("PP2Nr").setText(f.text);
    EXPECT_EQ(d.Eingabe(1).Nummer, f.nummer) << f.text;
    EXPECT_DOUBLE_EQ(d.Eingabe(1).A, f.a) << f.text;
    if (f.bleibt) { EXPECT_EQ(d.control("PP2").captionText(), gezeigt) << f.text; }
  }
  EXPECT_TRUE(u.meldungen().empty());
}

TEST(RechenDialog, APointTypedByHandBecomesAnUnnumberedRecord) {
  Umgebung u;
  u.zustand.StandardKurzBezeichnung = 4;
  Probe& d = u.probe();
  std::string angeboteneNummer = "?";
  u.host.onModal([&](forms::Form& f) {
    angeboteneNummer = f.control("PunktNr").text();
    f.control("TextA").setText("3,5");
    f.control("TextB").setText("-4");
    f.control("OK").click();
  });
  d.control("GetPP1").click();
  EXPECT_EQ(angeboteneNummer, "") << "the dialog's number field was empty";
  EXPECT_EQ(d.Eingabe(0).Nummer, -1);
  EXPECT_EQ(d.Eingabe(0).KurzBez, 4);
  EXPECT_DOUBLE_EQ(d.Eingabe(0).A, 3.5);
  EXPECT_DOUBLE_EQ(d.Eingabe(0).B, -4);
  EXPECT_EQ(d.control("PP1").captionText(), "X = 3,5\rY = -4");
  EXPECT_EQ(d.control("PP1Nr").text(), "");
  EXPECT_TRUE(d.control("Berechnen").isDefault());
}

TEST(RechenDialog, APointChosenByNumberInTheInputIsFetchedAndItsNumberOffered) {
  Umgebung u;
  u.punkt(12, 1, 2);
  u.punkt(30, 8, 9);
  Probe& d = u.probe();
  d.control("PP1Nr").setText("12");
  std::string angeboteneNummer, angebotenesA;
  u.host.onModal([&](forms::Form& f) {
    angeboteneNummer = f.control("PunktNr").text();
    angebotenesA = f.control("TextA").text();
    f.control("PunktNr").setText("30");
    f.control("OK").click();
  });
  d.control("PP1").doubleClick();
  EXPECT_EQ(angeboteneNummer, "12");
  EXPECT_EQ(angebotenesA, "1.000");
  EXPECT_EQ(d.control("PP1Nr").text(), "30");
  EXPECT_EQ(d.Eingabe(0).Nummer, 30);
  EXPECT_DOUBLE_EQ(d.Eingabe(0).B, 9);
  // Cancelling the input changes nothing.
  u.host.onModal([](forms::Form& f) {
    f.control("TextA").setText("99");
    f.control("Cancel").click();
  });
  d.control("GetPP1").click();
  EXPECT_EQ(d.control("PP1Nr").text(), "30");
  EXPECT_DOUBLE_EQ(d.Eingabe(0).A, 8);
}

TEST(RechenDialog, AValueTypedInTheOtherFormIsStoredInTheTablesForm) {
  Umgebung u;  // rectangular table, Neugrad, system 0
  Probe& d = u.probe();
  u.host.onModal([](forms::Form& f) {
    f.control("CheckAnders").click();
    f.control("TextA").setText("2");
    f.control("TextB").setText("100");
    f.control("OK").click();
  });
  d.control("GetPP2").click();
  EXPECT_NEAR(d.Eingabe(1).A, 0, 1e-8);
  EXPECT_NEAR(d.Eingabe(1).B, 2, 1e-12);
}

TEST(RechenDialog, ResultCaptionsFollowTheSystemAndPolarModeWins) {
  struct Fall {
    int system;
    bool polar;
    const char *a, *b, *a1;
  };
  for (const Fall f : {Fall{0, false, "&X =", "&Y =", "X1 ="}, Fall{1, false, "&Y =", "&X =", "Y1 ="},
                       Fall{2, false, "&X =", "&Y =", "X1 ="}, Fall{3, false, "&Y =", "&X =", "Y1 ="},
                       Fall{0, true, "&e =", "&Phi =", "e1 ="}, Fall{3, true, "&e =", "&Phi =", "e1 ="}}) {
    Umgebung u;
    u.zustand.M31 = (f.system == 1 || f.system == 3) ? core::Wahr : core::Falsch;
    u.zustand.Falschdrehend = (f.system >= 2) ? core::Wahr : core::Falsch;
    u.zustand.Polar = f.polar ? core::Wahr : core::Falsch;
    Probe& d = u.probe();
    EXPECT_EQ(d.control("LabelA").captionText(), f.a) << f.system << f.polar;
    EXPECT_EQ(d.control("LabelB").captionText(), f.b) << f.system << f.polar;
    Zwei& z = u.zwei();
    EXPECT_EQ(z.control("LabelA", 0).captionText(), f.a1) << f.system << f.polar;
    EXPECT_EQ(z.control("LabelB", 1).captionText().substr(0, 1), std::string(f.b).substr(1, 1));
  }
  Umgebung u;
  u.zustand.M31 = core::Wahr;
  EXPECT_EQ(ErgebnisBeschriftung(u.zustand, {"M", "", false}).first, "MY =");
  EXPECT_EQ(ErgebnisBeschriftung(u.zustand, {"M", "", false}).second, "MX =");
}

TEST(RechenDialog, AParamFieldSelectsAllOnFocusAndTakesTheVariableKeys) {
  Umgebung u;
  u.zustand.Variablen[1] = 7.25;  // B
  Probe& d = u.probe();
  forms::Control& feld = d.control("Param", 0);
  feld.setText("2,5");
  d.control("Berechnen").setFocus();
  feld.setFocus();
  EXPECT_EQ(feld.selLength(), 3);
  tippe(d, feld, "A");
  EXPECT_DOUBLE_EQ(u.zustand.Variablen[0], 2.5);
  EXPECT_EQ(feld.text(), "2,5") << "the key is swallowed";
  tippe(d, feld, "b");
  EXPECT_DOUBLE_EQ(numbers::ZahlLesen(feld.text()), 7.25);
  EXPECT_EQ(feld.text().find('b'), std::string::npos);
}

TEST(RechenDialog, BerechnenShowsTheResultOffersTheNextNumberAndMakesSpeichernTheDefault) {
  Umgebung u;
  u.punkt(12, 0, 0);
  u.punkt(20, 30, 40);  // distance 50
  u.zustand.Einstellungen.ErgebnisFormat = "0.00";
  Probe& d = u.probe();
  d.control("PP1Nr").setText("12");
  d.control("PP2Nr").setText("20");
  d.control("Param", 0).setText("10");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("ErgA").captionText(), "6.00");
  EXPECT_EQ(d.control("ErgB").captionText(), "8.00");
  EXPECT_EQ(d.Ergebnis().C, 0) << "a calculated point has height 0";
  EXPECT_EQ(d.control("PktNr").text(), "21") << "one above the highest used number";
  EXPECT_TRUE(d.control("Speichern").isDefault());
  EXPECT_EQ(d.activeControl(), &d.control("PktNr"));
  EXPECT_TRUE(u.meldungen().empty());
}

TEST(RechenDialog, AnEmptyParamCountsAsZero) {
  Umgebung u;
  u.punkt(12, 1, 2);
  u.punkt(20, 30, 40);
  Probe& d = u.probe();
  d.control("PP1Nr").setText("12");
  d.control("PP2Nr").setText("20");
  d.control("Berechnen").click();
  EXPECT_DOUBLE_EQ(d.Ergebnis().A, 1);
  EXPECT_DOUBLE_EQ(d.Ergebnis().B, 2);
}

TEST(RechenDialog, AFailedCalculationShowsTheDialogsBoxAndKeepsTheResultFields) {
  Umgebung u;
  u.punkt(12, 0, 0);
  u.punkt(20, 3, 4);
  u.punkt(21, 3, 4);
  Probe& d = u.probe();
  d.control("PP1Nr").setText("12");
  d.control("PP2Nr").setText("20");
  d.control("Param", 0).setText("5");
  d.control("Berechnen").click();
  const std::string a = d.control("ErgA").captionText(), nr = d.control("PktNr").text();
  d.control("PP1Nr").setText("21");
  d.control("Berechnen").click();
  u.meldung("Die Punkte fallen zusammen!", "Probe: Fehler");
  EXPECT_EQ(d.control("ErgA").captionText(), a);
  EXPECT_EQ(d.control("PktNr").text(), nr);
  EXPECT_TRUE(d.control("Berechnen").isDefault());
}

TEST(RechenDialog, SpeichernStoresUnderTheNumberAsksOverAUsedOneAndRefusesOutOfRange) {
  Umgebung u;
  u.punkt(12, 0, 0);
  u.punkt(20, 0, 10);
  Probe& d = u.probe();
  d.control("PP1Nr").setText("12");
  d.control("PP2Nr").setText("20");
  d.control("Param", 0).setText("4");
  d.control("Berechnen").click();
  d.control("Speichern").click();
  EXPECT_EQ(u.zustand.Punkte[21].Nummer, 21);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[21].B, 4);
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("PktNr").text(), "21") << "Speichern does not advance the number";
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("PktNr").text(), "22") << "the next Berechnen offers the next one";

  d.control("PktNr").setText("20");
  EXPECT_TRUE(d.control("Speichern").isDefault());
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[20].B, 10);
  EXPECT_EQ(d.control("PktNr").text(), "20");
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern").click();
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[20].B, 4);

  u.meldungen().clear();
  d.control("PktNr").setText("  ");
  d.control("Speichern").click();
  EXPECT_TRUE(u.meldungen().empty()) << "a blank number does nothing";
  EXPECT_TRUE(u.zustand.PunktLeer(22));
  d.control("PktNr").setText("5000");
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Die Punktnummer muß zwischen 0 und 999liegen!");
  EXPECT_EQ(d.control("PktNr").text(), "5000") << "a refusal keeps the field";
}

TEST(RechenDialog, APolarTableIsCalculatedRectangularAndShownAndStoredPolar) {
  Umgebung u;  // Neugrad, system 0
  u.zustand.Polar = core::Wahr;
  u.punkt(1, 10, 0);    // on the X axis
  u.punkt(2, 10, 100);  // a quarter circle on: on the Y axis
  Probe& d = u.probe();
  EXPECT_EQ(d.control("LabelA").captionText(), "&e =");
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Param", 0).setText(numbers::ZahlText(std::sqrt(50.0), "0.000000000000"));
  d.control("Berechnen").click();
  ASSERT_EQ(d.gesehen.size(), 2u);
  EXPECT_NEAR(d.gesehen[0].A, 10, 1e-9);
  EXPECT_NEAR(d.gesehen[0].B, 0, 1e-9);
  EXPECT_NEAR(d.gesehen[1].A, 0, 1e-7);
  EXPECT_NEAR(d.gesehen[1].B, 10, 1e-9);
  // The midpoint (5, 5): distance sqrt(50) at half a quarter circle.
  EXPECT_EQ(d.control("ErgA").captionText(), "7.071");
  EXPECT_EQ(d.control("ErgB").captionText(), "50.000");
  EXPECT_EQ(d.control("LabelB").captionText(), "&Phi =");
  EXPECT_NEAR(d.Eingabe(1).A, 10, 1e-9) << "the inputs are polar again";
  EXPECT_NEAR(d.Eingabe(1).B, 100, 1e-7);
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, std::sqrt(50.0), 1e-9);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 50, 1e-7);
  // After a failure too.
  d.control("PP2Nr").setText("1");
  d.control("Berechnen").click();
  EXPECT_EQ(u.meldungen().size(), 1u);
  EXPECT_NEAR(d.Eingabe(1).A, 10, 1e-9);
  EXPECT_NEAR(d.Eingabe(1).B, 0, 1e-7);
}

TEST(RechenDialog, TwoResultPointsAreOfferedTheSameNumberAndStoredEachByItsButton) {
  Umgebung u;
  u.punkt(5, 10, 20);
  Zwei& d = u.zwei();
  EXPECT_EQ(d.find("Skizze"), nullptr);
  d.control("G1P1Nr").setText("5");
  EXPECT_EQ(d.control("Gerade1").captionText(), "Gerade 1");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("PktNr", 0).text(), "6");
  EXPECT_EQ(d.control("PktNr", 1).text(), "6");
  d.control("PktNr", 1).setText("7");
  EXPECT_TRUE(d.control("Speichern", 1).isDefault());
  d.control("Speichern", 1).click();
  d.control("Speichern", 0).click();
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[7].A, 9);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[6].A, 11);
}

TEST(RechenDialog, SkizzeAndF1ShowTheSketchAndSchliessenUnloads) {
  Umgebung u;
  Probe& d = u.probe();
  d.control("Skizze").click();
  d.sendKey(d.control("Param", 0), forms::keys::F1, 0, 0);
  EXPECT_EQ(u.dienste.help.topics(), (std::vector<std::string>{"Probe-Skizze", "Probe-Skizze"}))
      << "Skizze and F1 in a field open the sketch";
  d.control("Schließen").click();
  EXPECT_EQ(u.forms.FormGeladen("Probe"), -1);
}

constexpr double kGonProRad = 200 / kPi;
constexpr double kOffen = std::numeric_limits<double>::quiet_NaN();  // not checked

TEST(Distanz, LengthDirectionGradientAndDifferencesInEachSystemAndTable) {
  struct Fall {
    const char* name;
    int system;  // of the four coordinate systems
    double p1[2], p2[2];
    double erwartet[5];  // distance, angle, gradient in percent, the two differences
  };
  const Fall faelle[] = {
      {"system 0", 0, {100, 200}, {130, 240},
       {50, std::atan2(40.0, 30.0) * kGonProRad, 100.0 * 40 / 30, 30, 40}},
      // 30 to the right (Y), 40 up (X): the tangent of the system's own angle
      {"M31 runs clockwise from the axis up", 1, {0, 0}, {30, 40},
       {50, std::atan2(30.0, 40.0) * kGonProRad, 100.0 * 30 / 40, kOffen, kOffen}},
      {"identical points give zero without a box", 0, {5, 5}, {5, 5}, {0, 0, 0, 0, 0}},
      {"identical points under M31", 1, {5, 5}, {5, 5}, {0, 0, 0, 0, 0}},
      {"identical points, angle counted from the axis up: a quarter circle", 2, {5, 5}, {5, 5},
       {0, 100, kOffen, 0, 0}},
      {"identical points, M31 counter-clockwise: a quarter circle", 3, {5, 5}, {5, 5}, {0, 100, kOffen, 0, 0}},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung u;
    u.zustand.M31 = f.system % 2 == 1 ? core::Wahr : core::Falsch;
    u.zustand.Falschdrehend = f.system >= 2 ? core::Wahr : core::Falsch;
    u.punkt(1, f.p1[0], f.p1[1]);
    u.punkt(2, f.p2[0], f.p2[1]);
    RechenDialog& d = u.oeffnen("MnuGerDist", "Distanz");
    d.control("PP1Nr").setText("1");
    d.control("PP2Nr").setText("2");
    d.control("Berechnen").click();
    EXPECT_TRUE(u.meldungen().empty());
    for (int i = 0; i < 5; ++i)
      if (!std::isnan(f.erwartet[i])) {
        EXPECT_NEAR(MenueUmgebung::zahl(d.control("Erg", i)), f.erwartet[i], 1e-5) << i;
      }
  }
}

TEST(Distanz, AVerticalPairUnderSystem0ShowsAHugeGradientNotZuGross) {
  // The direction is the program's Pi / 2, whose cosine is not exactly 0.
  MenueUmgebung u;
  u.punkt(1, 0, 0);
  u.punkt(2, 0, 10);
  RechenDialog& d = u.oeffnen("MnuGerDist", "Distanz");
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Berechnen").click();
  EXPECT_NEAR(MenueUmgebung::zahl(d.control("Erg", 1)), 100, 1e-6);
  EXPECT_NE(d.control("Erg", 2).captionText(), "zu groß");
  EXPECT_GT(std::fabs(MenueUmgebung::zahl(d.control("Erg", 2))), 1e9);
}

TEST(Distanz, HasNeitherSpeichernNorSkizze) {
  MenueUmgebung u;
  RechenDialog& d = u.oeffnen("MnuGerDist", "Distanz");
  EXPECT_EQ(d.control("ErgLabel", 2).captionText(), "Steigung");
  EXPECT_EQ(d.find("Speichern"), nullptr);
  EXPECT_EQ(d.find("Skizze"), nullptr);
}

}  // namespace
}  // namespace kolm::calc::testing
