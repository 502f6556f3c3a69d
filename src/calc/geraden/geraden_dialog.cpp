#include "calc/geraden/geraden_dialog.h"

namespace kolm::calc {

namespace {
// Rows of the line groups, below the points and results the frame places.
constexpr int GeradenZeile = 30;
}  // namespace

int GeradenDialog::GeradeAnlegen(int g, int erster) {
  const std::string n = std::to_string(g);
  Gerade gerade;
  for (int k = 0; k < 2; ++k) {
    const std::string punkt = std::to_string(erster + k);
    const std::string slot = "G" + n + "P" + std::to_string(k + 1);
    const int i = EingabePunkt(slot, "Frame" + slot, "Punkt P" + punkt);
    add(forms::ControlKind::Label, "Label" + slot + "Nr").caption("P&" + punkt + " Nr.:").in("Frame" + slot).at(0, 2);
    (k == 0 ? gerade.p1 : gerade.p2) = i;
  }
  add(forms::ControlKind::Frame, "Gerade" + n).caption("Gerade g" + n).at(GeradenZeile + g, 0, 1, 2);
  gerade.auswahl = std::make_unique<GeradeAuswahl>(*this, g, erster);
  gerade.auswahl->Anlegen("Gerade" + n,
                          [this](forms::Control& feld, forms::EventArgs& args) { ParamTaste(feld, args); });
  geraden_.push_back(std::move(gerade));
  return static_cast<int>(geraden_.size()) - 1;
}

void GeradenDialog::Auswerten(int i, double& da, double& db) {
  const Gerade& g = geraden_.at(static_cast<size_t>(i));
  core::Punkt &p1 = Eingabe(g.p1), &p2 = Eingabe(g.p2);
  g.auswahl->Auswerten(zustand(), p1, p2);
  da = p2.A - p1.A;
  db = p2.B - p1.B;
}

void GeradenDialog::Load() {
  RechenDialog::Load();
  for (Gerade& g : geraden_) g.auswahl->Laden();
  // The access keys of the result captions stand only until the first result.
  for (const char* name : {"LabelA", "LabelB"}) control(name).setCaption("&" + control(name).captionText());
}

}  // namespace kolm::calc
