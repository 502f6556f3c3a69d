#pragma once
// The fixed-layout records of the process-wide tables. Field names are those
// the whole program uses; widths follow the classic scalar words so that the
// binary table files can be read and written field by field.
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kolm::core {

using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
// 0 false, -1 true; any other value read from a file counts as true.
using Flag = std::int16_t;

constexpr Flag Wahr = -1;
constexpr Flag Falsch = 0;
inline bool IstWahr(Flag f) { return f != 0; }
inline Flag AlsFlag(bool b) { return b ? Wahr : Falsch; }

// A text of exactly N characters (UTF-8 inside, one byte each in the files).
// A fresh value holds N NUL characters, as an unset fixed text does.
template <std::size_t N>
class FesterText {
 public:
  FesterText() : text_(N, '\0') {}

  // Left-justified: cut to N characters or filled with blanks on the right,
  // as assigning to a fixed text does.
  static FesterText Links(std::string_view text);
  // Right-aligned with blanks on the left, cut to the first N characters.
  static FesterText Rechts(std::string_view text);
  static FesterText Nul() { return FesterText(); }

  const std::string& Text() const { return text_; }
  // All blanks or all NUL.
  bool IstLeer() const;

  friend bool operator==(const FesterText& a, const FesterText& b) { return a.text_ == b.text_; }

 private:
  explicit FesterText(std::string fitted) : text_(std::move(fitted)) {}
  std::string text_;
};

using LVNummer = FesterText<12>;

// Fits a UTF-8 text to a number of characters (helpers of FesterText).
std::string TextLinksFuellen(std::string_view text, std::size_t chars);
std::string TextRechtsFuellen(std::string_view text, std::size_t chars);
bool TextNurZeichen(std::string_view text, char c);

template <std::size_t N>
FesterText<N> FesterText<N>::Links(std::string_view text) { return FesterText(TextLinksFuellen(text, N)); }
template <std::size_t N>
FesterText<N> FesterText<N>::Rechts(std::string_view text) { return FesterText(TextRechtsFuellen(text, N)); }
template <std::size_t N>
bool FesterText<N>::IstLeer() const { return TextNurZeichen(text_, ' ') || TextNurZeichen(text_, '\0'); }

struct Punkt {
  Integer Nummer = 0;
  Integer KurzBez = 0;
  double A = 0, B = 0, C = 0;
  Single TextDx = 0, TextDy = 0;
  Long Farbe = 0;
};

struct Verbindung {
  Integer Von = -1, Nach = -1;
  double Radius = 0;  // 0 line, > 0 arc, < 0 (stored -1) clothoid
  Integer Art = 0;
  double MitteX = 0, MitteY = 0;
  double AnfangsWinkel = 0, EndWinkel = 0;
  Long Stil = 0;
};

struct Bogen {
  Integer Nummer = 0;
  double Radius = 0;  // 0: empty slot
  Integer Seite = 0;
  double MitteX = 0, MitteY = 0;
  double AnfangsWinkel = 0, EndWinkel = 0;
};

struct Beschriftung {
  std::string Text;  // empty: empty slot
  double A = 0, B = 0;
  Integer Winkel = 0;
  Long Farbe = 0;
  std::string Schrift;
  Single Groesse = 0;
  Flag Fett = 0, Kursiv = 0, Unterstrichen = 0;
  double Massstab = 0;
  Integer BezugsPunkt = 0;
};

constexpr int MaxElemente = 500;

struct Berechnung {
  LVNummer LVNr;  // blank or NUL: empty slot
  double Ergebnis = 0;
  Flag Flaeche = 0;
  Long Farbe = 0;
  std::array<Integer, 3> KorrekturIndex{-1, -1, -1};
  Integer Anzahl = 0;
  // >= 0 a point number, < 0 the negated number of a Bogen.
  std::array<Integer, MaxElemente> Element{};
};

struct Hintergrundbild {
  double A = 0, B = 0;
  double Breite = 0;  // 0: empty slot
  double Hoehe = 0;
  Long Farbe = 0;
  Integer Rahmen = 0;
  Integer Bezug = 1;  // >= 0 coordinate reference, < 0 the negated point number
  Flag NurDruck = 0;
  FesterText<3> Endung = FesterText<3>::Links("");
  // Not used, but kept and written back unchanged.
  std::array<double, 4> ReserveDouble{};
  std::array<Integer, 4> ReserveInteger{};
};

// The view fields of a catalogue row; the active table holds one copy of
// them as its process-wide view values.
struct TabellenAnsicht {
  double Massstab = 100;
  double Vergleichsebene = 0;
  double XMitte = 0;
  double YMitte = 0;
  double XOffset = 0;
  Flag VergleichsebeneSichtbar = 1;
  double YOffset = 0;
  Flag YAchseSichtbar = 1;
  double Rasterabstand = 10;
  Integer Achsenbeschriftung = 0;
  Integer GitterFarbIndex = 8;
  Integer GitterSchriftFarbIndex = 8;
  Integer Gitterstil = 3;
  Integer Massstabtyp = 1;
  Integer LogoSichtbar = 0;
  double Ueberhoehung = 1;
  Flag KreisBeschriften = 0;
  Flag KlotoidenAnzeigen = 0;
};

// One row of the catalogue Tabellen.
struct Tabelle : TabellenAnsicht {
  std::string TablName;  // blank: empty row
  double Stationierung = 0;
  std::string Dateiname;
  std::string PktDateiName;
  Flag M31 = 0, Dritte = 0, Polar = 0, Falschdrehend = 0;
};

struct Korrektur {
  std::string Name;
  double Wert = 0;
};

// Entry of Kurzbezeichnungen.
struct Kurzbezeichnung {
  std::string Text;
  Integer Darstellung = 0;
  Integer Beschriftung = 0;
};

// Entry of the point and line colour lists of the settings.
struct FarbEintrag {
  Long Farbe = 0;
  std::string Name;
};

// ---- Stil of a Verbindung ---------------------------------------------------
// Low 24 bits RGB colour, bits 24..27 line width, bits 28..31 line style.

inline Long StilFarbe(Long stil) { return stil & 0x00FFFFFF; }
inline int StilBreiteRoh(Long stil) { return static_cast<int>((static_cast<std::uint32_t>(stil) >> 24) & 0xF); }
inline int StilArtRoh(Long stil) { return static_cast<int>((static_cast<std::uint32_t>(stil) >> 28) & 0xF); }
// The values that select a width or style are taken modulo 5.
inline int StilBreite(Long stil) { return StilBreiteRoh(stil) % 5; }
inline int StilArt(Long stil) { return StilArtRoh(stil) % 5; }
// Packs colour, width and style; each part is cut to its bits.
inline Long StilPacken(Long farbe, int breite, int art) {
  const std::uint32_t v = (static_cast<std::uint32_t>(farbe) & 0x00FFFFFFu) |
                          ((static_cast<std::uint32_t>(breite) & 0xFu) << 24) |
                          ((static_cast<std::uint32_t>(art) & 0xFu) << 28);
  return static_cast<Long>(v);
}

}  // namespace kolm::core
