#include "points/tabelle/listen_druck.h"

namespace kolm::points {

namespace {
constexpr double MmProPunkt = 25.4 / 72.0;
constexpr forms::Rgb Schwarz = 0x000000;
}  // namespace

ListenDruck::ListenDruck(forms::PrintJob& job, ListenLayout layout, std::vector<std::string> kopf)
    : job_(job), layout_(std::move(layout)), kopf_(std::move(kopf)) {
  // Heights come from the point size, so a page holds the same lines on
  // every printer and in the tests.
  zeilenhoehe_ = layout_.schrift.sizePt * MmProPunkt * 1.4;
  seiteBeginnen();
}

void ListenDruck::seiteBeginnen() {
  if (seiten_ > 0) job_.newPage();
  ++seiten_;
  forms::DrawingSurface& s = job_.page();
  const double r = layout_.randMm;
  const double w = job_.pageWidthMm(), h = job_.pageHeightMm();
  s.setPen(Schwarz, 1, forms::LineStyle::Solid);
  s.line(r, r, w - r, r);
  s.line(w - r, r, w - r, h - r);
  s.line(w - r, h - r, r, h - r);
  s.line(r, h - r, r, r);
  y_ = r + layout_.innenMm;
  forms::Font fett = layout_.schrift;
  fett.bold = true;
  s.setFont(fett);
  spaltenSchreiben(kopf_);
  s.line(r, y_ + zeilenhoehe_ * 0.25, w - r, y_ + zeilenhoehe_ * 0.25);
  y_ += zeilenhoehe_ * 0.5;
  s.setFont(layout_.schrift);
}

void ListenDruck::spaltenSchreiben(const std::vector<std::string>& spalten) {
  forms::DrawingSurface& s = job_.page();
  const double links = layout_.randMm + layout_.innenMm;
  for (size_t i = 0; i < spalten.size() && i < layout_.tabsMm.size(); ++i)
    if (!spalten[i].empty()) s.text(links + layout_.tabsMm[i], y_, spalten[i]);
  y_ += zeilenhoehe_;
}

void ListenDruck::zeile(const std::vector<std::string>& spalten) {
  const double unten = job_.pageHeightMm() - layout_.randMm - layout_.innenMm;
  if (y_ + zeilenhoehe_ > unten) seiteBeginnen();
  spaltenSchreiben(spalten);
}

}  // namespace kolm::points
