// Readers fed damaged files: random bytes, the wrong kind of file, huge and
// empty files, folders. None may crash or hang, and what they leave in the
// tables must still keep the tables' own rules.
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <random>

#include "tabellen_hilfen.h"

namespace kolm::core {
namespace {

using namespace testhilfen;

struct Leser {
  const char* endung;
  void (*lesen)(TabellenKontext&, std::string_view);
};
const Leser kLeser[] = {{".pkt", &LesePunkte},       {".ver", &LeseVerbindungen},
                        {".bog", &LeseBoegen},       {".ber", &LeseBerechnungen},
                        {".bes", &LeseBeschriftungen}, {".pic", &LeseBilder}};

// The rules every table keeps whatever a reader was given.
void TabellenSindGueltig(const Zustand& z, const std::string& wo) {
  ASSERT_EQ(z.Punkte.size(), static_cast<size_t>(z.AnzahlPunkte) + 1) << wo;
  for (size_t n = 0; n < z.Punkte.size(); ++n) {
    if (!z.PunktLeer(static_cast<long long>(n))) {
      ASSERT_EQ(z.Punkte[n].Nummer, static_cast<Integer>(n)) << wo;
    }
  }
  ASSERT_EQ(z.Verbindungen.size(), 2000u) << wo;
  ASSERT_GE(z.NaechsteFreieVerbindung, 0) << wo;
  ASSERT_LE(z.NaechsteFreieVerbindung, 2000) << wo;
  for (const Verbindung& v : z.Verbindungen) {
    if (v.Von >= 0 || v.Nach >= 0) {
      ASSERT_NE(v.Von, v.Nach) << wo;
    }
  }
  for (size_t n = 1; n < z.Boegen.size(); ++n) {
    if (z.Boegen[n].Radius != 0) {
      ASSERT_EQ(z.Boegen[n].Nummer, static_cast<Integer>(n)) << wo;
    }
  }
  for (const Berechnung& b : z.Berechnungen) {
    ASSERT_GE(b.Anzahl, 0) << wo;
    ASSERT_LE(b.Anzahl, 500) << wo;
    ASSERT_EQ(b.LVNr.Text().size() >= 12, true) << wo;
  }
  ASSERT_EQ(z.Beschriftungen.size(), 1000u) << wo;
  ASSERT_EQ(z.Hintergrundbilder.size(), 21u) << wo;
  ASSERT_GE(z.NaechstesFreiesBild, 0) << wo;
  ASSERT_LE(z.NaechstesFreiesBild, 21) << wo;
}

void AlleLesen(Umgebung& u, const std::string& stamm) {
  for (const Leser& l : kLeser) l.lesen(u.kontext, stamm);
  u.z().BoegenAufraeumen();
}

TEST(Robust, RandomBytesOfAnyLengthNeverBreakAReader) {
  Umgebung u;
  std::mt19937 zufall(20240601);
  for (int runde = 0; runde < 60; ++runde) {
    const size_t laenge = runde < 20 ? static_cast<size_t>(runde) : zufall() % 20000;
    std::string bytes(laenge, '\0');
    for (char& c : bytes) c = static_cast<char>(zufall() & 0xFF);
    // Now and then a few line ends, semicolons and quotes, as text files have.
    if (runde % 3 == 0)
      for (size_t i = 0; i < bytes.size(); i += 1 + zufall() % 9) bytes[i] = "\r\n;\",-0."[zufall() % 8];
    for (const Leser& l : kLeser) u.ordner.schreiben(std::string("Z") + l.endung, bytes);
    u.z().PunkteDimensionieren(runde % 2 ? 9999 : 999);
    AlleLesen(u, "Z");
    TabellenSindGueltig(u.z(), "Runde " + std::to_string(runde));
  }
  EXPECT_TRUE(u.meldungen().empty()) << "an existing file never gives a message";
}

TEST(Robust, WhatWasReadFromRandomBytesCanBeSavedAndReadAgain) {
  Umgebung u;
  std::mt19937 zufall(7);
  std::string bytes(50000, '\0');
  for (char& c : bytes) c = static_cast<char>(zufall() & 0xFF);
  for (const Leser& l : kLeser) u.ordner.schreiben(std::string("Z") + l.endung, bytes);
  u.z().PunkteDimensionieren(9999);
  AlleLesen(u, "Z");
  u.z().Tabellen[0].TablName = "Z";
  u.z().Tabellen[0].Dateiname = "Y";
  u.z().Tabellen[0].PktDateiName = "Y";
  u.z().AktiveTabelle = 0;
  TabelleSpeichern(u.kontext);
  AlleLesen(u, "Y");
  TabellenSindGueltig(u.z(), "zweimal");
  EXPECT_EQ(u.ordner.lesen("Y.pic").size(), 1785u);
}

TEST(Robust, EachReaderGivenAnotherKindOfFileStaysWithinItsTable) {
  Umgebung quelle;
  Zustand& q = quelle.z();
  for (int n = 0; n < 999; n += 3) q.Punkte[n].A = n + 0.5;
  for (int n = 0; n < 100; ++n) q.Verbindungen[n] = Verbindung{static_cast<Integer>(n), static_cast<Integer>(n + 1)};
  for (int n = 1; n < 50; ++n) q.Boegen[n].Radius = n;
  for (int n = 0; n < 30; ++n) q.Berechnungen[n].LVNr = LVNummer::Rechts(std::to_string(n));
  for (int n = 0; n < 40; ++n) q.Beschriftungen[n].Text = "L" + std::to_string(n);
  q.Hintergrundbilder[2].Breite = 1;
  for (auto schreiber : {&SchreibePunkte, &SchreibeVerbindungen, &SchreibeBoegen, &SchreibeBerechnungen,
                         &SchreibeBeschriftungen, &SchreibeBilder})
    ASSERT_TRUE(schreiber(quelle.kontext, "Q"));
  const auto namen = quelle.ordner.dateien();
  ASSERT_EQ(namen.size(), 6u);
  for (const auto& name : namen) {
    Umgebung u;
    const std::string inhalt = quelle.ordner.lesen(name);
    for (const Leser& l : kLeser) u.ordner.schreiben(std::string("F") + l.endung, inhalt);
    AlleLesen(u, "F");
    TabellenSindGueltig(u.z(), name);
  }
}

TEST(Robust, AHugeFileIsReadOnlyUpToTheCap) {
  Umgebung u;
  // Two gigabytes of zeros that take no room on disk.
  for (const Leser& l : kLeser) {
    const std::string pfad = u.ordner.datei(std::string("H") + l.endung);
    const int fd = ::open(pfad.c_str(), O_WRONLY | O_CREAT, 0644);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(::ftruncate(fd, 2LL << 30), 0);
    ::close(fd);
  }
  const auto anfang = std::chrono::steady_clock::now();
  AlleLesen(u, "H");
  const auto dauer = std::chrono::steady_clock::now() - anfang;
  TabellenSindGueltig(u.z(), "riesig");
  EXPECT_TRUE(u.z().PunktLeer(0)) << "zero records are empty points";
  EXPECT_EQ(u.z().Verbindungen[0].Von, -1) << "0 to 0 is dropped";
  EXPECT_LT(std::chrono::duration_cast<std::chrono::seconds>(dauer).count(), 120) << "no hang";
}

TEST(Robust, EmptyFilesAndFoldersLeaveEmptyTables) {
  Umgebung u;
  for (const Leser& l : kLeser) {
    u.ordner.schreiben(std::string("E") + l.endung, "");
    std::filesystem::create_directory(u.ordner.datei(std::string("D") + l.endung));
  }
  u.z().Punkte[3].A = 1;
  AlleLesen(u, "E");
  EXPECT_TRUE(u.z().PunktLeer(3));
  EXPECT_TRUE(u.meldungen().empty());
  AlleLesen(u, "D");
  TabellenSindGueltig(u.z(), "Ordner");
  EXPECT_EQ(u.meldungen().size(), 1u) << "a folder is no point file";
}

TEST(Robust, ACalculationFileClaimingEndlessElementsEndsAtItsEnd) {
  Umgebung u;
  std::string d;
  for (int i = 0; i < 300; ++i) d += "\"X\"\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n32767\r\n";
  u.ordner.schreiben("T.ber", d);
  LeseBerechnungen(u.kontext, "T");
  EXPECT_EQ(u.z().Berechnungen[0].Anzahl, 500);
  EXPECT_EQ(u.z().Berechnungen[0].Element[0], 0) << "the quoted X reads as 0";
  EXPECT_TRUE(u.z().Berechnungen[1].LVNr.IstLeer()) << "every later value went into the first record";
}

TEST(Robust, LabelLinesWithoutSemicolonOrWithOnlySemicolons) {
  Umgebung u;
  u.ordner.schreiben("T.bes", "ohne Semikolon\r\n;;;;;;;;;;;;;;;;;;;;\r\n5\r\n;\r\n");
  LeseBeschriftungen(u.kontext, "T");
  for (const auto& b : u.z().Beschriftungen) EXPECT_TRUE(b.Text.empty());
}

}  // namespace
}  // namespace kolm::core
