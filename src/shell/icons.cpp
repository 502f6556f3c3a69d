#include "shell/icons.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <cmath>
#include <functional>
#include <map>

namespace kolm::shell {

namespace {

// Glyphs are drawn on a 32 by 32 grid and scaled to the size asked for.
const QColor kInk(45, 45, 45);
const QColor kBlue(28, 88, 176);
const QColor kRed(198, 40, 40);
const QColor kGreen(46, 125, 50);
const QColor kFill(28, 88, 176, 70);
const QColor kPaper(255, 255, 255);

void Pen(QPainter& p, const QColor& c, double w = 1.8, Qt::PenStyle s = Qt::SolidLine) {
  QPen pen(c, w, s, Qt::RoundCap, Qt::RoundJoin);
  p.setPen(pen);
  p.setBrush(Qt::NoBrush);
}

void Line(QPainter& p, double x1, double y1, double x2, double y2) { p.drawLine(QPointF(x1, y1), QPointF(x2, y2)); }

void Dot(QPainter& p, double x, double y, const QColor& c = kRed, double r = 2.4) {
  p.save();
  p.setPen(Qt::NoPen);
  p.setBrush(c);
  p.drawEllipse(QPointF(x, y), r, r);
  p.restore();
}

// A known point: the surveyor's triangle.
void Known(QPainter& p, double x, double y) {
  p.save();
  p.setPen(QPen(kInk, 1.2));
  p.setBrush(kGreen);
  QPolygonF t;
  t << QPointF(x, y - 3.4) << QPointF(x + 3.2, y + 2.4) << QPointF(x - 3.2, y + 2.4);
  p.drawPolygon(t);
  p.restore();
}

void Circle(QPainter& p, double cx, double cy, double r) { p.drawEllipse(QPointF(cx, cy), r, r); }

// Arc in degrees, counter-clockwise from the x axis of the screen.
void Arc(QPainter& p, double cx, double cy, double r, double startDeg, double spanDeg) {
  p.drawArc(QRectF(cx - r, cy - r, 2 * r, 2 * r), static_cast<int>(startDeg * 16), static_cast<int>(spanDeg * 16));
}

void Arrow(QPainter& p, double x1, double y1, double x2, double y2, double head = 4) {
  Line(p, x1, y1, x2, y2);
  const double a = std::atan2(y2 - y1, x2 - x1);
  Line(p, x2, y2, x2 - head * std::cos(a - 0.5), y2 - head * std::sin(a - 0.5));
  Line(p, x2, y2, x2 - head * std::cos(a + 0.5), y2 - head * std::sin(a + 0.5));
}

void Text(QPainter& p, const QRectF& r, const QString& text, double px, const QColor& c, bool bold = true) {
  QFont f = p.font();
  f.setPixelSize(static_cast<int>(px));
  f.setBold(bold);
  p.setFont(f);
  p.setPen(c);
  p.drawText(r, Qt::AlignCenter, text);
}

void Page(QPainter& p, const QRectF& r) {
  p.save();
  p.setPen(QPen(kInk, 1.4));
  p.setBrush(kPaper);
  p.drawRect(r);
  p.restore();
}

void Window(QPainter& p) {
  p.save();
  p.setPen(QPen(kInk, 1.4));
  p.setBrush(kPaper);
  p.drawRect(QRectF(3, 4, 26, 24));
  p.setBrush(kBlue);
  p.drawRect(QRectF(3, 4, 26, 5));
  p.restore();
}

void RightAngle(QPainter& p, double x, double y, double dx1, double dy1, double dx2, double dy2) {
  Pen(p, kInk, 1.0);
  const double s = 3.5;
  QPolygonF m;
  m << QPointF(x + dx1 * s, y + dy1 * s) << QPointF(x + (dx1 + dx2) * s, y + (dy1 + dy2) * s)
    << QPointF(x + dx2 * s, y + dy2 * s);
  p.drawPolyline(m);
}

// Points of a clothoid from its origin, scaled to the grid.
QPolygonF Clothoid(double x0, double y0, double scale, double tMax, int sign = -1) {
  QPolygonF pts;
  double x = 0, y = 0;
  const int n = 60;
  const double dt = tMax / n;
  pts << QPointF(x0, y0);
  for (int i = 0; i < n; ++i) {
    const double t = (i + 0.5) * dt;
    x += std::cos(t * t) * dt;
    y += std::sin(t * t) * dt;
    pts << QPointF(x0 + x * scale, y0 + sign * y * scale);
  }
  return pts;
}

using Draw = std::function<void(QPainter&)>;

const std::map<std::string, Draw>& Glyphs() {
  static const std::map<std::string, Draw> glyphs = {
      // ---- general functions
      {"tabelle_oeffnen", [](QPainter& p) {
         p.setPen(QPen(kInk, 1.4));
         p.setBrush(QColor(240, 200, 90));
         QPolygonF f;
         f << QPointF(3, 9) << QPointF(12, 9) << QPointF(15, 12) << QPointF(29, 12) << QPointF(29, 27) << QPointF(3, 27);
         p.drawPolygon(f);
         p.setBrush(QColor(250, 220, 120));
         QPolygonF front;
         front << QPointF(6, 15) << QPointF(31, 15) << QPointF(28, 27) << QPointF(3, 27);
         p.drawPolygon(front);
       }},
      {"tabelle_speichern", [](QPainter& p) {
         p.setPen(QPen(kInk, 1.4));
         p.setBrush(kBlue);
         p.drawRoundedRect(QRectF(4, 4, 24, 24), 2, 2);
         p.setBrush(kPaper);
         p.drawRect(QRectF(9, 4, 14, 9));
         p.setBrush(QColor(220, 220, 220));
         p.drawRect(QRectF(8, 18, 16, 10));
       }},
      {"drucken", [](QPainter& p) {
         Page(p, QRectF(9, 3, 14, 10));
         p.setPen(QPen(kInk, 1.4));
         p.setBrush(QColor(200, 200, 200));
         p.drawRoundedRect(QRectF(4, 12, 24, 11), 2, 2);
         Page(p, QRectF(9, 19, 14, 10));
         Pen(p, kInk, 1.0);
         Line(p, 11, 23, 21, 23);
         Line(p, 11, 26, 19, 26);
         Dot(p, 24.5, 15.5, kGreen, 1.3);
       }},
      {"seitenauswurf", [](QPainter& p) {
         Page(p, QRectF(8, 3, 16, 17));
         Pen(p, kInk, 1.0);
         for (double y : {7.0, 10.0, 13.0}) Line(p, 11, y, 21, y);
         Pen(p, kRed, 2.2);
         Arrow(p, 16, 17, 16, 30, 5);
       }},
      {"strecke", [](QPainter& p) {
         Pen(p, kBlue, 2.0);
         Line(p, 5, 25, 27, 9);
         Pen(p, kInk, 1.1);
         Arrow(p, 9, 30, 29, 15.5, 3.5);
         Arrow(p, 29, 15.5, 9, 30, 3.5);
         Dot(p, 5, 25);
         Dot(p, 27, 9);
       }},
      {"flaeche", [](QPainter& p) {
         QPolygonF f;
         f << QPointF(4, 25) << QPointF(9, 7) << QPointF(24, 4) << QPointF(28, 19) << QPointF(16, 28);
         p.setPen(QPen(kBlue, 1.8));
         p.setBrush(kFill);
         p.drawPolygon(f);
         for (const QPointF& c : f) Dot(p, c.x(), c.y(), kRed, 2.0);
       }},
      {"massen", [](QPainter& p) {
         // Three cross-sections one behind the other.
         for (int i = 2; i >= 0; --i) {
           const double dx = i * 4.0, dy = -i * 5.0;
           QPolygonF s;
           s << QPointF(3 + dx, 27 + dy) << QPointF(8 + dx, 19 + dy) << QPointF(18 + dx, 19 + dy) << QPointF(23 + dx, 27 + dy);
           p.setPen(QPen(i == 0 ? kBlue : QColor(120, 140, 170), 1.6));
           p.setBrush(i == 0 ? QBrush(kFill) : QBrush(Qt::NoBrush));
           p.drawPolygon(s);
         }
       }},
      {"lv", [](QPainter& p) {
         Page(p, QRectF(6, 3, 20, 26));
         Text(p, QRectF(6, 4, 20, 10), "LV", 9, kBlue);
         Pen(p, kInk, 1.0);
         for (double y : {17.0, 21.0, 25.0}) {
           Line(p, 9, y, 15, y);
           Line(p, 18, y, 23, y);
         }
       }},
      {"rechner", [](QPainter& p) {
         p.setPen(QPen(kInk, 1.4));
         p.setBrush(QColor(210, 210, 215));
         p.drawRoundedRect(QRectF(6, 2, 20, 28), 2, 2);
         p.setBrush(QColor(200, 230, 200));
         p.drawRect(QRectF(9, 5, 14, 6));
         p.setPen(Qt::NoPen);
         for (int r = 0; r < 4; ++r)
           for (int c = 0; c < 3; ++c) {
             p.setBrush(r == 3 && c == 2 ? kRed : kInk);
             p.drawRect(QRectF(9 + c * 5, 14 + r * 4, 3.5, 2.6));
           }
       }},
      {"polar_recht", [](QPainter& p) {
         Pen(p, kInk, 1.2);
         Line(p, 5, 27, 29, 27);
         Line(p, 5, 27, 5, 3);
         Pen(p, kBlue, 1.8);
         Line(p, 5, 27, 23, 9);
         Arc(p, 5, 27, 10, 0, 45);
         Pen(p, kRed, 1.6, Qt::DashLine);
         Line(p, 23, 9, 23, 27);
         Line(p, 23, 9, 5, 9);
         Dot(p, 23, 9);
       }},
      {"recht_polar", [](QPainter& p) {
         Pen(p, kInk, 1.2);
         Line(p, 5, 27, 29, 27);
         Line(p, 5, 27, 5, 3);
         Pen(p, kBlue, 1.2, Qt::DashLine);
         Line(p, 23, 9, 23, 27);
         Line(p, 23, 9, 5, 9);
         Pen(p, kRed, 2.0);
         Line(p, 5, 27, 23, 9);
         Arc(p, 5, 27, 10, 0, 45);
         Dot(p, 23, 9);
       }},
      {"gelaende_3d", [](QPainter& p) {
         for (int r = 0; r < 4; ++r)
           for (int c = 0; c < 5; ++c)
             Dot(p, 4 + c * 5.5 + r * 1.5, 8 + r * 5 + ((c + r) % 2) * 1.5, QColor(90, 110, 90), 1.2);
         Pen(p, kRed, 2.0);
         QPolygonF prof;
         prof << QPointF(3, 26) << QPointF(10, 21) << QPointF(15, 23) << QPointF(22, 18) << QPointF(29, 22);
         p.drawPolyline(prof);
         Pen(p, kBlue, 1.2, Qt::DashLine);
         Line(p, 16, 4, 16, 30);
       }},
      {"import_tabelle", [](QPainter& p) {
         Page(p, QRectF(12, 4, 17, 24));
         Pen(p, kInk, 1.0);
         for (double y : {10.0, 16.0, 22.0}) Line(p, 12, y, 29, y);
         Line(p, 18, 4, 18, 28);
         Pen(p, kGreen, 2.4);
         Arrow(p, 2, 16, 14, 16, 5);
       }},
      {"punkte_kontrolle", [](QPainter& p) {
         Dot(p, 8, 24, kRed, 3);
         Text(p, QRectF(12, 2, 18, 14), "+", 16, kBlue);
         Text(p, QRectF(12, 15, 18, 14), "×", 16, kBlue);
         Pen(p, kInk, 1.0, Qt::DotLine);
         Line(p, 8, 24, 16, 10);
       }},
      {"punkt_darstellung", [](QPainter& p) {
         Pen(p, kInk, 1.4);
         Circle(p, 9, 21, 4);
         Dot(p, 9, 21, kInk, 1.2);
         Text(p, QRectF(12, 4, 18, 12), "17", 10, kInk);
         Dot(p, 18, 24, kRed, 2.6);
         Dot(p, 23, 24, kGreen, 2.6);
         Dot(p, 28, 24, kBlue, 2.6);
       }},
      {"ansicht_geraden", [](QPainter& p) {
         Window(p);
         Pen(p, kBlue, 1.8);
         Line(p, 6, 25, 26, 12);
         Line(p, 6, 13, 26, 25);
         Dot(p, 16, 18.5);
       }},
      {"ansicht_kreise", [](QPainter& p) {
         Window(p);
         Pen(p, kBlue, 1.8);
         Circle(p, 16, 18.5, 7);
         Dot(p, 16, 18.5, kRed, 1.6);
       }},
      {"hilfe_koordinaten", [](QPainter& p) {
         Pen(p, kInk, 1.4);
         Arrow(p, 4, 28, 4, 5, 3.5);
         Arrow(p, 4, 28, 27, 28, 3.5);
         Text(p, QRectF(9, 4, 20, 22), "?", 20, kBlue);
       }},
      {"ausschneiden", [](QPainter& p) {
         Pen(p, kInk, 1.8);
         Line(p, 11, 3, 20, 21);
         Line(p, 21, 3, 12, 21);
         Pen(p, kRed, 1.8);
         Circle(p, 10, 25, 4);
         Circle(p, 22, 25, 4);
       }},
      {"kopieren", [](QPainter& p) {
         Page(p, QRectF(4, 3, 15, 19));
         Page(p, QRectF(13, 10, 15, 19));
         Pen(p, kBlue, 1.0);
         for (double y : {15.0, 19.0, 23.0}) Line(p, 16, y, 25, y);
       }},
      {"einfuegen", [](QPainter& p) {
         p.setPen(QPen(kInk, 1.4));
         p.setBrush(QColor(190, 150, 100));
         p.drawRoundedRect(QRectF(5, 5, 20, 24), 2, 2);
         p.setBrush(QColor(170, 170, 170));
         p.drawRect(QRectF(10, 3, 10, 5));
         Page(p, QRectF(14, 12, 15, 18));
         Pen(p, kBlue, 1.0);
         for (double y : {17.0, 21.0, 25.0}) Line(p, 17, y, 26, y);
       }},

      // ---- straight lines
      {"polygonzug", [](QPainter& p) {
         Pen(p, kBlue, 1.8);
         QPolygonF z;
         z << QPointF(4, 27) << QPointF(11, 14) << QPointF(19, 20) << QPointF(28, 6);
         p.drawPolyline(z);
         Known(p, 4, 27);
         Dot(p, 11, 14);
         Dot(p, 19, 20);
         Known(p, 28, 6);
       }},
      {"absteckdaten", [](QPainter& p) {
         Pen(p, kBlue, 1.6, Qt::DashLine);
         Line(p, 6, 26, 24, 12);
         Known(p, 6, 26);
         Pen(p, kInk, 1.8);
         Line(p, 24, 28, 24, 6);
         p.setPen(Qt::NoPen);
         p.setBrush(kRed);
         QPolygonF flag;
         flag << QPointF(24, 6) << QPointF(31, 9) << QPointF(24, 12);
         p.drawPolygon(flag);
       }},
      {"einrechnen", [](QPainter& p) {
         Pen(p, kBlue, 1.8);
         Line(p, 3, 27, 29, 9);
         Known(p, 3, 27);
         Known(p, 29, 9);
         Dot(p, 11.7, 21);
         Dot(p, 20.3, 15);
         Pen(p, kInk, 1.0);
         Line(p, 11.7, 21, 9.7, 18);
         Line(p, 20.3, 15, 18.3, 12);
       }},
      {"kleinpunkte", [](QPainter& p) {
         Pen(p, kBlue, 1.8);
         Line(p, 3, 24, 29, 24);
         Known(p, 3, 24);
         Known(p, 29, 24);
         Pen(p, kInk, 1.4, Qt::DashLine);
         Line(p, 11, 24, 11, 9);
         Line(p, 21, 24, 21, 14);
         RightAngle(p, 11, 24, 1, 0, 0, -1);
         RightAngle(p, 21, 24, 1, 0, 0, -1);
         Dot(p, 11, 9);
         Dot(p, 21, 14);
       }},
      {"geradenschnitt_3pkt", [](QPainter& p) {
         Pen(p, kBlue, 1.8);
         Line(p, 3, 26, 29, 12);
         Known(p, 3, 26);
         Known(p, 29, 12);
         Pen(p, kInk, 1.4, Qt::DashLine);
         Line(p, 11, 6, 17.5, 18.2);
         Known(p, 11, 6);
         Dot(p, 17.5, 18.2);
       }},
      {"geradenschnitt_4pkt", [](QPainter& p) {
         Pen(p, kBlue, 1.8);
         Line(p, 4, 26, 28, 8);
         Line(p, 4, 8, 28, 24);
         Known(p, 4, 26);
         Known(p, 28, 8);
         Known(p, 4, 8);
         Known(p, 28, 24);
         Dot(p, 16.4, 16.7);
       }},
      {"parallelenschnitt", [](QPainter& p) {
         Pen(p, kInk, 1.6);
         Line(p, 3, 27, 29, 27);
         Pen(p, kInk, 1.4, Qt::DashLine);
         Line(p, 3, 18, 29, 18);
         Pen(p, kBlue, 1.8);
         Line(p, 8, 30, 24, 3);
         Pen(p, kInk, 1.0);
         Arrow(p, 27, 27, 27, 19, 3);
         Dot(p, 15.1, 18);
       }},
      {"vorwaertsschnitt", [](QPainter& p) {
         Pen(p, kBlue, 1.6);
         Line(p, 5, 26, 16, 7);
         Line(p, 27, 26, 16, 7);
         Pen(p, kInk, 1.0, Qt::DashLine);
         Line(p, 5, 26, 27, 26);
         Known(p, 5, 26);
         Known(p, 27, 26);
         Dot(p, 16, 7, kRed, 3);
       }},
      {"rueckwaertsschnitt", [](QPainter& p) {
         Pen(p, kBlue, 1.6);
         Line(p, 16, 26, 4, 7);
         Line(p, 16, 26, 16, 5);
         Line(p, 16, 26, 28, 8);
         Known(p, 4, 7);
         Known(p, 16, 5);
         Known(p, 28, 8);
         Dot(p, 16, 26, kRed, 3);
       }},
      {"anschluss_direkt", [](QPainter& p) {
         Pen(p, kInk, 1.2, Qt::DashLine);
         Line(p, 6, 25, 28, 25);
         Pen(p, kBlue, 1.8);
         Line(p, 6, 25, 21, 8);
         Pen(p, kInk, 1.0);
         Arc(p, 6, 25, 9, 0, 48);
         Known(p, 6, 25);
         Known(p, 28, 25);
         Dot(p, 21, 8);
       }},
      {"anschluss_indirekt", [](QPainter& p) {
         Pen(p, kInk, 1.2, Qt::DashLine);
         Line(p, 4, 27, 28, 22);
         Pen(p, kBlue, 1.6);
         Line(p, 14, 12, 4, 27);
         Line(p, 14, 12, 28, 22);
         Line(p, 14, 12, 24, 5);
         Known(p, 4, 27);
         Known(p, 28, 22);
         Dot(p, 14, 12, kInk, 2.4);
         Dot(p, 24, 5);
       }},
      {"winkel", [](QPainter& p) {
         Pen(p, kBlue, 1.8);
         Line(p, 6, 26, 28, 26);
         Line(p, 6, 26, 22, 6);
         Pen(p, kRed, 1.6);
         Arc(p, 6, 26, 11, 0, 51);
         Dot(p, 6, 26, kInk);
         Dot(p, 28, 26, kInk);
         Dot(p, 22, 6, kInk);
       }},
      {"distanz", [](QPainter& p) {
         Dot(p, 5, 20, kInk, 3);
         Dot(p, 27, 20, kInk, 3);
         Pen(p, kInk, 1.0);
         Line(p, 5, 17, 5, 8);
         Line(p, 27, 17, 27, 8);
         Pen(p, kRed, 1.6);
         Arrow(p, 16, 11, 6, 11, 4);
         Arrow(p, 16, 11, 26, 11, 4);
       }},

      // ---- circles, arcs, clothoids
      {"kreis_gerade", [](QPainter& p) {
         Pen(p, kBlue, 1.8);
         Circle(p, 15, 17, 10);
         Pen(p, kInk, 1.6);
         Line(p, 2, 26, 30, 10);
         Dot(p, 15, 17, kInk, 1.4);
         Dot(p, 6.0, 20.9);
         Dot(p, 24.6, 14.3);
       }},
      {"kreis_kreis", [](QPainter& p) {
         Pen(p, kBlue, 1.8);
         Circle(p, 11, 16, 8.5);
         Circle(p, 21, 16, 8.5);
         Dot(p, 16, 9.1);
         Dot(p, 16, 22.9);
       }},
      {"tangenten", [](QPainter& p) {
         Pen(p, kBlue, 1.8);
         Circle(p, 10, 16, 7);
         Pen(p, kInk, 1.4);
         Line(p, 29, 16, 7.4, 9.5);
         Line(p, 29, 16, 7.4, 22.5);
         Dot(p, 29, 16, kInk, 2.2);
         Dot(p, 7.4, 9.5);
         Dot(p, 7.4, 22.5);
       }},
      {"umkreis", [](QPainter& p) {
         Pen(p, kBlue, 1.6);
         Circle(p, 16, 16, 12);
         Pen(p, kInk, 1.2);
         QPolygonF t;
         t << QPointF(16, 4) << QPointF(26.4, 22) << QPointF(5.6, 22);
         p.drawPolygon(t);
         Known(p, 16, 4);
         Known(p, 26.4, 22);
         Known(p, 5.6, 22);
         Dot(p, 16, 16);
       }},
      {"bogen_winkel", [](QPainter& p) {
         Pen(p, kInk, 1.0, Qt::DashLine);
         Line(p, 5, 27, 27, 27);
         Line(p, 5, 27, 20.6, 11.4);
         Pen(p, kBlue, 2.0);
         Arc(p, 5, 27, 22, 0, 45);
         Pen(p, kRed, 1.6);
         Arc(p, 5, 27, 8, 0, 45);
         Dot(p, 5, 27, kInk, 1.6);
       }},
      {"bogen_babe", [](QPainter& p) {
         Pen(p, kBlue, 2.0);
         Arc(p, 16, 30, 14, 20, 140);
         Known(p, 3, 25);
         Known(p, 29, 25);
         Pen(p, kInk, 1.0, Qt::DashLine);
         Line(p, 16, 30, 16, 16);
         Dot(p, 16, 30, kRed, 2.2);
       }},
      {"bogen_sehne", [](QPainter& p) {
         Pen(p, kBlue, 2.0);
         Arc(p, 16, 30, 14, 20, 140);
         Pen(p, kRed, 1.6);
         Line(p, 2.8, 25.2, 29.2, 25.2);
         Dot(p, 2.8, 25.2, kInk, 1.8);
         Dot(p, 29.2, 25.2, kInk, 1.8);
       }},
      {"absteckung_xys", [](QPainter& p) {
         Pen(p, kBlue, 2.0);
         Arc(p, 16, 30, 14, 20, 140);
         Pen(p, kInk, 1.2);
         Line(p, 2.8, 25.2, 29.2, 25.2);
         Pen(p, kRed, 1.2, Qt::DashLine);
         Line(p, 9, 25.2, 9, 17.6);
         Dot(p, 9, 17.6);
         Pen(p, kInk, 1.0);
         Line(p, 2.8, 25.2, 9, 17.6);
       }},
      {"absteckung_b", [](QPainter& p) {
         Pen(p, kInk, 1.0, Qt::DashLine);
         Line(p, 6, 26, 28, 26);
         Pen(p, kBlue, 2.0);
         Arc(p, 6, 26, 22, 0, 55);
         Known(p, 28, 26);
         Dot(p, 6, 26, kInk, 2.0);
         Dot(p, 6 + 22 * std::cos(0.96), 26 - 22 * std::sin(0.96));
       }},
      {"segment_s", [](QPainter& p) {
         QPainterPath seg;
         seg.moveTo(2.8, 22);
         seg.arcTo(QRectF(2, 6, 28, 28), 160, -140);
         seg.closeSubpath();
         p.setPen(QPen(kBlue, 1.8));
         p.setBrush(kFill);
         p.drawPath(seg);
         Pen(p, kRed, 1.6);
         Line(p, 2.8, 24.8, 29.2, 24.8);
       }},
      {"segment_babe", [](QPainter& p) {
         QPainterPath seg;
         seg.moveTo(2.8, 22);
         seg.arcTo(QRectF(2, 6, 28, 28), 160, -140);
         seg.closeSubpath();
         p.setPen(QPen(kBlue, 1.8));
         p.setBrush(kFill);
         p.drawPath(seg);
         Known(p, 3, 24.5);
         Known(p, 29, 24.5);
       }},
      {"ausrundung", [](QPainter& p) {
         Pen(p, kInk, 1.2, Qt::DashLine);
         Line(p, 3, 27, 16, 6);
         Line(p, 16, 6, 29, 27);
         QPainterPath r;
         r.moveTo(9.2, 17);
         r.quadTo(16, 6, 22.8, 17);
         Pen(p, kRed, 2.0);
         p.drawPath(r);
         Dot(p, 9.2, 17, kBlue, 2);
         Dot(p, 22.8, 17, kBlue, 2);
       }},
      {"klotoide", [](QPainter& p) {
         Pen(p, kBlue, 2.0);
         p.drawPolyline(Clothoid(3, 26, 19, 1.55));
         Pen(p, kInk, 1.0, Qt::DashLine);
         Line(p, 3, 26, 29, 26);
         Dot(p, 3, 26, kRed, 2);
       }},
      {"eilinie", [](QPainter& p) {
         Pen(p, kInk, 1.2);
         Circle(p, 15, 17, 12);
         Circle(p, 19, 17, 5);
         Pen(p, kRed, 2.0);
         QPainterPath e;
         e.moveTo(15, 29);
         e.cubicTo(22, 29, 25, 24, 24, 18);
         p.drawPath(e);
       }},
      {"wendelinie", [](QPainter& p) {
         Pen(p, kInk, 1.0);
         Circle(p, 8, 10, 6);
         Circle(p, 24, 22, 6);
         Pen(p, kRed, 2.0);
         QPainterPath s;
         s.moveTo(3, 15);
         s.cubicTo(10, 20, 22, 12, 29, 17);
         p.drawPath(s);
         Dot(p, 16, 16, kBlue, 1.8);
       }},
  };
  return glyphs;
}

}  // namespace

QPixmap DrawnGlyph(const std::string& name, int size) {
  const auto& glyphs = Glyphs();
  auto it = glyphs.find(name);
  if (it == glyphs.end()) return {};
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::TextAntialiasing);
  p.scale(size / 32.0, size / 32.0);
  it->second(p);
  return pixmap;
}

QIcon BarIcon(const std::string& name) {
  QStyle* style = QApplication::style();
  if (style && name == "tabelle_oeffnen") return style->standardIcon(QStyle::SP_DialogOpenButton);
  if (style && name == "tabelle_speichern") return style->standardIcon(QStyle::SP_DialogSaveButton);
  if (!Glyphs().count(name)) return {};
  QIcon icon;
  for (int size : {16, 24, 32, 48}) icon.addPixmap(DrawnGlyph(name, size));
  return icon;
}

std::vector<std::string> BarIconNames() {
  std::vector<std::string> names;
  for (const auto& [name, draw] : Glyphs()) names.push_back(name);
  return names;
}

}  // namespace kolm::shell
