#include "points/eingabe/bearbeiten.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "forms/utf8.h"
#include "points/numbers/numbers.h"

namespace kolm::points {

using forms::Control;
using forms::ControlKind;

namespace {

enum class Befehl { Ausschneiden, Kopieren, Einfuegen };

const char* BefehlsName(Befehl b) {
  switch (b) {
    case Befehl::Ausschneiden: return "Ausschneiden";
    case Befehl::Kopieren: return "Kopieren";
    case Befehl::Einfuegen: return "Einfügen";
  }
  return "";
}

// A form's own command: an invisible button of that name.
Control* EigenerBefehl(const forms::Form& form, Befehl b) {
  Control* c = form.find(BefehlsName(b));
  return c && c->kind() == ControlKind::CommandButton && !c->visible() ? c : nullptr;
}

bool HatEigeneBefehle(const forms::Form& form) {
  for (Befehl b : {Befehl::Ausschneiden, Befehl::Kopieren, Befehl::Einfuegen})
    if (EigenerBefehl(form, b)) return true;
  return false;
}

Control* Aktiv(const forms::Forms& forms) {
  forms::Form* form = forms.active();
  Control* c = form ? form->activeControl() : nullptr;
  return c && c->enabled() && c->visible() ? c : nullptr;
}

bool IstTextfeld(const Control& c) {
  return c.kind() == ControlKind::TextBox || (c.kind() == ControlKind::ComboBox && !c.isDropDownList());
}

bool IstRaster(const Control& c) { return c.kind() == ControlKind::Grid; }

forms::ClipboardService* Ablage(const forms::Forms& forms) { return forms.services().clipboard; }

// The selected cells without the fixed rows and columns.
struct Rechteck {
  int oben, links, unten, rechts;
  bool leer() const { return unten < oben || rechts < links; }
};

Rechteck Auswahl(const Control& raster) {
  const forms::GridData& g = raster.gridData();
  Rechteck r{std::min(g.row, g.rowSel), std::min(g.col, g.colSel), std::max(g.row, g.rowSel),
             std::max(g.col, g.colSel)};
  r.oben = std::max(r.oben, g.fixedRows);
  r.links = std::max(r.links, g.fixedCols);
  r.unten = std::min(r.unten, g.rows - 1);
  r.rechts = std::min(r.rechts, g.cols - 1);
  return r;
}

std::string RasterText(const Control& raster, const Rechteck& r) {
  std::string text;
  for (int z = r.oben; z <= r.unten; ++z) {
    if (z > r.oben) text += '\r';
    for (int s = r.links; s <= r.rechts; ++s) {
      if (s > r.links) text += '\t';
      text += raster.cell(z, s);
    }
  }
  return text;
}

// Rows split at CR LF, CR or LF; a break at the very end closes the last
// row rather than opening an empty one.
std::vector<std::vector<std::string>> Zellen(const std::string& text) {
  std::vector<std::vector<std::string>> zeilen(1, std::vector<std::string>(1));
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' || c == '\n') {
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
      zeilen.emplace_back(1);
    } else if (c == '\t') {
      zeilen.back().emplace_back();
    } else {
      zeilen.back().back() += c;
    }
  }
  if (zeilen.size() > 1 && zeilen.back().size() == 1 && zeilen.back().front().empty()) zeilen.pop_back();
  return zeilen;
}

void RasterKopieren(const forms::Forms& forms, const Control& raster) {
  const Rechteck r = Auswahl(raster);
  forms::ClipboardService* ablage = Ablage(forms);
  if (r.leer() || !ablage) return;
  ablage->setText(numbers::TextMitSystemKomma(RasterText(raster, r)));
}

void RasterAusschneiden(const forms::Forms& forms, Control& raster) {
  const Rechteck r = Auswahl(raster);
  if (r.leer() || !Ablage(forms)) return;
  RasterKopieren(forms, raster);
  raster.beginGridUpdate();
  for (int z = r.oben; z <= r.unten; ++z)
    for (int s = r.links; s <= r.rechts; ++s) raster.setCell(z, s, "");
  raster.endGridUpdate();
  raster.form().trigger("ReRead");
}

void RasterEinfuegen(const forms::Forms& forms, Control& raster) {
  forms::ClipboardService* ablage = Ablage(forms);
  if (!ablage) return;
  const std::string text = ablage->text();
  const Rechteck auswahl = Auswahl(raster);
  if (text.empty() || auswahl.oben >= raster.rows() || auswahl.links >= raster.cols()) return;
  const std::vector<std::vector<std::string>> zeilen = Zellen(text);
  size_t breite = 0;
  for (const auto& zeile : zeilen) breite = std::max(breite, zeile.size());
  // The text decides the shape, the grid's last row and column the limit.
  const Rechteck r{auswahl.oben, auswahl.links,
                   std::min(auswahl.oben + static_cast<int>(zeilen.size()) - 1, raster.rows() - 1),
                   std::min(auswahl.links + static_cast<int>(breite) - 1, raster.cols() - 1)};
  raster.setGridSelection(r.oben, r.links, r.unten, r.rechts);
  raster.beginGridUpdate();
  for (int z = r.oben; z <= r.unten; ++z) {
    const std::vector<std::string>& zeile = zeilen[static_cast<size_t>(z - r.oben)];
    for (int s = r.links; s <= r.rechts && s - r.links < static_cast<int>(zeile.size()); ++s)
      raster.setCell(z, s, zeile[static_cast<size_t>(s - r.links)]);
  }
  raster.endGridUpdate();
  raster.form().trigger("ReRead");
}

// A field of one line keeps only the first line of what is pasted.
std::string FuerFeld(const Control& feld, std::string text) {
  if (!feld.isMultiLine()) text = text.substr(0, text.find_first_of("\r\n"));
  return text;
}

// Runs the form's own command; false when it has none.
bool EigenerBefehlAusgefuehrt(const forms::Forms& forms, Befehl b) {
  forms::Form* form = forms.active();
  Control* befehl = form ? EigenerBefehl(*form, b) : nullptr;
  if (!befehl) return false;
  befehl->raise(forms::Event::Click);
  return true;
}

}  // namespace

void Kopieren(forms::Forms& forms) {
  if (EigenerBefehlAusgefuehrt(forms, Befehl::Kopieren)) return;
  Control* c = Aktiv(forms);
  if (!c) return;
  if (IstRaster(*c)) return RasterKopieren(forms, *c);
  forms::ClipboardService* ablage = Ablage(forms);
  if (IstTextfeld(*c) && ablage && c->selLength() > 0) ablage->setText(c->selectedText());
}

void Ausschneiden(forms::Forms& forms) {
  if (EigenerBefehlAusgefuehrt(forms, Befehl::Ausschneiden)) return;
  Control* c = Aktiv(forms);
  if (!c) return;
  if (IstRaster(*c)) return RasterAusschneiden(forms, *c);
  forms::ClipboardService* ablage = Ablage(forms);
  if (!IstTextfeld(*c) || !ablage || c->selLength() == 0) return;
  ablage->setText(c->selectedText());
  c->replaceSelection("");
}

void Einfuegen(forms::Forms& forms) {
  if (EigenerBefehlAusgefuehrt(forms, Befehl::Einfuegen)) return;
  Control* c = Aktiv(forms);
  if (!c) return;
  if (IstRaster(*c)) return RasterEinfuegen(forms, *c);
  forms::ClipboardService* ablage = Ablage(forms);
  if (!IstTextfeld(*c) || !ablage) return;
  const std::string text = FuerFeld(*c, ablage->text());
  if (!text.empty()) c->replaceSelection(text);
}

void AllesMarkieren(forms::Forms& forms) {
  Control* c = Aktiv(forms);
  if (!c) return;
  if (IstRaster(*c)) {
    const forms::GridData& g = c->gridData();
    if (g.rows > g.fixedRows && g.cols > g.fixedCols)
      c->setGridSelection(g.fixedRows, g.fixedCols, g.rows - 1, g.cols - 1);
  } else if (IstTextfeld(*c)) {
    c->setSelection(0, forms::utf8::Length(c->text()));
  }
}

void BearbeitenFreigeben(core::MainForm& main, const forms::Forms& forms) {
  const forms::Form* form = forms.active();
  const Control* c = Aktiv(forms);
  const bool feld = c && (IstTextfeld(*c) || IstRaster(*c));
  const bool eigene = form && HatEigeneBefehle(*form);
  auto freigeben = [&](const char* eintrag, Befehl b) {
    main.control(eintrag).setEnabled(eigene ? EigenerBefehl(*form, b) != nullptr : feld);
  };
  freigeben("MnuBearbeitenAusschneiden", Befehl::Ausschneiden);
  freigeben("MnuBearbeitenKopieren", Befehl::Kopieren);
  freigeben("MnuBearbeitenEinfügen", Befehl::Einfuegen);
  main.control("MnuBearbeitenAllesMarkieren").setEnabled(feld);
}

void BearbeitenVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuBearbeitenAusschneiden", [&forms] { Ausschneiden(forms); });
  main.setCommand("MnuBearbeitenKopieren", [&forms] { Kopieren(forms); });
  main.setCommand("MnuBearbeitenEinfügen", [&forms] { Einfuegen(forms); });
  main.setCommand("MnuBearbeitenAllesMarkieren", [&forms] { AllesMarkieren(forms); });
  main.on("MnuBearbeiten", forms::Event::Click,
          [&main, &forms](Control&, forms::EventArgs&) { BearbeitenFreigeben(main, forms); });
  // The buttons act at once: the enabling of the entries is only as fresh as
  // the last opening of the menu.
  for (int i = 0; i < 64; ++i) {
    const std::string eintrag = main.buttonEntry("FnLButton", i);
    if (eintrag == "MnuBearbeitenAusschneiden")
      main.setButtonCommand("FnLButton", i, [&forms] { Ausschneiden(forms); });
    else if (eintrag == "MnuBearbeitenKopieren")
      main.setButtonCommand("FnLButton", i, [&forms] { Kopieren(forms); });
    else if (eintrag == "MnuBearbeitenEinfügen")
      main.setButtonCommand("FnLButton", i, [&forms] { Einfuegen(forms); });
  }
}

}  // namespace kolm::points
