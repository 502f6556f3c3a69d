// Damaged and hostile files: random bytes, truncation, NUL bytes, very long
// lines. Every one reads without crash, and writes keep the file consistent.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "core/profile/profile.h"

namespace kolm::core::profile {
namespace {

using namespace std::string_literals;

// Every line of written content ends in CR LF.
void ExpectCrLfLines(const std::string& bytes, const std::string& context) {
  for (size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n') {
      ASSERT_TRUE(i > 0 && bytes[i - 1] == '\r') << context << " at " << i;
    }
  }
  if (!bytes.empty()) {
    ASSERT_EQ(bytes.back(), '\n') << context;
  }
}

std::string RandomContent(std::mt19937& random) {
  static const char kAlphabet[] = {'[', ']', '=', ';', '\r', '\n', '\0', ' ', '\t', 'a', 'A', 'k', '"',
                                   '\'', '\xC4', '\xE4', '\xDF', '\x80', '\x81', '\xFF'};
  std::uniform_int_distribution<int> length(0, 400);
  std::uniform_int_distribution<int> pick(0, sizeof kAlphabet);  // one past the end: any byte
  std::uniform_int_distribution<int> anyByte(0, 255);
  std::string s(static_cast<size_t>(length(random)), ' ');
  for (char& c : s) {
    const int i = pick(random);
    c = i < static_cast<int>(sizeof kAlphabet) ? kAlphabet[i] : static_cast<char>(anyByte(random));
  }
  return s;
}

TEST(ProfileRobustness, RandomBytesReadAndWriteConsistently) {
  std::mt19937 random(20240611);
  for (int round = 0; round < 2000; ++round) {
    const std::string content = RandomContent(random);
    const std::string context = "round " + std::to_string(round);
    ProfileFile p = ProfileFile::FromBytes(content);
    ExpectCrLfLines(p.Bytes(), context);
    // Reading the same content twice gives the same bytes.
    EXPECT_EQ(ProfileFile::FromBytes(p.Bytes()).Bytes(), p.Bytes()) << context;
    (void)p.GetString("a", "k", "d", 40);
    (void)p.GetInt("A", "a", 3);
    for (const std::string& s : p.SectionNames()) (void)p.KeyNames(s);

    ASSERT_TRUE(p.WriteString("a", "k", "Wert")) << context;
    EXPECT_EQ(p.GetString("A", "K", "", 40), "Wert") << context;
    ExpectCrLfLines(p.Bytes(), context);
    const ProfileFile again = ProfileFile::FromBytes(p.Bytes());
    EXPECT_EQ(again.GetString("a", "k", "", 40), "Wert") << context;

    ASSERT_TRUE(p.DeleteKey("a", "k"));
    EXPECT_EQ(p.GetString("a", "k", "weg", 40), "weg") << context;
    ASSERT_TRUE(p.WriteString("a", "k", "neu"));
    ASSERT_TRUE(p.DeleteSection("A"));
    for (const std::string& s : p.SectionNames()) EXPECT_NE(s, "a") << context;
    EXPECT_EQ(p.GetString("a", "k", "weg", 40), "weg") << context;
    ExpectCrLfLines(p.Bytes(), context);
  }
}

TEST(ProfileRobustness, ATruncatedFileReadsWhatItStillHolds) {
  const std::string full =
      "[kolm]\r\nProgramDir=C:\\Programme\\Kolm\\\r\nWindowState=2\r\n"
      "[Grafik Defaults]\r\nGrafikFont=Courier New\r\nMa\xDF" "stab=1000\r\n";
  struct Key {
    const char* section;
    const char* key;
    std::string value;
    size_t lineEnd;  // offset just past the value
  };
  const Key keys[] = {
      {"kolm", "ProgramDir", "C:\\Programme\\Kolm\\", full.find("\\\r\n") + 1},
      {"kolm", "WindowState", "2", full.find("2\r\n") + 1},
      {"Grafik Defaults", "GrafikFont", "Courier New", full.find("New") + 3},
      {"Grafik Defaults", "Maßstab", "1000", full.find("1000") + 4},
  };
  for (size_t cut = 0; cut <= full.size(); ++cut) {
    const ProfileFile p = ProfileFile::FromBytes(full.substr(0, cut));
    for (const Key& k : keys) {
      const std::string got = p.GetString(k.section, k.key, "<fehlt>", 100);
      if (cut >= k.lineEnd) {
        EXPECT_EQ(got, k.value) << k.key << " cut at " << cut;
      } else if (got != "<fehlt>") {
        EXPECT_EQ(k.value.rfind(got, 0), 0u) << k.key << " cut at " << cut << " gave " << got;
      }
    }
  }
}

TEST(ProfileRobustness, NulBytesAreOrdinaryBytesInNamesAndEndValues) {
  ProfileFile p = ProfileFile::FromBytes(
      "[a\0b]\r\nk=1\r\n[a]\r\nk\0=2\r\nk=3\0\r\n\0\0\0\r\n=\0\r\n[\0]\r\nk=4\r\n"s);
  EXPECT_EQ(p.GetString("a", "k", "", 40), "3") << "neither \"a\\0b\" nor \"k\\0\" is asked for";
  EXPECT_EQ(p.SectionNames(), (std::vector<std::string>{"a\0b"s, "a", "\0"s}));
  ASSERT_TRUE(p.WriteString("a", "k", "5"));
  EXPECT_EQ(p.Bytes(), "[a\0b]\r\nk=1\r\n[a]\r\nk\0=2\r\nk=5\r\n\0\0\0\r\n=\0\r\n[\0]\r\nk=4\r\n"s);
}

TEST(ProfileRobustness, VeryLongLinesAreReadAndKept) {
  const std::string longValue(10u << 20, 'x');
  const std::string content = "[a]\r\nlang=" + longValue + "\r\n[" + longValue + "\r\nn=5\r\n";
  ProfileFile p = ProfileFile::FromBytes(content);
  EXPECT_EQ(p.GetString("a", "lang", "", 100), std::string(99, 'x'));
  EXPECT_EQ(p.GetString("a", "lang", "", longValue.size() + 1), longValue);
  EXPECT_EQ(p.GetInt("a", "n", 0), 5) << "a \"[\" line without \"]\" starts no section";
  ASSERT_TRUE(p.WriteString("a", "n", "6"));
  EXPECT_EQ(p.Bytes(), "[a]\r\nlang=" + longValue + "\r\n[" + longValue + "\r\nn=6\r\n");

  const ProfileFile digits = ProfileFile::FromBytes("[a]\r\nn=" + std::string(10u << 20, '9') + "\r\n");
  (void)digits.GetInt("a", "n", 0);  // wraps, but ends
  const ProfileFile empty = ProfileFile::FromBytes(std::string(1u << 20, '\n'));
  EXPECT_EQ(empty.Bytes().size(), 2u << 20);
  EXPECT_TRUE(empty.SectionNames().empty());
}

}  // namespace
}  // namespace kolm::core::profile
