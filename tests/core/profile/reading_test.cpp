// Reading profile files: lookup, trimming, quotes, buffers, numbers, lists.
#include <gtest/gtest.h>

#include <string>

#include "core/profile/profile.h"
#include "profile_test_support.h"

namespace kolm::core::profile {
namespace {

using namespace std::string_literals;

// A settings file as a user may have edited it: odd spacing, umlauts in
// Windows-1252, comments, a line without "=", keys before any section.
const std::string kEdited =
    "Vorne=1\r\n"
    "; Programmeinstellungen\r\n"
    "[kolm]\r\n"
    "ProgramDir=C:\\Kolm\\\r\n"
    "WindowState=0\r\n"
    "\r\n"
    "  [ Grafik Defaults ]   ; Kommentar hinter der Klammer\r\n"
    "  Ma\xDF" "stab  =  250  \r\n"
    "\tLogo H\xD6HE in cm\t=\t2\r\n"
    "NurText\r\n"
    ";Kommentar=5\r\n"
    "Leer=\r\n"
    "Leer2=   \r\n"
    "[\xC4nderungen]\r\n"
    "Stra\xDF" "e=Br\xFC" "cke\r\n";

ProfileFile Edited() { return ProfileFile::FromBytes(kEdited); }

TEST(ProfileLookup, SectionAndKeyNamesMatchWithoutRegardToCase) {
  const ProfileFile p = Edited();
  EXPECT_EQ(p.GetString("KOLM", "programdir", "", 100), "C:\\Kolm\\");
  EXPECT_EQ(p.GetString("Kolm", "WINDOWSTATE", "x", 100), "0");
  EXPECT_EQ(p.GetString("grafik defaults", "MAßSTAB", "", 100), "250");
  // Umlauts fold like ASCII letters; ß has no upper-case partner and is not "ss".
  EXPECT_EQ(p.GetString("Grafik Defaults", "Logo Höhe in CM", "", 100), "2");
  EXPECT_EQ(p.GetString("äNDERUNGEN", "STRAßE", "", 100), "Brücke");
  EXPECT_EQ(p.GetString("Grafik Defaults", "Massstab", "fehlt", 100), "fehlt");
  EXPECT_EQ(p.GetString("Anderungen", "Straße", "fehlt", 100), "fehlt");
}

TEST(ProfileLookup, BlanksAroundNamesAndValuesAreTrimmed) {
  const ProfileFile p = Edited();
  EXPECT_EQ(p.GetString("Grafik Defaults", "Maßstab", "", 100), "250");
  EXPECT_EQ(p.GetString("  Grafik Defaults\t", " Maßstab ", "", 100), "250");
  EXPECT_EQ(p.GetString("Grafik Defaults", "Leer2", "x", 100), "");
  EXPECT_EQ(p.GetInt(" kolm ", "WindowState ", 7), 0);
}

TEST(ProfileLookup, MissingSectionsAndKeysGiveTheDefaultAnEmptyValueDoesNot) {
  const ProfileFile p = Edited();
  EXPECT_EQ(p.GetString("kolm", "Intervall", "0", 40), "0");
  EXPECT_EQ(p.GetString("Automatisch Speichern", "Intervall", "15", 40), "15");
  EXPECT_EQ(p.GetString("Grafik Defaults", "Leer", "x", 40), "");
  EXPECT_EQ(p.GetInt("Grafik Defaults", "Leer", 9), 0);
  EXPECT_EQ(p.GetInt("Grafik Defaults", "fehlt", 9), 9);
  EXPECT_EQ(p.GetInt("fehlt", "Leer", -1), -1);
  // Lines that carry no setting are not keys.
  EXPECT_EQ(p.GetString("Grafik Defaults", "NurText", "d", 40), "d");
  EXPECT_EQ(p.GetString("Grafik Defaults", ";Kommentar", "d", 40), "d");
  EXPECT_EQ(p.GetString("", "Vorne", "d", 40), "d") << "keys before the first section belong to none";
  EXPECT_EQ(p.GetString("kolm", "", "d", 40), "d");
  EXPECT_EQ(p.GetString("", "", "d", 40), "d");
  EXPECT_EQ(ProfileFile().GetString("kolm", "ProgramDir", "leer", 40), "leer");
}

TEST(ProfileLookup, HeadersWithoutClosingBracketOrNameAndKeysWithoutName) {
  const ProfileFile p = ProfileFile::FromBytes(
      "[A]\r\nx=1\r\n[B\r\ny=2\r\n=3\r\n  = 4\r\n[]\r\nz=5\r\n[ \t]\r\nw=6\r\n");
  // "[B" is no header: "y" still belongs to A, and "[B" is a key line without "=".
  EXPECT_EQ(p.GetString("A", "y", "", 10), "2");
  EXPECT_EQ(p.GetString("B", "y", "d", 10), "d");
  // "=3" has no key name and is no setting.
  EXPECT_EQ(p.KeyNames("A"), (std::vector<std::string>{"x", "y"}));
  // An empty header still ends the section before it.
  EXPECT_EQ(p.GetString("A", "z", "d", 10), "d");
  EXPECT_EQ(p.GetString("A", "w", "d", 10), "d");
}

TEST(ProfileLookup, TheFirstSectionAndTheFirstKeyOfANameWin) {
  const ProfileFile p = ProfileFile::FromBytes(
      "[Projects]\r\nDemo=C:\\eins\\\r\ndemo=C:\\zwei\\\r\n[PROJECTS]\r\nDemo=C:\\drei\\\r\nNeu=C:\\neu\\\r\n");
  EXPECT_EQ(p.GetString("projects", "DEMO", "", 100), "C:\\eins\\");
  EXPECT_EQ(p.GetString("projects", "Neu", "fehlt", 100), "fehlt");
  EXPECT_EQ(p.KeyNames("projects"), (std::vector<std::string>{"Demo"}));
  EXPECT_EQ(p.SectionNames(), (std::vector<std::string>{"Projects"}));
}

TEST(ProfileLookup, KeysWrittenWithTrailingBlanksMeetTheirNamesWithout) {
  // The settings read "MitLVDruckenLinks " and write "MitLVDrucken ".
  const ProfileFile written = ProfileFile::FromBytes("[Printer]\r\nMitLVDrucken =-1\r\nMitLVDruckenLinks=-1\r\n");
  EXPECT_EQ(written.GetString("Printer", "MitLVDrucken", "0", 40), "-1");
  EXPECT_EQ(written.GetString("Printer", "MitLVDruckenLinks ", "0", 40), "-1");
  EXPECT_EQ(written.GetString("Printer", "MitLVDruckenRechts", "0", 40), "0");
}

TEST(ProfileQuotes, MatchingQuotesAroundAValueAreRemoved) {
  const ProfileFile p = ProfileFile::FromBytes(
      "[Q]\r\n"
      "doppelt=\"  mit Blanks  \"\r\n"
      "einfach='Arial'\r\n"
      "gemischt=\"Arial'\r\n"
      "allein=\"\r\n"
      "leer=\"\"\r\n"
      "innen=\"a\"b\"\r\n"
      "hinten=x\"y\"\r\n"
      "zahl=\" -12\"\r\n");
  EXPECT_EQ(p.GetString("Q", "doppelt", "", 40), "  mit Blanks  ");
  EXPECT_EQ(p.GetString("Q", "einfach", "", 40), "Arial");
  EXPECT_EQ(p.GetString("Q", "gemischt", "", 40), "\"Arial'");
  EXPECT_EQ(p.GetString("Q", "allein", "", 40), "\"");
  EXPECT_EQ(p.GetString("Q", "leer", "x", 40), "");
  EXPECT_EQ(p.GetString("Q", "innen", "", 40), "a\"b");
  EXPECT_EQ(p.GetString("Q", "hinten", "", 40), "x\"y\"");
  EXPECT_EQ(p.GetInt("Q", "zahl", 0), -12);
  // A default is no file value: its quotes stay.
  EXPECT_EQ(p.GetString("Q", "fehlt", "'x'", 40), "'x'");
}

TEST(ProfileBuffer, ValuesAreCutToOneCharacterLessThanTheBuffer) {
  const ProfileFile p = ProfileFile::FromBytes(
      "[B]\r\nziffern=0123456789\r\numlaute=\xC4\xD6\xDC\xE4\xF6\xFC\r\nzitat=\"abcdef\"\r\nlang=" +
      std::string(50, 'x') + "\r\n");
  EXPECT_EQ(p.GetString("B", "ziffern", "", 11), "0123456789");
  EXPECT_EQ(p.GetString("B", "ziffern", "", 10), "012345678");
  EXPECT_EQ(p.GetString("B", "ziffern", "", 2), "0");
  EXPECT_EQ(p.GetString("B", "ziffern", "", 1), "");
  EXPECT_EQ(p.GetString("B", "ziffern", "", 0), "");
  // Characters of the code page count, so no UTF-8 sequence is broken.
  EXPECT_EQ(p.GetString("B", "umlaute", "", 4), "ÄÖÜ");
  EXPECT_EQ(p.GetString("B", "zitat", "", 4), "abc") << "the quotes do not take room";
  EXPECT_EQ(p.GetString("B", "lang", "", kSettingsBuffer), std::string(39, 'x'));
}

TEST(ProfileBuffer, DefaultsLoseTrailingBlanksAndAreCutLikeValues) {
  const ProfileFile p;
  EXPECT_EQ(p.GetString("s", "k", "Demo Projekt", 5), "Demo");
  EXPECT_EQ(p.GetString("s", "k", "Straße", 5), "Stra");
  EXPECT_EQ(p.GetString("s", "k", "Straße", 6), "Straß");
  EXPECT_EQ(p.GetString("s", "k", "Arial   ", 40), "Arial");
  EXPECT_EQ(p.GetString("s", "k", " (kein)", 40), " (kein)") << "leading blanks stay";
  EXPECT_EQ(p.GetString("s", "k", "ab\0cd"s, 40), "ab");
  EXPECT_EQ(p.GetString("s", "k", "Demo", 1), "");
}

TEST(ProfileBuffer, AValueEndsAtItsFirstNul) {
  const ProfileFile p = ProfileFile::FromBytes("[N]\r\ntext=ab\0cd\r\nzahl=12\0" "34\r\nnull=\0\0\r\n"s);
  EXPECT_EQ(p.GetString("N", "text", "", 40), "ab");
  EXPECT_EQ(p.GetInt("N", "zahl", 0), 12);
  EXPECT_EQ(p.GetString("N", "null", "d", 40), "");
  // A name asked for also ends at its NUL, as a C string would.
  EXPECT_EQ(p.GetString("N\0x"s, "text\0y"s, "", 40), "ab");
}

TEST(ProfileInt, TheLeadingDecimalNumberOfTheValue) {
  struct Case {
    const char* value;
    int expected;
  };
  const Case cases[] = {
      {"12abc", 12},  {"-5", -5},    {"", 0},        {" 7", 7},          {"abc", 0},
      {"+3", 3},      {"- 3", 0},    {"--3", 0},     {"0x1F", 0},        {"3.9", 3},
      {"007", 7},     {"1 2", 1},    {"-0", 0},      {"2147483647", 2147483647},
      {"-2147483648", -2147483647 - 1},
      {"4294967297", 1},  // digits accumulate modulo 2^32
      {"4294967295", -1},
  };
  for (const Case& c : cases) {
    const ProfileFile p = ProfileFile::FromBytes("[I]\r\nk=" + std::string(c.value) + "\r\n");
    EXPECT_EQ(p.GetInt("I", "k", 99), c.expected) << '"' << c.value << '"';
  }
  const ProfileFile p = ProfileFile::FromBytes("[I]\r\nk=5\r\n");
  EXPECT_EQ(p.GetInt("I", "fehlt", -1), -1);
  EXPECT_EQ(p.GetInt("fehlt", "k", 42), 42);
}

TEST(ProfileLists, SectionAndKeyNamesInFileOrderEachOnce) {
  const ProfileFile p = ProfileFile::FromBytes(
      "x=0\r\n[Linien Farben]\r\nEintrag 0=0 Schwarz\r\n; Eintrag 9=9\r\nEintrag 1 = 12 Rot\r\nEINTRAG 0=doppelt\r\n"
      "ohne Gleich\r\n[Projects]\r\nDemo Projekt=C:\\Demo\\\r\n[]\r\n[linien farben]\r\nEintrag 2=2\r\n"
      "[Gr\xF6\xDF" "e]\r\n");
  EXPECT_EQ(p.SectionNames(), (std::vector<std::string>{"Linien Farben", "Projects", "Größe"}));
  EXPECT_EQ(p.KeyNames("LINIEN FARBEN"), (std::vector<std::string>{"Eintrag 0", "Eintrag 1"}));
  EXPECT_EQ(p.KeyNames("Projects"), (std::vector<std::string>{"Demo Projekt"}));
  EXPECT_TRUE(p.KeyNames("Größe").empty());
  EXPECT_TRUE(p.KeyNames("fehlt").empty());
  EXPECT_TRUE(ProfileFile().SectionNames().empty());
}

TEST(ProfileFiles, ReadingFromDiskConvertsTheCodePageAndAcceptsAnyLineEnd) {
  support::TempDir dir;
  const std::string f = support::Put(dir.file("Kolmproj.ini"),
                                     "[Project]\nName=Stra\xDF" "enbau\r\n[Formats]\r\nW\xC4HRUNGSFORMAT=#0.00 \x80");
  EXPECT_EQ(ReadString(f, "Project", "Name", "Projekt", 40), "Straßenbau");
  EXPECT_EQ(ReadString(f, "formats", "WährungsFormat", "", 40), "#0.00 €");
  EXPECT_EQ(ReadInt(f, "Project", "Name", 5), 0);
  EXPECT_EQ(ReadString(dir.file("fehlt.ini"), "Project", "Name", "Projekt", 40), "Projekt");
  EXPECT_EQ(ReadInt(dir.file("fehlt.ini"), "Defaults", "Aktive Tabelle", -1), -1);
  EXPECT_EQ(ReadString(dir.path.string(), "Project", "Name", "Ordner", 40), "Ordner") << "a folder is no file";
  EXPECT_EQ(ProfileFile::Load(f).state(), ProfileFile::State::Complete);
  EXPECT_EQ(ProfileFile::Load(dir.file("fehlt.ini")).state(), ProfileFile::State::Empty);
}

}  // namespace
}  // namespace kolm::core::profile
