#pragma once
// What the line-intersection dialogs share: their line groups, each a
// selector of the nine ways with two point slots, and the direction of a
// line once its entry is worked out.
#include <memory>
#include <string>
#include <vector>

#include "calc/frame/gerade_auswahl.h"
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class GeradenDialog : public RechenDialog {
 public:
  using RechenDialog::RechenDialog;

 protected:
  struct Gerade {
    int p1, p2;  // indices of the input records
    std::unique_ptr<GeradeAuswahl> auswahl;
  };
  // Line g (1 or 2) in frame `Geradeg` with the slots `GgP1`, `GgP2`; its
  // points are named P<erster> and P<erster + 1>. Returns its index.
  int GeradeAnlegen(int g, int erster);
  // GeradeAuswerten on line i's records, then its direction.
  void Auswerten(int i, double& da, double& db);
  core::Punkt& Anfang(int i) { return Eingabe(geraden_.at(static_cast<size_t>(i)).p1); }

  void Load() override;

 private:
  std::vector<Gerade> geraden_;
};

}  // namespace kolm::calc
