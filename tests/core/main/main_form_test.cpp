#include "core/main/main_form.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "core/main/help_forms.h"
#include "forms/scripted.h"

namespace kolm::core {
namespace {

using forms::Control;
using forms::ControlKind;

struct MainFixture : ::testing::Test {
  forms::ScriptedServices scripted;
  forms::HeadlessHost host;
  forms::Forms forms{scripted.services};
  MainForm* main = nullptr;

  void SetUp() override {
    forms.setHost(&host);
    RegisterMainForms(forms, "/nicht/vorhanden");
    main = static_cast<MainForm*>(forms.show("Main"));
    ASSERT_NE(main, nullptr);
  }
  Control& c(const std::string& name, int index = -1) { return main->control(name, index); }
};

struct Row {
  std::string name, parent, caption;
};

// The menu bar as the frame's table gives it; captions the table leaves
// open are the program's own.
const std::vector<Row> kExpectedMenus = {
    {"mnuDatei", "", "&Datei"},
    {"MnuDateiNeuTabelle", "mnuDatei", "&Neu"},
    {"MnuDateiÖffnenTabelle", "mnuDatei", "Ö&ffnen..."},
    {"MnuDateiSpeichernTabelle", "mnuDatei", "&Speichern"},
    {"MnuDateiEigenschaftenTabelle", "mnuDatei", "&Eigenschaften ändern..."},
    {"MnuDateiDuplizieren", "mnuDatei", "Duplizieren (&Klonen)"},
    {"MnuDateiNeuProjekt", "mnuDatei", "Neues &Projekt..."},
    {"MnuDateiÖffnenProjekt", "mnuDatei", "P&rojekt Öffnen..."},
    {"MnuDateiProjektKopieren", "mnuDatei", "Projekt kopieren &nach..."},
    {"MnuDateiDrucken", "mnuDatei", "&Drucken"},
    {"MnuDateiSeitenauswurf", "mnuDatei", "Seitenaus&wurf (Puffer leeren)"},
    {"MnuDateiDruckerEinstellungen", "mnuDatei", "Dr&uckereinstellungen"},
    {"MnuDateiImportieren", "mnuDatei", "&Importieren"},
    {"MnuDateiImportKolmTabelle", "MnuDateiImportieren", "Tabelle (&Kolm)..."},
    {"MnuDateiImportTabellen", "MnuDateiImportieren", "&Tabellen (ImEx)..."},
    {"MnuImportLV_MDB", "MnuDateiImportieren", "LV von anderem &Projekt"},
    {"MnuImportLV_ASCII", "MnuDateiImportieren", "LV aus &ASCII laden"},
    {"MnuImportProfil", "MnuDateiImportieren", "Profil aus (GEO101) ASCII &laden"},
    {"MnuDateiExportieren", "mnuDatei", "E&xportieren"},
    {"MnuDateiExportTabellen", "MnuDateiExportieren", "&Tabellen (ImEx)..."},
    {"MnuExportProfil", "MnuDateiExportieren", "Tabelle &in (GEO101) ASCII speichern"},
    {"mnuDateiDatenübernahme", "mnuDatei", "D&atenübernahme"},
    {"mnuDateiÜbernahmeTC500", "mnuDateiDatenübernahme", "&Distomat TC 500 über RS-232"},
    {"mnuDateiÜbernahmeGeo400", "mnuDateiDatenübernahme", "&Geodimeter 400 über RS-232"},
    {"MnuDateiBeenden", "mnuDatei", "&Beenden"},
    {"MnuBearbeiten", "", "&Bearbeiten"},
    {"MnuBearbeitenAusschneiden", "MnuBearbeiten", "&Ausschneiden"},
    {"MnuBearbeitenKopieren", "MnuBearbeiten", "&Kopieren"},
    {"MnuBearbeitenEinfügen", "MnuBearbeiten", "&Einfügen"},
    {"MnuBearbeitenAllesMarkieren", "MnuBearbeiten", "&Alles Markieren"},
    {"mnuAnsicht", "", "&Ansicht"},
    {"MnuAnsichtFunktionsleiste", "mnuAnsicht", "&Funktionsleiste"},
    {"MnuAnsichtGeradenschnitte", "mnuAnsicht", "&Geradenschnitte"},
    {"MnuAnsichtKreisberechnungen", "mnuAnsicht", "&Kreisberechnungen"},
    {"MnuAnsichtInfoLeiste", "mnuAnsicht", "&Informationsleiste"},
    {"MnuAnsichtGrafikfenster", "mnuAnsicht", "G&rafikfenster"},
    {"MnuTabelleLeistungsverzeichnis", "mnuAnsicht", "&Leistungsverzeichnis"},
    {"MnuTabellePunkte", "mnuAnsicht", "&Punkte"},
    {"MnuTabelleBezeichnung", "mnuAnsicht", "Punkt-&Bezeichnungen"},
    {"MnuTabelleBerechnung", "mnuAnsicht", "&Berechnungen"},
    {"MnuTabellenKorrekturen", "mnuAnsicht", "K&orrekturen"},
    {"MnuTabellenVerbindungen", "mnuAnsicht", "&Verbindungen"},
    {"MnuTabelleMassenermittlung", "mnuAnsicht", "&Massenermittlung"},
    {"MnuTabelleVariablen", "mnuAnsicht", "Var&iablen"},
    {"MnuAnsichtBeschriftung", "mnuAnsicht", "B&eschriftungen"},
    {"mnuAnsichtHintergrundgrafiken", "mnuAnsicht", "&Hintergrundgrafiken"},
    {"mnuAnsichtPunkteKontrolle", "mnuAnsicht", "Punkte-Kon&trollfenster"},
    {"mnuAnsichtTaschenrechner", "mnuAnsicht", "Ta&schenrechner"},
    {"MnuWerkzeuge", "", "&Werkzeuge"},
    {"MnuWerGeradenschnitte", "MnuWerkzeuge", "&Geradenschnitte"},
    {"MnuGerMittelnderPolygonzug", "MnuWerGeradenschnitte", "P&olygonzug"},
    {"MnuGerAbsteckdaten", "MnuWerGeradenschnitte", "&Absteckdaten"},
    {"MnuGerEinrechnen", "MnuWerGeradenschnitte", "polares/fortlaufendes &Einrechnen"},
    {"MnuGerKleinPunkte", "MnuWerGeradenschnitte", "&Kleinpunkte"},
    {"MnuGer3Pkt", "MnuWerGeradenschnitte", "&3 Pkt. (orthogonaler) Geradenschnitt"},
    {"MnuGer4Pkt", "MnuWerGeradenschnitte", "&Geradenschnitt"},
    {"MnuGerParallelenschnitt", "MnuWerGeradenschnitte", "Geraden-&Parallelenschnitt"},
    {"MnuGerVorwärtsschnitt", "MnuWerGeradenschnitte", "&Vorwärtsschnitt"},
    {"MnuGerRückwärtsschnitt", "MnuWerGeradenschnitte", "&Rückwärtsschnitt"},
    {"MnuGerDirekterAnsschluß", "MnuWerGeradenschnitte", "&Direkter Anschluß"},
    {"MnuGerIndirekterAnschluß", "MnuWerGeradenschnitte", "&Indirekter Anschluß"},
    {"MnuGerWinkel", "MnuWerGeradenschnitte", "&Winkel zwischen 3 Punkten"},
    {"MnuGerDist", "MnuWerGeradenschnitte", "Distanz &zwischen zwei Punkten"},
    {"MnuWerKreisberechnungen", "MnuWerkzeuge", "&Kreisberechnungen"},
    {"MnuKreisKreisGerade", "MnuWerKreisberechnungen", "Kreis-&Geradenschnitt"},
    {"MnuKreisKreisKreis", "MnuWerKreisberechnungen", "&Schnittpunkte zweier Kreise"},
    {"MnuKreisTangenten", "MnuWerKreisberechnungen", "&Tangenten an Kreis"},
    {"MnuKreisUmkreis", "MnuWerKreisberechnungen", "&Umkreis-Mittelpunkt aus 3 Punkten"},
    {"MnuKreisBogenWinkel", "MnuWerKreisberechnungen", "Bogenelemente mit &Winkel"},
    {"MnuKreisBogenBABE", "MnuWerKreisberechnungen", "Bogenelemente mit &BA, BE"},
    {"MnuKreisBogenSehne", "MnuWerKreisberechnungen", "Bogenelemente mit Seh&ne"},
    {"MnuKreisAbsteckungXYS", "MnuWerKreisberechnungen", "Kreisbogenabsteckung mit &x, y, s"},
    {"MnuKreisAbsteckungB", "MnuWerKreisberechnungen", "Kreisbogen&absteckung mit b"},
    {"MnuKreisFlächeS", "MnuWerKreisberechnungen", "Kreissegment-&Fläche mit S"},
    {"MnuKreisFlächeBABE", "MnuWerKreisberechnungen", "&Kreissegment-Fläche mit BA, BE"},
    {"MnuKreisAusrundung", "MnuWerKreisberechnungen", "Aus&rundung"},
    {"MnuWerKlotoiden", "MnuWerkzeuge", "K&lotoiden"},
    {"MnuKreisKlotoide", "MnuWerKlotoiden", "&Klotoidenberechnung"},
    {"MnuKreisEilinie", "MnuWerKlotoiden", "&Eilinie"},
    {"MnuKreisWendelinie", "MnuWerKlotoiden", "&Wendelinie"},
    {"MnuWerFlächenStrecken", "MnuWerkzeuge", "&Flächen-Strecken-Berechnung"},
    {"MnuWerTaschenrechner", "MnuWerkzeuge", "&Taschenrechner"},
    {"MnuWerkzeugeGrafikKontrollFenster", "MnuWerkzeuge", "G&rafik-Kontrollfenster"},
    {"MnuWerkzeugePunkteKontrolle", "MnuWerkzeuge", "&Punkte-Kontrollfenster"},
    {"MnuWerkzeugeBeschriftung", "MnuWerkzeuge", "&Beschriftungen für Grafik"},
    {"MnuWerkzeugeHintergrund", "MnuWerkzeuge", "&Hintergrundgrafiken"},
    {"MnuWerkzeuge3DProfil", "MnuWerkzeuge", "Umwandlung &3D zu Profile"},
    {"MnuWerKoorSys", "MnuWerkzeuge", "Koordinatensystem"},
    {"MnuWerKoorPolar", "MnuWerKoorSys", "&Polar"},
    {"MnuWerKoorDreiD", "MnuWerKoorSys", "&Dritte Koordinate (3D)"},
    {"mnuPH", "MnuWerKoorSys", "Dritte Koordinate ist &H (Höhe)"},
    {"mnuPZ", "MnuWerKoorSys", "Dritte Koordinate ist &Z"},
    {"MnuWerKoorPzuR", "MnuWerKoorSys", "Polar in Rechtwinkelig &umwandeln"},
    {"MnuWerKoorRzuP", "MnuWerKoorSys", "&Rechtwinkelig in Polar umwandeln"},
    {"MnuWerOptionen", "MnuWerkzeuge", "&Optionen"},
    {"MnuOptionenKlotoidenAnzeigen", "MnuWerOptionen", "&Klotoiden am Schirm anzeigen"},
    {"mnuOptionenSkins", "MnuWerOptionen", "&Skins..."},
    {"mnuDruckoptionenTabellen", "MnuWerOptionen", "&Tabellendruck"},
    {"MnuOptionenSchriftartDrucker", "mnuDruckoptionenTabellen", "&Schriftart..."},
    {"MnuOptionenRahmen", "mnuDruckoptionenTabellen", "&Rahmen drucken"},
    {"mnuPrinterT", "mnuDruckoptionenTabellen", "&Drucker wählen..."},
    {"mnuDruckoptionenGrafik", "MnuWerOptionen", "&Grafikdruck"},
    {"MnuOptionenSchriftartGrafik", "mnuDruckoptionenGrafik", "&Schriftart..."},
    {"MnuOptionenKreisEmulieren", "mnuDruckoptionenGrafik", "&Kreise als Polygon zeichnen"},
    {"mnuPrinterG", "mnuDruckoptionenGrafik", "&Drucker wählen..."},
    {"MnuOptionenAutoSpeichern", "MnuWerOptionen", "&Automatisch speichern..."},
    {"MnuFenster", "", "&Fenster"},
    {"MnuFensterKaskade", "MnuFenster", "&Kaskadieren"},
    {"MnuFensterHorizontal", "MnuFenster", "&Horizontal teilen"},
    {"MnuFensterVertikal", "MnuFenster", "&Vertikal teilen"},
    {"MnuFensterSymboleAnordnen", "MnuFenster", "&Symbole anordnen"},
    {"MnuHilfe", "", "&Hilfe"},
    {"MnuHilfeHilfe", "MnuHilfe", "&Inhalt"},
    {"MnuHilfeZuFilfe", "MnuHilfe", "&Hilfe benutzen"},
    {"MnuHilfeInfo", "MnuHilfe", "Info..."},
};

const std::vector<std::string> kSubmenus = {
    "mnuDatei", "MnuDateiImportieren", "MnuDateiExportieren", "mnuDateiDatenübernahme",
    "MnuBearbeiten", "mnuAnsicht", "MnuWerkzeuge", "MnuWerGeradenschnitte",
    "MnuWerKreisberechnungen", "MnuWerKlotoiden", "MnuWerKoorSys", "MnuWerOptionen",
    "mnuDruckoptionenTabellen", "mnuDruckoptionenGrafik", "MnuFenster", "MnuHilfe",
};

// Entries the frame serves itself; all others wait for their dialogs.
const std::vector<std::string> kOwnEntries = {
    "MnuDateiBeenden", "MnuAnsichtFunktionsleiste", "MnuAnsichtGeradenschnitte",
    "MnuAnsichtKreisberechnungen", "MnuAnsichtInfoLeiste", "MnuWerKoorPolar", "MnuWerKoorDreiD",
    "MnuFensterKaskade", "MnuFensterHorizontal", "MnuFensterVertikal",
    "MnuFensterSymboleAnordnen", "MnuHilfeHilfe", "MnuHilfeZuFilfe", "MnuHilfeInfo",
};

bool Contains(const std::vector<std::string>& list, const std::string& name) {
  for (const std::string& s : list)
    if (s == name) return true;
  return false;
}

// ---- menu bar ------------------------------------------------------------------

TEST_F(MainFixture, MenuBarHoldsEveryEntryWithNameCaptionAndParentInOrder) {
  const std::vector<Control*> menus = main->menuControls();
  ASSERT_EQ(menus.size(), kExpectedMenus.size());
  for (size_t i = 0; i < menus.size(); ++i) {
    SCOPED_TRACE("Eintrag " + std::to_string(i) + " " + kExpectedMenus[i].name);
    EXPECT_EQ(menus[i]->name(), kExpectedMenus[i].name);
    EXPECT_EQ(menus[i]->captionText(), kExpectedMenus[i].caption);
    EXPECT_EQ(menus[i]->placement().container, kExpectedMenus[i].parent);
    EXPECT_EQ(menus[i]->index(), -1);
  }
}

TEST_F(MainFixture, MenusWithEntriesOpenSubmenusAndNothingElseDoes) {
  for (Control* m : main->menuControls())
    EXPECT_EQ(main->opensSubmenu(*m), Contains(kSubmenus, m->name())) << m->name();
  EXPECT_THROW(main->setCommand("MnuWerGeradenschnitte", [] {}), std::invalid_argument);
}

TEST_F(MainFixture, KeyedViewEntriesCarryTheirShortcuts) {
  for (const auto& [entry, keys] : std::vector<std::pair<const char*, const char*>>{
           {"MnuAnsichtBeschriftung", "Ctrl+B"}, {"mnuAnsichtHintergrundgrafiken", "Ctrl+H"},
           {"mnuAnsichtPunkteKontrolle", "Ctrl+P"}, {"mnuAnsichtTaschenrechner", "Ctrl+T"},
           {"MnuDateiNeuTabelle", ""}})
    EXPECT_EQ(c(entry).shortcutKeys(), keys) << entry;
}

TEST_F(MainFixture, SeparatorsSplitTheGroups) {
  EXPECT_TRUE(c("MnuDateiNeuProjekt").hasSeparatorBefore());
  EXPECT_TRUE(c("MnuDateiDrucken").hasSeparatorBefore());
  EXPECT_TRUE(c("MnuDateiBeenden").hasSeparatorBefore());
  EXPECT_TRUE(c("MnuAnsichtGrafikfenster").hasSeparatorBefore());
  EXPECT_TRUE(c("MnuHilfeInfo").hasSeparatorBefore());
  EXPECT_FALSE(c("MnuDateiNeuTabelle").hasSeparatorBefore());
  EXPECT_FALSE(c("MnuAnsichtGeradenschnitte").hasSeparatorBefore());
}

TEST_F(MainFixture, EntriesWithoutCommandAreDisabledTheFramesOwnAreEnabled) {
  for (Control* m : main->menuControls()) {
    if (main->opensSubmenu(*m)) {
      EXPECT_TRUE(m->enabled()) << m->name();
      continue;
    }
    EXPECT_EQ(m->enabled(), Contains(kOwnEntries, m->name())) << m->name();
    EXPECT_EQ(main->hasCommand(m->name()), Contains(kOwnEntries, m->name())) << m->name();
  }
}

TEST_F(MainFixture, ADisabledEntryDoesNothingWhenClicked) {
  int runs = 0;
  main->setCommand("MnuDateiNeuTabelle", [&] { ++runs; });
  main->setCommand("MnuDateiNeuTabelle", nullptr);
  EXPECT_FALSE(c("MnuDateiNeuTabelle").enabled());
  c("MnuDateiNeuTabelle").click();
  EXPECT_EQ(runs, 0);
}

TEST_F(MainFixture, SetCommandEnablesTheEntryAndItsButtonsAndRunsIt) {
  std::vector<std::string> ran;
  EXPECT_FALSE(c("FnLButton", 1).enabled());
  main->setCommand("MnuDateiSpeichernTabelle", [&] { ran.push_back("speichern"); });
  EXPECT_TRUE(c("MnuDateiSpeichernTabelle").enabled());
  EXPECT_TRUE(c("FnLButton", 1).enabled());
  EXPECT_FALSE(c("FnLButton", 0).enabled());

  c("MnuDateiSpeichernTabelle").click();
  c("FnLButton", 1).click();
  EXPECT_EQ(ran, (std::vector<std::string>{"speichern", "speichern"}));

  // Areas and lengths are one entry behind two buttons.
  main->setCommand("MnuWerFlächenStrecken", [&] { ran.push_back("berechnen"); });
  EXPECT_TRUE(c("FnLButton", 4).enabled());
  EXPECT_TRUE(c("FnLButton", 5).enabled());
  c("FnLButton", 5).click();
  EXPECT_EQ(ran.back(), "berechnen");

  main->setCommand("MnuGerVorwärtsschnitt", [&] { ran.push_back("vorwärts"); });
  EXPECT_TRUE(c("GerButton", 7).enabled());
  c("GerButton", 7).click();
  EXPECT_EQ(ran.back(), "vorwärts");

  main->setCommand("MnuKreisWendelinie", [&] { ran.push_back("wende"); });
  EXPECT_TRUE(c("KreisButton", 14).enabled());
  c("KreisButton", 14).click();
  EXPECT_EQ(ran.back(), "wende");
}

TEST_F(MainFixture, SetCommandFindsEntriesInAnySpellingAndRefusesUnknownOnes) {
  int runs = 0;
  main->setCommand("MnuGerRueckwaertsschnitt", [&] { ++runs; });
  c("MnuGerRückwärtsschnitt").click();
  EXPECT_EQ(runs, 1);
  EXPECT_THROW(main->setCommand("MnuGibtEsNicht", [] {}), std::invalid_argument);
  EXPECT_THROW(main->setCommand("Check3D", [] {}), std::invalid_argument);
  EXPECT_THROW(main->setButtonCommand("FnLButton", 21, [] {}), std::invalid_argument);
}

// ---- button bars ------------------------------------------------------------------

TEST_F(MainFixture, GeneralButtonsShowTheirTooltipsInOrder) {
  const std::vector<std::string> tips = {
      "Tabelle öffnen", "Aktuelle Tabelle speichern", "Drucken des aktiven Fensters (100% frei)",
      "Seitenauswurf (Drucker-Puffer leeren)", "Streckenberechnung", "Flächenberechnung",
      "Massenermittlung", "Leistungsverzeichnis bearbeiten", "Taschenrechner mit UPN",
      "Polar in Rechtwinkelig umwandeln", "Rechtwinkelig in Polar umwandeln",
      "Umwandlung 3D (Geländeaufnahme) in Profile", "Importieren einer Kolm Tabelle",
      "Punkte Kontrollfenster (Addieren, Multiplizieren)",
      "Punkt Darstellung, Bezeichnungen und Farben", "Ansicht Geradenschnitte",
      "Ansicht Kreisberechnungen", "Hilfe zum aktuellen Koordinatensystem", "Ausschneiden",
      "Kopieren", "Einfügen"};
  const std::vector<Control*> buttons = main->array("FnLButton");
  ASSERT_EQ(buttons.size(), tips.size());
  for (size_t i = 0; i < tips.size(); ++i) {
    EXPECT_EQ(buttons[i]->index(), static_cast<int>(i));
    EXPECT_EQ(buttons[i]->kind(), ControlKind::CommandButton);
    EXPECT_EQ(buttons[i]->toolTip(), tips[i]) << i;
    EXPECT_FALSE(buttons[i]->iconName().empty()) << i;
  }
}

TEST_F(MainFixture, GeneralButtonsStandForTheirEntries) {
  const std::vector<std::string> entries = {
      "MnuDateiÖffnenTabelle", "MnuDateiSpeichernTabelle", "MnuDateiDrucken",
      "MnuDateiSeitenauswurf", "MnuWerFlächenStrecken", "MnuWerFlächenStrecken",
      "MnuTabelleMassenermittlung", "MnuTabelleLeistungsverzeichnis", "MnuWerTaschenrechner",
      "MnuWerKoorPzuR", "MnuWerKoorRzuP", "MnuWerkzeuge3DProfil", "MnuDateiImportKolmTabelle",
      "MnuWerkzeugePunkteKontrolle", "MnuTabelleBezeichnung", "MnuAnsichtGeradenschnitte",
      "MnuAnsichtKreisberechnungen", "", "MnuBearbeitenAusschneiden", "MnuBearbeitenKopieren",
      "MnuBearbeitenEinfügen"};
  for (size_t i = 0; i < entries.size(); ++i)
    EXPECT_EQ(main->buttonEntry("FnLButton", static_cast<int>(i)), entries[i]) << i;
}

TEST_F(MainFixture, CalculationBarsFollowTheToolsMenu) {
  const std::vector<std::string> ger = {
      "Polygonzug", "Absteckdaten", "polares/fortlaufendes Einrechnen", "Kleinpunkte",
      "3 Pkt. (orthogonaler) Geradenschnitt", "Geradenschnitt", "Geraden-Parallelenschnitt",
      "Vorwärtsschnitt", "Rückwärtsschnitt", "Direkter Anschluß", "Indirekter Anschluß",
      "Winkel zwischen 3 Punkten", "Distanz zwischen zwei Punkten"};
  const std::vector<std::string> kreis = {
      "Kreis-Geradenschnitt", "Schnittpunkte zweier Kreise", "Tangenten an Kreis",
      "Umkreis-Mittelpunkt aus 3 Punkten", "Bogenelemente mit Winkel", "Bogenelemente mit BA, BE",
      "Bogenelemente mit Sehne", "Kreisbogenabsteckung mit x, y, s", "Kreisbogenabsteckung mit b",
      "Kreissegment-Fläche mit S", "Kreissegment-Fläche mit BA, BE", "Ausrundung",
      "Klotoidenberechnung", "Eilinie", "Wendelinie"};
  const std::vector<Control*> gerButtons = main->array("GerButton");
  const std::vector<Control*> kreisButtons = main->array("KreisButton");
  ASSERT_EQ(gerButtons.size(), ger.size());
  ASSERT_EQ(kreisButtons.size(), kreis.size());
  for (size_t i = 0; i < ger.size(); ++i) {
    EXPECT_EQ(gerButtons[i]->toolTip(), ger[i]);
    EXPECT_EQ(main->control(main->buttonEntry("GerButton", static_cast<int>(i))).placement().container,
              "MnuWerGeradenschnitte");
  }
  for (size_t i = 0; i < kreis.size(); ++i) EXPECT_EQ(kreisButtons[i]->toolTip(), kreis[i]);
  EXPECT_EQ(main->buttonEntry("KreisButton", 0), "MnuKreisKreisGerade");
  EXPECT_EQ(main->buttonEntry("KreisButton", 11), "MnuKreisAusrundung");
  EXPECT_EQ(main->buttonEntry("KreisButton", 12), "MnuKreisKlotoide");
}

TEST_F(MainFixture, ButtonsWithoutCommandAreDisabled) {
  for (const char* bar : {"FnLButton", "GerButton", "KreisButton"})
    for (Control* b : main->array(bar)) {
      const std::string entry = main->buttonEntry(bar, b->index());
      const bool served = entry.empty() || main->hasCommand(entry);
      EXPECT_EQ(b->enabled(), served) << b->address();
    }
}

TEST_F(MainFixture, CoordinateHelpButtonShowsItsTopicAndCanBeRebound) {
  c("FnLButton", 17).click();
  ASSERT_EQ(scripted.help.topics().size(), 1u);
  EXPECT_EQ(scripted.help.topics()[0], "koordinatensystem");

  int sketches = 0;
  main->setButtonCommand("FnLButton", 17, [&] { ++sketches; });
  c("FnLButton", 17).click();
  EXPECT_EQ(sketches, 1);
  EXPECT_EQ(scripted.help.topics().size(), 1u);
  main->setButtonCommand("FnLButton", 17, nullptr);
  EXPECT_FALSE(c("FnLButton", 17).enabled());
}

// ---- bars ---------------------------------------------------------------------------

TEST_F(MainFixture, BarEntriesToggleVisibilityAndCheckMarkTogether) {
  const struct {
    MainForm::Bar bar;
    const char* entry;
    const char* frame;
  } bars[] = {
      {MainForm::Bar::Funktionen, "MnuAnsichtFunktionsleiste", "FrameFunktionsleiste"},
      {MainForm::Bar::Geradenschnitte, "MnuAnsichtGeradenschnitte", "FrameGeradenschnitte"},
      {MainForm::Bar::Kreisberechnungen, "MnuAnsichtKreisberechnungen", "FrameKreisberechnungen"},
      {MainForm::Bar::Informationen, "MnuAnsichtInfoLeiste", "FrameInformationsleiste"},
  };
  for (const auto& b : bars) {
    SCOPED_TRACE(b.entry);
    EXPECT_TRUE(main->checkable(c(b.entry)));
    EXPECT_TRUE(c(b.frame).visible());
    EXPECT_TRUE(c(b.entry).checked());

    c(b.entry).click();
    EXPECT_FALSE(c(b.frame).visible());
    EXPECT_FALSE(c(b.entry).checked());
    EXPECT_FALSE(main->barVisible(b.bar));

    c(b.entry).click();
    EXPECT_TRUE(c(b.frame).visible());
    EXPECT_TRUE(c(b.entry).checked());
  }
}

TEST_F(MainFixture, ViewButtonsToggleTheCalculationBars) {
  c("FnLButton", 15).click();
  EXPECT_FALSE(main->barVisible(MainForm::Bar::Geradenschnitte));
  EXPECT_FALSE(c("MnuAnsichtGeradenschnitte").checked());
  c("FnLButton", 16).click();
  EXPECT_FALSE(main->barVisible(MainForm::Bar::Kreisberechnungen));
  main->setBarVisible(MainForm::Bar::Geradenschnitte, true);
  EXPECT_TRUE(c("MnuAnsichtGeradenschnitte").checked());
  EXPECT_TRUE(c("FrameGeradenschnitte").visible());
}

TEST_F(MainFixture, ButtonsLieInTheFramesOfTheirBars) {
  for (Control* b : main->array("FnLButton")) EXPECT_EQ(b->placement().container, "FrameFunktionsleiste");
  for (Control* b : main->array("GerButton")) EXPECT_EQ(b->placement().container, "FrameGeradenschnitte");
  for (Control* b : main->array("KreisButton")) EXPECT_EQ(b->placement().container, "FrameKreisberechnungen");
  for (const char* name : {"Check3D", "CheckPolar", "KoordinatenSystem", "ComboWinkelEinheit",
                           "LabelAktTab", "LabelPktTab"})
    EXPECT_EQ(c(name).placement().container, "FrameInformationsleiste") << name;
}

// ---- frame commands -------------------------------------------------------------------

TEST_F(MainFixture, WindowEntriesArrangeTheChildWindows) {
  c("MnuFensterKaskade").click();
  c("MnuFensterHorizontal").click();
  c("MnuFensterVertikal").click();
  c("MnuFensterSymboleAnordnen").click();
  EXPECT_EQ(scripted.desktop.calls(),
            (std::vector<std::string>{"cascade", "horizontal", "vertical", "icons"}));
}

TEST_F(MainFixture, BeendenUnloadsTheFrameAndEndsTheProgram) {
  c("MnuDateiBeenden").click();
  EXPECT_EQ(scripted.desktop.calls(), std::vector<std::string>{"quit"});
  EXPECT_EQ(forms.find("Main"), nullptr);
}

TEST_F(MainFixture, HelpEntriesShowContentsAndHowToUseHelp) {
  c("MnuHilfeHilfe").click();
  c("MnuHilfeZuFilfe").click();
  EXPECT_EQ(scripted.help.topics(), (std::vector<std::string>{"", "hilfe_benutzen"}));
}

TEST_F(MainFixture, InfoOpensAModalBoxClosedByOK) {
  std::string caption, name, version, description;
  bool modal = false;
  host.onModal([&](forms::Form& info) {
    modal = info.modal();
    caption = info.caption();
    name = info.control("LabelProgramm").captionText();
    version = info.control("LabelVersion").captionText();
    description = info.control("LabelBeschreibung").captionText();
    info.control("OK").click();
  });
  c("MnuHilfeInfo").click();
  EXPECT_TRUE(modal);
  EXPECT_EQ(caption, "Info über Kolm");
  EXPECT_EQ(name, "Kolm");
  EXPECT_EQ(version, std::string("Version ") + kProgrammVersion);
  EXPECT_FALSE(description.empty());
  EXPECT_EQ(forms.find("Info"), nullptr);
}

// ---- caption, strip, status line, BlueBox ------------------------------------------------

TEST_F(MainFixture, CaptionNamesTheProject) {
  for (const std::string name : {"Demo Projekt", "[/home/bauleiter/B17]"}) {
    main->setProjectName(name);
    EXPECT_EQ(main->caption(), "Kolm: " + name);
  }
}

TEST_F(MainFixture, SettingsStripOffersTheSystemsAndAngleUnits) {
  EXPECT_EQ(c("Check3D").kind(), ControlKind::CheckBox);
  EXPECT_EQ(c("Check3D").captionText(), "3D");
  EXPECT_EQ(c("CheckPolar").captionText(), "Polar");
  EXPECT_EQ(c("KoordinatenSystem").list(),
            (std::vector<std::string>{"Math.links", "M31 rechts", "? Math rechts", "? M31 links"}));
  EXPECT_TRUE(c("KoordinatenSystem").isDropDownList());
  EXPECT_EQ(c("ComboWinkelEinheit").list(), (std::vector<std::string>{"Neugrad", "Altgrad", "Radiant"}));
  EXPECT_TRUE(c("ComboWinkelEinheit").isDropDownList());
}

TEST_F(MainFixture, HeightOrZEntryFollowsTheTableSystem) {
  // 2D: neither.
  EXPECT_FALSE(c("mnuPH").visible());
  EXPECT_FALSE(c("mnuPZ").visible());

  c("Check3D").click();
  EXPECT_FALSE(c("mnuPH").visible());
  EXPECT_TRUE(c("mnuPZ").visible());

  c("KoordinatenSystem").setListIndex(1);  // M31 rechts
  EXPECT_TRUE(c("mnuPH").visible());
  EXPECT_FALSE(c("mnuPZ").visible());
  c("KoordinatenSystem").setListIndex(2);  // ? Math rechts
  EXPECT_FALSE(c("mnuPH").visible());
  EXPECT_TRUE(c("mnuPZ").visible());
  c("KoordinatenSystem").setListIndex(3);  // ? M31 links
  EXPECT_TRUE(c("mnuPH").visible());

  c("Check3D").setValue(0);
  EXPECT_FALSE(c("mnuPH").visible());
  EXPECT_FALSE(c("mnuPZ").visible());
}

TEST_F(MainFixture, CoordinateEntriesAreTheCheckBoxesOfTheStrip) {
  std::vector<std::string> told;
  main->onSettingChanged([&](Control& changed) { told.push_back(changed.name()); });

  c("MnuWerKoorPolar").click();
  EXPECT_EQ(c("CheckPolar").value(), 1);
  EXPECT_TRUE(c("MnuWerKoorPolar").checked());
  c("MnuWerKoorDreiD").click();
  EXPECT_EQ(c("Check3D").value(), 1);
  EXPECT_TRUE(c("MnuWerKoorDreiD").checked());

  c("CheckPolar").click();
  EXPECT_FALSE(c("MnuWerKoorPolar").checked());
  c("ComboWinkelEinheit").setListIndex(2);
  EXPECT_EQ(told, (std::vector<std::string>{"CheckPolar", "Check3D", "CheckPolar", "ComboWinkelEinheit"}));
}

TEST_F(MainFixture, StatusLineWritesLabelInfo) {
  MainStatusLine status(forms);
  status.show("Punkte-Tabelle lesen...");
  EXPECT_EQ(c("LabelInfo").captionText(), "Punkte-Tabelle lesen...");
  c("LabelInfo").setCaption("Tabelle Achse 1 geladen");
  EXPECT_EQ(status.text(), "Tabelle Achse 1 geladen");
}

TEST(MainStatusLine, KeepsTheTextWhileTheFrameIsNotLoaded) {
  forms::ScriptedServices scripted;
  forms::Forms forms(scripted.services);
  RegisterMainForms(forms, "");
  MainStatusLine status(forms);
  status.show("Einstellungen lesen...");
  EXPECT_EQ(status.text(), "Einstellungen lesen...");
  forms.load("Main");
  status.show("Tabelle geladen");
  EXPECT_EQ(forms.find("Main")->control("LabelInfo").captionText(), "Tabelle geladen");
}

TEST_F(MainFixture, TableLabelsOpenTheirDialogsOnceTheyExist) {
  c("LabelAktTab").click();  // nothing registered yet: nothing happens
  EXPECT_EQ(forms.find("Tabellenauswahl"), nullptr);

  forms.registerForm("Tabellenauswahl", [](forms::Forms& f) {
    return std::make_unique<forms::Form>(f, "Tabellenauswahl", "Tabellenauswahl");
  });
  forms.registerForm("PunkteTabelle", [](forms::Forms& f) {
    return std::make_unique<forms::Form>(f, "PunkteTabelle", "Punkte");
  });
  c("LabelAktTab").click();
  c("LabelPktTab").click();
  ASSERT_NE(forms.find("Tabellenauswahl"), nullptr);
  EXPECT_TRUE(forms.find("Tabellenauswahl")->shown());
  ASSERT_NE(forms.find("PunkteTabelle"), nullptr);
}

TEST_F(MainFixture, BlueBoxTakesDropsAndHasItsList) {
  EXPECT_EQ(c("DragContainer").captionText(), "Blue Box für Drag && Drop");
  EXPECT_TRUE(c("DragContainer").isDropTarget());
  EXPECT_TRUE(c("DragContainer").isDraggable());
  EXPECT_TRUE(c("cmbBlueBox").isDraggable());
}

TEST_F(MainFixture, CheckMarksBelongToTheOnOffEntriesOnly) {
  EXPECT_TRUE(main->checkable(c("MnuOptionenAutoSpeichern")));
  EXPECT_FALSE(c("MnuOptionenAutoSpeichern").checked());
  EXPECT_FALSE(main->checkable(c("MnuDateiNeuTabelle")));
  EXPECT_FALSE(main->checkable(c("MnuFensterKaskade")));
}

}  // namespace
}  // namespace kolm::core
