#pragma once
// The files of a table: readers and writers of ".pkt", ".ver", ".bog",
// ".ber", ".bes", ".pic", the save of the active table and the reading of
// its files. Readers survive any content; writers replace a file atomically.
#include <functional>
#include <string>
#include <string_view>

#include "core/state/zustand.h"
#include "forms/services.h"

namespace kolm::core {

// What the readers and writers reach. Every service may be missing.
struct TabellenKontext {
  Zustand& zustand;
  forms::StatusLine* status = nullptr;
  forms::BusyCursor* busy = nullptr;
  forms::MessageService* meldungen = nullptr;
  // Loads the pictures of the background images; without one they stay empty.
  forms::ImageCodec* bilder = nullptr;
  // Decimal character of the numbers in ".bes"; empty: the system's.
  std::string dezimalzeichen;
  // Stores the preview picture of the graphic; called by TabelleSpeichern
  // with the project folder + Dateiname (the ".jpg" is the callee's). Does
  // nothing until the graphic sets it.
  std::function<void(const std::string& pfadStamm)> vorschau;

  explicit TabellenKontext(Zustand& z) : zustand(z) {}
  TabellenKontext(Zustand& z, const forms::Services& s)
      : zustand(z), status(s.status), busy(s.busy), meldungen(s.messages), bilder(s.images) {}
};

// Largest file a reader takes in; the rest of a bigger file is not read.
constexpr std::size_t MaxTabellenDatei = 32u << 20;

// ---- File names -------------------------------------------------------------
// A backslash in a stem or folder stands for the platform's separator.

// ProjektVerzeichnis + stem + suffix (suffix with its dot, ".pkt").
std::string TabellenDatei(const Zustand& z, std::string_view stamm, std::string_view endung);
// The ".bes" file: stem + ".bes" alone when the stem holds a separator.
std::string BeschriftungsDatei(const Zustand& z, std::string_view stamm);
// Copy of a background image: stem + "_" + three digits + "." + Endung.
std::string BildDatei(const Zustand& z, std::string_view stamm, int slot, const FesterText<3>& endung);
// True when the stem in capitals is "TEST": nothing of it is ever written.
bool TestStamm(std::string_view stamm);

// ---- Readers ----------------------------------------------------------------
// Each clears its table first and returns when the file is missing.

void LesePunkte(TabellenKontext& k, std::string_view stamm);
void LeseVerbindungen(TabellenKontext& k, std::string_view stamm);
void LeseBoegen(TabellenKontext& k, std::string_view stamm);
void LeseBerechnungen(TabellenKontext& k, std::string_view stamm);
void LeseBeschriftungen(TabellenKontext& k, std::string_view stamm);
void LeseBilder(TabellenKontext& k, std::string_view stamm);

// ---- Writers ----------------------------------------------------------------
// True when the file now holds the table; false for a "TEST" stem (nothing
// written) or a failed write (the previous file stays complete).

bool SchreibePunkte(TabellenKontext& k, std::string_view stamm);
bool SchreibeVerbindungen(TabellenKontext& k, std::string_view stamm);
bool SchreibeBoegen(TabellenKontext& k, std::string_view stamm);
bool SchreibeBerechnungen(TabellenKontext& k, std::string_view stamm);
bool SchreibeBeschriftungen(TabellenKontext& k, std::string_view stamm);
bool SchreibeBilder(TabellenKontext& k, std::string_view stamm);

// ---- The active table -------------------------------------------------------

// Saves the active table (rows 0 .. 499 with a name) with its status texts,
// clears TabelleGeaendert, copies the view values back into the row and
// calls the preview.
void TabelleSpeichern(TabellenKontext& k);

// Reads the files of the active row in the loading order (".ber", ".ver",
// ".bog", ".bes", ".pic" when Dateiname is not blank, ".pkt" when
// PktDateiName is not blank) and runs the arc sweep. Nothing for a row
// outside 0 .. 500 or without a name.
void TabellenDateienLesen(TabellenKontext& k);

}  // namespace kolm::core
