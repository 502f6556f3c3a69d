// Reading the settings: defaults of missing files and keys, every key into
// its place, the rules on the values read, the list sections, the order of
// the steps.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "einstellungen_hilfen.h"

namespace kolm::core {
namespace {

using einstellungstest::Umgebung;
using einstellungstest::Zeilen;

constexpr double kPi = 3.141592654;

// ---- Missing files --------------------------------------------------------------

TEST(EinstellungenLesen, WithoutAnyFileEveryValueIsItsDefault) {
  Umgebung u;
  EinstellungenLesen(u.k);
  const Zustand& z = *u.z;
  const Einstellungen& e = z.Einstellungen;

  EXPECT_EQ(z.ProgrammIni, u.kolmIni());
  EXPECT_EQ(e.LetztesProjekt, "Demo Projekt");
  // Every default a file holds: the bytes EinstellungenSchreiben gives after
  // reading no file (AFreshProgramWritesTheProgramFileExactly,
  // AProjectWithoutSettingsGetsEveryKeyInItsSection). Here the rest.
  EXPECT_DOUBLE_EQ(z.WinkelFaktor, kPi / 200);
  EXPECT_EQ(z.AnzahlPunkte, 999);
  EXPECT_EQ(z.Punkte.size(), 1000u);

  EXPECT_EQ(z.Kurzbezeichnungen[0].Text, "Pkt.");
  for (int i = 1; i < 100; ++i) ASSERT_EQ(z.Kurzbezeichnungen[i].Text, "") << i;
  for (const auto& kb : z.Kurzbezeichnungen) ASSERT_TRUE(kb.Darstellung == 0 && kb.Beschriftung == 0);
  EXPECT_EQ(z.StandardKurzBezeichnung, 0);
  for (const auto& k : z.Korrekturen) {
    ASSERT_EQ(k.Name, " (kein)");
    ASSERT_EQ(k.Wert, 0);
  }
  for (double v : z.Variablen) ASSERT_EQ(v, 0);
  EXPECT_TRUE(u.meldungen.shown().empty()) << "reading shows nothing";
}

TEST(EinstellungenLesen, TheFreshStateAlreadyHoldsTheDefaultsOfTheFiles) {
  Umgebung frisch, gelesen;  // the first never reads
  EinstellungenLesen(gelesen.k);
  ASSERT_TRUE(EinstellungenSchreiben(frisch.k));
  ASSERT_TRUE(EinstellungenSchreiben(gelesen.k));
  // The single values; the lists are filled by reading (the tests below).
  const auto einzelwerte = [](const std::string& d) { return d.substr(0, d.find("[Linien Farben]")); };
  EXPECT_EQ(einzelwerte(Umgebung::lesen(frisch.projektIni())), einzelwerte(Umgebung::lesen(gelesen.projektIni())));
  EXPECT_EQ(frisch.z->Einstellungen.LetztesProjekt, gelesen.z->Einstellungen.LetztesProjekt);
}

TEST(EinstellungenLesen, TheColourListsStartWithTheSixteenNamedColours) {
  Umgebung u;
  EinstellungenLesen(u.k);
  const auto& standard = StandardFarben();
  ASSERT_EQ(standard.size(), 16u);
  for (const auto* liste : {&u.z->LinienFarben, &u.z->PunktFarben}) {
    for (std::size_t i = 0; i < liste->size(); ++i) {
      if (i < standard.size()) {
        EXPECT_EQ((*liste)[i].Farbe, standard[i].Farbe) << i;
        EXPECT_EQ((*liste)[i].Name, standard[i].Name) << i;
      } else {
        EXPECT_EQ((*liste)[i].Farbe, 0) << i;
        EXPECT_EQ((*liste)[i].Name, "") << i;
      }
    }
  }
  EXPECT_EQ(u.z->LinienFarben.size(), 21u);
  EXPECT_EQ(u.z->PunktFarben.size(), 40u);
  // Red in the low byte.
  EXPECT_EQ(u.z->PunktFarben[1].Name, "Rot");
  EXPECT_EQ(u.z->PunktFarben[1].Farbe, 0x0000FF);
  EXPECT_EQ(u.z->PunktFarben[3].Name, "Blau");
  EXPECT_EQ(u.z->PunktFarben[3].Farbe, 0xFF0000);
  EXPECT_EQ(u.z->PunktFarben[15].Name, "Weiß");
  EXPECT_EQ(u.z->PunktFarben[15].Farbe, 0xFFFFFF);
}

// ---- Every key into its place ------------------------------------------------------

// A project file with a value other than the default for every key; names
// in Windows-1252, keys in another case than the reader asks for.
const std::string kProjekt = Zeilen({
    "[Project]", "Name=Stra\xDF" "enbau Nord",
    "[Formats]", "StandardFormat=0.00", "ErgebnisFormat=0.0", "NummernFormat=0", "StationierungsFormat=0.000",
    "W\xE4hrungsFormat=0.00 \x80", "AusgabeFormat=0.0000",
    "[Printer]", "GrafikPrinter=Plotter", "TabellenPrinter=Laser", "Font=Times New Roman", "FontSize=10,5",
    "FontBold=-1", "FontItalic=1", "Rahmen Drucken=0", "MitLVDrucken=-1", "MitLVDruckenLinks=-1",
    "MitLVDruckenRechts=-1", "SchraffurWin95=-1",
    "[Grafik Defaults]", "GrafikFont=Courier", "GrafikFontSize=9.5", "GrafikFontBold=-1", "GrafikFontItalic=-1",
    "Kreise Emulieren=0", "MA\xDFSTAB=250", "Vergleichsebene=12,5", "XOffset=-3.25", "Vergleichsebene sichtbar=0",
    "Y-Achse sichtbar=0", "YMitte=7.5", "XMitte=-8.5", "Rasterabstand=2,5", "Achsenbeschriftung=1",
    "Gitterstil=2", "GitterFarbIndex=4", "GitterSchriftFarbIndex=5", "StandardAusrichtung=4",
    "StandardDistanz=0,25", "StandardPunktFarbe=3", "StandardLinienFarbe=1", "Ma\xDFstabtyp=2",
    "Logo sichtbar=1", "Logo Rahmen sichtbar=1", "Logo Dateiname=logo.bmp", "Logo Breite in cm=6",
    "Logo H\xF6he in cm=2",
    "[Punktdarstellung]", "PunktAlsKreis=0", "PunktAlsPunkt=1",
    "[Defaults]", "Aktive Tabelle=7", "LV=Kanal 2024", "Winkeleinheit=1",
    "[Tabelle]", "AnzahlPunkte=1500",
    "[Linien Farben]", "Eintrag 0=255 Grenze", "Eintrag 20=65280 Achse",
    "[Punkt Farben]", "Eintrag 1=128 Dunkelrot", "Eintrag 39=16711680 Blau",
    "[Variables]", "A=1,5", "Z=-2.25",
    "[Korrekturen]", "Korrektur 0=-12,5 Abzug T\xFCr", "Korrektur 24=3 Zuschlag",
    "[Punkt-Kurzbezeichnungen]", "Bezeichnung 0=GP", "Bezeichnung 99=Schacht", "Standard=99",
    "[Punkt-Darstellung]", "Bezeichnung 0=3", "Bezeichnung 99=9",
    "[Punkt-Beschriftung]", "Bezeichnung 0=2", "Bezeichnung 99=19",
});

TEST(EinstellungenLesen, EveryKeyOfTheProjectFileReachesItsValue) {
  Umgebung u;
  Umgebung::schreiben(u.projektIni(), kProjekt);
  EinstellungenLesen(u.k);
  const Zustand& z = *u.z;
  const Einstellungen& e = z.Einstellungen;

  EXPECT_EQ(e.ProjektTitel, "Straßenbau Nord");
  EXPECT_EQ(e.StandardFormat, "0.00");
  EXPECT_EQ(e.ErgebnisFormat, "0.0");
  EXPECT_EQ(e.NummernFormat, "0");
  EXPECT_EQ(e.StationierungsFormat, "0.000");
  EXPECT_EQ(e.WaehrungsFormat, "0.00 €");
  EXPECT_EQ(e.AusgabeFormat, "0.0000");

  EXPECT_EQ(e.GrafikPrinter, "Plotter");
  EXPECT_EQ(e.TabellenPrinter, "Laser");
  EXPECT_EQ(e.Font, "Times New Roman");
  EXPECT_EQ(e.FontSize, 10.5) << "a measure is read comma-tolerant";
  EXPECT_EQ(e.FontBold, Wahr);
  EXPECT_EQ(e.FontItalic, Wahr) << "any number but 0 is true";
  EXPECT_EQ(e.RahmenDrucken, Falsch);
  EXPECT_EQ(e.MitLVDrucken, Wahr);
  EXPECT_EQ(e.MitLVDruckenLinks, Wahr) << "asked for with a trailing blank, found without";
  EXPECT_EQ(e.MitLVDruckenRechts, Wahr);
  EXPECT_EQ(e.SchraffurWin95, Wahr);

  EXPECT_EQ(e.GrafikFont, "Courier");
  EXPECT_EQ(e.GrafikFontSize, 9.5);
  EXPECT_EQ(e.GrafikFontBold, Wahr);
  EXPECT_EQ(e.GrafikFontItalic, Wahr);
  EXPECT_EQ(e.KreiseEmulieren, Falsch);
  EXPECT_EQ(z.Ansicht.Massstab, 250);
  EXPECT_EQ(z.Ansicht.Vergleichsebene, 12.5);
  EXPECT_EQ(z.Ansicht.YOffset, -3.25) << "the key XOffset holds the shift of the vertical axis";
  EXPECT_EQ(z.Ansicht.XOffset, 0) << "and not the view's centre";
  EXPECT_EQ(z.Ansicht.VergleichsebeneSichtbar, 0);
  EXPECT_EQ(z.Ansicht.YAchseSichtbar, 0);
  EXPECT_EQ(z.Ansicht.YMitte, 7.5);
  EXPECT_EQ(z.Ansicht.XMitte, -8.5);
  EXPECT_EQ(z.Ansicht.Rasterabstand, 2.5);
  EXPECT_EQ(z.Ansicht.Achsenbeschriftung, 1);
  EXPECT_EQ(z.Ansicht.Gitterstil, 2);
  EXPECT_EQ(z.Ansicht.GitterFarbIndex, 4);
  EXPECT_EQ(z.Ansicht.GitterSchriftFarbIndex, 5);
  EXPECT_EQ(z.StandardAusrichtung, 4);
  EXPECT_EQ(z.StandardDistanz, 0.25);
  EXPECT_EQ(z.StandardPunktFarbe, 3);
  EXPECT_EQ(z.StandardLinienFarbe, 1);
  EXPECT_EQ(z.Ansicht.Massstabtyp, 2);
  EXPECT_EQ(z.Ansicht.LogoSichtbar, 1);
  EXPECT_EQ(e.LogoRahmenSichtbar, 1);
  EXPECT_EQ(e.LogoDateiname, "logo.bmp");
  EXPECT_EQ(e.LogoBreiteInCm, 6);
  EXPECT_EQ(e.LogoHoeheInCm, 2);
  EXPECT_EQ(e.PunktAlsKreis, 0);
  EXPECT_EQ(e.PunktAlsPunkt, 1);
  EXPECT_EQ(z.AktiveTabelle, 7);
  EXPECT_EQ(e.LV, "Kanal 2024");
  EXPECT_EQ(e.Winkeleinheit, 1);
  EXPECT_DOUBLE_EQ(z.WinkelFaktor, kPi / 180);
  EXPECT_EQ(z.AnzahlPunkte, 1500);
  EXPECT_EQ(z.Punkte.size(), 1501u);

  EXPECT_EQ(z.LinienFarben[0].Farbe, 255);
  EXPECT_EQ(z.LinienFarben[0].Name, "Grenze");
  EXPECT_EQ(z.LinienFarben[20].Farbe, 65280);
  EXPECT_EQ(z.LinienFarben[20].Name, "Achse");
  EXPECT_EQ(z.LinienFarben[1].Name, "Rot") << "a missing entry keeps its default colour";
  EXPECT_EQ(z.PunktFarben[1].Farbe, 128);
  EXPECT_EQ(z.PunktFarben[1].Name, "Dunkelrot");
  EXPECT_EQ(z.PunktFarben[39].Farbe, 16711680);
  EXPECT_EQ(z.Variablen[0], 1.5);
  EXPECT_EQ(z.Variablen[25], -2.25);
  EXPECT_EQ(z.Variablen[1], 0);
  EXPECT_EQ(z.Korrekturen[0].Wert, -12.5);
  EXPECT_EQ(z.Korrekturen[0].Name, "Abzug Tür");
  EXPECT_EQ(z.Korrekturen[24].Wert, 3);
  EXPECT_EQ(z.Korrekturen[24].Name, "Zuschlag");
  EXPECT_EQ(z.Korrekturen[1].Name, " (kein)");
  EXPECT_EQ(z.Kurzbezeichnungen[0].Text, "GP");
  EXPECT_EQ(z.Kurzbezeichnungen[99].Text, "Schacht");
  EXPECT_EQ(z.StandardKurzBezeichnung, 99);
  EXPECT_EQ(z.Kurzbezeichnungen[0].Darstellung, 3);
  EXPECT_EQ(z.Kurzbezeichnungen[99].Darstellung, 9);
  EXPECT_EQ(z.Kurzbezeichnungen[0].Beschriftung, 2);
  EXPECT_EQ(z.Kurzbezeichnungen[99].Beschriftung, 19);
}

TEST(EinstellungenLesen, NewPointSlotsTakeTheSettingsJustRead) {
  Umgebung u;
  Umgebung::schreiben(u.projektIni(), kProjekt);
  EinstellungenLesen(u.k);
  const Zustand& z = *u.z;
  // Alignment 4 with distance 0.25: right and down.
  EXPECT_EQ(z.StandardTextDx, 0.25f);
  EXPECT_EQ(z.StandardTextDy, -0.25f);
  const Punkt& neu = z.Punkte[1200];
  EXPECT_EQ(neu.Nummer, 1200);
  EXPECT_EQ(neu.TextDx, 0.25f);
  EXPECT_EQ(neu.TextDy, -0.25f);
  EXPECT_EQ(neu.KurzBez, 99);
  EXPECT_EQ(neu.Farbe, 0xFF0000) << "entry 3 of the point colours is not in the file: its default, Blau";
}

TEST(EinstellungenLesen, TheProgramFileGivesWindowIntervalSkinAndProjects) {
  Umgebung u;
  Umgebung::schreiben(u.kolmIni(),
                      Zeilen({"[kolm]", "ProgramDir=/opt/kolm/", "WindowState=0", "Left=10", "Top=20",
                              "Width=800", "Height=600", "[Automatisch Speichern]", "Intervall=5", "[Skin]",
                              "SkinName=Blau", "[last project]", "Name=Kanal", "[projects]",
                              "Demo Projekt=/opt/kolm/Demo Projekt/", "Kanal=/home/a/Kanal/"}));
  std::vector<std::string> schritte;
  u.k.hauptfensterAnwenden = [&](const Einstellungen& e) {
    schritte.push_back("Fenster " + std::to_string(e.Left) + "," + std::to_string(e.Top) + "," +
                       std::to_string(e.Width) + "," + std::to_string(e.Height));
  };
  u.k.skinAnwenden = [&](const std::string& skin) { schritte.push_back("Skin " + skin); };
  ProgrammEinstellungen gesehen;
  u.k.projektAufloesen = [&](Zustand& z, const ProgrammEinstellungen& p) {
    schritte.push_back("Projekt");
    gesehen = p;
    EXPECT_EQ(z.Laden, Wahr) << "the project is resolved while loading";
  };
  u.k.winkeleinheitAnwenden = [&](int einheit) { schritte.push_back("Winkel " + std::to_string(einheit)); };
  EinstellungenLesen(u.k);

  EXPECT_EQ(schritte, (std::vector<std::string>{"Fenster 10,20,800,600", "Skin Blau", "Projekt", "Winkel 0"}));
  const Einstellungen& e = u.z->Einstellungen;
  EXPECT_EQ(e.ProgramDir, "/opt/kolm/");
  EXPECT_EQ(u.z->Intervall, 5);
  EXPECT_EQ(e.SkinName, "Blau");
  EXPECT_EQ(gesehen.LetztesProjekt, "Kanal");
  EXPECT_EQ(gesehen.LetztesVerzeichnis, "/home/a/Kanal/");
  ASSERT_EQ(gesehen.Projekte.size(), 2u);
  EXPECT_EQ(gesehen.Projekte[0].Name, "Demo Projekt");
  EXPECT_EQ(gesehen.Projekte[0].Verzeichnis, "/opt/kolm/Demo Projekt/");
  EXPECT_EQ(gesehen.Projekte[1].Name, "Kanal");
  EXPECT_EQ(u.z->Laden, Falsch);
  EXPECT_EQ(u.busy.times(), 1);
  EXPECT_EQ(u.busy.depth(), 0) << "the busy cursor is back";
}

TEST(EinstellungenLesen, AMaximisedMainKeepsItsPositionAndAnUnknownProjectLiesInTheProgramFolder) {
  Umgebung u;
  Umgebung::schreiben(u.kolmIni(), Zeilen({"[kolm]", "WindowState=2", "Left=10", "Top=20", "Width=800",
                                           "Height=600", "[last project]", "Name=Weg"}));
  u.z->Einstellungen.Left = 1;
  u.z->Einstellungen.Width = 3;
  const ProgrammEinstellungen p = ProgrammEinstellungenLesen(u.k);
  EXPECT_EQ(u.z->Einstellungen.WindowState, 2);
  EXPECT_EQ(u.z->Einstellungen.Left, 1);
  EXPECT_EQ(u.z->Einstellungen.Width, 3);
  EXPECT_EQ(p.LetztesProjekt, "Weg");
  EXPECT_EQ(p.LetztesVerzeichnis, u.z->ProgrammVerzeichnis);
  EXPECT_TRUE(p.Projekte.empty());

  // Normal again, with some keys missing: those keep Main's current values.
  Umgebung::schreiben(u.kolmIni(), Zeilen({"[kolm]", "WindowState=0", "Top=20"}));
  ProgrammEinstellungenLesen(u.k);
  EXPECT_EQ(u.z->Einstellungen.Left, 1);
  EXPECT_EQ(u.z->Einstellungen.Top, 20);
  EXPECT_EQ(u.z->Einstellungen.Width, 3);
}

TEST(EinstellungenLesen, WithoutResolutionTheProjectNamedInTheStateIsRead) {
  Umgebung u;
  Umgebung::schreiben(u.projektIni(), Zeilen({"[Defaults]", "LV=Eins"}));
  EinstellungenLesen(u.k);
  EXPECT_EQ(u.z->Einstellungen.LV, "Eins");
  EXPECT_EQ(u.z->ProjektName, "Projekt A");
}

// ---- Rules on the values read --------------------------------------------------------

struct Projektwert {
  const char* zeilen;
  double distanz, raster;
};

TEST(EinstellungenLesen, DistanceAndGridSpacingAreKeptUsable) {
  Umgebung u;
  const std::vector<Projektwert> faelle = {
      {"StandardDistanz=0\r\nRasterabstand=0\r\n", 0.1, 10},
      {"StandardDistanz=-2\r\nRasterabstand=-5\r\n", 0.1, -5},
      {"StandardDistanz=Text\r\nRasterabstand=Text\r\n", 0.1, 10},
      {"StandardDistanz=0,001\r\nRasterabstand=0,5\r\n", 0.001, 0.5},
  };
  for (const auto& f : faelle) {
    Umgebung::schreiben(u.projektIni(), std::string("[Grafik Defaults]\r\n") + f.zeilen);
    EinstellungenLesen(u.k);
    EXPECT_EQ(u.z->StandardDistanz, f.distanz) << f.zeilen;
    EXPECT_EQ(u.z->Ansicht.Rasterabstand, f.raster) << f.zeilen;
  }
}

TEST(EinstellungenLesen, TheStandardDesignationOutsideTheListIsTheFirst) {
  Umgebung u;
  for (const auto& [text, erwartet] : std::vector<std::pair<const char*, int>>{
           {"Standard=100", 0}, {"Standard=-1", 0}, {"Standard=99", 99}, {"Standard=0", 0}, {"Standard=42", 42}}) {
    Umgebung::schreiben(u.projektIni(), std::string("[Punkt-Kurzbezeichnungen]\r\n") + text + "\r\n");
    EinstellungenLesen(u.k);
    EXPECT_EQ(u.z->StandardKurzBezeichnung, erwartet) << text;
  }
}

TEST(EinstellungenLesen, AnzahlPunkteIsClampedAndResizingKeepsThePoints) {
  Umgebung u;
  u.z->Punkte[500].A = 12.5;
  const std::vector<std::pair<const char*, int>> faelle = {
      {"500", 999}, {"20000", 9999}, {"1500", 1500}, {"9999", 9999}, {"1e9", 9999}, {"-3", 999},
      {"1,500", 999},  // plain parse: stops at the comma
      {"1000.5", 1000}, {"1001.5", 1002}, {"", 999}, {"viele", 999}};
  for (const auto& [text, erwartet] : faelle) {
    Umgebung::schreiben(u.projektIni(), std::string("[Tabelle]\r\nAnzahlPunkte=") + text + "\r\n");
    EinstellungenLesen(u.k);
    EXPECT_EQ(u.z->AnzahlPunkte, erwartet) << text;
    EXPECT_EQ(u.z->Punkte.size(), static_cast<std::size_t>(erwartet) + 1) << text;
    EXPECT_EQ(u.z->Punkte[500].A, 12.5) << text;
  }
}

TEST(EinstellungenLesen, TheAngleUnitSetsTheFactorAndAnUnknownEntryKeepsIt) {
  Umgebung u;
  int angewandt = -9;
  u.k.winkeleinheitAnwenden = [&](int e) { angewandt = e; };
  const std::vector<std::tuple<const char*, int, double>> faelle = {
      {"2", 2, 1.0}, {"1", 1, kPi / 180}, {"3", 1, kPi / 180}, {"-1", 1, kPi / 180}, {"0", 0, kPi / 200}};
  for (const auto& [text, einheit, faktor] : faelle) {
    Umgebung::schreiben(u.projektIni(), std::string("[Defaults]\r\nWinkeleinheit=") + text + "\r\n");
    EinstellungenLesen(u.k);
    EXPECT_EQ(u.z->Einstellungen.Winkeleinheit, einheit) << text;
    EXPECT_EQ(angewandt, einheit) << text;
    EXPECT_DOUBLE_EQ(u.z->WinkelFaktor, faktor) << text;
  }
  EXPECT_EQ(u.z->WinkelFaktor, 3.141592654 / 200) << "the program's own Pi, not the exact one";
}

TEST(EinstellungenLesen, EveryAlignmentGivesItsCaptionOffset) {
  Umgebung u;
  const float d = 0.5f;
  const std::vector<std::pair<float, float>> versatz = {{0, 0},  {0, d},   {d, d},   {d, 0}, {d, -d},
                                                        {0, -d}, {-d, -d}, {-d, 0}, {-d, d}};
  for (int a = 0; a <= 8; ++a) {
    Umgebung::schreiben(u.projektIni(), "[Grafik Defaults]\r\nStandardDistanz=0.5\r\nStandardAusrichtung=" +
                                            std::to_string(a) + "\r\n");
    EinstellungenLesen(u.k);
    EXPECT_EQ(u.z->StandardTextDx, versatz[a].first) << a;
    EXPECT_EQ(u.z->StandardTextDy, versatz[a].second) << a;
  }
  // Above 8 the offsets stay as they were.
  Umgebung::schreiben(u.projektIni(), "[Grafik Defaults]\r\nStandardDistanz=3\r\nStandardAusrichtung=9\r\n");
  EinstellungenLesen(u.k);
  EXPECT_EQ(u.z->StandardAusrichtung, 9);
  EXPECT_EQ(u.z->StandardTextDx, -d);
  EXPECT_EQ(u.z->StandardTextDy, d);
}

TEST(EinstellungenLesen, AnIntegerBeyondItsFieldLeavesTheFieldAsItWas) {
  Umgebung u;
  Umgebung::schreiben(u.projektIni(), Zeilen({"[Defaults]", "Aktive Tabelle=40000", "[Grafik Defaults]",
                                              "Gitterstil=-32769", "GitterFarbIndex=32767", "Logo sichtbar=-32768",
                                              "Achsenbeschriftung=12abc"}));
  u.z->AktiveTabelle = 4;
  EinstellungenLesen(u.k);
  EXPECT_EQ(u.z->AktiveTabelle, 4);
  EXPECT_EQ(u.z->Ansicht.Gitterstil, 3);
  EXPECT_EQ(u.z->Ansicht.GitterFarbIndex, 32767);
  EXPECT_EQ(u.z->Ansicht.LogoSichtbar, -32768);
  EXPECT_EQ(u.z->Ansicht.Achsenbeschriftung, 12) << "the leading number of the text";
}

TEST(EinstellungenLesen, TextValuesAreCutToTheirBuffers) {
  Umgebung u;
  const std::string lang(300, 'x');
  Umgebung::schreiben(u.kolmIni(), "[Skin]\r\nSkinName=" + lang + "\r\n[last project]\r\nName=P\r\n[projects]\r\nP=" +
                                       lang + "\r\n");
  Umgebung::schreiben(u.projektIni(), "[Defaults]\r\nLV=" + lang + "\r\n[Punkt-Kurzbezeichnungen]\r\nBezeichnung 0=" +
                                          std::string(39, 'y') + "\xFC\xFC\r\n");
  ProgrammEinstellungen p;
  u.k.projektAufloesen = [&](Zustand&, const ProgrammEinstellungen& gelesen) { p = gelesen; };
  EinstellungenLesen(u.k);
  EXPECT_EQ(u.z->Einstellungen.SkinName, std::string(249, 'x'));
  EXPECT_EQ(p.LetztesVerzeichnis, std::string(99, 'x'));
  EXPECT_EQ(u.z->Einstellungen.LV, std::string(39, 'x'));
  EXPECT_EQ(u.z->Kurzbezeichnungen[0].Text, std::string(39, 'y')) << "39 characters of the code page";
}

TEST(EinstellungenLesen, ASecondProjectWithoutKeysGetsTheDefaultsNotTheFirstProjectsValues) {
  Umgebung u;
  Umgebung::schreiben(u.projektIni(), kProjekt);
  EinstellungenLesen(u.k);
  ASSERT_EQ(u.z->Einstellungen.NummernFormat, "0");
  u.projektOeffnen("Projekt B");  // no file at all
  std::filesystem::create_directories(u.projektVerzeichnis("Projekt B"));
  EinstellungenLesen(u.k);
  EXPECT_EQ(u.z->Punkte.size(), 1000u);
  // Written, its file is the one of a project read from no file at all.
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  Umgebung frisch;
  EinstellungenLesen(frisch.k);
  ASSERT_TRUE(EinstellungenSchreiben(frisch.k));
  EXPECT_EQ(Umgebung::lesen(u.projektIni("Projekt B")), Umgebung::lesen(frisch.projektIni()));
}

// ---- List sections ---------------------------------------------------------------------

TEST(EinstellungenLesen, ColourAndCorrectionValuesAreSplitAtTheFirstBlank) {
  Umgebung u;
  struct Fall {
    const char* text;
    Long farbe;
    double wert;
    const char* name;
  };
  const std::vector<Fall> faelle = {
      {"255 Rot", 255, 255, "Rot"},
      {"0 Schwarz", 0, 0, "Schwarz"},
      {"00 Null", 0, 0, "Null"},
      {"Rot", 0, 0, ""},            // 0 and not beginning with "0": empty
      {"-0 Minus", 0, 0, ""},
      {",0 Komma", 0, 0, ""},
      {"12,5 Zuschlag", 12, 12.5, "Zuschlag"},  // a colour is whole: 12.5 rounds to the even 12
      {"255", 255, 255, ""},
      {"255  Hell rot", 255, 255, " Hell rot"},
      {"1e3 Tausend", 1000, 1000, "Tausend"},
      {"0", 0, 0, ""},
  };
  std::string datei = "[Punkt Farben]\r\n";
  std::string korr = "[Korrekturen]\r\n";
  for (std::size_t i = 0; i < faelle.size(); ++i) {
    datei += "Eintrag " + std::to_string(i) + "=" + faelle[i].text + "\r\n";
    korr += "Korrektur " + std::to_string(i) + "=" + faelle[i].text + "\r\n";
  }
  datei += "Eintrag 20=\r\n";
  korr += "Korrektur 20=\r\n";
  Umgebung::schreiben(u.projektIni(), datei + korr);
  EinstellungenLesen(u.k);
  for (std::size_t i = 0; i < faelle.size(); ++i) {
    EXPECT_EQ(u.z->PunktFarben[i].Name, faelle[i].name) << faelle[i].text;
    EXPECT_EQ(u.z->Korrekturen[i].Name, faelle[i].name) << faelle[i].text;
    EXPECT_EQ(u.z->Korrekturen[i].Wert, faelle[i].wert) << faelle[i].text;
  }
  for (std::size_t i = 0; i < faelle.size(); ++i)
    EXPECT_EQ(u.z->PunktFarben[i].Farbe, faelle[i].farbe) << faelle[i].text;
  EXPECT_EQ(u.z->PunktFarben[20].Name, "") << "an empty value is an empty entry";
  EXPECT_EQ(u.z->PunktFarben[20].Farbe, 0);
  EXPECT_EQ(u.z->Korrekturen[20].Name, "");
}

TEST(EinstellungenLesen, NumbersInKeyNamesFollowTheNumberFormatOfTheFile) {
  Umgebung u;
  Umgebung::schreiben(u.projektIni(),
                      Zeilen({"[Formats]", "NummernFormat=000", "[Linien Farben]", "Eintrag 003=255 Drei",
                              "Eintrag 4=255 Vier", "[Korrekturen]", "Korrektur 007=7 Sieben",
                              "[Punkt-Kurzbezeichnungen]", "Bezeichnung 012=Zw\xF6lf", "Bezeichnung 13=nein",
                              "[Punkt-Darstellung]", "Bezeichnung 012=4", "[Punkt-Beschriftung]",
                              "Bezeichnung 012=5"}));
  EinstellungenLesen(u.k);
  EXPECT_EQ(u.z->LinienFarben[3].Name, "Drei");
  EXPECT_EQ(u.z->LinienFarben[4].Name, "Gelb") << "\"Eintrag 4\" is not the key of entry 4 now";
  EXPECT_EQ(u.z->Korrekturen[7].Name, "Sieben");
  EXPECT_EQ(u.z->Kurzbezeichnungen[12].Text, "Zwölf");
  EXPECT_EQ(u.z->Kurzbezeichnungen[13].Text, "");
  EXPECT_EQ(u.z->Kurzbezeichnungen[12].Darstellung, 4);
  EXPECT_EQ(u.z->Kurzbezeichnungen[12].Beschriftung, 5);
}

TEST(EinstellungenLesen, AnUnreadableProjectFileGivesTheDefaults) {
  Umgebung u;
  std::filesystem::create_directories(u.projektIni());  // a folder where the file should be
  static const char kaputt[] = "\xFF\xFE[kolm\r\n\0\0=\r\n[last project\r\nName";
  Umgebung::schreiben(u.kolmIni(), std::string(kaputt, sizeof kaputt - 1));
  EinstellungenLesen(u.k);
  EXPECT_EQ(u.z->Einstellungen.NummernFormat, "###0");
  EXPECT_EQ(u.z->Kurzbezeichnungen[0].Text, "Pkt.");
  EXPECT_EQ(u.z->Einstellungen.LetztesProjekt, "Demo Projekt");
}

// ---- The path of the program settings ---------------------------------------------------

TEST(KolmIniPfad, KolmIniThenXdgThenHome) {
  std::map<std::string, std::string> env;
  auto leser = [&](const char* n) -> const char* {
    auto it = env.find(n);
    return it == env.end() ? nullptr : it->second.c_str();
  };
  EXPECT_EQ(KolmIniPfad(leser), "Kolm.ini") << "nothing known";
  env["HOME"] = "/home/anna";
  EXPECT_EQ(KolmIniPfad(leser), "/home/anna/.config/Kolm/Kolm.ini");
  env["XDG_CONFIG_HOME"] = "relativ/conf";
  EXPECT_EQ(KolmIniPfad(leser), "/home/anna/.config/Kolm/Kolm.ini") << "a relative XDG path is ignored";
  env["XDG_CONFIG_HOME"] = "/var/conf";
  EXPECT_EQ(KolmIniPfad(leser), "/var/conf/Kolm/Kolm.ini");
  env["KOLM_INI"] = "";
  EXPECT_EQ(KolmIniPfad(leser), "/var/conf/Kolm/Kolm.ini") << "an empty KOLM_INI names nothing";
  env["KOLM_INI"] = "/tmp/test.ini";
  EXPECT_EQ(KolmIniPfad(leser), "/tmp/test.ini");
  EXPECT_EQ(KolmIniPfad(nullptr), "Kolm.ini");
}

TEST(ProjektIniPfad, TheFileNameFollowsTheFolder) {
  EXPECT_EQ(ProjektIniPfad("/p/Kanal/"), "/p/Kanal/Kolmproj.ini");
  EXPECT_EQ(ProjektIniPfad("/p/Kanal"), "/p/Kanal/Kolmproj.ini");
  EXPECT_EQ(ProjektIniPfad(""), "Kolmproj.ini");
}

}  // namespace
}  // namespace kolm::core
