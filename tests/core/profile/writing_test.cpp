// Writing profile files: values in place, new keys and sections, deletions,
// the bytes on disk, refused names, failed writes.
#include <gtest/gtest.h>

#include <string>

#include "core/io/files.h"
#include "core/profile/profile.h"
#include "profile_test_support.h"

namespace kolm::core::profile {
namespace {

using namespace std::literals;
using support::Disk;
using support::Put;
using support::TempDir;

// Everything a user may have put into a file by hand.
const std::string kHandMade =
    "; Kolm Projekteinstellungen\r\n"
    "vor allem=1\r\n"
    "\r\n"
    "[Project]\r\n"
    "Name=Demo Projekt\r\n"
    "\r\n"
    "  [ Grafik Defaults ]  ; Grafik\r\n"
    "  Ma\xDF" "stab  =  250  \r\n"
    "\tGitterstil\t=\t3\r\n"
    "irgendein Text ohne Gleichheitszeichen\r\n"
    ";Vergleichsebene=7\r\n"
    "[Printer]\r\n"
    "Font=Arial\r\n";

TEST(ProfileRewrite, AValueIsReplacedInPlaceAndEveryOtherByteStays) {
  TempDir dir;
  const std::string f = Put(dir.file("Kolmproj.ini"), kHandMade);
  ASSERT_TRUE(WriteString(f, "GRAFIK DEFAULTS", "maßstab", "500"));
  std::string expected = kHandMade;
  expected.replace(expected.find("250  "), 5, "500");
  EXPECT_EQ(Disk(f), expected);

  ASSERT_TRUE(WriteString(f, "Grafik Defaults", "Gitterstil", "1"));
  expected.replace(expected.find("\t3\r\n"), 4, "\t1\r\n");
  EXPECT_EQ(Disk(f), expected);

  ASSERT_TRUE(WriteString(f, "project", "NAME", "Straße"));
  expected.replace(expected.find("Demo Projekt"), 12, "Stra\xDF" "e");
  EXPECT_EQ(Disk(f), expected);
  EXPECT_EQ(dir.entries(), 1u) << "no temporary file stays behind";
}

TEST(ProfileRewrite, NewKeysGoAfterTheLastSettingOfTheirSection) {
  ProfileFile p = ProfileFile::FromBytes(
      "[A]\r\nx=1\r\n\r\n; zu B\r\n[B]\r\ny=2\r\n[C]\r\n; nur Kommentar\r\n[D]\r\nText\r\n\r\n");
  ASSERT_TRUE(p.WriteString("a", "z", "3"));
  ASSERT_TRUE(p.WriteString("B", "w", "4"));
  ASSERT_TRUE(p.WriteString("C", "v", "5"));
  ASSERT_TRUE(p.WriteString("D", "u", "6"));
  EXPECT_EQ(p.Bytes(),
            "[A]\r\nx=1\r\nz=3\r\n\r\n; zu B\r\n[B]\r\ny=2\r\nw=4\r\n[C]\r\nv=5\r\n; nur Kommentar\r\n"
            "[D]\r\nText\r\nu=6\r\n\r\n");
  EXPECT_EQ(p.GetString("A", "z", "", 10), "3");
  EXPECT_EQ(p.GetString("D", "u", "", 10), "6");
}

TEST(ProfileRewrite, NewSectionsGoAtTheEndOfTheFile) {
  TempDir dir;
  const std::string f = dir.file("Kolm.ini");
  ASSERT_TRUE(WriteString(f, "kolm", "ProgramDir", ""));
  EXPECT_EQ(Disk(f), "[kolm]\r\nProgramDir=\r\n");
  ASSERT_TRUE(WriteString(f, "kolm", "WindowState", "0"));
  ASSERT_TRUE(WriteString(f, "last project", "Name", "Demo Projekt"));
  ASSERT_TRUE(WriteString(f, "Automatisch Speichern", "Intervall", "10"));
  EXPECT_EQ(Disk(f),
            "[kolm]\r\nProgramDir=\r\nWindowState=0\r\n[last project]\r\nName=Demo Projekt\r\n"
            "[Automatisch Speichern]\r\nIntervall=10\r\n");

  const std::string g = Put(dir.file("ohne Zeilenende.ini"), "[a]\r\nx=1");
  ASSERT_TRUE(WriteString(g, "b", "y", "2"));
  EXPECT_EQ(Disk(g), "[a]\r\nx=1\r\n[b]\r\ny=2\r\n");
}

TEST(ProfileRewrite, LineEndsBecomeCrLfAndTheTextWindows1252) {
  TempDir dir;
  const std::string f = Put(dir.file("lf.ini"), "[a]\nx=1\n; c\r\nText\n[b]\ny=2");
  ASSERT_TRUE(WriteString(f, "a", "x", "9"));
  EXPECT_EQ(Disk(f), "[a]\r\nx=9\r\n; c\r\nText\r\n[b]\r\ny=2\r\n");

  ASSERT_TRUE(WriteString(f, "Grafik Defaults", "Logo Höhe in cm", "Straße 5 €"));
  EXPECT_EQ(Disk(f), "[a]\r\nx=9\r\n; c\r\nText\r\n[b]\r\ny=2\r\n"
                     "[Grafik Defaults]\r\nLogo H\xF6he in cm=Stra\xDF" "e 5 \x80\r\n");
  EXPECT_EQ(ReadString(f, "grafik defaults", "LOGO HÖHE IN CM", "", 40), "Straße 5 €");
  // A character the code page lacks cannot be stored.
  ASSERT_TRUE(WriteString(f, "a", "x", "\xE2\x88\x9A" "2"));
  EXPECT_EQ(ReadString(f, "a", "x", "", 40), "?2");
}

TEST(ProfileRewrite, KeysWithTrailingBlanksAreWrittenAndFoundAsTheyStand) {
  TempDir dir;
  // A new key is written exactly as given, its trailing blank included ...
  const std::string f = dir.file("Kolmproj.ini");
  ASSERT_TRUE(WriteString(f, "Printer", "MitLVDrucken ", "-1"));
  ASSERT_TRUE(WriteString(f, "Printer", "MitLVDruckenLinks", "0"));
  EXPECT_EQ(Disk(f), "[Printer]\r\nMitLVDrucken =-1\r\nMitLVDruckenLinks=0\r\n");
  // ... read under the name without the blank and with it ...
  EXPECT_EQ(ReadString(f, "Printer", "MitLVDrucken", "0", 40), "-1");
  EXPECT_EQ(ReadString(f, "Printer", "MitLVDruckenLinks ", "x", 40), "0");
  // ... and an existing key keeps its own spelling when either spelling writes it.
  ASSERT_TRUE(WriteString(f, "Printer", "MitLVDrucken", "0"));
  ASSERT_TRUE(WriteString(f, "Printer", "MitLVDruckenLinks ", "-1"));
  EXPECT_EQ(Disk(f), "[Printer]\r\nMitLVDrucken =0\r\nMitLVDruckenLinks=-1\r\n");
}

TEST(ProfileRewrite, WritesGoToTheFirstSectionAndKeyOfAName) {
  ProfileFile p = ProfileFile::FromBytes("[S]\r\na=1\r\nA=2\r\n[s]\r\nb=3\r\n");
  ASSERT_TRUE(p.WriteString("S", "a", "10"));
  ASSERT_TRUE(p.WriteString("S", "b", "30"));
  EXPECT_EQ(p.Bytes(), "[S]\r\na=10\r\nA=2\r\nb=30\r\n[s]\r\nb=3\r\n");
  EXPECT_EQ(p.GetString("s", "b", "", 10), "30");
}

TEST(ProfileRewrite, WritingTheValueAKeyHasLeavesTheFileUntouched) {
  TempDir dir;
  const std::string original = "[a]\nx = 1\n";
  const std::string f = Put(dir.file("a.ini"), original);
  io::SetFaultHook([](std::string_view, const std::string&) { return true; });
  EXPECT_TRUE(WriteString(f, "A", "X", "1")) << "nothing to write, so nothing can fail";
  EXPECT_TRUE(DeleteKey(f, "a", "fehlt"));
  EXPECT_TRUE(DeleteSection(f, "fehlt"));
  EXPECT_FALSE(WriteString(f, "a", "x", "2"));
  io::SetFaultHook(nullptr);
  EXPECT_EQ(Disk(f), original);

  EXPECT_TRUE(DeleteKey(dir.file("fehlt.ini"), "a", "x"));
  EXPECT_TRUE(DeleteSection(dir.file("fehlt.ini"), "a"));
  EXPECT_FALSE(io::FileExists(dir.file("fehlt.ini"))) << "deleting from a missing file creates none";
}

TEST(ProfileDelete, AKeyIsRemovedWithEveryDuplicateOfItsSection) {
  TempDir dir;
  const std::string f = Put(dir.file("Kolm.ini"),
                            "[projects]\r\nDemo Projekt=C:\\Demo\\\r\n; Liste\r\nAlt=C:\\Alt\\\r\n"
                            "demo projekt =C:\\Doppelt\\\r\n\r\n[Other]\r\nDemo Projekt=bleibt\r\n"
                            "[Projects]\r\nDemo Projekt=zweite Sektion\r\n");
  ASSERT_TRUE(DeleteKey(f, "Projects", "DEMO PROJEKT"));
  EXPECT_EQ(Disk(f),
            "[projects]\r\n; Liste\r\nAlt=C:\\Alt\\\r\n\r\n[Other]\r\nDemo Projekt=bleibt\r\n"
            "[Projects]\r\nDemo Projekt=zweite Sektion\r\n");
  EXPECT_EQ(ReadString(f, "projects", "Demo Projekt", "weg", 100), "weg");
  EXPECT_EQ(ReadString(f, "Other", "Demo Projekt", "", 100), "bleibt");
}

TEST(ProfileDelete, ASectionIsRemovedWithAllItsLinesAndAllSectionsOfItsName) {
  ProfileFile p = ProfileFile::FromBytes(
      "; Kopf\r\n[Variables]\r\nA=1\r\n; Notiz\r\n\r\n[Skin]\r\nSkinName=blau\r\n[VARIABLES]\r\nB=2\r\n");
  ASSERT_TRUE(p.DeleteSection("variables"));
  EXPECT_EQ(p.Bytes(), "; Kopf\r\n[Skin]\r\nSkinName=blau\r\n");
  EXPECT_TRUE(p.modified());
  EXPECT_EQ(p.GetString("Variables", "B", "0", 10), "0");
  EXPECT_EQ(p.SectionNames(), (std::vector<std::string>{"Skin"}));
  // Written anew, the section starts empty.
  ASSERT_TRUE(p.WriteString("Variables", "A", "5"));
  EXPECT_EQ(p.Bytes(), "; Kopf\r\n[Skin]\r\nSkinName=blau\r\n[Variables]\r\nA=5\r\n");
}

TEST(ProfileNames, NamesThatCouldNotBeFoundAgainAreRefused) {
  const std::string original = "[a]\r\nx=1\r\n";
  ProfileFile p = ProfileFile::FromBytes(original);
  for (const std::string_view key : {""sv, "   "sv, "a=b"sv, ";x"sv, "  ;x"sv, "[x]"sv, "[x"sv, "a\r\nb"sv, "a\nb"sv}) {
    EXPECT_FALSE(p.WriteString("a", key, "v")) << key;
    EXPECT_FALSE(p.DeleteKey("a", key)) << key;
  }
  for (const std::string_view section : {""sv, " \t"sv, "a]b"sv, "a\nb"sv, "\0a"sv}) {
    EXPECT_FALSE(p.WriteString(section, "k", "v")) << section;
    EXPECT_FALSE(p.DeleteSection(section)) << section;
  }
  EXPECT_EQ(p.Bytes(), original);
  EXPECT_FALSE(p.modified());

  TempDir dir;
  const std::string f = Put(dir.file("n.ini"), original);
  EXPECT_FALSE(WriteString(f, "a", "", "v"));
  EXPECT_EQ(Disk(f), original);
}

TEST(ProfileNames, AValueEndsAtALineBreakOrNulSinceTheFileCannotHoldThem) {
  ProfileFile p = ProfileFile::FromBytes("[a]\r\n");
  ASSERT_TRUE(p.WriteString("a", "zeilen", "eins\r\n[b]\r\nzwei"));
  ASSERT_TRUE(p.WriteString("a", "null", "ab\0cd"s));
  ASSERT_TRUE(p.WriteString("a", "cr", "x\ry"));
  EXPECT_EQ(p.Bytes(), "[a]\r\nzeilen=eins\r\nnull=ab\r\ncr=x\r\n");
  EXPECT_EQ(p.SectionNames(), std::vector<std::string>{"a"});
}

TEST(ProfileFailure, AFailedWriteLeavesTheOldFileAtEveryStep) {
  for (const char* step : {"open", "write", "sync", "rename"}) {
    TempDir dir;
    const std::string f = Put(dir.file("Kolmproj.ini"), kHandMade);
    io::SetFaultHook([step](std::string_view s, const std::string&) { return s == step; });
    EXPECT_FALSE(WriteString(f, "Project", "Name", "Neu")) << step;
    EXPECT_FALSE(WriteString(f, "Neu", "Key", "Wert")) << step;
    EXPECT_FALSE(DeleteKey(f, "Printer", "Font")) << step;
    EXPECT_FALSE(DeleteSection(f, "Project")) << step;
    ProfileFile p = ProfileFile::Load(f);
    ASSERT_TRUE(p.WriteString("Project", "Name", "Neu"));
    EXPECT_FALSE(p.Save(f)) << step;
    io::SetFaultHook(nullptr);
    EXPECT_EQ(Disk(f), kHandMade) << step;
    EXPECT_EQ(dir.entries(), 1u) << step;
    // The same change succeeds once the fault is gone.
    EXPECT_TRUE(p.Save(f)) << step;
    EXPECT_EQ(ReadString(f, "Project", "Name", "", 40), "Neu") << step;
  }
}

TEST(ProfileFailure, AFileTooLargeToReadWholeIsNeverWrittenBack) {
  TempDir dir;
  const std::string head = "[kolm]\r\nWindowState=2\r\n[Rest]\r\n";
  std::string big = head;
  while (big.size() <= kMaxFileBytes) big += "Zeile=" + std::string(1000, 'x') + "\r\n";
  const std::string f = Put(dir.file("gross.ini"), big);

  EXPECT_EQ(ReadInt(f, "kolm", "WindowState", 0), 2) << "the part that fits is read";
  EXPECT_FALSE(WriteString(f, "kolm", "WindowState", "0"));
  EXPECT_FALSE(DeleteSection(f, "Rest"));
  EXPECT_EQ(Disk(f).size(), big.size());

  const std::string small = Put(dir.file("klein.ini"), head);
  ProfileFile cut = ProfileFile::Load(small, head.find("[Rest]"));
  EXPECT_EQ(cut.state(), ProfileFile::State::Cut);
  EXPECT_EQ(cut.GetInt("kolm", "WindowState", 9), 2);
  ASSERT_TRUE(cut.WriteString("kolm", "WindowState", "0"));
  EXPECT_FALSE(cut.Save(small));
  EXPECT_EQ(Disk(small), head);
  EXPECT_EQ(ProfileFile::Load(small, head.size()).state(), ProfileFile::State::Complete);
}

TEST(ProfileFailure, AnUnreadableFileIsNeverOverwritten) {
  if (::geteuid() == 0) GTEST_SKIP() << "root reads anything";
  TempDir dir;
  const std::string f = Put(dir.file("gesperrt.ini"), kHandMade);
  std::filesystem::permissions(f, std::filesystem::perms::none);
  EXPECT_EQ(ProfileFile::Load(f).state(), ProfileFile::State::Unreadable);
  EXPECT_FALSE(WriteString(f, "Project", "Name", "Neu"));
  std::filesystem::permissions(f, std::filesystem::perms::owner_read);
  EXPECT_EQ(Disk(f), kHandMade);
}

// The settings are written key by key; the one-call functions and a file
// loaded once and saved once must leave the same bytes.
TEST(ProfileBatch, KeyByKeyWritesAndOneSaveGiveTheSameFile) {
  TempDir dir;
  const std::string single = dir.file("einzeln.ini");
  const std::string batch = dir.file("gesammelt.ini");
  const std::string seed = "; Einstellungen\r\n[Defaults]\r\nLV=\r\n";
  Put(single, seed);
  Put(batch, seed);
  ProfileFile p = ProfileFile::Load(batch);
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 100; ++i) {
      const std::string section = "Sektion " + std::to_string(i % 5);
      const std::string key = "Bezeichnung " + std::to_string(i);
      const std::string value = std::to_string(i * (round + 1)) + " Wert";
      ASSERT_TRUE(WriteString(single, section, key, value));
      ASSERT_TRUE(p.WriteString(section, key, value));
    }
  }
  ASSERT_TRUE(p.Save(batch));
  EXPECT_EQ(Disk(single), Disk(batch));
  const ProfileFile back = ProfileFile::Load(single);
  EXPECT_EQ(back.KeyNames("Sektion 3").size(), 20u);
  EXPECT_EQ(back.GetString("sektion 3", "bezeichnung 98", "", 40), "196 Wert");
  EXPECT_EQ(back.GetInt("Sektion 0", "Bezeichnung 0", -1), 0);
  EXPECT_EQ(back.GetString("Defaults", "LV", "x", 40), "");
}

}  // namespace
}  // namespace kolm::core::profile
