// Reading numbers: the plain Val, the comma-tolerant ZahlLesen, IstLeer.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "points/numbers/read.h"

namespace kolm::numbers {
namespace {

struct ReadCase {
  std::string text;
  double wert;
};

void ExpectRead(double (*lesen)(std::string_view), const ReadCase& c) {
  const double w = lesen(c.text);
  EXPECT_EQ(w, c.wert) << '"' << c.text << '"';
  EXPECT_FALSE(std::signbit(w) && w == 0) << '"' << c.text << "\" gives -0";
}

TEST(Val, StopsAtTheFirstCharacterThatDoesNotFit) {
  const ReadCase cases[] = {
      {" 12.5abc", 12.5},  {"1,5", 1},        {"1.2.3", 1.2},     {"1,234.5", 1},
      {"12%", 12},         {"3;4", 3},        {"7-2", 7},         {"12.5 m", 12.5},
      {"1.5#", 1.5},       {"0x1F", 0},       {"1e", 1},          {"1E+", 1},
      {"2e3x", 2000},      {"5.e1", 50},      {"1.#INF", 1},      {std::string("4\0" "2", 3), 4},
      {"\r5", 0},          {"\xC2\xA0" "5", 0},
  };
  for (const auto& c : cases) ExpectRead(Val, c);
}

TEST(Val, DropsBlanksTabsAndLineFeedsAnywhere) {
  const ReadCase cases[] = {
      {"12 34", 1234}, {"  \t\n 7", 7}, {"- 5", -5}, {"1 . 5", 1.5}, {"1 E 3", 1000},
      {"1e 2", 100},   {"& H 1F", 31},  {" 1615 198th Street N.E.", 1615198},
  };
  for (const auto& c : cases) ExpectRead(Val, c);
}

TEST(Val, NoDigitsGiveZero) {
  const ReadCase cases[] = {
      {"", 0},   {"   ", 0}, {"abc", 0}, {"-", 0}, {"+", 0}, {".", 0},  {"-.", 0},
      {"e5", 0}, {".e5", 0}, {"--5", 0}, {"+-5", 0}, {"-+5", 0}, {"-0", 0}, {"-0.000", 0},
      {"$5", 0}, {",5", 0},
  };
  for (const auto& c : cases) ExpectRead(Val, c);
}

TEST(Val, SignsPointsAndExponents) {
  const ReadCase cases[] = {
      {"+3", 3},         {"-3", -3},        {"-.5", -0.5},    {".25", 0.25},    {"5.", 5},
      {"1e3", 1000},     {"1E3", 1000},     {"1E+3", 1000},   {"2.5E-3", 0.0025}, {"1D2", 100},
      {"1d-2", 0.01},    {"-1.5e2", -150},  {"007", 7},       {"12.5e-3", 0.0125}, {"1E-400", 0},
      {"-1E-400", 0},    {"1E308", 1e308},  {"1.7976931348623157E308", 1.7976931348623157e308},
      {"4.9E-324", 5e-324},
  };
  for (const auto& c : cases) ExpectRead(Val, c);
}

TEST(Val, ManyDigitsRoundOnceToTheNearestDouble) {
  // Expected values: Python float() of the same digits.
  const ReadCase cases[] = {
      {"123456789012345678901234567890", 1.2345678901234568e+29},
      {"0.1234567890123456789", 0.12345678901234568},
      {"1" + std::string(400, '0') + "e-400", 1.0},
      {"0." + std::string(400, '0') + "1e401", 1.0},
  };
  for (const auto& c : cases) ExpectRead(Val, c);
}

TEST(Val, HexAndOctalFollowTheIntegerLiteralRules) {
  const ReadCase cases[] = {
      {"&H1F", 31},          {"&h1f", 31},         {"&HFFFF", -1},       {"&H8000", -32768},
      {"&H7FFF", 32767},     {"&HFFFF&", 65535},   {"&H10000", 65536},   {"&HFFFFFFFF", -1},
      {"&H80000000", -2147483648.0}, {"&H0000FFFF", -1}, {"&H1G", 1},   {"&H", 0},
      {"&", 0},              {"&X1", 0},           {"&O17", 15},         {"&o777", 511},
      {"&O177777", -1},      {"&O8", 0},           {"-&H1", 0},
  };
  for (const auto& c : cases) ExpectRead(Val, c);
}

TEST(Val, ValuesBeyondTheDoubleRangeGiveZeroOrNothing) {
  for (const char* t : {"1E+400", "-1E400", "9e999999999", "&H100000000", "1" /* + 400 zeros below */}) {
    std::string text = t;
    if (text == "1") text += std::string(400, '0');
    EXPECT_EQ(Val(text), 0) << text;
    EXPECT_FALSE(ValGeprueft(text).has_value()) << text;
    EXPECT_FALSE(ZahlLesenGeprueft(text).has_value()) << text;
  }
  EXPECT_EQ(ValGeprueft("1E-400").value_or(-1), 0) << "too small is zero, not an overflow";
  EXPECT_EQ(ValGeprueft("12,5").value_or(-1), 12);
  EXPECT_EQ(ZahlLesenGeprueft("12,5").value_or(-1), 12.5);
}

TEST(ZahlLesen, ReadsACommaAsAPoint) {
  const ReadCase cases[] = {
      {"", 0},           {"1,5", 1.5},       {"12,5", 12.5},     {"12.5", 12.5},   {"-,5", -0.5},
      {"1,234.5", 1.234}, {"1,2,3", 1.2},    {"1e3", 1000},      {" 3,25 m", 3.25}, {"abc", 0},
      {"1,5E2", 150},    {",", 0},
  };
  for (const auto& c : cases) ExpectRead(ZahlLesen, c);
}

TEST(IstLeer, BlanksOnlyOrNulsOnly) {
  const struct {
    std::string text;
    bool leer;
  } cases[] = {
      {"", true},
      {" ", true},
      {"     ", true},
      {std::string(1, '\0'), true},
      {std::string(4, '\0'), true},
      {std::string(" \0", 2), false},
      {"\t", false},
      {" 0", false},
      {"x", false},
      {"\r\n", false},
  };
  for (const auto& c : cases) EXPECT_EQ(IstLeer(c.text), c.leer) << '"' << c.text << '"';
}

}  // namespace
}  // namespace kolm::numbers
