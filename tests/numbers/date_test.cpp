// Date and time by the classic date patterns.
#include <gtest/gtest.h>

#include "points/numbers/date.h"

namespace kolm::numbers {
namespace {

TEST(DatumText, TheVolumePatternAndItsParts) {
  const Zeitpunkt t{2024, 3, 7, 9, 5, 4};
  const Zeitpunkt s{1999, 12, 31, 23, 59, 58};
  const struct {
    Zeitpunkt zeit;
    const char* muster;
    const char* text;
  } cases[] = {
      {t, "dd.mm.yyyy hh:nn:ss", "07.03.2024 09:05:04"},
      {s, "dd.mm.yyyy hh:nn:ss", "31.12.1999 23:59:58"},
      {t, "d.m.yy", "7.3.24"},
      {t, "h:n:s", "9:5:4"},
      {t, "hh:mm", "09:05"},
      {t, "hh \"Uhr\" mm", "09 Uhr 05"},
      {t, "DD.MM.YYYY", "07.03.2024"},
      {t, "\\d\\a\\y dd", "day 07"},
      {t, "mm/dd", "03/07"},
      {Zeitpunkt{5, 1, 1, 0, 0, 0}, "dd.mm.yyyy", "01.01.5"},
  };
  for (const auto& c : cases) EXPECT_EQ(DatumText(c.zeit, c.muster), c.text) << c.muster;
}

TEST(DatumText, NowIsAPlausibleLocalTime) {
  const Zeitpunkt t = Jetzt();
  EXPECT_GE(t.jahr, 2024);
  EXPECT_TRUE(t.monat >= 1 && t.monat <= 12);
  EXPECT_TRUE(t.tag >= 1 && t.tag <= 31);
  EXPECT_TRUE(t.stunde >= 0 && t.stunde <= 23);
  EXPECT_TRUE(t.minute >= 0 && t.minute <= 59);
  EXPECT_TRUE(t.sekunde >= 0 && t.sekunde <= 60);
  EXPECT_EQ(DatumText(t, "dd.mm.yyyy hh:nn:ss").size(), 19u);
}

}  // namespace
}  // namespace kolm::numbers
