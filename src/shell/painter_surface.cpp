#include "shell/painter_surface.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace kolm::shell {

QColor ToQColor(forms::Rgb rgb) {
  return QColor((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
}

QFont ToQFont(const forms::Font& font) {
  QFont f(QString::fromStdString(font.family));
  f.setPointSizeF(font.sizePt > 0 ? font.sizePt : 8.0);
  f.setBold(font.bold);
  f.setItalic(font.italic);
  return f;
}

QImage ToQImage(const forms::Image& image) {
  if (image.empty() ||
      image.pixels.size() < static_cast<size_t>(image.width) * static_cast<size_t>(image.height))
    return {};
  QImage out(image.width, image.height, QImage::Format_ARGB32);
  for (int y = 0; y < image.height; ++y) {
    auto* line = reinterpret_cast<quint32*>(out.scanLine(y));
    std::copy_n(image.pixels.begin() + static_cast<ptrdiff_t>(y) * image.width, image.width, line);
  }
  return out;
}

forms::Image FromQImage(const QImage& image) {
  forms::Image out;
  if (image.isNull()) return out;
  const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
  out.width = argb.width();
  out.height = argb.height();
  out.pixels.resize(static_cast<size_t>(out.width) * out.height);
  for (int y = 0; y < out.height; ++y) {
    const auto* line = reinterpret_cast<const quint32*>(argb.constScanLine(y));
    std::copy_n(line, out.width, out.pixels.begin() + static_cast<ptrdiff_t>(y) * out.width);
  }
  return out;
}

Qt::BrushStyle HatchStyle(int pattern) {
  switch (pattern) {
    case 0: return Qt::SolidPattern;
    case 1: return Qt::HorPattern;
    case 2: return Qt::VerPattern;
    case 3: return Qt::FDiagPattern;
    case 4: return Qt::BDiagPattern;
    case 5: return Qt::CrossPattern;
    case 6: return Qt::DiagCrossPattern;
    default: break;
  }
  // Further patterns take the dense styles in turn until patterns of their own exist.
  static const Qt::BrushStyle dense[] = {Qt::Dense7Pattern, Qt::Dense6Pattern, Qt::Dense5Pattern,
                                         Qt::Dense4Pattern, Qt::Dense3Pattern, Qt::Dense2Pattern,
                                         Qt::Dense1Pattern};
  return dense[(pattern - 7) % 7];
}

// ---- scale ---------------------------------------------------------------------

QPointF UserScale::toDevice(double x, double y) const {
  const double w = right - left, h = bottom - top;
  const double dx = w == 0 ? 0 : (x - left) / w * device.width();
  const double dy = h == 0 ? 0 : (y - top) / h * device.height();
  return {device.left() + dx, device.top() + dy};
}

QPointF UserScale::toUser(QPointF p) const {
  const double fx = device.width() == 0 ? 0 : (p.x() - device.left()) / device.width();
  const double fy = device.height() == 0 ? 0 : (p.y() - device.top()) / device.height();
  return {left + fx * (right - left), top + fy * (bottom - top)};
}

double UserScale::unitsPerPixelX() const {
  return device.width() == 0 ? 0 : (right - left) / device.width();
}
double UserScale::unitsPerPixelY() const {
  return device.height() == 0 ? 0 : (bottom - top) / device.height();
}

// ---- surface -------------------------------------------------------------------

PainterSurface::PainterSurface(QPainter& painter, const QRectF& device, double penScale)
    : painter_(painter), penScale_(penScale > 0 ? penScale : 1.0) {
  scale_.device = device;
  scale_.left = 0;
  scale_.top = 0;
  scale_.right = device.width();
  scale_.bottom = device.height();
  pen_ = QPen(Qt::black, penScale_);
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.setPen(pen_);
  painter_.setFont(ToQFont(font_));
}

void PainterSurface::clear(forms::Rgb background) {
  painter_.fillRect(scale_.device, ToQColor(background));
}

void PainterSurface::setScale(double left, double top, double right, double bottom) {
  scale_.left = left;
  scale_.top = top;
  scale_.right = right;
  scale_.bottom = bottom;
}

void PainterSurface::setPen(forms::Rgb color, double widthPx, forms::LineStyle style) {
  pen_ = QPen(ToQColor(color), std::max(1.0, widthPx) * penScale_);
  switch (style) {
    case forms::LineStyle::Solid: pen_.setStyle(Qt::SolidLine); break;
    case forms::LineStyle::Dash: pen_.setStyle(Qt::DashLine); break;
    case forms::LineStyle::Dot: pen_.setStyle(Qt::DotLine); break;
    case forms::LineStyle::DashDot: pen_.setStyle(Qt::DashDotLine); break;
    case forms::LineStyle::DashDotDot: pen_.setStyle(Qt::DashDotDotLine); break;
    case forms::LineStyle::Invisible: pen_.setStyle(Qt::NoPen); break;
  }
  painter_.setPen(pen_);
}

void PainterSurface::line(double x1, double y1, double x2, double y2) {
  painter_.drawLine(scale_.toDevice(x1, y1), scale_.toDevice(x2, y2));
}

void PainterSurface::point(double x, double y) { painter_.drawPoint(scale_.toDevice(x, y)); }

void PainterSurface::circle(double cx, double cy, double radius, double start, double end) {
  const QPointF c = scale_.toDevice(cx, cy);
  // The radius is measured along the x axis, so a circle stays round on screen.
  const double r = std::fabs(radius * (scale_.unitsPerPixelX() == 0 ? 0 : 1.0 / scale_.unitsPerPixelX()));
  const QRectF box(c.x() - r, c.y() - r, 2 * r, 2 * r);
  painter_.setBrush(Qt::NoBrush);
  if (start == end) {
    painter_.drawEllipse(box);
    return;
  }
  // A negative angle also draws the radius to that end, as the classic Circle does.
  const bool startRay = start < 0, endRay = end < 0;
  const double a = std::fabs(start), b = std::fabs(end);
  constexpr double twoPi = 2 * std::numbers::pi;
  double span = std::fmod(b - a, twoPi);
  if (span <= 0) span += twoPi;
  const auto sixteenths = [](double rad) { return static_cast<int>(std::lround(rad * 180.0 / std::numbers::pi * 16.0)); };
  painter_.drawArc(box, sixteenths(a), sixteenths(span));
  const auto ray = [&](double angle) {
    painter_.drawLine(c, QPointF(c.x() + r * std::cos(angle), c.y() - r * std::sin(angle)));
  };
  if (startRay) ray(a);
  if (endRay) ray(b);
}

void PainterSurface::setFont(const forms::Font& font) {
  font_ = font;
  painter_.setFont(ToQFont(font));
}

void PainterSurface::text(double x, double y, std::string_view utf8) {
  const QString all = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  const QFontMetricsF metrics(painter_.font(), painter_.device());
  const QPointF at = scale_.toDevice(x, y);
  painter_.save();
  painter_.translate(at);
  if (font_.escapementDeg != 0) painter_.rotate(-font_.escapementDeg);  // counter-clockwise on screen
  double baseline = metrics.ascent();
  for (const QString& line : all.split(QStringLiteral("\n"))) {
    QString text = line;
    if (text.endsWith(QLatin1Char('\r'))) text.chop(1);
    painter_.drawText(QPointF(0, baseline), text);
    baseline += metrics.lineSpacing();
  }
  painter_.restore();
}

forms::TextSize PainterSurface::textExtent(std::string_view utf8) {
  const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  const QFontMetricsF metrics(painter_.font(), painter_.device());
  return {metrics.horizontalAdvance(text) * std::fabs(scale_.unitsPerPixelX()),
          metrics.height() * std::fabs(scale_.unitsPerPixelY())};
}

void PainterSurface::polygon(const std::vector<forms::Pt>& corners, forms::Rgb fill, int pattern) {
  if (corners.size() < 2) return;
  QPolygonF poly;
  poly.reserve(static_cast<qsizetype>(corners.size()));
  for (const forms::Pt& p : corners) poly << scale_.toDevice(p.x, p.y);
  painter_.setBrush(QBrush(ToQColor(fill), HatchStyle(std::max(0, pattern))));
  painter_.drawPolygon(poly);
  painter_.setBrush(Qt::NoBrush);
}

void PainterSurface::image(const forms::Image& img, double x, double y, double width, double height) {
  const QImage q = ToQImage(img);
  if (q.isNull()) return;
  const QRectF target = QRectF(scale_.toDevice(x, y), scale_.toDevice(x + width, y + height)).normalized();
  painter_.drawImage(target, q);
}

}  // namespace kolm::shell
