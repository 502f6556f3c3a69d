// Fixed texts (the LV number, the image suffix) and the packed line style.
#include <gtest/gtest.h>

#include "core/records/records.h"
#include "fester_text_druck.h"

namespace kolm::core {

namespace {

TEST(FesterText, AFreshFixedTextHoldsNulCharactersAndIsBlank) {
  const LVNummer lv;
  EXPECT_EQ(lv.Text(), std::string(12, '\0'));
  EXPECT_TRUE(lv.IstLeer());
  EXPECT_EQ(lv, LVNummer::Nul());
}

TEST(FesterText, NumbersAlignRightTextsLeftCutToTheirCharactersNotBytes) {
  const std::pair<std::string, std::string> faelle[] = {
      {LVNummer::Rechts("1.2.3").Text(), "       1.2.3"},
      {LVNummer::Rechts("123456789012345").Text(), "123456789012"},  // the first twelve
      {LVNummer::Rechts("").Text(), std::string(12, ' ')},
      {LVNummer::Links("12").Text(), "12          "},
      {FesterText<3>::Links("jpeg").Text(), "jpe"},
      {FesterText<3>::Links("").Text(), "   "},
      {LVNummer::Rechts("Ü1ä").Text(), "         Ü1ä"},  // an umlaut is one character
      {FesterText<3>::Links("äöüß").Text(), "äöü"},
  };
  for (const auto& [text, erwartet] : faelle) EXPECT_EQ(text, erwartet);
}

TEST(FesterText, BlankMeansAllBlanksOrAllNul) {
  EXPECT_TRUE(LVNummer::Links("").IstLeer());
  EXPECT_TRUE(LVNummer::Nul().IstLeer());
  EXPECT_FALSE(LVNummer::Rechts("0").IstLeer());
  EXPECT_FALSE(LVNummer::Links(std::string("\0", 1)).IstLeer()) << "a NUL followed by blanks is a mix";
}

TEST(FesterText, ComparisonIsOnAllTwelveCharacters) {
  EXPECT_EQ(LVNummer::Rechts("7"), LVNummer::Rechts("7"));
  EXPECT_FALSE(LVNummer::Rechts("7") == LVNummer::Links("7"));
}

TEST(Stil, ColourWidthAndStyleArePackedIntoOneLong) {
  const Long stil = StilPacken(0x0080FF, 3, 2);
  EXPECT_EQ(static_cast<std::uint32_t>(stil), 0x230080FFu);
  EXPECT_EQ(StilFarbe(stil), 0x0080FF);
  EXPECT_EQ(StilBreite(stil), 3);
  EXPECT_EQ(StilArt(stil), 2);
}

TEST(Stil, WidthAndStyleAreTakenModuloFive) {
  const Long stil = static_cast<Long>(0x97FFFFFFu);  // style 9, width 7: a negative Long
  EXPECT_LT(stil, 0);
  EXPECT_EQ(StilBreiteRoh(stil), 7);
  EXPECT_EQ(StilArtRoh(stil), 9);
  EXPECT_EQ(StilBreite(stil), 2);
  EXPECT_EQ(StilArt(stil), 4);
  EXPECT_EQ(StilFarbe(stil), 0xFFFFFF);
}

TEST(Stil, PackingCutsEachPartToItsBits) {
  const Long stil = StilPacken(0x7F123456, 0x13, 0x21);
  EXPECT_EQ(StilFarbe(stil), 0x123456);
  EXPECT_EQ(StilBreiteRoh(stil), 3);
  EXPECT_EQ(StilArtRoh(stil), 1);
}

}  // namespace
}  // namespace kolm::core
