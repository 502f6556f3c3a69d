#include "shell/painter_surface.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>
#include <numbers>

#include "forms/drawing.h"
#include "shell_test_app.h"

namespace kolm::shell {
namespace {

using forms::DisplayList;
using forms::LineStyle;

constexpr forms::Rgb kRed = 0xFF0000, kBlue = 0x0000FF, kWhite = 0xFFFFFF, kBlack = 0x000000;

// Replays a drawing onto a white 100 x 100 image.
QImage Render(const DisplayList& list, int size = 100) {
  QImage image(size, size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PainterSurface surface(painter, QRectF(0, 0, size, size));
  list.replay(surface);
  painter.end();
  return image;
}

bool Is(const QImage& image, int x, int y, forms::Rgb rgb) {
  return (image.pixel(x, y) & 0xFFFFFF) == rgb;
}

bool IsWhite(const QImage& image, int x, int y) { return Is(image, x, y, kWhite); }

TEST(PainterSurface, LinesLandWhereTheUserScaleSays) {
  test::App();
  DisplayList list;
  list.clear(kWhite);
  list.setScale(0, 0, 10, 10);
  list.setPen(kRed, 1, LineStyle::Solid);
  list.line(0, 5, 10, 5);  // across the middle
  list.line(2, 0, 2, 10);  // down at a fifth
  const QImage image = Render(list);
  EXPECT_TRUE(Is(image, 50, 50, kRed));
  EXPECT_TRUE(Is(image, 80, 50, kRed));
  EXPECT_TRUE(Is(image, 20, 80, kRed));
  EXPECT_TRUE(IsWhite(image, 50, 30));
  EXPECT_TRUE(IsWhite(image, 60, 80));
}

TEST(PainterSurface, ScaleWithTopAboveBottomRunsTheYAxisUp) {
  test::App();
  DisplayList list;
  list.clear(kWhite);
  list.setScale(100, 210, 110, 200);  // y runs up, origin away from zero
  list.setPen(kBlue, 1, LineStyle::Solid);
  list.line(100, 202, 110, 202);  // near the bottom
  const QImage image = Render(list);
  EXPECT_TRUE(Is(image, 50, 80, kBlue));
  EXPECT_TRUE(IsWhite(image, 50, 20));
}

TEST(PainterSurface, SolidPolygonFillsItsInsideOnly) {
  test::App();
  DisplayList list;
  list.clear(kWhite);
  list.setScale(0, 10, 10, 0);
  list.setPen(kBlue, 1, LineStyle::Solid);
  list.polygon({{1, 1}, {3, 1}, {3, 3}, {1, 3}}, kBlue, 0);
  const QImage image = Render(list);
  EXPECT_TRUE(Is(image, 20, 80, kBlue));  // user (2, 2)
  EXPECT_TRUE(Is(image, 12, 88, kBlue));
  EXPECT_TRUE(IsWhite(image, 50, 50));
  EXPECT_TRUE(IsWhite(image, 20, 20));
}

TEST(PainterSurface, HatchedPolygonLeavesGapsBetweenItsLines) {
  test::App();
  DisplayList list;
  list.clear(kWhite);
  list.setPen(kWhite, 1, LineStyle::Invisible);
  list.polygon({{10, 10}, {90, 10}, {90, 90}, {10, 90}}, kRed, 1);
  const QImage image = Render(list);
  int red = 0, white = 0;
  for (int y = 20; y < 80; ++y) {
    if (Is(image, 50, y, kRed)) ++red;
    else if (IsWhite(image, 50, y)) ++white;
  }
  EXPECT_GT(red, 3);
  EXPECT_GT(white, red);
  EXPECT_TRUE(IsWhite(image, 5, 50));  // nothing outside
}

TEST(PainterSurface, ArcRunsCounterClockwiseFromStartToEnd) {
  test::App();
  DisplayList list;
  list.clear(kWhite);
  list.setScale(-10, 10, 10, -10);
  list.setPen(kBlack, 2, LineStyle::Solid);
  list.circle(0, 0, 8, 0, std::numbers::pi / 2);  // from the right round to the top
  const QImage image = Render(list);
  const auto inked = [&](int cx, int cy) {
    for (int y = cy - 2; y <= cy + 2; ++y)
      for (int x = cx - 2; x <= cx + 2; ++x)
        if (!IsWhite(image, x, y)) return true;
    return false;
  };
  // Radius 8 of 20 units over 100 px: 40 px from the centre at (50, 50).
  const int r = 40;
  const int d = static_cast<int>(std::lround(r / std::numbers::sqrt2));
  EXPECT_TRUE(inked(50 + d, 50 - d));  // upper right quarter is drawn
  EXPECT_FALSE(inked(50 - d, 50 + d));  // lower left is not
  EXPECT_FALSE(inked(50 + d, 50 + d));  // lower right is not

  DisplayList full;
  full.clear(kWhite);
  full.setScale(-10, 10, 10, -10);
  full.setPen(kBlack, 2, LineStyle::Solid);
  full.circle(0, 0, 8, 0, 0);
  const QImage whole = Render(full);
  EXPECT_FALSE(IsWhite(whole, 50 - r, 50));
  EXPECT_FALSE(IsWhite(whole, 50, 50 + r));
  EXPECT_TRUE(IsWhite(whole, 50, 50));
}

TEST(PainterSurface, TextHangsBelowAndRightOfItsPosition) {
  test::App();
  DisplayList list;
  list.clear(kWhite);
  list.setScale(0, 0, 100, 100);
  forms::Font font;
  font.family = "DejaVu Sans";
  font.sizePt = 14;
  list.setFont(font);
  list.setPen(kBlack, 1, LineStyle::Solid);
  list.text(30, 40, "MMM");
  const QImage image = Render(list);
  int above = 0, below = 0, left = 0;
  for (int y = 0; y < 100; ++y)
    for (int x = 0; x < 100; ++x) {
      if (IsWhite(image, x, y)) continue;
      if (y < 40) ++above;
      else ++below;
      if (x < 30) ++left;
    }
  EXPECT_GT(below, 20);
  EXPECT_EQ(above, 0);
  EXPECT_EQ(left, 0);
}

TEST(PainterSurface, EscapementTurnsTextCounterClockwise) {
  test::App();
  DisplayList list;
  list.clear(kWhite);
  forms::Font font;
  font.family = "DejaVu Sans";
  font.sizePt = 14;
  font.escapementDeg = 90;  // reads upwards
  list.setFont(font);
  list.setPen(kBlack, 1, LineStyle::Solid);
  list.text(40, 90, "MMMM");
  const QImage image = Render(list);
  int above = 0, below = 0, left = 0, farRight = 0;
  for (int y = 0; y < 100; ++y)
    for (int x = 0; x < 100; ++x) {
      if (IsWhite(image, x, y)) continue;
      if (y < 90) ++above;
      else ++below;
      if (x < 40) ++left;
      if (x > 70) ++farRight;
    }
  EXPECT_GT(above, 20);
  EXPECT_EQ(below, 0);
  EXPECT_EQ(left, 0);
  EXPECT_EQ(farRight, 0);  // one line high, not a line long
}

TEST(PainterSurface, TextExtentIsInUserUnits) {
  test::App();
  QImage image(200, 100, QImage::Format_RGB32);
  QPainter painter(&image);
  PainterSurface surface(painter, QRectF(0, 0, 200, 100));
  forms::Font font;
  font.sizePt = 12;
  surface.setFont(font);
  const forms::TextSize pixels = surface.textExtent("Punkt 12");
  surface.setScale(0, 0, 20, 10);  // ten pixels a unit both ways
  const forms::TextSize units = surface.textExtent("Punkt 12");
  EXPECT_GT(pixels.width, 0);
  EXPECT_NEAR(units.width, pixels.width / 10, 1e-9);
  EXPECT_NEAR(units.height, pixels.height / 10, 1e-9);
  EXPECT_GT(surface.textExtent("Punkt 12345").width, units.width);
}

TEST(PainterSurface, ImageIsStretchedIntoItsRectangle) {
  test::App();
  forms::Image img;
  img.width = 2;
  img.height = 2;
  img.pixels = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFF000000};
  DisplayList list;
  list.clear(kWhite);
  list.setScale(0, 0, 10, 10);
  list.image(img, 2, 2, 6, 6);  // pixels 20 .. 80
  const QImage image = Render(list);
  EXPECT_TRUE(Is(image, 30, 30, 0xFF0000));
  EXPECT_TRUE(Is(image, 70, 30, 0x00FF00));
  EXPECT_TRUE(Is(image, 30, 70, 0x0000FF));
  EXPECT_TRUE(Is(image, 70, 70, 0x000000));
  EXPECT_TRUE(IsWhite(image, 10, 10));
  EXPECT_TRUE(IsWhite(image, 90, 90));
}

TEST(PainterSurface, ImagesConvertBothWays) {
  forms::Image img;
  img.width = 3;
  img.height = 1;
  img.pixels = {0xFF102030, 0x80405060, 0xFFFFFFFF};
  const QImage q = ToQImage(img);
  ASSERT_EQ(q.width(), 3);
  EXPECT_EQ(q.pixel(0, 0), 0xFF102030u);
  const forms::Image back = FromQImage(q);
  EXPECT_EQ(back.pixels, img.pixels);
  EXPECT_TRUE(ToQImage(forms::Image{}).isNull());
}

}  // namespace
}  // namespace kolm::shell
