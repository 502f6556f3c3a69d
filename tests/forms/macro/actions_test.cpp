// Commands that act as a user would: typing, setting, clicking, choosing,
// marking, dragging, timers, focus, opening and closing forms, menus.
#include <gtest/gtest.h>

#include <algorithm>

#include "forms/keys.h"
#include "macro_fixture.h"

namespace kolm::forms::macro::testing {
namespace {

// The log lines that start with one of the prefixes.
Log Only(const Log& log, std::initializer_list<const char*> prefixes) {
  Log kept;
  for (const std::string& line : log)
    for (const char* p : prefixes)
      if (line.rfind(p, 0) == 0) {
        kept.push_back(line);
        break;
      }
  return kept;
}

TEST(MacroTyping, CharactersReachKeyDownAndKeyPressAndLandInTheField) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("tippe Eingabe.PP1Nr \"1a{BACKSPACE}2\""), 0) << f.out.str();
  EXPECT_EQ(f.in("PP1Nr").text(), "12");
  EXPECT_EQ(Only(f.log, {"KeyDown", "KeyPress", "GotFocus"}),
            (Log{"GotFocus PP1Nr", "KeyDown PP1Nr 49/0", "KeyPress PP1Nr 49", "KeyDown PP1Nr 65/0",
                 "KeyPress PP1Nr 97", "KeyDown PP1Nr 8/0", "KeyPress PP1Nr 8", "KeyDown PP1Nr 50/0",
                 "KeyPress PP1Nr 50"}));
}

TEST(MacroTyping, ModifiersReachKeyDownAndCtrlOrAltTypeNothing) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("tippe Eingabe.PP1Nr \"+a^c%{F4}{ADD}\""), 0) << f.out.str();
  EXPECT_EQ(Only(f.log, {"KeyDown", "KeyPress"}),
            (Log{"KeyDown PP1Nr 65/1", "KeyPress PP1Nr 65", "KeyDown PP1Nr 67/2", "KeyDown PP1Nr 115/4",
                 "KeyDown PP1Nr 107/0", "KeyPress PP1Nr 43"}));
  EXPECT_EQ(f.in("PP1Nr").text(), "A+");
}

TEST(MacroTyping, EnterPressesTheDefaultButton) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("tippe Eingabe.PP1Nr \"7{ENTER}\""), 0) << f.out.str();
  EXPECT_EQ(f.in("Ergebnis").captionText(), "Summe 7");
}

TEST(MacroTyping, EscapeClosesTheDialogAndLeftoverKeysAreAnError) {
  MacroFixture f;
  EXPECT_EQ(f.runInEingabe("tippe Eingabe.PP1Nr \"{ESC}12\""), 2);
  EXPECT_EQ(f.forms.find("Eingabe"), nullptr);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Nach 1 Taste ist das Formular Eingabe nicht mehr offen; "
                            "2 Tasten bleiben übrig"}));
}

TEST(MacroTyping, KeysFollowTheFocusWhenTabMovesIt) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("tippe Eingabe.Param(0) \"1{TAB}2\""), 0) << f.out.str();
  EXPECT_EQ(f.in("Param", 0).text(), "1");
  EXPECT_EQ(f.in("Param", 1).text(), "2");
  EXPECT_EQ(Only(f.log, {"GotFocus", "LostFocus"}),
            (Log{"GotFocus Param(0)", "LostFocus Param(0)", "GotFocus Param(1)"}));
}

TEST(MacroTyping, IntoAGridCellMakesItCurrentFirst) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("tippe Eingabe.Grid[2,1] \"x{DOWN}\""), 0) << f.out.str();
  EXPECT_EQ(Only(f.log, {"KeyDown", "KeyPress"}),
            (Log{"KeyDown Grid 88/0", "KeyPress Grid 120", "KeyDown Grid 40/0"}));
  EXPECT_EQ(f.in("Grid").gridData().row, 3);
  EXPECT_EQ(f.in("Grid").gridData().col, 1);
}

TEST(MacroSetting, TextChangesOnceAsTyping) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("setze Eingabe.PP1Nr \"123 A\"\nsetze Eingabe.PP1Nr \"123 A\""), 0) << f.out.str();
  EXPECT_EQ(f.in("PP1Nr").text(), "123 A");
  EXPECT_EQ(f.log, (Log{"GotFocus PP1Nr", "Change PP1Nr=123 A"})) << "no keys, and the same text again changes nothing";
}

TEST(MacroSetting, TheNextClickLeavesTheFieldFirst) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("setze Eingabe.PP1Nr \"5\"\nklicke Eingabe.Berechnen"), 0) << f.out.str();
  EXPECT_EQ(f.log, (Log{"GotFocus PP1Nr", "Change PP1Nr=5", "LostFocus PP1Nr", "GotFocus Berechnen", "Berechnen"}));
}

TEST(MacroSetting, GridCellsCombosAndLists) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("setze Eingabe.Grid[1,2] \"A\"\n"
                           "setze Eingabe.Code \"XY\"\n"
                           "setze Eingabe.Einheit \"Altgrad\"\n"
                           "setze Eingabe.Auswahl \"Süd\"\n"),
            0)
      << f.out.str();
  EXPECT_EQ(f.in("Grid").cell(1, 2), "A");
  EXPECT_EQ(f.in("Grid").gridData().row, 1);
  EXPECT_EQ(f.in("Grid").gridData().col, 2);
  EXPECT_EQ(f.in("Einheit").listIndex(), 1);
  EXPECT_EQ(f.in("Auswahl").listIndex(), 1);
  EXPECT_EQ(Only(f.log, {"Change", "Click"}),
            (Log{"Change Grid 1,2=A", "Change Code=XY", "Click Einheit=Altgrad", "Click Auswahl 1"}));
}

TEST(MacroSetting, TextThatIsNotInADropDownListIsAnError) {
  MacroFixture f;
  EXPECT_EQ(f.runInEingabe("setze Eingabe.Einheit \"Gon\""), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: \"Gon\" steht nicht in der Liste von Eingabe.Einheit"}));
  EXPECT_EQ(f.runInEingabe("setze Eingabe.Ergebnis \"x\""), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: setze geht bei Textfeldern, Kombinationsfeldern, Listen und "
                            "Rasterzellen; Eingabe.Ergebnis ist ein Bezeichnungsfeld"}));
}

TEST(MacroClicking, CheckBoxesToggleOptionsAreChosenArrayMembersAct) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("klicke Eingabe.Anders\nklicke Eingabe.Anders\nklicke Eingabe.Art(1)\n"
                           "klicke Main.FnLButton(2)\nklicke eingabe.loeschen"),
            0)
      << f.out.str();
  EXPECT_EQ(Only(f.log, {"Click", "FnL"}),
            (Log{"Click Anders=1", "Click Anders=0", "Click Art(1)", "FnLButton 2"}));
  EXPECT_EQ(f.in("Art", 1).value(), 1);
  EXPECT_EQ(f.in("Ergebnis").captionText(), "Ja") << "Löschen was clicked under its ae-oe-ue spelling";
}

TEST(MacroClicking, DoubleClicksOnListsAndGridCells) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("waehle Eingabe.Auswahl 0\ndoppelklicke Eingabe.Auswahl\n"
                           "doppelklicke Eingabe.Grid[3,2]\nklicke Eingabe.Grid[2,1]"),
            0)
      << f.out.str();
  EXPECT_EQ(Only(f.log, {"DblClick", "Click Grid"}),
            (Log{"DblClick Auswahl 0", "DblClick Grid 3,2", "Click Grid 2,1"}));
}

TEST(MacroChoosing, ListIndexAndTabPageClickEveryTime) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("waehle Eingabe.Auswahl 1\nwaehle Eingabe.Auswahl 1\nwaehle Eingabe.Register 1\n"
                           "waehle Eingabe.Einheit 2"),
            0)
      << f.out.str();
  EXPECT_EQ(Only(f.log, {"Click", "Register"}),
            (Log{"Click Auswahl 1", "Click Auswahl 1", "Register 1", "Click Einheit=Radiant"}));
  EXPECT_EQ(f.in("Einheit").text(), "Radiant");

  EXPECT_EQ(f.runInEingabe("waehle Eingabe.Auswahl 2"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Eingabe.Auswahl hat keinen Eintrag 2 (ListCount ist 2)"}));
  EXPECT_EQ(f.runInEingabe("waehle Eingabe.PP1Nr 0"), 2);
}

TEST(MacroMarking, ExactlyTheGivenEntriesOfAMultiSelectList) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("markiere Eingabe.Liste 0 2\nmarkiere Eingabe.Liste 3\nmarkiere Eingabe.Liste"), 0)
      << f.out.str();
  EXPECT_EQ(Only(f.log, {"Click Liste"}), (Log{"Click Liste 02", "Click Liste 3", "Click Liste "}));
  EXPECT_EQ(f.runInEingabe("markiere Eingabe.Auswahl 0"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Eingabe.Auswahl erlaubt keine Mehrfachauswahl; einen Eintrag "
                            "wählt waehle"}));
}

TEST(MacroMarking, ARectangleOfAGrid) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("markiere Eingabe.Grid 1 1 3 2"), 0) << f.out.str();
  EXPECT_EQ(Only(f.log, {"SelChange"}), (Log{"SelChange 1,1-3,2"}));
  EXPECT_EQ(f.runInEingabe("markiere Eingabe.Grid 1 1 5 2"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Die Zelle [5,2] liegt außerhalb des Rasters Eingabe.Grid "
                            "(5 Zeilen und 3 Spalten)"}));
  EXPECT_EQ(f.runInEingabe("markiere Eingabe.Grid 1 1"), 2);
}

TEST(MacroDragging, DragStartOnTheSourceThenDragDropWithTheSource) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("waehle Eingabe.Quelle 1\nziehe Eingabe.Quelle Eingabe.Ziel"), 0) << f.out.str();
  EXPECT_EQ(Only(f.log, {"Drag"}), (Log{"DragStart Quelle", "DragDrop Ziel von Quelle"}));
  EXPECT_EQ(f.in("Ziel").text(), "P2");

  f.eingabe().refuseDrag = true;
  f.log.clear();
  ASSERT_EQ(f.run("ziehe Eingabe.Quelle Eingabe.Ziel"), 0);
  EXPECT_EQ(Only(f.log, {"Drag"}), (Log{"DragStart Quelle"})) << "a refused drag drops nothing";

  EXPECT_EQ(f.run("ziehe Eingabe.Ziel Eingabe.Quelle"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Eingabe.Ziel lässt sich nicht ziehen (keine Ziehquelle)"}));
}

TEST(MacroTimers, FireNTimesWhileEnabled) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("timer Eingabe.Uhr 3\ntimer Eingabe.Uhr"), 0) << f.out.str();
  EXPECT_EQ(Only(f.log, {"Timer"}).size(), 4u);

  f.eingabe().stopAfterTicks = f.eingabe().ticks + 2;
  f.log.clear();
  ASSERT_EQ(f.run("timer Eingabe.Uhr 5"), 0);
  EXPECT_EQ(Only(f.log, {"Timer"}).size(), 2u) << "the handler stopped the timer after two ticks";

  f.log.clear();
  ASSERT_EQ(f.run("timer Eingabe.Ruhig 3"), 0);
  EXPECT_TRUE(f.log.empty()) << "a disabled timer does not fire";

  EXPECT_EQ(f.run("timer Eingabe.PP1Nr"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Eingabe.PP1Nr ist ein Textfeld, kein Zeitgeber"}));
}

TEST(MacroFocus, FokusAndVerlasseRaiseGotFocusAndLostFocus) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("fokus Eingabe.PP1Nr\nfokus Eingabe.PP1Nr\nfokus Eingabe.Param(1)\n"
                           "verlasse Eingabe.Param(1)\nverlasse Eingabe.PP1Nr"),
            0)
      << f.out.str();
  EXPECT_EQ(f.log, (Log{"GotFocus PP1Nr", "GotFocus PP1Nr", "LostFocus PP1Nr", "GotFocus Param(1)",
                        "LostFocus Param(1)", "LostFocus PP1Nr"}));
  EXPECT_EQ(f.eingabe().activeControl(), nullptr);
}

TEST(MacroForms, OeffneShowsSchliesseUnloadsARefusalIsNoError) {
  MacroFixture f;
  ASSERT_EQ(f.run("oeffne eingabe\npruefe Eingabe Visible Wahr"), 0) << f.out.str();
  ASSERT_NE(f.forms.find("Eingabe"), nullptr);
  EXPECT_TRUE(f.forms.find("Eingabe")->shown());

  f.eingabe().refuseUnload = true;
  ASSERT_EQ(f.run("schliesse Eingabe"), 0) << f.out.str();
  ASSERT_NE(f.forms.find("Eingabe"), nullptr) << "the form refused to close";

  f.eingabe().refuseUnload = false;
  ASSERT_EQ(f.run("schließe Eingabe"), 0) << f.out.str();
  EXPECT_EQ(f.forms.find("Eingabe"), nullptr);
}

TEST(MacroMenus, RunTheEntryWithItsQuestions) {
  MacroFixture f;
  ASSERT_EQ(f.run("antworte Nein\nantworte Datei \"/daten/a.pkt\"\nmenue MnuDateiOeffnen\n"
                  "pruefe-meldung \"Tabelle speichern?\" \"Kolm\"\npruefe-status \"Geöffnet: /daten/a.pkt\"\n"
                  "menue Main.MnuPunkte"),
            0)
      << f.out.str();
  EXPECT_EQ(Only(f.log, {"Speichern", "Datei"}), (Log{"Speichern? Nein", "Datei /daten/a.pkt"}));
  ASSERT_NE(f.forms.find("Eingabe"), nullptr);
}

TEST(MacroMenus, DisabledHiddenOrNonMenuEntriesCannotRun) {
  MacroFixture f;
  EXPECT_EQ(f.run("menue MnuDateiSpeichern\nmenue MnuPunkte"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Der Menüeintrag MnuDateiSpeichern ist gesperrt und kann nicht "
                            "ausgeführt werden"}));
  EXPECT_EQ(f.forms.find("Eingabe"), nullptr) << "the run stopped at the error";

  EXPECT_EQ(f.run("menue MnuExtrasOptionen"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Der Menüeintrag MnuExtrasOptionen liegt in MnuExtras, das "
                            "gesperrt ist und kann nicht ausgeführt werden"}));
  EXPECT_EQ(f.run("menue MnuVersteckt"), 2);
  EXPECT_EQ(f.run("menue FnLButton(1)"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Main.FnLButton(1) ist eine Schaltfläche, kein Menüeintrag"}));
  EXPECT_TRUE(f.log.empty());
}

TEST(MacroEnvironment, ProjectWaitPictureAndClipboard) {
  MacroFixture f;
  ASSERT_EQ(f.run("projekt \"/daten/Demo Projekt\"\nwarte 250\nbild Main \"main.png\"\n"
                  "zwischenablage \"1\\t2\"\npruefe-zwischenablage \"1\\t2\""),
            2)
      << "\\t is no escape";
  ASSERT_EQ(f.run("projekt \"/daten/Demo Projekt\"\nwarte 250\nbild Main \"main.png\"\n"
                  "zwischenablage \"1 2\"\npruefe-zwischenablage \"1 2\""),
            0)
      << f.out.str();
  EXPECT_EQ(f.env.projects, (Log{"/daten/Demo Projekt"}));
  EXPECT_EQ(f.env.waited, 250);
  EXPECT_EQ(f.env.pictures, (Log{"Main main.png"}));
  EXPECT_EQ(f.scripted.clipboard.text(), "1 2");

  EXPECT_EQ(f.run("projekt \"fehlt\""), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Das Projekt \"fehlt\" lässt sich nicht öffnen: Verzeichnis "
                            "nicht gefunden"}));
  EXPECT_EQ(f.run("bild Main \"/nicht/schreibbar.png\""), 2);
  EXPECT_EQ(f.run("bild Eingabe \"e.png\""), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Das Formular Eingabe ist nicht geladen"}));
}

}  // namespace
}  // namespace kolm::forms::macro::testing
