// Numbers to text by picture patterns, and the field formatters.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "picture_cases.h"
#include "points/numbers/format.h"

namespace kolm::numbers {
namespace {

struct FormatCase {
  double wert;
  const char* muster;
  const char* text;
};

void ExpectFormats(const FormatCase* begin, const FormatCase* end) {
  for (const FormatCase* c = begin; c != end; ++c)
    EXPECT_EQ(Format(c->wert, c->muster), c->text) << c->wert << " by \"" << c->muster << '"';
}

template <std::size_t N>
void ExpectFormats(const FormatCase (&cases)[N]) {
  ExpectFormats(cases, cases + N);
}

TEST(Format, EveryPatternOfTheProgramOnEdgeValues) {
  for (const PictureCase& c : kPictureCases)
    EXPECT_EQ(Format(c.wert, c.muster), c.text) << c.wert << " by \"" << c.muster << '"';
}

TEST(Format, RoundsHalfAwayFromZeroOnTheDecimalDigits) {
  // Each of these halves lies a little below the half as a binary value, so
  // rounding the binary value would go down.
  const FormatCase cases[] = {
      {2.675, "0.00", "2.68"},       {-2.675, "0.00", "-2.68"},     {1.005, "0.00", "1.01"},
      {0.0005, "0.000", "0.001"},    {-0.0005, "0.000", "-0.001"},  {1.0005, "0.000", "1.001"},
      {0.285, "0.00", "0.29"},       {1.45, "0.0", "1.5"},          {8.345, "#0.00", "8.35"},
      {2.5, "0", "3"},               {-2.5, "0", "-3"},             {0.5, "#", "1"},
      {0.15, "0.0", "0.2"},          {1234.5, "###0", "1235"},       {0.00049999, "0.000", "0.000"},
      {9.9999999, "0.000###", "10.000"}, {99999.95, "#####0.#", "100000."},
  };
  ExpectFormats(cases);
}

TEST(Format, ShowsAtMostFifteenSignificantDigits) {
  // 0.1 + 0.2 is 0.30000000000000004; 1/3 runs on. Digits past the fifteenth
  // show as zeros.
  const FormatCase cases[] = {
      {0.1 + 0.2, "0.0000000000000000", "0.3000000000000000"},
      {1.0 / 3.0, "0.000000000000000000", "0.333333333333333000"},
      {123456789012345678.0, "0", "123456789012346000"},
      {1e20, "#,##0", "100,000,000,000,000,000,000"},
      {12.344999999999999, "0.00", "12.35"},
  };
  ExpectFormats(cases);
}

TEST(Format, HugeValuesShowAllIntegerDigits) {
  const struct {
    double wert;
    const char* muster;
    std::string text;
  } cases[] = {
      {1e15, "####", "1000000000000000"},
      {-1e15, "#0.00", "-1000000000000000.00"},
      {123456789, "###0", "123456789"},
      {1e300, "0", "1" + std::string(300, '0')},
      {std::numeric_limits<double>::max(), "0", "179769313486232" + std::string(294, '0')},
  };
  for (const auto& c : cases) EXPECT_EQ(Format(c.wert, c.muster), c.text) << c.wert;
}

TEST(Format, TinyValuesRoundToZero) {
  const FormatCase cases[] = {
      {5e-324, "0.000", "0.000"},   {-5e-324, "0.000", "-0.000"}, {1e-300, "#", ""},
      {4.9e-7, "0.000000", "0.000000"}, {5e-7, "0.000000", "0.000001"},
  };
  ExpectFormats(cases);
}

TEST(Format, OptionalDigitsAndTheLonePoint) {
  const FormatCase cases[] = {
      {5, "#.##", "5."},       {0, "#.##", "."},         {0.5, "#.##", ".5"},   {0, "#", ""},
      {100, "####.##", "100."}, {0.25, "####.##", ".25"}, {0.5, "######.000", ".500"},
      {5, "0#", "05"},         {5, "#0#", "05"},         {5, "000", "005"},     {1234, "000", "1234"},
      {7, "0.#", "7."},        {0.04, "0.#", "0."},      {12.5, ".00", "12.50"}, {0.5, ".00", ".50"},
      {1.5, "0.0#0", "1.500"},
  };
  ExpectFormats(cases);
}

TEST(Format, SectionsForPositiveNegativeAndZero) {
  const FormatCase cases[] = {
      // A blank zero section shows zero as a blank; "-0" is zero.
      {0, "0.000000;-0.000000; ", " "},
      {-0.0, "0.000000;-0.000000; ", " "},
      {1.25, "0.000000;-0.000000; ", "1.250000"},
      {-1.25, "0.000000;-0.000000; ", "-1.250000"},
      {0, "0.000;-0.000;0", "0"},
      // The negative section brings its own sign, or none.
      {-5, "0;(0)", "(5)"},
      {-5, "0;0", "5"},
      {5, "0;(0)", "5"},
      {0, "0;(0)", "0"},
      // An empty section falls back to the first, with a sign for negatives.
      {-5, "0.0;;\\z\\e\\r\\o", "-5.0"},
      {0, "0.0;;\\z\\e\\r\\o", "zero"},
      {0, "0.0;-0.0;", "0.0"},
      {-2, "0.0;", "-2.0"},
      // A negative number that rounds to zero keeps its sign and section.
      {-0.0004, "0.000", "-0.000"},
      {-0.0004, "0.000;-0.000; ", "-0.000"},
      {-0.0004, "0.000;(0.000); ", "(0.000)"},
      {0.0004, "0.000;-0.000; ", "0.000"},
      {-0.4, "#", "-"},
      // An empty first section gives the general number form.
      {2.5, ";-0", "2.5"},
      {-2.5, ";-0", "-3"},
      {0, ";-0", "0"},
      // A fourth section is not used.
      {0, "0;-0;z;w", "z"},
  };
  ExpectFormats(cases);
}

TEST(Format, LiteralCharactersStayInPlace) {
  const FormatCase cases[] = {
      {50, "0\" %\"", "50 %"},       {1234, "00-00", "12-34"},        {5, "##-##", "-5"},
      {12.5, "0.0 m", "12.5 m"},     {-12.5, "0.0 m", "-12.5 m"},     {3, "\\#0", "#3"},
      {3, "x0", "x3"},               {-3, "x0", "-x3"},               {1.5, "0.0\"°\"", "1.5°"},
      {7, "[0]", "[7]"},             {12.345, "0.0\\.0", "12.3.5"},   {3, "0;x", "3"},
      {2.5, "0.0 ;", "2.5 "},        {1, "\"a;b\"0", "a;b1"},         {1, "0\\;x", "1;x"},
      {2, "0 m²", "2 m²"},           {2, "R=0", "R=2"},
  };
  ExpectFormats(cases);
}

TEST(Format, GroupingScalingAndPercent) {
  const FormatCase cases[] = {
      {1234567.891, "#,##0.00", "1,234,567.89"}, {-1234.5, "#,##0.00", "-1,234.50"},
      {999.5, "#,##0", "1,000"},                 {12, "#,##0", "12"},
      {0, "#,###", ""},                          {1234, "0,0", "1,234"},
      {1234567, "#,", "1235"},                   {1234567, "#,,", "1"},
      {5, ",0", ",5"},
      {0.5, "0%", "50%"},                        {0.125, "0.0%", "12.5%"},
      {-0.005, "0%", "-1%"},
  };
  ExpectFormats(cases);
}

TEST(Format, ExponentPatterns) {
  // "0.#######E-###" is the calculator's pattern for very small and large
  // values; 170! is 7.257415615307994E+306.
  const FormatCase cases[] = {
      {7.257415615307994e306, "0.#######E-###", "7.2574156E306"},
      {1e-7, "0.#######E-###", "1.E-7"},
      {-1.5e-20, "0.#######E-###", "-1.5E-20"},
      {0, "0.#######E-###", "0.E0"},
      {1e8, "0.#######E-###", "1.E8"},
      {9.999999996e-7, "0.#######E-###", "1.E-6"},
      {123456, "0.00E+00", "1.23E+05"},
      {123456, "0.00e-00", "1.23e05"},
      {0.000123, "0.00E+00", "1.23E-04"},
      {12345, "00.00E+00", "12.35E+03"},
      {99.96, "0.0E+0", "1.0E+2"},
      {1.5, "0E+0", "2E+0"},
      {0.5, ".00E+00", ".50E+00"},
      {5, "0.0E+0 m", "5.0E+0 m"},
      {1, "0.0E", "1.0E"},
      {1, "0.0E+x", "1.0E+x"},
  };
  ExpectFormats(cases);
}

TEST(Format, OtherCharactersForPointAndGrouping) {
  const Zahlzeichen komma{",", "."};
  EXPECT_EQ(Format(1234.5, "#0.00", komma), "1234,50");
  EXPECT_EQ(Format(1234567.5, "#,##0.0", komma), "1.234.567,5");
  EXPECT_EQ(Format(1.2, "0.0", komma).substr(1, 1), ",");
  EXPECT_EQ(Format(1.5, "", komma), "1,5");
}

TEST(Format, NotANumberAndInfinityAsTheClassicRuntimeShowsThem) {
  const double inf = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Format(inf, "0.000"), "1.#INF");
  EXPECT_EQ(Format(-inf, "0.000"), "-1.#INF");
  EXPECT_EQ(Format(nan, "0.000"), "1.#QNAN");
  EXPECT_EQ(Format(-nan, "#0"), "-1.#IND");
  EXPECT_EQ(Format(inf, "0.0", {",", "."}), "1,#INF");
  EXPECT_EQ(ZahlText(inf, "0.0"), "1.#INF");
}

TEST(ZahlText, ThePointIsAlwaysAPoint) {
  const FormatCase cases[] = {
      {1234.5, "#0.00", "1234.50"},
      {1234.5, "#,##0.00", "1.234.50"},
      {-0.5, "#######0.000###", "-0.500"},
      {12.3456789, "#######0.000###", "12.345679"},
      {3, "0\",\"0", "0.3"},
      {0, "###0", "0"},
      {0, "0.000;-0.000; ", " "},
  };
  for (const auto& c : cases) EXPECT_EQ(ZahlText(c.wert, c.muster), c.text) << c.wert << " by " << c.muster;
}

TEST(ZahlOderLeer, ExactlyZeroIsEmpty) {
  const FormatCase cases[] = {
      {0, "#######0.000###", ""},
      {-0.0, "#######0.000###", ""},
      {0, "0.000;-0.000;0", ""},
      {1e-300, "#######0.000", "0.000"},
      {-1e-300, "#######0.000", "-0.000"},
      {2.5, "###0", "3"},
      {1234.5, "#,##0.0", "1.234.5"},
  };
  for (const auto& c : cases) EXPECT_EQ(ZahlOderLeer(c.wert, c.muster), c.text) << c.wert << " by " << c.muster;
}

}  // namespace
}  // namespace kolm::numbers
