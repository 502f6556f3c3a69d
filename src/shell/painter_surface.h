#pragma once
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPen>
#include <QPointF>
#include <QRectF>

#include "forms/drawing.h"

class QPainter;

namespace kolm::shell {

QColor ToQColor(forms::Rgb rgb);
QFont ToQFont(const forms::Font& font);
QImage ToQImage(const forms::Image& image);
forms::Image FromQImage(const QImage& image);
Qt::BrushStyle HatchStyle(int pattern);

// The user coordinates of a surface mapped onto a device rectangle.
struct UserScale {
  QRectF device;
  double left = 0, top = 0, right = 1, bottom = 1;

  QPointF toDevice(double x, double y) const;
  QPointF toUser(QPointF devicePoint) const;
  double unitsPerPixelX() const;  // signed
  double unitsPerPixelY() const;
};

// Draws in user coordinates onto a QPainter: a picture box on screen, a
// printer page, an image.
class PainterSurface final : public forms::DrawingSurface {
 public:
  // penScale turns the screen pixels of pen widths into device pixels
  // (a printer's resolution over 96).
  PainterSurface(QPainter& painter, const QRectF& device, double penScale = 1.0);

  const UserScale& scale() const { return scale_; }

  void clear(forms::Rgb background) override;
  void setScale(double left, double top, double right, double bottom) override;
  void setPen(forms::Rgb color, double widthPx, forms::LineStyle style) override;
  void line(double x1, double y1, double x2, double y2) override;
  void point(double x, double y) override;
  void circle(double cx, double cy, double radius, double start = 0, double end = 0) override;
  void setFont(const forms::Font& font) override;
  void text(double x, double y, std::string_view utf8) override;
  forms::TextSize textExtent(std::string_view utf8) override;
  void polygon(const std::vector<forms::Pt>& corners, forms::Rgb fill, int pattern) override;
  void image(const forms::Image& img, double x, double y, double width, double height) override;

 private:
  QPainter& painter_;
  UserScale scale_;
  double penScale_;
  QPen pen_;
  forms::Font font_;
};

}  // namespace kolm::shell
