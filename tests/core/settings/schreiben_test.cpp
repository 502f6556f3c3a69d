// Writing the settings: the bytes of both files, the number formats, what
// stays of a file, the round trip, failed writes and their one message.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/profile/profile.h"
#include "einstellungen_hilfen.h"

namespace kolm::core {
namespace {

using einstellungstest::Abschnitt;
using einstellungstest::Umgebung;
using einstellungstest::Zeilen;

std::vector<std::string> Abschnitte(const std::string& pfad) {
  return profile::ProfileFile::Load(pfad).SectionNames();
}

// ---- The bytes of a fresh program -------------------------------------------------------

TEST(EinstellungenSchreiben, AFreshProgramWritesTheProgramFileExactly) {
  Umgebung u;
  EinstellungenLesen(u.k);
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  EXPECT_EQ(Umgebung::lesen(u.kolmIni()),
            Zeilen({"[kolm]", "ProgramDir=", "WindowState=0", "Left=0", "Top=0", "Width=0", "Height=0",
                    "[Automatisch Speichern]", "Intervall=0", "[last project]", "Name=Projekt A", "[Skin]",
                    "SkinName="}))
      << "the folder of Kolm.ini was made; the open project is the last one";
  EXPECT_TRUE(u.meldungen.shown().empty());
  EXPECT_FALSE(u.z->Einstellungen.IniFehler);
}

TEST(EinstellungenSchreiben, AProjectWithoutSettingsGetsEveryKeyInItsSection) {
  Umgebung u;
  EinstellungenLesen(u.k);
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  const std::string datei = Umgebung::lesen(u.projektIni());
  EXPECT_EQ(Abschnitte(u.projektIni()),
            (std::vector<std::string>{"Project", "Formats", "Printer", "Grafik Defaults", "Punktdarstellung",
                                      "Defaults", "Tabelle", "Linien Farben", "Punkt Farben", "Variables",
                                      "Korrekturen", "Punkt-Kurzbezeichnungen", "Punkt-Darstellung",
                                      "Punkt-Beschriftung"}));
  EXPECT_EQ(Abschnitt(datei, "Project"), Zeilen({"[Project]", "Name=Projekt"}));
  EXPECT_EQ(Abschnitt(datei, "Formats"),
            Zeilen({"[Formats]", "StandardFormat=#######0.000###", "ErgebnisFormat=#######0.000",
                    "NummernFormat=###0", "StationierungsFormat=#####0.000000", "W\xE4hrungsFormat=#0.00",
                    "AusgabeFormat=0.000"}));
  EXPECT_EQ(Abschnitt(datei, "Printer"),
            Zeilen({"[Printer]", "GrafikPrinter=", "TabellenPrinter=", "Font=Arial", "FontSize=12", "FontBold=0",
                    "FontItalic=0", "Rahmen Drucken=-1", "MitLVDrucken =0", "MitLVDruckenLinks=0",
                    "MitLVDruckenRechts=0", "SchraffurWin95=0"}))
      << "the writer's key texts, the blank of \"MitLVDrucken \" included";
  EXPECT_EQ(Abschnitt(datei, "Grafik Defaults"),
            Zeilen({"[Grafik Defaults]", "GrafikFont=Arial", "GrafikFontSize=8", "GrafikFontBold=0",
                    "GrafikFontItalic=0", "Kreise Emulieren=-1", "Ma\xDFstab=100.000", "Vergleichsebene=0",
                    "XOffset=0", "Vergleichsebene sichtbar=1", "Y-Achse sichtbar=1", "YMitte=0", "XMitte=0",
                    "Rasterabstand=10.000", "Achsenbeschriftung=0", "Gitterstil=3", "GitterFarbIndex=8",
                    "GitterSchriftFarbIndex=8", "StandardAusrichtung=2", "StandardDistanz=0.1",
                    "StandardPunktFarbe=0", "StandardLinienFarbe=0", "Ma\xDFstabtyp=1", "Logo sichtbar=0",
                    "Logo Rahmen sichtbar=0", "Logo Dateiname=", "Logo Breite in cm=4", "Logo H\xF6he in cm=1"}))
      << "Maßstab and Rasterabstand by ErgebnisFormat";
  EXPECT_EQ(Abschnitt(datei, "Punktdarstellung"), Zeilen({"[Punktdarstellung]", "PunktAlsKreis=1", "PunktAlsPunkt=0"}));
  EXPECT_EQ(Abschnitt(datei, "Defaults"), Zeilen({"[Defaults]", "Aktive Tabelle=-1", "LV=", "Winkeleinheit=0"}));
  EXPECT_EQ(Abschnitt(datei, "Tabelle"), Zeilen({"[Tabelle]", "AnzahlPunkte=999"}));

  const std::string linien = Abschnitt(datei, "Linien Farben");
  EXPECT_NE(linien.find("\r\nEintrag 0=0 Schwarz\r\nEintrag 1=255 Rot\r\nEintrag 2=32768 Gr\xFCn\r\n"),
            std::string::npos);
  EXPECT_NE(linien.find("\r\nEintrag 15=16777215 Wei\xDF\r\nEintrag 16=0 \r\n"), std::string::npos);
  EXPECT_NE(linien.find("\r\nEintrag 20=0 \r\n"), std::string::npos);
  EXPECT_EQ(linien.find("Eintrag 21"), std::string::npos);
  EXPECT_NE(Abschnitt(datei, "Punkt Farben").find("\r\nEintrag 39=0 \r\n"), std::string::npos);
  EXPECT_EQ(Abschnitt(datei, "Punkt Farben").find("Eintrag 40"), std::string::npos);

  const std::string variablen = Abschnitt(datei, "Variables");
  EXPECT_EQ(variablen.substr(0, 36), "[Variables]\r\nA=0.000\r\nB=0.000\r\nC=0.0") << "by StandardFormat";
  EXPECT_NE(variablen.find("\r\nZ=0.000\r\n"), std::string::npos);
  EXPECT_NE(Abschnitt(datei, "Korrekturen").find("[Korrekturen]\r\nKorrektur 0=0  (kein)\r\n"), std::string::npos);
  EXPECT_NE(Abschnitt(datei, "Korrekturen").find("\r\nKorrektur 24=0  (kein)\r\n"), std::string::npos);
  const std::string kurz = Abschnitt(datei, "Punkt-Kurzbezeichnungen");
  EXPECT_NE(kurz.find("[Punkt-Kurzbezeichnungen]\r\nBezeichnung 0=Pkt.\r\nBezeichnung 1=\r\n"), std::string::npos);
  EXPECT_NE(kurz.find("\r\nBezeichnung 99=\r\nStandard=0\r\n"), std::string::npos);
  EXPECT_NE(Abschnitt(datei, "Punkt-Darstellung").find("\r\nBezeichnung 99=0\r\n"), std::string::npos);
  EXPECT_NE(Abschnitt(datei, "Punkt-Beschriftung").find("\r\nBezeichnung 99=0\r\n"), std::string::npos);

  // Every line ends in CR LF.
  std::size_t lf = 0, crlf = 0;
  for (std::size_t i = 0; i < datei.size(); ++i)
    if (datei[i] == '\n') ++lf, crlf += i > 0 && datei[i - 1] == '\r';
  EXPECT_EQ(lf, crlf);
  EXPECT_GT(lf, 400u);
}

// ---- Numbers by the formats --------------------------------------------------------------

TEST(EinstellungenSchreiben, NumbersFollowTheFormatsOfTheProject) {
  Umgebung u;
  EinstellungenLesen(u.k);
  Zustand& z = *u.z;
  z.Einstellungen.NummernFormat = "000";
  z.Einstellungen.ErgebnisFormat = "0.0";
  z.Einstellungen.StandardFormat = "0.00";
  z.Ansicht.Massstab = 250.25;
  z.Ansicht.Rasterabstand = 2.5;
  z.Ansicht.Vergleichsebene = 123.456789012;
  z.StandardDistanz = 0.35;
  z.Variablen[0] = 1.005;
  z.Variablen[1] = -2.5;
  z.AktiveTabelle = 7;
  z.Korrekturen[3] = {"Abzug", -12.125};
  z.PunktFarben[2] = {65535, "Gelb"};
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  const std::string datei = Umgebung::lesen(u.projektIni());
  EXPECT_NE(datei.find("\r\nMa\xDFstab=250.3\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nRasterabstand=2.5\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nVergleichsebene=123.456789012\r\n"), std::string::npos) << "nothing lost";
  EXPECT_NE(datei.find("\r\nStandardDistanz=0.35\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nGitterstil=003\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nAktive Tabelle=007\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nAnzahlPunkte=999\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nRahmen Drucken=-001\r\n"), std::string::npos);
  EXPECT_NE(datei.find("[Variables]\r\nA=1.01\r\nB=-2.50\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nKorrektur 003=-12.125 Abzug\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nEintrag 002=65535 Gelb\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nBezeichnung 000=Pkt.\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nStandard=000\r\n"), std::string::npos);

  // The next start finds every entry under the same key names.
  auto neu = u.neuGelesen();
  EXPECT_EQ(neu->Korrekturen[3].Name, "Abzug");
  EXPECT_EQ(neu->Korrekturen[3].Wert, -12.125);
  EXPECT_EQ(neu->PunktFarben[2].Farbe, 65535);
  EXPECT_EQ(neu->Kurzbezeichnungen[0].Text, "Pkt.");
  EXPECT_EQ(neu->Variablen[0], 1.01);
  EXPECT_EQ(neu->AktiveTabelle, 7);
  EXPECT_EQ(neu->Ansicht.Massstab, 250.3);
}

TEST(EinstellungenSchreiben, TheDecimalPointIsAPointWhateverTheLocale) {
  Umgebung u;
  ::setenv("KOLM_DEZIMALZEICHEN", ",", 1);
  EinstellungenLesen(u.k);
  u.z->Ansicht.Massstab = 1.5;
  u.z->StandardDistanz = 0.25;
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  ::unsetenv("KOLM_DEZIMALZEICHEN");
  const std::string datei = Umgebung::lesen(u.projektIni());
  EXPECT_NE(datei.find("\r\nMa\xDFstab=1.500\r\n"), std::string::npos);
  EXPECT_NE(datei.find("\r\nStandardDistanz=0.25\r\n"), std::string::npos);
}

// ---- Round trip ---------------------------------------------------------------------------

TEST(EinstellungenSchreiben, WhatIsWrittenIsReadBackByTheNextStart) {
  Umgebung u;
  EinstellungenLesen(u.k);
  Zustand& z = *u.z;
  Einstellungen& e = z.Einstellungen;
  e.ProgramDir = "/opt/kolm/";
  e.Left = -20, e.Top = 30, e.Width = 1200, e.Height = 900;
  e.SkinName = "Dunkel";
  z.Intervall = 5;
  e.ProjektTitel = "Straßenbau Nord";
  e.StationierungsFormat = "0.00";
  e.WaehrungsFormat = "0.00 €";
  e.AusgabeFormat = "0.0";
  e.GrafikPrinter = "Plotter";
  e.TabellenPrinter = "Laser";
  e.Font = "Times New Roman";
  e.FontSize = 10.5;
  e.FontBold = e.FontItalic = Wahr;
  e.RahmenDrucken = Falsch;
  e.MitLVDrucken = e.MitLVDruckenLinks = e.MitLVDruckenRechts = e.SchraffurWin95 = Wahr;
  e.GrafikFont = "Courier";
  e.GrafikFontSize = 9.5;
  e.GrafikFontBold = e.GrafikFontItalic = Wahr;
  e.KreiseEmulieren = Falsch;
  z.Ansicht.Massstab = 500;
  z.Ansicht.Vergleichsebene = 212.375;
  z.Ansicht.YOffset = -3.25;
  z.Ansicht.VergleichsebeneSichtbar = 0;
  z.Ansicht.YAchseSichtbar = 0;
  z.Ansicht.YMitte = 1e-7;
  z.Ansicht.XMitte = 123456.789;
  z.Ansicht.Rasterabstand = 5;
  z.Ansicht.Achsenbeschriftung = 1;
  z.Ansicht.Gitterstil = 2;
  z.Ansicht.GitterFarbIndex = 4;
  z.Ansicht.GitterSchriftFarbIndex = 5;
  z.StandardAusrichtung = 6;
  z.StandardDistanz = 0.75;
  z.StandardPunktFarbe = 3;
  z.StandardLinienFarbe = 1;
  z.Ansicht.Massstabtyp = 2;
  z.Ansicht.LogoSichtbar = 1;
  e.LogoRahmenSichtbar = 1;
  e.LogoDateiname = "logo.bmp";
  e.LogoBreiteInCm = 6;
  e.LogoHoeheInCm = 2;
  e.PunktAlsKreis = 0;
  e.PunktAlsPunkt = 1;
  z.AktiveTabelle = 12;
  e.LV = "Kanal";
  e.Winkeleinheit = 2;
  z.PunkteDimensionieren(2500);
  z.LinienFarben[20] = {8388608, "Achse blau"};
  z.PunktFarben[39] = {33023, "Orange"};
  z.PunktFarben[0] = {0, ""};
  z.Variablen[25] = -2.25;
  z.Korrekturen[24] = {"Zuschlag Tür", 0.5};
  z.Korrekturen[0] = {"", 0};
  z.Kurzbezeichnungen[0].Text = "";
  z.Kurzbezeichnungen[42] = {"Schacht", 7, 11};
  z.StandardKurzBezeichnung = 42;
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  const std::string programm = Umgebung::lesen(u.kolmIni());
  const std::string projekt = Umgebung::lesen(u.projektIni());

  // Every key of both files read back: the next start writes the same bytes
  // again ("MitLVDrucken " and "MitLVDruckenLinks" read under the other
  // spelling, emptied entries that stay empty, the counts and colours).
  auto neu = u.neuGelesen();
  EinstellungsKontext k2(*neu);
  k2.umgebung = u.k.umgebung;
  k2.meldungen = &u.meldungen;
  ASSERT_TRUE(EinstellungenSchreiben(k2));
  EXPECT_EQ(Umgebung::lesen(u.kolmIni()), programm);
  EXPECT_EQ(Umgebung::lesen(u.projektIni()), projekt);
  EXPECT_NE(projekt.find("\r\nMitLVDrucken =-1\r\nMitLVDruckenLinks=-1\r\n"), std::string::npos);
  // What the bytes cannot show: values kept to the last digit, and the
  // values derived from those read.
  EXPECT_EQ(neu->Einstellungen.LetztesProjekt, "Projekt A");
  EXPECT_EQ(neu->Ansicht.YMitte, 1e-7);
  EXPECT_EQ(neu->Ansicht.XMitte, 123456.789);
  EXPECT_EQ(neu->Einstellungen.FontSize, 10.5);
  EXPECT_EQ(neu->Einstellungen.GrafikFontSize, 9.5);
  EXPECT_EQ(neu->Ansicht.Vergleichsebene, 212.375);
  EXPECT_EQ(neu->Ansicht.YOffset, -3.25);
  EXPECT_EQ(neu->StandardDistanz, 0.75);
  EXPECT_EQ(neu->Variablen[25], -2.25);
  EXPECT_EQ(neu->Korrekturen[24].Wert, 0.5);
  EXPECT_EQ(neu->StandardTextDx, -0.75f);
  EXPECT_EQ(neu->StandardTextDy, -0.75f);
  EXPECT_EQ(neu->WinkelFaktor, 1.0);
  EXPECT_EQ(neu->Punkte.size(), 2501u);
  EXPECT_EQ(neu->Punkte[2400].KurzBez, 42) << "new slots take the standard designation read";
}

// ---- What stays of a file -------------------------------------------------------------------

TEST(EinstellungenSchreiben, EverythingElseInTheFilesStaysAsItWas) {
  Umgebung u;
  const std::string programmDatei = "; Kolm\r\n[kolm]\r\nProgramDir=/opt/kolm/\r\nWindowState=0\r\nLeft=5\r\n"
                              "[Berechnen]\r\nLeft=100\r\nTop=200\r\nWidth=300\r\nHeight=400\r\n"
                              "[projects]\r\nProjekt A=/irgendwo/\r\n";
  Umgebung::schreiben(u.kolmIni(), programmDatei);
  Umgebung::schreiben(u.projektIni(), "; von Hand\r\n[Eigenes]\r\nx=1\r\n[Formats]\r\nnummernformat=###0\r\n");
  EinstellungenLesen(u.k);
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  const std::string nachher = Umgebung::lesen(u.kolmIni());
  EXPECT_EQ(nachher.substr(0, 7), "; Kolm\r");
  EXPECT_EQ(Abschnitt(nachher, "Berechnen"), "[Berechnen]\r\nLeft=100\r\nTop=200\r\nWidth=300\r\nHeight=400\r\n");
  EXPECT_EQ(Abschnitt(nachher, "projects"), "[projects]\r\nProjekt A=/irgendwo/\r\n");
  EXPECT_NE(nachher.find("[kolm]\r\nProgramDir=/opt/kolm/\r\nWindowState=0\r\nLeft=5\r\nTop=0\r\n"), std::string::npos);

  const std::string projekt = Umgebung::lesen(u.projektIni());
  EXPECT_EQ(projekt.substr(0, 34), "; von Hand\r\n[Eigenes]\r\nx=1\r\n[Forma");
  EXPECT_NE(projekt.find("\r\nnummernformat=###0\r\n"), std::string::npos) << "a key keeps its own spelling";
  EXPECT_EQ(projekt.find("NummernFormat"), std::string::npos);
}

TEST(EinstellungenSchreiben, AMaximisedMainWritesItsStateButNoPosition) {
  Umgebung u;
  Umgebung::schreiben(u.kolmIni(), "[kolm]\r\nLeft=5\r\nTop=6\r\n");
  EinstellungenLesen(u.k);
  u.z->Einstellungen.WindowState = 2;
  u.z->Einstellungen.Left = 99;
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  EXPECT_EQ(Abschnitt(Umgebung::lesen(u.kolmIni()), "kolm"),
            "[kolm]\r\nLeft=5\r\nTop=6\r\nProgramDir=\r\nWindowState=2\r\n");
}

TEST(EinstellungenSchreiben, UnchangedFilesAreNotWrittenAgain) {
  Umgebung u;
  EinstellungenLesen(u.k);
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  std::vector<std::string> geschrieben;
  io::SetFaultHook([&](std::string_view schritt, const std::string& pfad) {
    if (schritt == "open") geschrieben.push_back(pfad);
    return false;
  });
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  EXPECT_TRUE(geschrieben.empty());
  u.z->Variablen[0] = 1;
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  EXPECT_EQ(geschrieben, std::vector<std::string>{u.projektIni()}) << "each changed file once";
}

TEST(EinstellungenSchreiben, WithoutAProjectOnlyTheProgramFileIsWritten) {
  Umgebung u;
  EinstellungenLesen(u.k);
  u.z->ProjektIni.clear();
  u.z->ProjektName.clear();
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  EXPECT_FALSE(std::filesystem::exists(u.projektIni()));
  EXPECT_NE(Umgebung::lesen(u.kolmIni()).find("[last project]\r\nName=Demo Projekt\r\n"), std::string::npos)
      << "no open project: the last one read stays";
}

// ---- Failed writes ------------------------------------------------------------------------------

TEST(EinstellungenSchreiben, AFailedProgramFileGivesOneMessageAndTheProjectIsStillWritten) {
  Umgebung u;
  EinstellungenLesen(u.k);
  io::SetFaultHook([&](std::string_view schritt, const std::string& pfad) {
    return schritt == "rename" && pfad == u.kolmIni();
  });
  EXPECT_FALSE(EinstellungenSchreiben(u.k));
  ASSERT_EQ(u.meldungen.shown().size(), 1u);
  EXPECT_EQ(u.meldungen.shown()[0].message.text, "Beim schreiben in " + u.kolmIni() + " traten Fehler auf!");
  EXPECT_EQ(u.meldungen.shown()[0].message.title, "Kolm");
  EXPECT_FALSE(u.z->Einstellungen.IniFehler) << "cleared after the message";
  EXPECT_FALSE(std::filesystem::exists(u.kolmIni()));
  EXPECT_NE(Umgebung::lesen(u.projektIni()).find("[Tabelle]\r\nAnzahlPunkte=999\r\n"), std::string::npos);
}

TEST(EinstellungenSchreiben, BothFilesFailingGiveOneMessageEachAndLeaveTheOldFiles) {
  Umgebung u;
  Umgebung::schreiben(u.kolmIni(), "[kolm]\r\nWindowState=0\r\n");
  Umgebung::schreiben(u.projektIni(), "[Defaults]\r\nLV=alt\r\n");
  EinstellungenLesen(u.k);
  u.z->Einstellungen.LV = "neu";
  u.z->Intervall = 3;
  io::SetFaultHook([](std::string_view schritt, const std::string&) { return schritt == "write"; });
  EXPECT_FALSE(EinstellungenSchreiben(u.k));
  ASSERT_EQ(u.meldungen.shown().size(), 2u);
  EXPECT_EQ(u.meldungen.shown()[0].message.text, "Beim schreiben in " + u.kolmIni() + " traten Fehler auf!");
  EXPECT_EQ(u.meldungen.shown()[1].message.text, "Beim schreiben in " + u.projektIni() + " traten Fehler auf!");
  EXPECT_EQ(Umgebung::lesen(u.kolmIni()), "[kolm]\r\nWindowState=0\r\n");
  EXPECT_EQ(Umgebung::lesen(u.projektIni()), "[Defaults]\r\nLV=alt\r\n");
  EXPECT_FALSE(u.z->Einstellungen.IniFehler);
}

TEST(EinstellungenSchreiben, AMissingProjectFolderIsReportedWithTheProjectFile) {
  Umgebung u;
  u.projektOeffnen("Gibt es nicht");
  EinstellungenLesen(u.k);
  EXPECT_FALSE(EinstellungenSchreiben(u.k));
  ASSERT_EQ(u.meldungen.shown().size(), 1u);
  EXPECT_EQ(u.meldungen.shown()[0].message.text,
            "Beim schreiben in " + u.projektIni("Gibt es nicht") + " traten Fehler auf!");
  EXPECT_FALSE(std::filesystem::exists(u.projektVerzeichnis("Gibt es nicht"))) << "a project folder is never made";
}

TEST(EinstellungenSchreiben, ARefusedKeyNameIsAFailureButTheOtherKeysAreSaved) {
  Umgebung u;
  EinstellungenLesen(u.k);
  u.z->Einstellungen.NummernFormat = "\"=\"0";  // key names like "Eintrag =5"
  u.z->Einstellungen.LV = "gespeichert";
  EXPECT_FALSE(EinstellungenSchreiben(u.k));
  ASSERT_EQ(u.meldungen.shown().size(), 1u);
  EXPECT_EQ(u.meldungen.shown()[0].message.text, "Beim schreiben in " + u.projektIni() + " traten Fehler auf!");
  EXPECT_NE(Umgebung::lesen(u.projektIni()).find("\r\nLV=gespeichert\r\n"), std::string::npos);
}

TEST(EinstellungenSchreiben, TheHalvesReportThroughTheFlagWithoutAMessage) {
  Umgebung u;
  EinstellungenLesen(u.k);
  io::SetFaultHook([](std::string_view schritt, const std::string&) { return schritt == "open"; });
  EXPECT_FALSE(ProjektEinstellungenSchreiben(u.k));
  EXPECT_TRUE(u.z->Einstellungen.IniFehler);
  EXPECT_TRUE(u.meldungen.shown().empty());
  io::SetFaultHook(nullptr);
  EXPECT_TRUE(ProgrammEinstellungenSchreiben(u.k));
  EXPECT_TRUE(u.z->Einstellungen.IniFehler) << "a success does not clear an earlier failure";
}

}  // namespace
}  // namespace kolm::core
