// Refreshing dialogs, opening and saving the active table, the save
// questions and the auto-save, as the user sees them.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "core/tables/tabellen_dateien.h"
#include "forms/scripted.h"
#include "support/befehls_protokoll.h"
#include "support/test_ordner.h"

namespace kolm::core {
namespace {

namespace fs = std::filesystem;
using forms::Answer;

// The refresh table's hidden commands, as the stand-ins have them.
constexpr std::initializer_list<const char*> kBefehle = {"Repaint", "ReRead", "RepaintPunkt", "KoordinatenSystem"};
using Zaehler = kolm::testhilfen::BefehlsProtokoll;

struct Umgebung {
  forms::ScriptedServices dienste;
  forms::HeadlessHost host;
  forms::Forms forms{dienste.services};
  Zustand zustand;
  Anwendung anwendung{zustand, forms};
  kolm::testhilfen::TestOrdner tmp{"anw"};
  const fs::path& ordner = tmp.pfad;

  Umgebung() {
    forms.setHost(&host);
    for (const char* name : {"PunkteTabelle", "Grafik", "GrafikKontrolle", "Verbindungen", "Berechnungen"})
      forms.registerForm(name, [name](forms::Forms& f) { return std::make_unique<Zaehler>(f, name, kBefehle); });
    RegisterMainForms(forms, "/nicht/da");
    anwendung.setMain(static_cast<MainForm*>(forms.load("Main")));
    zustand.ProjektVerzeichnis = ordner.string() + "/";
  }

  Zaehler& dialog(const char* name) { return static_cast<Zaehler&>(*forms.load(name)); }

  // Row 0 "Profil 1" with one point, saved to disk.
  void tabelleAnlegen(bool m31 = false, bool polar = true) {
    Tabelle& t = zustand.Tabellen[0];
    t.TablName = "Profil 1";
    t.Dateiname = "P1";
    t.PktDateiName = "P1";
    t.M31 = m31 ? Wahr : Falsch;
    t.Polar = polar ? Wahr : Falsch;
    t.Rasterabstand = 0;
    zustand.AktiveTabelle = 0;
    zustand.Punkte[7].A = 12.5;
    TabelleSpeichern(anwendung.kontext());
  }
};

TEST(Refresh, ReachesLoadedDialogsOnlyAndNamesThePointToRepaint) {
  Umgebung u;
  u.anwendung.RefreshPunkteTabelle();  // not loaded: nothing, and nothing is loaded
  EXPECT_EQ(u.forms.FormGeladen("PunkteTabelle"), -1);
  Zaehler& tabelle = u.dialog("PunkteTabelle");
  u.anwendung.RefreshPunkt(217);
  u.anwendung.RereadPunkteTabelle();
  EXPECT_EQ(tabelle.gerufen, (std::vector<std::string>{"RepaintPunkt", "ReRead"}));
  EXPECT_EQ(u.anwendung.PunktZumAuffrischen(), 217);
  Zaehler& kontrolle = u.dialog("GrafikKontrolle");
  u.anwendung.RefreshKontrolleSystem();
  EXPECT_EQ(kontrolle.gerufen, (std::vector<std::string>{"KoordinatenSystem"}));
}

TEST(Refresh, AfterATableChangeTheGraphicIsRepaintedOnlyWhenOpen) {
  Umgebung u;
  Zaehler& kontrolle = u.dialog("GrafikKontrolle");
  Zaehler& verbindungen = u.dialog("Verbindungen");
  u.anwendung.NachTabellenwechselAuffrischen();
  EXPECT_EQ(kontrolle.gerufen, (std::vector<std::string>{"Repaint"}));
  EXPECT_EQ(verbindungen.gerufen, (std::vector<std::string>{"Repaint"}));
  EXPECT_EQ(u.forms.FormGeladen("Grafik"), -1);
}

TEST(OpeningATable, ReadsItsFilesSetsTheMainWindowAndSaysSo) {
  Umgebung u;
  u.tabelleAnlegen(/*m31=*/true, /*polar=*/true);
  u.zustand.AktiveTabelle = -1;
  u.zustand.Punkte[7].A = 0;
  u.zustand.TabelleGeaendert = Wahr;
  Zaehler& tabelle = u.dialog("PunkteTabelle");

  u.anwendung.TabelleOeffnen(0);

  EXPECT_EQ(u.zustand.Punkte[7].A, 12.5);
  EXPECT_FALSE(u.zustand.TabelleGeaendert);
  EXPECT_FALSE(u.zustand.Laden);
  MainForm& main = *u.anwendung.main();
  EXPECT_EQ(main.control("LabelAktTab").captionText(), "Profil 1");
  EXPECT_EQ(main.control("LabelPktTab").captionText(), "P1");
  EXPECT_EQ(main.control("CheckPolar").value(), 1);
  EXPECT_EQ(main.control("KoordinatenSystem").listIndex(), 1);
  EXPECT_EQ(u.zustand.Ansicht.Rasterabstand, 10) << "a grid spacing of 0 becomes 10";
  EXPECT_EQ(u.dienste.status.text(), "Tabelle Profil 1 geladen");
  EXPECT_EQ(tabelle.gerufen, (std::vector<std::string>{"Repaint"}));
  EXPECT_EQ(u.zustand.Tabellen[0].M31, Wahr) << "loading stores nothing back into the row";
}

TEST(SettingsStrip, AChangeIsStoredInTheActiveRowUnlessATableIsLoading) {
  Umgebung u;
  u.tabelleAnlegen(false, false);
  MainForm& main = *u.anwendung.main();
  main.control("Check3D").click();
  main.control("KoordinatenSystem").setListIndex(3);
  EXPECT_EQ(u.zustand.Tabellen[0].Dritte, Wahr);
  EXPECT_EQ(u.zustand.Tabellen[0].M31, Wahr);
  EXPECT_EQ(u.zustand.Tabellen[0].Falschdrehend, Wahr);
  EXPECT_EQ(u.zustand.M31, Wahr);
  u.zustand.Laden = Wahr;
  main.control("CheckPolar").click();
  EXPECT_EQ(u.zustand.Tabellen[0].Polar, Falsch);
}

TEST(SettingsStrip, TheAngleUnitSetsTheFactorWithTheProgramsPi) {
  Umgebung u;
  MainForm& main = *u.anwendung.main();
  main.control("ComboWinkelEinheit").setListIndex(1);
  EXPECT_DOUBLE_EQ(u.zustand.WinkelFaktor, 3.141592654 / 180);
  main.control("ComboWinkelEinheit").setListIndex(2);
  EXPECT_EQ(u.zustand.WinkelFaktor, 1.0);
  main.control("ComboWinkelEinheit").setListIndex(0);
  EXPECT_DOUBLE_EQ(u.zustand.WinkelFaktor, 3.141592654 / 200);
}

TEST(SaveQuestions, AreAskedOnlyForAChangedNamedTable) {
  Umgebung u;
  u.anwendung.SpeichernFragen();
  EXPECT_TRUE(u.dienste.messages.shown().empty()) << "no active table";
  u.tabelleAnlegen();
  u.anwendung.SpeichernFragen();
  EXPECT_TRUE(u.dienste.messages.shown().empty()) << "unchanged";
  u.zustand.Punkte[8].A = 3;
  u.zustand.TabelleGeaendert = Wahr;
  u.dienste.messages.queue(Answer::No);
  u.anwendung.SpeichernFragen("Aktive Tabelle vor dem Duplizieren/Klonen speichern?");
  ASSERT_EQ(u.dienste.messages.shown().size(), 1u);
  EXPECT_EQ(u.dienste.messages.shown()[0].message.text, "Aktive Tabelle vor dem Duplizieren/Klonen speichern?");
  EXPECT_TRUE(u.zustand.TabelleGeaendert) << "no keeps the change in memory";
  u.dienste.messages.queue(Answer::Yes);
  u.anwendung.SpeichernFragen();
  EXPECT_FALSE(u.zustand.TabelleGeaendert);
  EXPECT_EQ(fs::file_size(u.ordner / "P1.pkt"), 80u) << "two points of 40 bytes";
}

TEST(SaveQuestions, CancelOnClosingKeepsTheProgramOpenAndUnsaved) {
  Umgebung u;
  u.tabelleAnlegen();
  u.zustand.Punkte[8].A = 3;
  u.zustand.TabelleGeaendert = Wahr;
  u.dienste.messages.queue(Answer::Cancel);
  EXPECT_FALSE(u.anwendung.SchliessenFragen());
  EXPECT_EQ(fs::file_size(u.ordner / "P1.pkt"), 40u);
  u.dienste.messages.queue(Answer::No);
  EXPECT_TRUE(u.anwendung.SchliessenFragen());
  EXPECT_EQ(fs::file_size(u.ordner / "P1.pkt"), 40u);
  EXPECT_EQ(u.dienste.messages.shown()[0].message.buttons, forms::Buttons::YesNoCancel);
}

TEST(AutoSave, SavesOnTickIntervalPlusTwoThenEveryIntervalPlusOne) {
  Umgebung u;
  u.tabelleAnlegen();
  u.anwendung.IntervallSetzen(5);
  EXPECT_TRUE(u.anwendung.main()->control("TimerAuto").enabled());
  EXPECT_TRUE(u.anwendung.main()->control("MnuOptionenAutoSpeichern").checked());
  std::vector<int> saves;
  for (int tick = 1; tick <= 20; ++tick) {
    const size_t before = u.dienste.status.history().size();
    u.anwendung.main()->control("TimerAuto").raise(forms::Event::Timer);
    for (size_t i = before; i < u.dienste.status.history().size(); ++i)
      if (u.dienste.status.history()[i] == "Automatisches Speichern durchgeführt") saves.push_back(tick);
  }
  EXPECT_EQ(saves, (std::vector<int>{7, 13, 19}));
}

TEST(AutoSave, AnIntervalOfZeroDoesNothing) {
  Umgebung u;
  u.anwendung.IntervallSetzen(0);
  for (int tick = 0; tick < 5; ++tick) u.anwendung.TimerAutoTick();
  EXPECT_EQ(u.anwendung.AutoZaehler(), 0);
  EXPECT_TRUE(u.dienste.status.history().empty());
  EXPECT_FALSE(u.anwendung.main()->control("MnuOptionenAutoSpeichern").checked());
}

}  // namespace
}  // namespace kolm::core

namespace kolm::core {
namespace {

TEST(MainWindow, OnceUnloadedItIsNoLongerReached) {
  Umgebung u;
  ASSERT_NE(u.anwendung.main(), nullptr);
  u.forms.unload(*u.anwendung.main());
  EXPECT_EQ(u.anwendung.main(), nullptr);
  u.forms.collect();
  u.anwendung.IntervallSetzen(3);  // reached Main before; must not now
  u.anwendung.HauptfensterAusAktiverZeile();
  EXPECT_EQ(u.zustand.Intervall, 3);
}

}  // namespace
}  // namespace kolm::core
