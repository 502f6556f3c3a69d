#include "core/tables/satzformat.h"

#include <bit>
#include <cstdint>

#include "core/io/codepage.h"

namespace kolm::core {

namespace {

// Byte order by shifting, so the host's own order never matters.
template <typename U>
void Unsigned(std::string& out, U v) {
  for (std::size_t i = 0; i < sizeof(U); ++i) out += static_cast<char>((v >> (8 * i)) & 0xFF);
}
void I16(std::string& out, std::int16_t v) { Unsigned(out, static_cast<std::uint16_t>(v)); }
void I32(std::string& out, std::int32_t v) { Unsigned(out, static_cast<std::uint32_t>(v)); }
void F32(std::string& out, float v) { Unsigned(out, std::bit_cast<std::uint32_t>(v)); }
void F64(std::string& out, double v) { Unsigned(out, std::bit_cast<std::uint64_t>(v)); }

class Leser {
 public:
  explicit Leser(std::string_view bytes) : b_(bytes) {}
  template <typename U>
  U Unsigned() {
    U v = 0;
    for (std::size_t i = 0; i < sizeof(U); ++i) v |= static_cast<U>(Byte(pos_ + i)) << (8 * i);
    pos_ += sizeof(U);
    return v;
  }
  std::int16_t I16() { return static_cast<std::int16_t>(Unsigned<std::uint16_t>()); }
  std::int32_t I32() { return static_cast<std::int32_t>(Unsigned<std::uint32_t>()); }
  float F32() { return std::bit_cast<float>(Unsigned<std::uint32_t>()); }
  double F64() { return std::bit_cast<double>(Unsigned<std::uint64_t>()); }
  std::string_view Bytes(std::size_t n) {
    const std::string_view s = pos_ < b_.size() ? b_.substr(pos_, n) : std::string_view();
    pos_ += n;
    return s;
  }

 private:
  // Missing bytes read as 0, so a short buffer cannot be overrun.
  unsigned char Byte(std::size_t i) const { return i < b_.size() ? static_cast<unsigned char>(b_[i]) : 0; }
  std::string_view b_;
  std::size_t pos_ = 0;
};

}  // namespace

void PunktSatzAnhaengen(std::string& out, const Punkt& p) {
  I16(out, p.Nummer);
  I16(out, p.KurzBez);
  F64(out, p.A);
  F64(out, p.B);
  F64(out, p.C);
  F32(out, p.TextDx);
  F32(out, p.TextDy);
  I32(out, p.Farbe);
}

void VerbindungSatzAnhaengen(std::string& out, const Verbindung& v) {
  I16(out, v.Von);
  I16(out, v.Nach);
  F64(out, v.Radius);
  I16(out, v.Art);
  F64(out, v.MitteX);
  F64(out, v.MitteY);
  F64(out, v.AnfangsWinkel);
  F64(out, v.EndWinkel);
  I32(out, v.Stil);
}

void BogenSatzAnhaengen(std::string& out, const Bogen& b) {
  I16(out, b.Nummer);
  F64(out, b.Radius);
  I16(out, b.Seite);
  F64(out, b.MitteX);
  F64(out, b.MitteY);
  F64(out, b.AnfangsWinkel);
  F64(out, b.EndWinkel);
}

void BildSatzAnhaengen(std::string& out, const Hintergrundbild& h) {
  F64(out, h.A);
  F64(out, h.B);
  F64(out, h.Breite);
  F64(out, h.Hoehe);
  I32(out, h.Farbe);
  I16(out, h.Rahmen);
  I16(out, h.Bezug);
  I16(out, h.NurDruck);
  std::string endung = io::Utf8ToCp1252(h.Endung.Text());
  endung.resize(3, ' ');
  out += endung;
  for (double d : h.ReserveDouble) F64(out, d);
  for (Integer i : h.ReserveInteger) I16(out, i);
}

Punkt PunktAusSatz(std::string_view bytes) {
  Leser l(bytes);
  Punkt p;
  p.Nummer = l.I16();
  p.KurzBez = l.I16();
  p.A = l.F64();
  p.B = l.F64();
  p.C = l.F64();
  p.TextDx = l.F32();
  p.TextDy = l.F32();
  p.Farbe = l.I32();
  return p;
}

Verbindung VerbindungAusSatz(std::string_view bytes) {
  Leser l(bytes);
  Verbindung v;
  v.Von = l.I16();
  v.Nach = l.I16();
  v.Radius = l.F64();
  v.Art = l.I16();
  v.MitteX = l.F64();
  v.MitteY = l.F64();
  v.AnfangsWinkel = l.F64();
  v.EndWinkel = l.F64();
  v.Stil = l.I32();
  return v;
}

Bogen BogenAusSatz(std::string_view bytes) {
  Leser l(bytes);
  Bogen b;
  b.Nummer = l.I16();
  b.Radius = l.F64();
  b.Seite = l.I16();
  b.MitteX = l.F64();
  b.MitteY = l.F64();
  b.AnfangsWinkel = l.F64();
  b.EndWinkel = l.F64();
  return b;
}

Hintergrundbild BildAusSatz(std::string_view bytes) {
  Leser l(bytes);
  Hintergrundbild h;
  h.A = l.F64();
  h.B = l.F64();
  h.Breite = l.F64();
  h.Hoehe = l.F64();
  h.Farbe = l.I32();
  h.Rahmen = l.I16();
  h.Bezug = l.I16();
  h.NurDruck = l.I16();
  h.Endung = FesterText<3>::Links(io::Cp1252ToUtf8(l.Bytes(3)));
  for (double& d : h.ReserveDouble) d = l.F64();
  for (Integer& i : h.ReserveInteger) i = l.I16();
  return h;
}

}  // namespace kolm::core
