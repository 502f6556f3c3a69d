#pragma once
// The window positions of the dialogs, kept in "Kolm.ini" in a section named
// after each dialog with the keys Left, Top, Width and Height
// (FensterLesen, FensterSchreiben).
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "core/state/zustand.h"
#include "forms/services.h"

namespace kolm::core {

// A rectangle in the coordinates the positions are stored in.
struct Fensterflaeche {
  int left = 0, top = 0, width = 0, height = 0;
};

// "Berechnen", "Berechnungen", "LVTabelle", "MassenErgebnis",
// "GrafikKontrolle", "SkizzeKoorHelp": a stored position beyond the screen
// is moved back onto it.
bool BleibtAufBildschirm(std::string_view dialog);
// Every dialog but "LVTabelle", "GrafikKontrolle" and "SkizzeKoorHelp"
// starts at the corner of Main's client area while its position has never
// been stored.
bool StartetInDerEcke(std::string_view dialog);

// Where a stored rectangle lands on the screen: moved left and up until its
// right and bottom edges are on it, then right and down until its left and
// top edges are, so one larger than the screen sits in its corner. A size
// or position of -1 (not stored) counts as 0 and stays -1.
forms::WindowPlacement AufBildschirm(forms::WindowPlacement platz, const Fensterflaeche& bildschirm);

// The placement store of the forms over "Kolm.ini" (Zustand::ProgrammIni).
// Each read loads the file once; each write loads it and saves it once.
class IniFenster final : public forms::WindowPlacementStore {
 public:
  explicit IniFenster(Zustand& zustand) : zustand_(zustand) {}

  // The screen, for the dialogs that must stay on it; without one, or when
  // it gives nothing, positions are taken as stored.
  void setBildschirm(std::function<std::optional<Fensterflaeche>()> bildschirm) {
    bildschirm_ = std::move(bildschirm);
  }
  // Main's client area, whose corner takes the dialogs never stored;
  // (0, 0) without one.
  void setHauptflaeche(std::function<std::optional<Fensterflaeche>()> flaeche) { haupt_ = std::move(flaeche); }
  // Called after each FensterSchreiben: starts Main.TimerDropWait.
  void setNachSchreiben(std::function<void()> nachSchreiben) { nachSchreiben_ = std::move(nachSchreiben); }
  // The Art FensterLesen uses for a dialog when the forms read its place:
  // 2 (position and size) unless set.
  void setArt(std::string_view dialog, int art);

  // Art 2 reads Left, Top, Width and Height; any other Art Left and Top
  // only. A key not read or not stored is -1: the dialog keeps its own
  // value. Nothing when no key was found and the dialog does not start in
  // the corner: the view decides.
  std::optional<forms::WindowPlacement> FensterLesen(std::string_view dialog, int art);
  // Writes all four numbers (nothing for a placement that holds no value at
  // all: the dialog was never placed), then calls the hook. A failed write
  // sets IniFehler.
  void FensterSchreiben(std::string_view dialog, const forms::WindowPlacement& platz);

  std::optional<forms::WindowPlacement> read(const std::string& formName) override;
  void write(const std::string& formName, const forms::WindowPlacement& placement) override;

 private:
  Zustand& zustand_;
  std::function<std::optional<Fensterflaeche>()> bildschirm_;
  std::function<std::optional<Fensterflaeche>()> haupt_;
  std::function<void()> nachSchreiben_;
  std::map<std::string, int> art_;  // by NameKey
};

}  // namespace kolm::core
