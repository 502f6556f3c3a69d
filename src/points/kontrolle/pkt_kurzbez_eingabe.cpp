#include "points/kontrolle/pkt_kurzbez_eingabe.h"

#include <algorithm>
#include <string>

#include "core/app/anwendung.h"
#include "points/numbers/numbers.h"

namespace kolm::points {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

PktKurzBezEingabeForm::PktKurzBezEingabeForm(forms::Forms& forms, core::Anwendung& anwendung)
    : Form(forms, "PktKurzBezEingabe", "Punkt Bezeichnung"), anwendung_(anwendung) {
  add(ControlKind::ListBox, "List").width(30).tip("Doppelklick übernimmt die Bezeichnung").at(0, 0, 1, 2);
  add(ControlKind::CommandButton, "OK").caption("OK").asDefault().at(1, 0);
  add(ControlKind::CommandButton, "Cancel").caption("Abbrechen").asCancel().at(1, 1);
  add(ControlKind::TextBox, "Ergebnis").hidden();
  add(ControlKind::TextBox, "Vorschlag").hidden();
  setPreferredSize(260, 280);

  on("Vorschlag", Event::Change, [this](Control&, EventArgs&) { vorschlagen(); });
  on("List", Event::DblClick, [this](Control&, EventArgs&) { ok(); });
  on("OK", Event::Click, [this](Control&, EventArgs&) { ok(); });
  on("Cancel", Event::Click, [this](Control&, EventArgs&) {
    control("Ergebnis").setText("-1");
    this->forms().hide(*this);
  });
}

void PktKurzBezEingabeForm::Load() { control("Ergebnis").setText("-1"); }

// Each opening starts afresh, also when the opener kept the form loaded.
void PktKurzBezEingabeForm::Activate() {
  const core::Zustand& z = anwendung_.zustand();
  // Closing the window without OK leaves the answer of a cancel.
  control("Ergebnis").setText("-1");
  eintraege_.clear();
  std::vector<std::string> texte;
  for (std::size_t k = 0; k < z.Kurzbezeichnungen.size(); ++k) {
    if (numbers::IstLeer(z.Kurzbezeichnungen[k].Text)) continue;
    eintraege_.push_back(static_cast<int>(k));
    texte.push_back(z.Kurzbezeichnungen[k].Text);
  }
  control("List").setList(std::move(texte));
  vorschlagen();
}

void PktKurzBezEingabeForm::vorschlagen() {
  const std::string& text = control("Vorschlag").text();
  const int k = numbers::IstLeer(text) ? anwendung_.zustand().StandardKurzBezeichnung
                                       : static_cast<int>(numbers::Val(text));
  const auto it = std::find(eintraege_.begin(), eintraege_.end(), k);
  control("List").setListIndex(it == eintraege_.end() ? -1 : static_cast<int>(it - eintraege_.begin()));
}

// The form only hides: the opener reads Ergebnis, then unloads it.
void PktKurzBezEingabeForm::ok() {
  const int zeile = control("List").listIndex();
  if (zeile >= 0 && zeile < static_cast<int>(eintraege_.size())) {
    control("Ergebnis").setText(std::to_string(eintraege_[zeile]));
    anwendung_.zustand().TabelleGeaendert = core::Wahr;
  } else {
    control("Ergebnis").setText("-1");
  }
  forms().hide(*this);
}

}  // namespace kolm::points
