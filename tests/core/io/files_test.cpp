// Whole-file reading, atomic writing under injected faults, the code page.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/io/codepage.h"
#include "core/io/files.h"

namespace kolm::core::io {
namespace {

namespace fs = std::filesystem;

struct TempDir {
  fs::path path;
  TempDir() {
    path = fs::temp_directory_path() / ("kolm-io-" + std::to_string(::getpid()) + "-" +
                                        std::to_string(reinterpret_cast<uintptr_t>(this)));
    fs::create_directories(path);
  }
  ~TempDir() {
    SetFaultHook(nullptr);
    std::error_code ec;
    fs::permissions(path, fs::perms::owner_all, ec);
    fs::remove_all(path, ec);
  }
  std::string file(const char* name) const { return (path / name).string(); }
  size_t entries() const { return static_cast<size_t>(std::distance(fs::directory_iterator(path), fs::directory_iterator())); }
};

TEST(AtomicWrite, WritesAndReplacesAFile) {
  TempDir dir;
  const std::string f = dir.file("a.pkt");
  ASSERT_TRUE(WriteFileAtomically(f, std::string("eins\0zwei", 9)));
  EXPECT_EQ(ReadFile(f).value_or(""), std::string("eins\0zwei", 9));
  ASSERT_TRUE(WriteFileAtomically(f, "neu"));
  EXPECT_EQ(ReadFile(f).value_or(""), "neu");
  EXPECT_EQ(dir.entries(), 1u) << "no temporary file stays behind";
}

TEST(AtomicWrite, AFailureAtAnyStepLeavesThePreviousFileComplete) {
  for (const char* step : {"open", "write", "sync", "rename"}) {
    TempDir dir;
    const std::string f = dir.file("tabelle.ver");
    ASSERT_TRUE(WriteFileAtomically(f, "alter Inhalt"));
    SetFaultHook([step](std::string_view s, const std::string&) { return s == step; });
    EXPECT_FALSE(WriteFileAtomically(f, "neuer, längerer Inhalt")) << step;
    SetFaultHook(nullptr);
    EXPECT_EQ(ReadFile(f).value_or(""), "alter Inhalt") << step;
    EXPECT_EQ(dir.entries(), 1u) << step;
  }
}

TEST(AtomicWrite, AFolderWithoutWritePermissionKeepsTheOldFile) {
  if (::geteuid() == 0) GTEST_SKIP() << "root writes anywhere";
  TempDir dir;
  const std::string f = dir.file("x.pkt");
  ASSERT_TRUE(WriteFileAtomically(f, "alt"));
  fs::permissions(dir.path, fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_FALSE(WriteFileAtomically(f, "neu"));
  EXPECT_EQ(ReadFile(f).value_or(""), "alt");
}

TEST(Reading, MissingFilesAndFoldersGiveNothingAndLargeFilesAreCut) {
  TempDir dir;
  EXPECT_FALSE(ReadFile(dir.file("fehlt")).has_value());
  EXPECT_FALSE(ReadFile(dir.path.string()).has_value()) << "a folder is no file";
  const std::string f = dir.file("gross");
  ASSERT_TRUE(WriteFileAtomically(f, std::string(100000, 'x')));
  EXPECT_EQ(ReadFile(f, 1000)->size(), 1000u);
  EXPECT_TRUE(FileExists(f));
  EXPECT_FALSE(FileExists(dir.path.string()));
  EXPECT_TRUE(DirectoryExists(dir.path.string()));
}

TEST(CodePage, GermanTextRoundTripsThroughWindows1252) {
  const std::string utf8 = "Straße, Böschung, Übergang – 12 m² für 5 €";
  const std::string bytes = Utf8ToCp1252(utf8);
  EXPECT_EQ(bytes.find('\xDF'), 4u) << "ß is one byte";
  EXPECT_NE(bytes.find('\x96'), std::string::npos) << "the en dash";
  EXPECT_NE(bytes.find('\xB2'), std::string::npos) << "the superscript two";
  EXPECT_NE(bytes.find('\x80'), std::string::npos) << "the euro sign";
  EXPECT_EQ(Cp1252ToUtf8(bytes), utf8);
}

TEST(CodePage, EveryByteSurvivesTheRoundTrip) {
  std::string all;
  for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
  EXPECT_EQ(Utf8ToCp1252(Cp1252ToUtf8(all)), all);
  EXPECT_EQ(Utf8ToCp1252("日本"), "??") << "what the code page lacks becomes ?";
}

}  // namespace
}  // namespace kolm::core::io

namespace kolm::core::io {
namespace {

TEST(AtomicCopy, CopiesEveryByteAndAFailureAtAnyStepKeepsTheOldTarget) {
  TempDir dir;
  std::string gross(200000, '\0');
  for (size_t i = 0; i < gross.size(); ++i) gross[i] = static_cast<char>(i * 7);
  const std::string von = dir.file("LVMuster.MDB"), nach = dir.file("LV.MDB");
  ASSERT_TRUE(WriteFileAtomically(von, gross));
  for (const char* step : {"open", "write", "sync", "rename"}) {
    ASSERT_TRUE(WriteFileAtomically(nach, "alt"));
    SetFaultHook([step](std::string_view s, const std::string&) { return s == step; });
    EXPECT_FALSE(CopyFileAtomically(von, nach)) << step;
    SetFaultHook(nullptr);
    EXPECT_EQ(ReadFile(nach).value_or(""), "alt") << step;
    EXPECT_EQ(dir.entries(), 2u) << step;
  }
  ASSERT_TRUE(CopyFileAtomically(von, nach));
  EXPECT_EQ(ReadFile(nach).value_or(""), gross);
  EXPECT_FALSE(CopyFileAtomically(dir.file("fehlt"), nach));
  EXPECT_FALSE(CopyFileAtomically(dir.path.string(), nach)) << "a folder is no file";
  EXPECT_EQ(ReadFile(nach).value_or(""), gross);
}

}  // namespace
}  // namespace kolm::core::io
