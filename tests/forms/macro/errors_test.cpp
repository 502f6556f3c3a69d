// A macro that cannot run stops at once with status 2 and names file, line
// and what is wrong; the lines after it do not run.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "macro_fixture.h"

namespace kolm::forms::macro::testing {
namespace {

struct Case {
  const char* macro;
  const char* report;
};

// Each macro fails on line 2; line 3 would press a function key.
void ExpectStopsOnLine2(MacroFixture& f, const Case& c) {
  f.log.clear();
  const std::string text = std::string("pruefe Main \"Kolm\"\n") + c.macro + "\nklicke Main.FnLButton(0)\n";
  EXPECT_EQ(f.run(text), 2) << c.macro;
  EXPECT_EQ(f.lines(), (Log{c.report})) << c.macro;
  EXPECT_TRUE(f.log.empty()) << c.macro << ": the line after the error ran";
}

TEST(MacroErrors, UnknownOrClosedFormsAndControls) {
  MacroFixture f;
  f.forms.show("Eingabe");
  const Case cases[] = {
      {"klicke Nirgends.OK", "test.makro:2: Fehler: Ein Formular Nirgends gibt es nicht"},
      {"oeffne Nirgends", "test.makro:2: Fehler: Ein Formular Nirgends gibt es nicht"},
      {"klicke Fremd.OK", "test.makro:2: Fehler: Das Formular Fremd ist nicht geladen"},
      {"pruefe Fremd \"Fremd\"", "test.makro:2: Fehler: Das Formular Fremd ist nicht geladen"},
      {"schliesse Punkt", "test.makro:2: Fehler: Das Formular Punkt ist nicht geladen"},
      {"klicke Eingabe.Rechnen", "test.makro:2: Fehler: Ein Steuerelement Rechnen gibt es im Formular Eingabe nicht"},
      {"pruefe Eingabe.Rechnen \"\"", "test.makro:2: Fehler: Ein Steuerelement Rechnen gibt es im Formular Eingabe nicht"},
      {"setze Eingabe.Param \"1\"",
       "test.makro:2: Fehler: Param ist ein Steuerelementfeld; der Index fehlt, etwa Eingabe.Param(0)"},
      {"pruefe Eingabe.Param \"\"",
       "test.makro:2: Fehler: Param ist ein Steuerelementfeld; der Index fehlt, etwa Eingabe.Param(0)"},
      {"setze Eingabe.Param(3) \"1\"",
       "test.makro:2: Fehler: Ein Param(3) gibt es nicht; das Feld Param hat die Indizes 0, 1, 2"},
      {"klicke Eingabe.Berechnen(0)",
       "test.makro:2: Fehler: Berechnen ist kein Steuerelementfeld; es heißt ohne Index Eingabe.Berechnen"},
      {"setze Eingabe.PP1Nr[1,1] \"1\"",
       "test.makro:2: Fehler: Eingabe.PP1Nr ist ein Textfeld, kein Raster; nur ein Raster hat Zellen [Z,S]"},
      {"setze Eingabe.Grid[5,0] \"1\"",
       "test.makro:2: Fehler: Die Zelle Eingabe.Grid[5,0] liegt außerhalb des Rasters (5 Zeilen und 3 Spalten)"},
      {"setze Eingabe.Grid \"1\"", "test.makro:2: Fehler: Bei einem Raster nennt setze die Zelle: Eingabe.Grid[Z,S]"},
  };
  for (const Case& c : cases) ExpectStopsOnLine2(f, c);
}

TEST(MacroErrors, WhatAUserCannotOperate) {
  MacroFixture f;
  f.forms.show("Eingabe");
  f.forms.load("Punkt");  // loaded, not shown
  const Case cases[] = {
      {"klicke Eingabe.Gesperrt",
       "test.makro:2: Fehler: Eingabe.Gesperrt ist gesperrt; ein Benutzer kann es nicht bedienen"},
      {"klicke Eingabe.Versteckt",
       "test.makro:2: Fehler: Eingabe.Versteckt ist unsichtbar; ein Benutzer kann es nicht bedienen"},
      {"setze Eingabe.ImRahmen \"1\"",
       "test.makro:2: Fehler: Eingabe.ImRahmen liegt in Rahmen, das gesperrt ist; ein Benutzer kann es nicht bedienen"},
      {"tippe Eingabe.Gesperrt \"{ENTER}\"",
       "test.makro:2: Fehler: Eingabe.Gesperrt ist gesperrt; ein Benutzer kann es nicht bedienen"},
      {"fokus Eingabe.Gesperrt",
       "test.makro:2: Fehler: Eingabe.Gesperrt ist gesperrt; ein Benutzer kann es nicht bedienen"},
      {"klicke Punkt.OK", "test.makro:2: Fehler: Das Formular Punkt wird nicht angezeigt"},
      {"menue MnuDateiSpeichern",
       "test.makro:2: Fehler: Der Menüeintrag MnuDateiSpeichern ist gesperrt und kann nicht ausgeführt werden"},
  };
  for (const Case& c : cases) ExpectStopsOnLine2(f, c);
}

TEST(MacroErrors, OnlyTheFirstErrorIsReported) {
  MacroFixture f;
  EXPECT_EQ(f.run("pruefe Main \"Falsch\"\nklicke Nirgends.OK\nklicke Auch.Nicht"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Prüfung fehlgeschlagen: Main: erwartet \"Falsch\", gefunden \"Kolm\"",
                            "test.makro:2: Fehler: Ein Formular Nirgends gibt es nicht"}))
      << "an error outranks a failed check, and there is no summary";
}

TEST(MacroErrors, ASyntaxErrorRunsNothing) {
  MacroFixture f;
  EXPECT_EQ(f.run("klicke Main.FnLButton(0)\nsetze Eingabe.PP1Nr\nklicke Main.FnLButton(1)\nwarte eins"), 2);
  EXPECT_EQ(f.lines(),
            (Log{"test.makro:2: Fehler: setze: Zu wenige Angaben; so heißt es: setze FORMULAR.FELD \"TEXT\"",
                 "test.makro:4: Fehler: warte: Die Wartezeit muss eine ganze Zahl ab 0 sein, nicht \"eins\""}));
  EXPECT_TRUE(f.log.empty());
}

TEST(MacroErrors, AMacroFileIsReadWithItsNameInTheReports) {
  MacroFixture f;
  const std::string path = ::testing::TempDir() + "kolm_makro_test.makro";
  {
    std::ofstream file(path, std::ios::binary);
    file << "\xEF\xBB\xBF# Windows-Zeilenenden\r\npruefe Main \"Kolm\"\r\npruefe Main \"Main\"\r\n";
  }
  EXPECT_EQ(f.runner->runFile(path), 1);
  EXPECT_EQ(f.out.str(), path + ":3: Prüfung fehlgeschlagen: Main: erwartet \"Main\", gefunden \"Kolm\"\n" + path +
                             ": 2 Prüfungen, 1 fehlgeschlagen\n");
  std::remove(path.c_str());
}

TEST(MacroErrors, AMacroFileThatCannotBeRead) {
  MacroFixture f;
  EXPECT_EQ(f.runner->runFile("/nicht/da.makro"), 2);
  EXPECT_EQ(f.out.str(), "/nicht/da.makro: Fehler: Die Makrodatei lässt sich nicht lesen\n");
}

}  // namespace
}  // namespace kolm::forms::macro::testing
