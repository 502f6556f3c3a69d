#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kolm::forms {

// 0xRRGGBB.
using Rgb = std::uint32_t;

enum class LineStyle { Solid, Dash, Dot, DashDot, DashDotDot, Invisible };

struct Font {
  std::string family = "Arial";
  double sizePt = 8.0;
  bool bold = false;
  bool italic = false;
  double escapementDeg = 0.0;  // text direction, counter-clockwise from the x axis
  bool operator==(const Font&) const = default;
};

struct Pt {
  double x = 0, y = 0;
  bool operator==(const Pt&) const = default;
};

// A raster image in memory, 0xAARRGGBB per pixel, rows top to bottom.
struct Image {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
  bool empty() const { return width <= 0 || height <= 0; }
};

// Size of a text in the surface's user units.
struct TextSize {
  double width = 0, height = 0;
};

// Measures texts for a surface; the shell measures with the real font.
class TextMeasurer {
 public:
  virtual ~TextMeasurer() = default;
  // Width and height in device pixels of text in font.
  virtual TextSize measure(const Font& font, std::string_view utf8) const = 0;
};

// Rough metrics for a surface that has no shell behind it.
class ApproximateMeasurer final : public TextMeasurer {
 public:
  TextSize measure(const Font& font, std::string_view utf8) const override;
};

// A surface to draw on in user coordinates chosen by setScale, as a picture
// box, a printer page or an image file offers it.
class DrawingSurface {
 public:
  virtual ~DrawingSurface() = default;
  virtual void clear(Rgb background) = 0;
  // User coordinates of the left, top, right and bottom edges; the y axis
  // runs down when top < bottom, up when top > bottom.
  virtual void setScale(double left, double top, double right, double bottom) = 0;
  virtual void setPen(Rgb color, double widthPx, LineStyle style) = 0;
  virtual void line(double x1, double y1, double x2, double y2) = 0;
  virtual void point(double x, double y) = 0;
  // Full circle when start == end; otherwise the arc from start to end,
  // radians counter-clockwise from the x axis of the screen.
  virtual void circle(double cx, double cy, double radius, double start = 0, double end = 0) = 0;
  virtual void setFont(const Font& font) = 0;
  // Text with its top left corner at (x, y).
  virtual void text(double x, double y, std::string_view utf8) = 0;
  virtual TextSize textExtent(std::string_view utf8) = 0;
  // A filled polygon; pattern 0 is solid, 1.. are the hatch patterns.
  virtual void polygon(const std::vector<Pt>& corners, Rgb fill, int pattern) = 0;
  virtual void image(const Image& img, double x, double y, double width, double height) = 0;
};

// Records drawing commands so that a view can replay them onto the screen,
// a printer or an image, and a test can read what was drawn.
class DisplayList final : public DrawingSurface {
 public:
  struct Clear { Rgb background; };
  struct Scale { double left, top, right, bottom; };
  struct Pen { Rgb color; double width; LineStyle style; };
  struct Line { double x1, y1, x2, y2; };
  struct Point { double x, y; };
  struct Circle { double cx, cy, radius, start, end; };
  struct SetFont { Font font; };
  struct Text { double x, y; std::string text; };
  struct Polygon { std::vector<Pt> corners; Rgb fill; int pattern; };
  struct Picture { std::shared_ptr<const Image> image; double x, y, width, height; };
  using Command = std::variant<Clear, Scale, Pen, Line, Point, Circle, SetFont, Text, Polygon, Picture>;

  explicit DisplayList(const TextMeasurer* measurer = nullptr);

  // Pixel size of the device the list is shown on; needed by textExtent.
  void setDeviceSize(int widthPx, int heightPx);
  int deviceWidth() const { return deviceWidth_; }
  int deviceHeight() const { return deviceHeight_; }
  void setMeasurer(const TextMeasurer* measurer) { measurer_ = measurer; }

  const std::vector<Command>& commands() const { return commands_; }
  // Counts every clear, so a view can tell that it must repaint.
  unsigned generation() const { return generation_; }

  void clear(Rgb background) override;
  void setScale(double left, double top, double right, double bottom) override;
  void setPen(Rgb color, double widthPx, LineStyle style) override;
  void line(double x1, double y1, double x2, double y2) override;
  void point(double x, double y) override;
  void circle(double cx, double cy, double radius, double start, double end) override;
  void setFont(const Font& font) override;
  void text(double x, double y, std::string_view utf8) override;
  TextSize textExtent(std::string_view utf8) override;
  void polygon(const std::vector<Pt>& corners, Rgb fill, int pattern) override;
  void image(const Image& img, double x, double y, double width, double height) override;

  // Replays every command onto another surface.
  void replay(DrawingSurface& target) const;

 private:
  std::vector<Command> commands_;
  const TextMeasurer* measurer_;
  Font font_;
  Scale scale_{0, 0, 1, 1};
  bool scaled_ = false;
  int deviceWidth_ = 1, deviceHeight_ = 1;
  unsigned generation_ = 0;
};

}  // namespace kolm::forms
