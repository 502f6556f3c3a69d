// The point input as the user fills it, and what its opener reads back.
#include <gtest/gtest.h>

#include <cmath>

#include "forms/keys.h"
#include "points/eingabe/eingabe_text.h"
#include "points/eingabe/punkteingabe.h"
#include "points/punkte_verdrahtung.h"
#include "umgebung.h"

namespace kolm::points::testing {
namespace {

struct Eingabe : Umgebung {
  Eingabe() { PunktEingabeRegistrieren(forms, anwendung); }
  forms::Form& oeffnen() { return *forms.show("Punkteingabe"); }
  // Typing as the user does: the field takes the focus, then the keys.
  void tippe(forms::Form& f, const char* feld, const std::string& zeichen) {
    forms::Control& c = f.control(feld);
    c.setFocus();
    for (char ch : zeichen) f.sendKey(c, forms::keys::KeyCodeOfChar(ch), 0, static_cast<char32_t>(ch));
  }
};

TEST(Punkteingabe, ARectangularTableShowsTwoFieldsAndOffersPolarInput) {
  Eingabe e;
  forms::Form& f = e.oeffnen();
  EXPECT_EQ(f.control("LabelA").captionText(), "&X =");
  EXPECT_EQ(f.control("LabelB").captionText(), "&Y =");
  EXPECT_FALSE(f.control("LabelC").visible());
  EXPECT_FALSE(f.control("TextC").visible());
  EXPECT_EQ(f.control("CheckAnders").captionText(), "&Polar");
  EXPECT_EQ(f.control("CheckAnders").value(), 0);
  EXPECT_EQ(f.control("LabelPunktKurzBez").captionText(), "Pkt.") << "no standard designation set";

  f.control("CheckAnders").click();
  EXPECT_EQ(f.control("LabelA").captionText(), "&e =");
  EXPECT_EQ(f.control("LabelB").captionText(), "&Phi =");
  f.control("CheckAnders").click();
  EXPECT_EQ(f.control("LabelA").captionText(), "&X =");
}

TEST(Punkteingabe, APolarM31TableWithHeightsShowsThreeFieldsAndOffersRectangularInput) {
  Eingabe e;
  e.zustand.Polar = e.zustand.M31 = e.zustand.Dritte = core::Wahr;
  e.zustand.Kurzbezeichnungen[3].Text = "Schacht";
  e.zustand.StandardKurzBezeichnung = 3;
  forms::Form& f = e.oeffnen();
  EXPECT_EQ(f.control("LabelA").captionText(), "&e =");
  EXPECT_EQ(f.control("LabelB").captionText(), "&Phi =");
  EXPECT_EQ(f.control("LabelC").captionText(), "&H =");
  EXPECT_TRUE(f.control("TextC").visible());
  EXPECT_EQ(f.control("CheckAnders").captionText(), "&Rechtwinkelig");
  EXPECT_EQ(f.control("LabelPunktKurzBez").captionText(), "Schacht");
  f.control("CheckAnders").click();
  EXPECT_EQ(f.control("LabelA").captionText(), "&Y =");
  EXPECT_EQ(f.control("LabelB").captionText(), "&X =");
  EXPECT_EQ(f.control("LabelC").captionText(), "&H =") << "the height stays what it is";
}

TEST(Punkteingabe, ANumberFillsTheFieldsFromItsSlot) {
  Eingabe e;
  e.zustand.Dritte = core::Wahr;
  e.zustand.Kurzbezeichnungen[2].Text = "Grenzstein";
  e.punkt(12, 1234.5, -0.25, 7, 2);
  forms::Form& f = e.oeffnen();
  f.control("CheckAnders").click();
  f.control("PunktNr").setText("12");
  EXPECT_EQ(f.control("TextA").text(), "1234.500");
  EXPECT_EQ(f.control("TextB").text(), "-0.250");
  EXPECT_EQ(f.control("TextC").text(), "7.000");
  EXPECT_EQ(f.control("LabelPunktKurzBez").captionText(), "Grenzstein");
  EXPECT_EQ(f.control("CheckAnders").value(), 0) << "the values are in the table's form";
  EXPECT_EQ(f.control("LabelA").captionText(), "&X =");
  EXPECT_EQ(f.control("PunktNr").text(), "12") << "filling the fields keeps the number";

  f.control("PunktNr").setText("Nr. 999");  // the last four characters count
  EXPECT_EQ(f.control("TextA").text(), "0.000") << "slot AnzahlPunkte exists and is empty";
}

TEST(Punkteingabe, NumbersOutOfRangeAndGarbageLeaveTheFields) {
  Eingabe e;
  e.punkt(0, 5, 5);
  forms::Form& f = e.oeffnen();
  f.control("TextA").setText("1");
  for (const char* text : {"1000", "-1", "123456789", "   ", "1e30", "99999999999999999999"}) {
    f.control("PunktNr").setText(text);
    EXPECT_EQ(f.control("TextA").text(), "1") << text;
  }
  f.control("PunktNr").setText("x--7");  // reads as 0: point 0 is a legal point
  EXPECT_EQ(f.control("TextA").text(), "5.000");
}

TEST(Punkteingabe, TypingACoordinateEmptiesTheNumber) {
  Eingabe e;
  e.punkt(4, 1, 2);
  forms::Form& f = e.oeffnen();
  e.tippe(f, "PunktNr", "4");
  EXPECT_EQ(f.control("TextA").text(), "1.000");
  f.control("TextB").setSelection(0, 5);
  e.tippe(f, "TextB", "5");
  EXPECT_EQ(f.control("TextB").text(), "5") << "typed over the selected value";
  EXPECT_EQ(f.control("PunktNr").text(), "") << "the point is no longer point 4";
}

TEST(Punkteingabe, LetterKeysStoreAndFetchVariables) {
  Eingabe e;
  Protokoll& variablen = e.dialog("VariablenTabelle");
  e.zustand.Variablen[1] = 2.5;
  forms::Form& f = e.oeffnen();
  f.control("TextA").setText("12,5");
  e.tippe(f, "TextA", "A");
  EXPECT_DOUBLE_EQ(e.zustand.Variablen[0], 12.5);
  EXPECT_EQ(f.control("TextA").text(), "12,5") << "a capital letter keeps the field";
  EXPECT_EQ(variablen.gerufen, std::vector<std::string>{"Repaint"});
  e.tippe(f, "TextB", "9b");
  EXPECT_EQ(f.control("TextB").text(), "2.500") << "a small letter replaces what was typed";
  e.tippe(f, "TextB", "1");
  EXPECT_EQ(f.control("TextB").text(), "2.5001") << "typing goes on after the value";
  e.tippe(f, "PunktNr", "a");
  EXPECT_EQ(f.control("PunktNr").text(), "a") << "the number field has no letter keys";
}

TEST(PunktEingeben, OkHandsBackOneLinePerShownFieldAndClosesTheDialog) {
  Eingabe e;
  e.host.onModal([](forms::Form& f) {
    f.control("TextA").setText("12,5");
    f.control("TextB").setText("-3");
    f.control("TextC").setText("99");  // hidden: not part of the answer
    f.control("OK").click();
  });
  const PunktEingabeAntwort a = PunktEingeben(e.anwendung, core::Punkt{}, false);
  EXPECT_EQ(a.text, "X = 12,5\rY = -3");
  EXPECT_EQ(a.punktNr, "");
  EXPECT_EQ(e.forms.FormGeladen("Punkteingabe"), -1);
  core::Punkt p = Rekord(7, 7, 7);
  ASSERT_TRUE(PunktAusEingabe(e.anwendung, a.text, p));
  EXPECT_DOUBLE_EQ(p.A, 12.5);
  EXPECT_DOUBLE_EQ(p.B, -3);
  EXPECT_DOUBLE_EQ(p.C, 0);
}

TEST(PunktEingeben, CancelAndTheCloseBoxGiveNoAnswer) {
  Eingabe e;
  e.host.onModal([](forms::Form& f) {
    f.control("TextA").setText("1");
    f.control("Cancel").click();
  });
  e.host.onModal([&e](forms::Form& f) {
    f.control("TextA").setText("1");
    e.forms.unload(f);
  });
  for (int i = 0; i < 2; ++i) {
    const PunktEingabeAntwort a = PunktEingeben(e.anwendung, core::Punkt{}, false);
    EXPECT_EQ(a.text, "") << i;
    core::Punkt p = Rekord(7, 8);
    EXPECT_FALSE(PunktAusEingabe(e.anwendung, a.text, p));
    EXPECT_DOUBLE_EQ(p.A, 7) << "nothing changes";
    EXPECT_EQ(e.forms.FormGeladen("Punkteingabe"), -1);
  }
}

TEST(PunktEingeben, ShowsTheProposedPointAndItsNumberWhenTheOpenerHasOne) {
  Eingabe e;
  e.zustand.Dritte = core::Wahr;
  e.zustand.M31 = core::Wahr;
  e.zustand.Kurzbezeichnungen[5].Text = "Baum";
  e.punkt(33, 9, 9, 9);
  core::Punkt vorschlag = Rekord(1.5, 2, 3, 5);
  vorschlag.Nummer = 33;
  std::string nummer, a, c, bez;
  e.host.onModal([&](forms::Form& f) {
    nummer = f.control("PunktNr").text();
    a = f.control("TextA").text();
    c = f.control("TextC").text();
    bez = f.control("LabelPunktKurzBez").captionText();
    f.control("OK").click();
  });
  const PunktEingabeAntwort antwort = PunktEingeben(e.anwendung, vorschlag, true);
  EXPECT_EQ(nummer, "33");
  EXPECT_EQ(a, "1.500") << "the proposed record, not the slot";
  EXPECT_EQ(c, "3.000");
  EXPECT_EQ(bez, "Baum");
  EXPECT_EQ(antwort.punktNr, "33");
  EXPECT_EQ(antwort.text, "Y = 1.500\rX = 2.000\rH = 3.000");

  e.host.onModal([&](forms::Form& f) {
    nummer = f.control("PunktNr").text();
    f.control("Cancel").click();
  });
  PunktEingeben(e.anwendung, vorschlag, false);
  EXPECT_EQ(nummer, "") << "the opener's number field was empty";
}

TEST(PunktEingeben, InputInTheOtherFormIsConvertedIntoTheTables) {
  Eingabe e;  // rectangular, Neugrad
  e.host.onModal([](forms::Form& f) {
    f.control("CheckAnders").click();
    f.control("TextA").setText("10");
    f.control("TextB").setText("100");
    f.control("OK").click();
  });
  const PunktEingabeAntwort a = PunktEingeben(e.anwendung, core::Punkt{}, false);
  EXPECT_EQ(a.text, "e = 10\rPhi = 100");
  core::Punkt p;
  ASSERT_TRUE(PunktAusEingabe(e.anwendung, a.text, p));
  EXPECT_NEAR(p.A, 0, 1e-6);
  EXPECT_NEAR(p.B, 10, 1e-6);
}

TEST(PunktAusEingabe, RectangularLinesInAPolarTableBecomePolar) {
  Umgebung u;
  u.zustand.Polar = core::Wahr;
  core::Punkt p;
  ASSERT_TRUE(PunktAusEingabe(u.anwendung, "X = 0\rY = 10", p));
  EXPECT_NEAR(p.A, 10, 1e-9);
  EXPECT_NEAR(p.B, 100, 1e-6);
  u.zustand.M31 = core::Wahr;
  ASSERT_TRUE(PunktAusEingabe(u.anwendung, "Y = 0\rX = 10", p));
  EXPECT_NEAR(p.A, 10, 1e-9);
  EXPECT_NEAR(p.B, 0, 1e-6) << "an M31 direction runs from the second coordinate";
  ASSERT_TRUE(PunktAusEingabe(u.anwendung, "e = 4\r\nPhi = 50\r\nH = 2", p));
  EXPECT_DOUBLE_EQ(p.A, 4) << "the table's own form stays as typed";
  EXPECT_DOUBLE_EQ(p.B, 50);
  EXPECT_DOUBLE_EQ(p.C, 2);
}

TEST(PunktAusEingabe, BadValuesReadAsZeroOrAsFarAsTheyGo) {
  Umgebung u;
  core::Punkt p;
  ASSERT_TRUE(PunktAusEingabe(u.anwendung, "X = abc\rY = --5\rZ = 1e999", p));
  EXPECT_DOUBLE_EQ(p.A, 0);
  EXPECT_DOUBLE_EQ(p.B, 0);
  EXPECT_DOUBLE_EQ(p.C, 0) << "beyond the Double range reads as 0";
  ASSERT_TRUE(PunktAusEingabe(u.anwendung, "X = 1,234.5\rY = 12345678901234567890", p));
  EXPECT_DOUBLE_EQ(p.A, 1.234);
  EXPECT_DOUBLE_EQ(p.B, 12345678901234567890.0);
  ASSERT_TRUE(PunktAusEingabe(u.anwendung, "7", p)) << "a line without caption is its value";
  EXPECT_DOUBLE_EQ(p.A, 7);
  EXPECT_DOUBLE_EQ(p.B, 0);
  EXPECT_EQ(OhneZugriffstaste("&Phi =") + OhneZugriffstaste("A && B"), "Phi =A & B");
}

}  // namespace
}  // namespace kolm::points::testing
