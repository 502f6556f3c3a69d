#pragma once
// Shared pieces of the table file tests: a project folder of their own, a
// scripted context, and a little-endian byte builder written independently
// of the code under test.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/io/files.h"
#include "support/test_ordner.h"
#include "core/state/zustand.h"
#include "core/tables/tabellen_dateien.h"
#include "forms/scripted.h"
#include "../records/fester_text_druck.h"

namespace kolm::core::testhilfen {

namespace fs = std::filesystem;

struct Projektordner : ::kolm::testhilfen::TestOrdner {
  Projektordner() : TestOrdner("tabellen") {}
};

// An image codec that "reads" any file whose content starts with "BILD"
// as a 2 x 1 picture and records every path it was asked for.
class FalscherCodec final : public forms::ImageCodec {
 public:
  std::optional<forms::Image> read(const std::string& path) override {
    gelesen.push_back(path);
    const auto b = io::ReadFile(path);
    if (!b || b->rfind("BILD", 0) != 0) return std::nullopt;
    forms::Image bild;
    bild.width = 2;
    bild.height = 1;
    bild.pixels = {0xFF0000u, 0x00FF00u};
    return bild;
  }
  bool writeJpeg(const std::string&, const forms::Image&, int) override { return false; }
  bool writeBmp(const std::string&, const forms::Image&) override { return false; }
  std::vector<std::string> gelesen;
};

// State, scripted services and a context over a fresh project folder.
struct Umgebung {
  Projektordner ordner;
  std::unique_ptr<Zustand> zustand = std::make_unique<Zustand>();
  forms::ScriptedServices dienste;
  FalscherCodec codec;
  TabellenKontext kontext{*zustand, dienste.services};

  Umgebung() {
    zustand->ProjektVerzeichnis = ordner.verzeichnis();
    kontext.bilder = &codec;
    kontext.dezimalzeichen = ".";
  }
  Zustand& z() { return *zustand; }
  const std::vector<std::string>& status() const { return dienste.status.history(); }
  std::vector<forms::ShownMessage>& meldungen() { return dienste.messages.shown(); }
};

// Little-endian bytes, built by hand.
struct Bytes {
  std::string b;
  Bytes& u(std::uint64_t v, int n) {
    for (int i = 0; i < n; ++i) b += static_cast<char>((v >> (8 * i)) & 0xFF);
    return *this;
  }
  Bytes& i16(int v) { return u(static_cast<std::uint16_t>(static_cast<std::int16_t>(v)), 2); }
  Bytes& i32(long v) { return u(static_cast<std::uint32_t>(static_cast<std::int32_t>(v)), 4); }
  Bytes& f32(float v) {
    std::uint32_t x;
    std::memcpy(&x, &v, 4);
    return u(x, 4);
  }
  Bytes& f64(double v) {
    std::uint64_t x;
    std::memcpy(&x, &v, 8);
    return u(x, 8);
  }
  Bytes& text(const std::string& s) {
    b += s;
    return *this;
  }
};

// A point record as the file holds it.
inline std::string PunktBytes(int nr, int kurz, double a, double b, double c, float dx = 0, float dy = 0,
                              long farbe = 0) {
  return Bytes().i16(nr).i16(kurz).f64(a).f64(b).f64(c).f32(dx).f32(dy).i32(farbe).b;
}

inline std::string VerbindungBytes(int von, int nach, double radius = 0, int art = 0, double mx = 0,
                                   double my = 0, double aw = 0, double ew = 0, long stil = 0) {
  return Bytes().i16(von).i16(nach).f64(radius).i16(art).f64(mx).f64(my).f64(aw).f64(ew).i32(stil).b;
}

inline std::string BogenBytes(int nr, double radius, int seite = 0, double mx = 0, double my = 0, double aw = 0,
                              double ew = 0) {
  return Bytes().i16(nr).f64(radius).i16(seite).f64(mx).f64(my).f64(aw).f64(ew).b;
}

}  // namespace kolm::core::testhilfen
