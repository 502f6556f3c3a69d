#include "forms/drawing.h"

#include <cmath>

namespace kolm::forms {

namespace {
// Counts code points, not bytes, so umlauts are one character wide.
size_t CodePoints(std::string_view utf8) {
  size_t n = 0;
  for (unsigned char c : utf8) n += (c & 0xC0) != 0x80;
  return n;
}
}  // namespace

TextSize ApproximateMeasurer::measure(const Font& font, std::string_view utf8) const {
  const double px = font.sizePt * 96.0 / 72.0;
  return {0.6 * px * static_cast<double>(CodePoints(utf8)), 1.2 * px};
}

DisplayList::DisplayList(const TextMeasurer* measurer) : measurer_(measurer) {}

void DisplayList::setDeviceSize(int widthPx, int heightPx) {
  deviceWidth_ = widthPx > 0 ? widthPx : 1;
  deviceHeight_ = heightPx > 0 ? heightPx : 1;
}

void DisplayList::clear(Rgb background) {
  commands_.clear();
  commands_.push_back(Clear{background});
  // Clearing keeps the scale and font, as a picture box does.
  if (scaled_) commands_.push_back(scale_);
  if (!(font_ == Font{})) commands_.push_back(SetFont{font_});
  ++generation_;
}

void DisplayList::setScale(double left, double top, double right, double bottom) {
  scale_ = Scale{left, top, right, bottom};
  scaled_ = true;
  commands_.push_back(scale_);
}

void DisplayList::setPen(Rgb color, double widthPx, LineStyle style) {
  commands_.push_back(Pen{color, widthPx, style});
}

void DisplayList::line(double x1, double y1, double x2, double y2) {
  commands_.push_back(Line{x1, y1, x2, y2});
}

void DisplayList::point(double x, double y) { commands_.push_back(Point{x, y}); }

void DisplayList::circle(double cx, double cy, double radius, double start, double end) {
  commands_.push_back(Circle{cx, cy, radius, start, end});
}

void DisplayList::setFont(const Font& font) {
  font_ = font;
  commands_.push_back(SetFont{font});
}

void DisplayList::text(double x, double y, std::string_view utf8) {
  commands_.push_back(Text{x, y, std::string(utf8)});
}

TextSize DisplayList::textExtent(std::string_view utf8) {
  static const ApproximateMeasurer fallback;
  const TextMeasurer& m = measurer_ ? *measurer_ : fallback;
  TextSize px = m.measure(font_, utf8);
  const double unitsPerPxX = (scale_.right - scale_.left) / deviceWidth_;
  const double unitsPerPxY = (scale_.bottom - scale_.top) / deviceHeight_;
  return {px.width * std::fabs(unitsPerPxX), px.height * std::fabs(unitsPerPxY)};
}

void DisplayList::polygon(const std::vector<Pt>& corners, Rgb fill, int pattern) {
  commands_.push_back(Polygon{corners, fill, pattern});
}

void DisplayList::image(const Image& img, double x, double y, double width, double height) {
  commands_.push_back(Picture{std::make_shared<const Image>(img), x, y, width, height});
}

void DisplayList::replay(DrawingSurface& target) const {
  for (const Command& command : commands_) {
    std::visit(
        [&target](const auto& c) {
          using T = std::decay_t<decltype(c)>;
          if constexpr (std::is_same_v<T, Clear>) target.clear(c.background);
          else if constexpr (std::is_same_v<T, Scale>) target.setScale(c.left, c.top, c.right, c.bottom);
          else if constexpr (std::is_same_v<T, Pen>) target.setPen(c.color, c.width, c.style);
          else if constexpr (std::is_same_v<T, Line>) target.line(c.x1, c.y1, c.x2, c.y2);
          else if constexpr (std::is_same_v<T, Point>) target.point(c.x, c.y);
          else if constexpr (std::is_same_v<T, Circle>) target.circle(c.cx, c.cy, c.radius, c.start, c.end);
          else if constexpr (std::is_same_v<T, SetFont>) target.setFont(c.font);
          else if constexpr (std::is_same_v<T, Text>) target.text(c.x, c.y, c.text);
          else if constexpr (std::is_same_v<T, Polygon>) target.polygon(c.corners, c.fill, c.pattern);
          else if constexpr (std::is_same_v<T, Picture>) {
            if (c.image) target.image(*c.image, c.x, c.y, c.width, c.height);
          }
        },
        command);
  }
}

}  // namespace kolm::forms
