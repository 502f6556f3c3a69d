// pruefe and its kin: a held check says nothing, a failed one is reported
// with file, line, what was checked, expected and found; the run goes on
// and ends with status 1.
#include <gtest/gtest.h>

#include "macro_fixture.h"

namespace kolm::forms::macro::testing {
namespace {

TEST(MacroChecks, TextsOfFieldsCellsAndCaptions) {
  MacroFixture f;
  f.forms.show("Eingabe");
  f.in("PP1Nr").setText("12");
  f.in("Grid").setCell(2, 1, "Mast");
  f.in("Grid").setCurrentCell(2, 1);
  f.in("Auswahl").setListIndex(1);
  f.in("Bemerkung").setText("eins\r\nzwei");
  const int status = f.run("pruefe Eingabe.PP1Nr \"12\"\n"
                           "pruefe Eingabe \"Punkteingabe\"\n"
                           "pruefe Eingabe.Berechnen \"&Berechnen\"\n"
                           "pruefe Eingabe.Grid[2,1] \"Mast\"\n"
                           "pruefe Eingabe.Grid \"Mast\"\n"
                           "pruefe Eingabe.Auswahl \"Süd\"\n"
                           "pruefe Main.FnLButton(0) \"F1\"\n"
                           "pruefe Eingabe.Bemerkung \"eins\\nzwei\"\n"
                           "pruefe Main.MnuDatei \"&Datei\"\n");
  EXPECT_EQ(status, 0) << f.out.str();
  EXPECT_EQ(f.lines(), (Log{"test.makro: 9 Prüfungen, alle bestanden"}));
}

TEST(MacroChecks, AFailedCheckIsReportedAndTheRunGoesOn) {
  MacroFixture f;
  f.forms.show("Eingabe");
  f.in("PP1Nr").setText("12");
  const int status = f.run("# Kopf\n"
                           "pruefe Eingabe.PP1Nr \"13\"\n"
                           "setze Eingabe.PP1Nr \"13\"\n"
                           "pruefe Eingabe.PP1Nr \"13\"\n"
                           "pruefe Eingabe \"Eingabe\"\n"
                           "pruefe Eingabe.Grid[9,0] \"\"\n"
                           "pruefe Eingabe.Bemerkung \"a \\\"b\\\"\\nc\"\n");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(f.in("PP1Nr").text(), "13") << "the line after a failed check ran";
  EXPECT_EQ(f.lines(),
            (Log{"test.makro:2: Prüfung fehlgeschlagen: Eingabe.PP1Nr: erwartet \"13\", gefunden \"12\"",
                 "test.makro:5: Prüfung fehlgeschlagen: Eingabe: erwartet \"Eingabe\", gefunden \"Punkteingabe\"",
                 "test.makro:6: Prüfung fehlgeschlagen: Eingabe.Grid[9,0]: erwartet \"\", gefunden keine solche "
                 "Zelle (das Raster hat 5 Zeilen und 3 Spalten)",
                 "test.makro:7: Prüfung fehlgeschlagen: Eingabe.Bemerkung: erwartet \"a \\\"b\\\"\\nc\", gefunden \"\"",
                 "test.makro: 5 Prüfungen, 4 fehlgeschlagen"}));
}

TEST(MacroChecks, PropertiesHoldAndFail) {
  MacroFixture f;
  f.forms.show("Eingabe");
  Control& liste = f.in("Liste");
  liste.setSelected(1, true);
  liste.setListIndex(1);
  f.in("Anders").setValue(1);
  f.in("Art", 1).setValue(1);
  f.in("PP1Nr").setTag("T7");
  f.in("Grid").setCurrentCell(3, 2);
  f.forms.find("Main")->control("MnuPunkte").setChecked(true);
  const char* held =
      "pruefe Eingabe.Gesperrt Enabled Falsch\n"
      "pruefe Eingabe.Berechnen enabled wahr\n"
      "pruefe Eingabe.Versteckt Visible Falsch\n"
      "pruefe Eingabe Visible Wahr\n"
      "pruefe Eingabe Caption \"Punkteingabe\"\n"
      "pruefe Main.MnuPunkte Checked Wahr\n"
      "pruefe Eingabe.Anders Checked Wahr\n"
      "pruefe Eingabe.Anders Value 1\n"
      "pruefe Eingabe.Art(1) Value Wahr\n"
      "pruefe Eingabe.Art(1) Value -1\n"
      "pruefe Eingabe.Art(0) Value 0\n"
      "pruefe Eingabe.Liste ListIndex 1\n"
      "pruefe Eingabe.Liste ListCount 4\n"
      "pruefe Eingabe.Liste List(3) \"vier\"\n"
      "pruefe Eingabe.Liste List(9) \"\"\n"
      "pruefe Eingabe.Liste Selected(1) Wahr\n"
      "pruefe Eingabe.Liste Selected(0) Falsch\n"
      "pruefe Eingabe.PP1Nr Tag \"T7\"\n"
      "pruefe Eingabe.PP1Nr ToolTipText \"Nummer des Punktes\"\n"
      "pruefe Eingabe.Grid Row 3\n"
      "pruefe Eingabe.Grid Col 2\n"
      "pruefe Eingabe.Grid Rows 5\n"
      "pruefe Eingabe.Grid Cols 3\n"
      "pruefe Eingabe.Berechnen Caption \"&Berechnen\"\n"
      "pruefe Eingabe.Einheit Text \"\"\n"
      "pruefe Eingabe.Register ListIndex 0\n";
  EXPECT_EQ(f.run(held), 0) << f.out.str();
  EXPECT_EQ(f.runner->checks(), 26);

  EXPECT_EQ(f.run("pruefe Eingabe.Gesperrt Enabled Wahr\n"
                  "pruefe Eingabe.Liste List(0) \"zwei\"\n"
                  "pruefe Eingabe.Grid Rows 6\n"
                  "pruefe Eingabe.Art(0) Value 1\n"
                  "pruefe Eingabe.Liste Selected(1) Falsch\n"),
            1);
  EXPECT_EQ(f.reports(),
            (Log{"test.makro:1: Prüfung fehlgeschlagen: Eingabe.Gesperrt Enabled: erwartet \"Wahr\", gefunden \"Falsch\"",
                 "test.makro:2: Prüfung fehlgeschlagen: Eingabe.Liste List(0): erwartet \"zwei\", gefunden \"eins\"",
                 "test.makro:3: Prüfung fehlgeschlagen: Eingabe.Grid Rows: erwartet \"6\", gefunden \"5\"",
                 "test.makro:4: Prüfung fehlgeschlagen: Eingabe.Art(0) Value: erwartet \"Wahr\", gefunden \"Falsch\"",
                 "test.makro:5: Prüfung fehlgeschlagen: Eingabe.Liste Selected(1): erwartet \"Falsch\", gefunden "
                 "\"Wahr\""}));
}

TEST(MacroChecks, APropertyTheControlDoesNotHaveIsAnError) {
  MacroFixture f;
  f.forms.show("Eingabe");
  EXPECT_EQ(f.run("pruefe Eingabe.PP1Nr Rows 1"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Rows gibt es nur bei einem Raster; Eingabe.PP1Nr ist ein Textfeld"}));
  EXPECT_EQ(f.run("pruefe Eingabe Enabled Wahr"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Bei einem Formular lassen sich Caption und Visible prüfen, nicht Enabled"}));
}

TEST(MacroChecks, MessagesInTheOrderTheyWereShown) {
  MacroFixture f;
  f.forms.show("Eingabe");
  EXPECT_EQ(f.run("klicke Eingabe.Löschen\n"
                  "klicke Eingabe.Löschen\n"
                  "pruefe-meldung \"Punkt 12\\nwirklich löschen?\" \"Löschen\"\n"
                  "pruefe-meldung \"Punkt 12\\nwirklich löschen?\" \"Frage\"\n"
                  "pruefe-meldung \"noch eine\"\n"
                  "pruefe-keine-meldung\n"),
            1);
  EXPECT_EQ(f.reports(),
            (Log{"test.makro:4: Prüfung fehlgeschlagen: Titel der Meldung \"Punkt 12\\nwirklich löschen?\": erwartet "
                 "\"Frage\", gefunden \"Löschen\"",
                 "test.makro:5: Prüfung fehlgeschlagen: Meldung: erwartet \"noch eine\", gefunden keine"}));
}

TEST(MacroChecks, NoMessageFailsWhileABoxIsUnchecked) {
  MacroFixture f;
  f.forms.show("Eingabe");
  EXPECT_EQ(f.run("pruefe-keine-meldung\nklicke Eingabe.Löschen\nklicke Eingabe.Löschen\npruefe-keine-meldung\n"
                  "pruefe-keine-meldung\nklicke Eingabe.Löschen\npruefe-meldung \"Falsch\""),
            1);
  EXPECT_EQ(f.reports(),
            (Log{"test.makro:4: Prüfung fehlgeschlagen: Meldung: erwartet keine, gefunden \"Punkt 12\\nwirklich "
                 "löschen?\" und 1 weitere",
                 "test.makro:7: Prüfung fehlgeschlagen: Meldung: erwartet \"Falsch\", gefunden \"Punkt "
                 "12\\nwirklich löschen?\""}))
      << "after pruefe-keine-meldung the boxes before count as checked";
}

TEST(MacroChecks, StatusLineAndClipboard) {
  MacroFixture f;
  f.scripted.status.show("Bereit");
  f.scripted.clipboard.setText("1;2\r\n3;4");
  EXPECT_EQ(f.run("pruefe-status \"Bereit\"\npruefe-zwischenablage \"1;2\\n3;4\"\n"
                  "pruefe-status \"Fertig\"\npruefe-zwischenablage \"\""),
            1);
  EXPECT_EQ(f.reports(),
            (Log{"test.makro:3: Prüfung fehlgeschlagen: Statuszeile: erwartet \"Fertig\", gefunden \"Bereit\"",
                 "test.makro:4: Prüfung fehlgeschlagen: Zwischenablage: erwartet \"\", gefunden \"1;2\\n3;4\""}));
}

TEST(MacroChecks, PointsWithinTheToleranceAndEmptySlots) {
  MacroFixture f;
  f.env.table[7] = {5432100.1234, 1200.5, 310.25};
  EXPECT_EQ(f.run("pruefe-punkt 7 5432100.1239 1200,5 310.25\n"
                  "pruefe-punkt 7 5432100.12 1200.5 310.25 0.01\n"
                  "pruefe-punkt 8 leer\n"),
            0)
      << f.out.str();
  EXPECT_EQ(f.run("pruefe-punkt 7 5432100.1240 1200.5 310.25\n"
                  "pruefe-punkt 7 leer\n"
                  "pruefe-punkt 8 1 2 3\n"),
            1);
  EXPECT_EQ(f.reports(),
            (Log{"test.makro:1: Prüfung fehlgeschlagen: Punkt 7 (Toleranz 0.0005): erwartet \"5432100.1240 1200.5 "
                 "310.25\", gefunden \"5432100.1234 1200.5 310.25\"",
                 "test.makro:2: Prüfung fehlgeschlagen: Punkt 7: erwartet leer, gefunden \"5432100.1234 1200.5 310.25\"",
                 "test.makro:3: Prüfung fehlgeschlagen: Punkt 8: erwartet \"1 2 3\", gefunden leer"}));
}

TEST(MacroChecks, WithoutAPointTableTheMacroCannotRun) {
  MacroFixture f;
  f.env.hasTable = false;
  EXPECT_EQ(f.run("pruefe-punkt 1 leer\npruefe Main \"Kolm\""), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Punkt 1: Keine Punkttabelle vorhanden"}));
  EXPECT_EQ(f.runner->checks(), 0) << "nothing after the error ran";
}

TEST(MacroChecks, EchoWritesEachLineBeforeItRuns) {
  MacroFixture f;
  f.runner->setEcho(true);
  EXPECT_EQ(f.run("# Kopf\n  pruefe Main \"Kolm\"\npruefe Main Caption \"Main\""), 1);
  EXPECT_EQ(f.lines(), (Log{"test.makro:2: pruefe Main \"Kolm\"", "test.makro:3: pruefe Main Caption \"Main\"",
                            "test.makro:3: Prüfung fehlgeschlagen: Main Caption: erwartet \"Main\", gefunden \"Kolm\"",
                            "test.makro: 2 Prüfungen, 1 fehlgeschlagen"}));
}

}  // namespace
}  // namespace kolm::forms::macro::testing
