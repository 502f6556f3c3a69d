// Window positions of the dialogs in the program settings: the four keys,
// Art, the corner of Main for dialogs never stored, the screen rule, the hook
// after writing, and the store as the forms use it.
#include <gtest/gtest.h>

#include <memory>

#include "core/settings/ini_fenster.h"
#include "einstellungen_hilfen.h"
#include "forms/forms.h"

namespace kolm::core {
namespace {

using einstellungstest::Abschnitt;
using einstellungstest::Umgebung;
using forms::WindowPlacement;

WindowPlacement Platz(int l, int t, int w, int h) {
  WindowPlacement p;
  p.left = l, p.top = t, p.width = w, p.height = h;
  return p;
}

void ErwartePlatz(const std::optional<WindowPlacement>& p, int l, int t, int w, int h, const char* was) {
  ASSERT_TRUE(p.has_value()) << was;
  EXPECT_EQ(p->left, l) << was;
  EXPECT_EQ(p->top, t) << was;
  EXPECT_EQ(p->width, w) << was;
  EXPECT_EQ(p->height, h) << was;
}

struct Fenster : ::testing::Test {
  Umgebung u;
  IniFenster store{*u.z};
  int timerStarts = 0;
  Fenster() {
    u.z->ProgrammIni = u.kolmIni();
    store.setNachSchreiben([this] { ++timerStarts; });
  }
};

// ---- Writing and reading back ------------------------------------------------------------

TEST_F(Fenster, WritingPutsFourNumbersIntoTheDialogsSectionAndStartsTheTimer) {
  store.FensterSchreiben("Punkte", Platz(10, -20, 300, 400));
  EXPECT_EQ(timerStarts, 1);
  EXPECT_EQ(Umgebung::lesen(u.kolmIni()), "[Punkte]\r\nLeft=10\r\nTop=-20\r\nWidth=300\r\nHeight=400\r\n")
      << "the folder of Kolm.ini is made on the way";
  store.FensterSchreiben("Punkte", Platz(11, 12, 13, 14));
  store.FensterSchreiben("Flächenberechnung", Platz(1, 2, 3, 4));
  EXPECT_EQ(timerStarts, 3);
  const std::string datei = Umgebung::lesen(u.kolmIni());
  EXPECT_EQ(Abschnitt(datei, "Punkte"), "[Punkte]\r\nLeft=11\r\nTop=12\r\nWidth=13\r\nHeight=14\r\n");
  EXPECT_EQ(Abschnitt(datei, "Fl\xE4" "chenberechnung"),
            "[Fl\xE4" "chenberechnung]\r\nLeft=1\r\nTop=2\r\nWidth=3\r\nHeight=4\r\n");

  ErwartePlatz(store.FensterLesen("punkte", 2), 11, 12, 13, 14, "Art 2: position and size");
  ErwartePlatz(store.FensterLesen("Punkte", 0), 11, 12, -1, -1, "Art 0: the position only");
  ErwartePlatz(store.FensterLesen("FLÄCHENBERECHNUNG", 2), 1, 2, 3, 4, "names match without regard to case");
}

TEST_F(Fenster, AMissingKeyLeavesTheDialogsOwnValue) {
  Umgebung::schreiben(u.kolmIni(), "[Punkte]\r\nTop=50\r\nHeight=200\r\n[Eingabe]\r\nLeft=0\r\nTop=0\r\n");
  ErwartePlatz(store.FensterLesen("Punkte", 2), -1, 50, -1, 200, "Punkte");
  ErwartePlatz(store.FensterLesen("Eingabe", 2), 0, 0, -1, -1, "Eingabe");
}

TEST_F(Fenster, ADialogNeverPlacedWritesNothingButStillStartsTheTimer) {
  store.FensterSchreiben("Punkte", WindowPlacement{});
  EXPECT_FALSE(std::filesystem::exists(u.kolmIni()));
  EXPECT_EQ(timerStarts, 1);
}

TEST_F(Fenster, AFailedWriteSetsIniFehlerAndLeavesTheFile) {
  Umgebung::schreiben(u.kolmIni(), "[Punkte]\r\nLeft=1\r\n");
  io::SetFaultHook([](std::string_view schritt, const std::string&) { return schritt == "rename"; });
  store.FensterSchreiben("Punkte", Platz(5, 6, 7, 8));
  EXPECT_TRUE(u.z->Einstellungen.IniFehler);
  EXPECT_EQ(timerStarts, 1);
  EXPECT_EQ(Umgebung::lesen(u.kolmIni()), "[Punkte]\r\nLeft=1\r\n");
  EXPECT_TRUE(u.meldungen.shown().empty()) << "a window position is not worth a message";
}

// ---- Never stored ---------------------------------------------------------------------------------

TEST_F(Fenster, DialogsNeverStoredStartAtTheCornerOfMainsClientArea) {
  ErwartePlatz(store.FensterLesen("Punkte", 2), 0, 0, -1, -1, "without a client area: (0, 0)");
  store.setHauptflaeche([] { return Fensterflaeche{40, 60, 800, 600}; });
  ErwartePlatz(store.FensterLesen("Punkte", 2), 40, 60, -1, -1, "Punkte");
  ErwartePlatz(store.FensterLesen("Berechnen", 0), 40, 60, -1, -1, "Berechnen");
  for (const char* name : {"LVTabelle", "GrafikKontrolle", "skizzekoorhelp"})
    EXPECT_FALSE(store.FensterLesen(name, 2).has_value()) << name << ": the view decides";

  // Only a size stored: the position is still the corner's, or the view's.
  Umgebung::schreiben(u.kolmIni(), "[Punkte]\r\nWidth=300\r\n[LVTabelle]\r\nWidth=500\r\n");
  ErwartePlatz(store.FensterLesen("Punkte", 2), 40, 60, 300, -1, "Punkte with a width");
  ErwartePlatz(store.FensterLesen("LVTabelle", 2), -1, -1, 500, -1, "LVTabelle with a width");
  EXPECT_FALSE(store.FensterLesen("LVTabelle", 0).has_value()) << "Art 0 does not see the width";
}

// ---- The screen rule -------------------------------------------------------------------------------

TEST(AufBildschirm, AStoredRectangleIsMovedBackOntoTheScreen) {
  const Fensterflaeche schirm{0, 0, 1024, 768};
  struct Fall {
    WindowPlacement vorher;
    int left, top;
  };
  const std::vector<Fall> faelle = {
      {Platz(100, 100, 400, 300), 100, 100},    // inside: unchanged
      {Platz(900, 600, 400, 300), 624, 468},    // beyond right and bottom
      {Platz(-50, -10, 400, 300), 0, 0},        // beyond left and top
      {Platz(624, 468, 400, 300), 624, 468},    // touching the edges
      {Platz(500, 500, 2000, 1000), 0, 0},      // larger than the screen: its corner
      {Platz(2000, 900, -1, -1), 1024, 768},    // no size known: the corner stays on the screen
  };
  for (const auto& f : faelle) {
    const WindowPlacement p = AufBildschirm(f.vorher, schirm);
    EXPECT_EQ(p.left, f.left) << f.vorher.left << "," << f.vorher.top;
    EXPECT_EQ(p.top, f.top) << f.vorher.left << "," << f.vorher.top;
    EXPECT_EQ(p.width, f.vorher.width);
    EXPECT_EQ(p.height, f.vorher.height);
  }
  // A screen that does not start at 0, and a position not stored.
  const WindowPlacement p = AufBildschirm(Platz(-1, 5000, 100, 100), Fensterflaeche{-1280, 0, 1280, 1024});
  EXPECT_EQ(p.left, -1) << "-1 means not stored and stays";
  EXPECT_EQ(p.top, 924);
  const WindowPlacement q = AufBildschirm(Platz(-2000, 0, 100, 100), Fensterflaeche{-1280, 0, 1280, 1024});
  EXPECT_EQ(q.left, -1280);
}

TEST_F(Fenster, OnlySixDialogsAreKeptOnTheScreen) {
  store.setBildschirm([] { return Fensterflaeche{0, 0, 1024, 768}; });
  const char* gehalten[] = {"Berechnen", "Berechnungen", "LVTabelle", "MassenErgebnis", "GrafikKontrolle",
                            "SkizzeKoorHelp"};
  for (const char* name : gehalten) store.FensterSchreiben(name, Platz(1500, 900, 200, 100));
  store.FensterSchreiben("Punkte", Platz(1500, 900, 200, 100));
  for (const char* name : gehalten) {
    ErwartePlatz(store.FensterLesen(name, 2), 824, 668, 200, 100, name);
    EXPECT_TRUE(BleibtAufBildschirm(name)) << name;
  }
  ErwartePlatz(store.FensterLesen("Punkte", 2), 1500, 900, 200, 100, "Punkte may stand off the screen");
  EXPECT_FALSE(BleibtAufBildschirm("Punkte"));
  ErwartePlatz(store.FensterLesen("Berechnen", 0), 1024, 768, -1, -1, "Art 0 knows no size");

  // Without a screen known, positions are taken as stored.
  store.setBildschirm([] { return std::optional<Fensterflaeche>(); });
  ErwartePlatz(store.FensterLesen("Berechnen", 2), 1500, 900, 200, 100, "no screen");
  // The file itself is not changed by reading.
  EXPECT_NE(Umgebung::lesen(u.kolmIni()).find("[Berechnen]\r\nLeft=1500\r\n"), std::string::npos);
}

// ---- As the forms use it ----------------------------------------------------------------------------

class Dialog : public forms::Form {
 public:
  Dialog(forms::Forms& f, std::string name) : Form(f, std::move(name), "Dialog") {}
};

TEST_F(Fenster, FormsReadTheirPlaceOnLoadAndStoreItOnUnload) {
  forms::Services services;
  services.placements = &store;
  forms::Forms formen(services);
  for (const char* name : {"Punkte", "LVTabelle", "Hilfe"})
    formen.registerForm(name, [name](forms::Forms& f) { return std::make_unique<Dialog>(f, name); });
  store.setArt("hilfe", 0);
  Umgebung::schreiben(u.kolmIni(), "[Punkte]\r\nLeft=7\r\nTop=8\r\nWidth=90\r\nHeight=60\r\n"
                                   "[Hilfe]\r\nLeft=1\r\nTop=2\r\nWidth=3\r\nHeight=4\r\n");

  forms::Form* punkte = formen.load("Punkte");
  ASSERT_NE(punkte, nullptr);
  EXPECT_EQ(punkte->placement().left, 7);
  EXPECT_EQ(punkte->placement().width, 90);
  forms::Form* hilfe = formen.load("Hilfe");
  EXPECT_EQ(hilfe->placement().left, 1);
  EXPECT_EQ(hilfe->placement().width, -1) << "read with Art 0";
  forms::Form* lv = formen.load("LVTabelle");
  EXPECT_EQ(lv->placement().left, -1) << "nothing stored: the form's own place";

  punkte->placement() = Platz(70, 80, 900, 600);
  formen.unload(*punkte);
  EXPECT_EQ(timerStarts, 1);
  EXPECT_EQ(Abschnitt(Umgebung::lesen(u.kolmIni()), "Punkte"),
            "[Punkte]\r\nLeft=70\r\nTop=80\r\nWidth=900\r\nHeight=600\r\n");
  lv->placement() = Platz(5, 5, 50, 50);
  formen.unloadAll();
  EXPECT_NE(Umgebung::lesen(u.kolmIni()).find("[LVTabelle]\r\nLeft=5\r\nTop=5\r\nWidth=50\r\nHeight=50\r\n"),
            std::string::npos);
}

TEST_F(Fenster, EinstellungenSchreibenKeepsTheStoredPositions) {
  store.FensterSchreiben("Berechnen", Platz(1, 2, 3, 4));
  EinstellungenLesen(u.k);
  ASSERT_TRUE(EinstellungenSchreiben(u.k));
  ErwartePlatz(store.FensterLesen("Berechnen", 2), 1, 2, 3, 4, "after the settings were written");
}

}  // namespace
}  // namespace kolm::core
