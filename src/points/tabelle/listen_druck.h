#pragma once
// The print layer of lists: a frame around each page, the header at the top
// of every page, lines with their columns at tab stops, and a new page when
// the next line no longer fits.
#include <string>
#include <vector>

#include "forms/drawing.h"
#include "forms/services.h"

namespace kolm::points {

struct ListenLayout {
  double randMm = 15;           // page edge to the frame
  double innenMm = 4;           // frame to the text
  std::vector<double> tabsMm;   // left edge of each column, from the text's left edge
  forms::Font schrift;
};

class ListenDruck {
 public:
  ListenDruck(forms::PrintJob& job, ListenLayout layout, std::vector<std::string> kopf);
  // One line; a column beyond the tab stops is left out.
  void zeile(const std::vector<std::string>& spalten);
  int seiten() const { return seiten_; }
  double zeilenhoeheMm() const { return zeilenhoehe_; }

 private:
  void seiteBeginnen();
  void spaltenSchreiben(const std::vector<std::string>& spalten);

  forms::PrintJob& job_;
  ListenLayout layout_;
  std::vector<std::string> kopf_;
  double zeilenhoehe_ = 5;
  double y_ = 0;
  int seiten_ = 0;
};

}  // namespace kolm::points
