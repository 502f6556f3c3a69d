#pragma once
// What a row of the point grid shows: row and column layout, the header and
// the texts of one point. Row n + 1 is point n behind the one header row.
#include <array>
#include <string>

#include "core/state/zustand.h"

namespace kolm::points {

constexpr int SpalteNummer = 0;
constexpr int SpalteBezeichnung = 1;
constexpr int SpalteA = 2;
constexpr int SpalteB = 3;
constexpr int SpalteC = 4;

using Zeilentexte = std::array<std::string, 5>;

// Every slot 0 .. AnzahlPunkte has a row, behind the header.
inline int TabellenZeilen(const core::Zustand& z) { return z.AnzahlPunkte + 2; }
// The third coordinate has no column without Dritte.
inline int TabellenSpalten(const core::Zustand& z) { return z.Dritte ? 5 : 4; }
inline int ZeileVonPunkt(int nummer) { return nummer + 1; }
inline int PunktVonZeile(int zeile) { return zeile - 1; }
// A row that stands for a slot of the table.
bool IstPunktZeile(const core::Zustand& z, int zeile);

// "Punkt Nr.", "Bezeichnung" and the coordinate captions ("X =", ...).
Zeilentexte Kopftexte(const core::Zustand& z);

// Number in NummernFormat; designation and coordinates in StandardFormat,
// all blank for an empty point. C stays blank without Dritte.
Zeilentexte PunktTexte(const core::Zustand& z, int nummer);

}  // namespace kolm::points
