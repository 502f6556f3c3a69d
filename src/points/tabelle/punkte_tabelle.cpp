#include "points/tabelle/punkte_tabelle.h"
#include "points/zahl_feld.h"

#include <algorithm>
#include <cmath>

#include "core/app/anwendung.h"
#include "points/koordinaten.h"
#include "points/numbers/numbers.h"
#include "points/tabelle/auswahl.h"
#include "points/tabelle/punkt_verschieben.h"
#include "points/tabelle/punkt_werte.h"
#include "points/tabelle/punkte_druck.h"
#include "points/tabelle/zeilen.h"
#include "points/variablen.h"
#include "points/zellen_eingabe.h"
#include "forms/keys.h"
#include "forms/names.h"

namespace kolm::points {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;
namespace keys = forms::keys;

namespace {

constexpr int BreiteNummer = 8, BreiteBezeichnung = 12, BreiteWert = 16;

bool BeendetZelle(int keyCode) {
  return keyCode == keys::Return || keyCode == keys::Left || keyCode == keys::Right || keyCode == keys::Up ||
         keyCode == keys::Down;
}

}  // namespace

PunkteTabelleForm::PunkteTabelleForm(forms::Forms& forms, core::Anwendung& anwendung)
    : Form(forms, "PunkteTabelle", "Punkte-Tabelle"), anwendung_(anwendung) {
  setPreferredSize(720, 480);
  add(ControlKind::Grid, "Grid").grid(2, 4, 1, 1).draggable().dropTarget().at(0, 0, 1, 5);
  add(ControlKind::CommandButton, "Umbenennen").caption("&Umbenennen")
      .tip("Den markierten Punkten eine andere Bezeichnung geben").at(1, 0);
  add(ControlKind::CommandButton, "Speichern").caption("&Speichern").tip("Die aktive Tabelle speichern").at(1, 1);
  add(ControlKind::CommandButton, "Drucken").caption("&Drucken").tip("Die Punktliste drucken").at(1, 2);
  // Shows the point being dragged by its number.
  add(ControlKind::Label, "DragLabel").width(30).at(1, 3);
  add(ControlKind::CommandButton, "Cancel").caption("Schließen").asCancel().at(1, 4);
  add(ControlKind::CommandButton, "Repaint").hidden();
  add(ControlKind::CommandButton, "RepaintPunkt").hidden();
  add(ControlKind::CommandButton, "ReRead").hidden();
  add(ControlKind::Timer, "tmrDrag").interval(200).disabled();

  on("Repaint", Event::Click, [this](Control&, EventArgs&) { Repaint(); });
  on("RepaintPunkt", Event::Click, [this](Control&, EventArgs&) { RepaintPunkt(); });
  on("ReRead", Event::Click, [this](Control&, EventArgs&) { ReRead(); });

  on("Grid", Event::KeyPress, [this](Control&, EventArgs& a) { tasteGedrueckt(a); });
  on("Grid", Event::KeyDown, [this](Control&, EventArgs& a) { tasteUnten(a); });
  on("Grid", Event::RowColChange, [this](Control&, EventArgs& a) {
    if (bearbeitung_.aktiv() && (a.row != bearbeitung_.zeile || a.col != bearbeitung_.spalte)) ZelleUebernehmen();
  });
  on("Grid", Event::SelChange, [this](Control&, EventArgs&) { ZelleUebernehmen(); });
  on("Grid", Event::LostFocus, [this](Control&, EventArgs&) { ZelleUebernehmen(); });
  on("Grid", Event::Click, [this](Control&, EventArgs&) { control("DragLabel").setCaption(""); });
  on("Grid", Event::DragStart, [this](Control&, EventArgs& a) { ziehenBeginnen(a); });
  on("Grid", Event::DragDrop, [this](Control&, EventArgs& a) { ablegen(a); });
  on("tmrDrag", Event::Timer, [this](Control&, EventArgs&) { ziehenAnzeigen(); });

  on("Umbenennen", Event::Click, [this](Control&, EventArgs&) { umbenennen(); });
  on("Speichern", Event::Click, [this](Control&, EventArgs&) {
    ZelleUebernehmen();
    anwendung_.TabelleSpeichernBefehl();
  });
  on("Drucken", Event::Click, [this](Control& knopf, EventArgs&) {
    ZelleUebernehmen();
    // No second list while the printer's dialog of the first is open.
    knopf.setEnabled(false);
    PunkteListeDrucken(services(), anwendung_.zustand(), grid());
    knopf.setEnabled(true);
  });
  on("Cancel", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
}

// A value still being typed is kept, however the dialog is closed.
void PunkteTabelleForm::Unload() { ZelleUebernehmen(); }

void PunkteTabelleForm::Load() {
  Repaint();
  grid().setCurrentCell(ZeileVonPunkt(0), SpalteA);  // ready for typing the first value
}

Control& PunkteTabelleForm::grid() const { return control("Grid"); }

// ---- filling the grid ---------------------------------------------------------------

bool PunkteTabelleForm::formStimmt() const {
  const core::Zustand& z = anwendung_.zustand();
  return grid().rows() == TabellenZeilen(z) && grid().cols() == TabellenSpalten(z);
}

void PunkteTabelleForm::zeileSchreiben(int nummer) {
  const core::Zustand& z = anwendung_.zustand();
  Control& g = grid();
  const int zeile = ZeileVonPunkt(nummer);
  if (!IstPunktZeile(z, zeile) || zeile >= g.rows()) return;
  Zeilentexte texte = PunktTexte(z, nummer);
  for (int c = 0; c < g.cols(); ++c) g.setCell(zeile, c, std::move(texte[static_cast<size_t>(c)]));
}

void PunkteTabelleForm::Repaint() {
  const core::Zustand& z = anwendung_.zustand();
  Control& g = grid();
  bearbeitung_ = {};
  g.beginGridUpdate();
  g.setCols(TabellenSpalten(z));
  g.setRows(TabellenZeilen(z));
  const Zeilentexte kopf = Kopftexte(z);
  for (int c = 0; c < g.cols(); ++c) g.setCell(0, c, kopf[static_cast<size_t>(c)]);
  for (int n = 0; n <= z.AnzahlPunkte; ++n) zeileSchreiben(n);
  g.endGridUpdate();
  g.setColWidth(SpalteNummer, BreiteNummer);
  g.setColWidth(SpalteBezeichnung, BreiteBezeichnung);
  for (int c = SpalteA; c < g.cols(); ++c) g.setColWidth(c, BreiteWert);
}

void PunkteTabelleForm::RepaintPunkt() {
  if (!formStimmt()) return Repaint();
  const int nummer = anwendung_.PunktZumAuffrischen();
  if (bearbeitung_.zeile == ZeileVonPunkt(nummer)) bearbeitung_ = {};
  zeileSchreiben(nummer);
}

void PunkteTabelleForm::ReRead() {
  core::Zustand& z = anwendung_.zustand();
  Control& g = grid();
  bearbeitung_ = {};
  const int zeilen = std::min(g.rows(), TabellenZeilen(z));
  const int spalten = g.cols();
  bool punktGeaendert = false;
  g.beginGridUpdate();
  for (int r = g.gridData().fixedRows; r < zeilen; ++r) {
    const int n = PunktVonZeile(r);
    const Zeilentexte gezeigt = PunktTexte(z, n);
    // Only rows that differ from what the table shows are read, so the
    // digits the format hides survive in all others.
    bool anders = false;
    for (int c = SpalteA; c < spalten && c <= SpalteC; ++c) anders = anders || g.cell(r, c) != gezeigt[c];
    if (anders) {
      punktGeaendert = true;
      const core::Punkt& p = z.Punkte[static_cast<size_t>(n)];
      const auto wert = [&](int c, double verborgen) {
        return c < spalten ? numbers::ZahlLesen(g.cell(r, c)) : verborgen;
      };
      bool leer = true;
      for (int c = SpalteA; c < spalten && c <= SpalteC; ++c) leer = leer && numbers::IstLeer(g.cell(r, c));
      // Without Dritte the third value has no cell; it stays as it is.
      if (leer && (spalten > SpalteC || p.C == 0)) z.PunktLoeschen(n);
      else PunktWerteSetzen(z, n, wert(SpalteA, p.A), wert(SpalteB, p.B), wert(SpalteC, p.C));
    }
    if (anders || g.cell(r, SpalteBezeichnung) != gezeigt[SpalteBezeichnung] ||
        g.cell(r, SpalteNummer) != gezeigt[SpalteNummer])
      zeileSchreiben(n);
  }
  g.endGridUpdate();
  z.TabelleGeaendert = core::Wahr;
  // Cut and paste of the Bearbeiten menu end here, as Delete does.
  if (punktGeaendert) anwendung_.RefreshGrafik();
}

// ---- typing into a cell -------------------------------------------------------------

double PunkteTabelleForm::zellwert(int zeile, int spalte) const {
  const core::Zustand& z = anwendung_.zustand();
  const int n = PunktVonZeile(zeile);
  if (!IstPunktZeile(z, zeile) || z.PunktLeer(n)) return 0;
  const core::Punkt& p = z.Punkte[static_cast<size_t>(n)];
  return spalte == SpalteA ? p.A : spalte == SpalteB ? p.B : p.C;
}

void PunkteTabelleForm::tasteGedrueckt(EventArgs& a) {
  core::Zustand& z = anwendung_.zustand();
  Control& g = grid();
  const int r = g.gridData().row, c = g.gridData().col;
  int taste = a.keyAscii;
  a.keyAscii = 0;  // the grid types nothing by itself
  if (!IstPunktZeile(z, r) || c < SpalteA || c >= g.cols()) return;
  const bool hier = bearbeitung_.zeile == r && bearbeitung_.spalte == c;
  if (!hier) ZelleUebernehmen();

  std::string text = hier ? bearbeitung_.text : g.cell(r, c);
  switch (VariablenTaste(z, taste, text)) {
    case VariablenWirkung::Gespeichert:
      anwendung_.RefreshVariablen();
      return;
    case VariablenWirkung::Eingesetzt:
      bearbeitung_ = {r, c, text};
      g.setCell(r, c, text);
      ZelleUebernehmen();
      return;
    case VariablenWirkung::Keine:
      break;
  }
  std::string neu = hier ? bearbeitung_.text : ZellenBearbeitungsText(zellwert(r, c));
  if (!ZellenTaste(neu, taste)) return;
  bearbeitung_ = {r, c, neu};
  g.setCell(r, c, std::move(neu));
}

void PunkteTabelleForm::tasteUnten(EventArgs& a) {
  if (BeendetZelle(a.keyCode)) {
    ZelleUebernehmen();
  } else if (a.keyCode == keys::Delete && a.shift == 0) {
    markierteZellenLeeren();
    a.keyCode = 0;
  }
}

void PunkteTabelleForm::ZelleUebernehmen() {
  if (!bearbeitung_.aktiv()) return;
  const Bearbeitung b = bearbeitung_;
  bearbeitung_ = {};
  core::Zustand& z = anwendung_.zustand();
  z.TabelleGeaendert = core::Wahr;
  if (!IstPunktZeile(z, b.zeile)) return;
  const int n = PunktVonZeile(b.zeile);
  // An overflowing entry is refused; the point keeps its value.
  if (const auto wert = FeldZahl(services().messages, b.text)) PunktWertSetzen(z, n, b.spalte, *wert);
  zeileSchreiben(n);
  anwendung_.RefreshGrafik();
}

void PunkteTabelleForm::markierteZellenLeeren() {
  Control& g = grid();
  const forms::GridData& d = g.gridData();
  const int oben = std::max(std::min(d.row, d.rowSel), d.fixedRows);
  const int unten = std::max(d.row, d.rowSel);
  const int links = std::max(std::min(d.col, d.colSel), d.fixedCols);
  const int rechts = std::max(d.col, d.colSel);
  bearbeitung_ = {};
  g.beginGridUpdate();
  for (int r = oben; r <= unten; ++r)
    for (int c = links; c <= rechts; ++c) g.setCell(r, c, "");
  g.endGridUpdate();
  ReRead();
}

// ---- moving a point by its number ---------------------------------------------------

void PunkteTabelleForm::ziehenBeginnen(EventArgs& a) {
  const core::Zustand& z = anwendung_.zustand();
  const forms::GridData& d = grid().gridData();
  const int r = a.row >= 0 ? a.row : d.row;
  const int c = a.col >= 0 ? a.col : d.col;
  quelle_ = -1;
  control("DragLabel").setTag("");
  if (c != SpalteNummer || !IstPunktZeile(z, r) || z.PunktLeer(PunktVonZeile(r))) {
    a.cancel = true;
    return;
  }
  ZelleUebernehmen();
  quelle_ = PunktVonZeile(r);
  control("DragLabel").setTag(std::to_string(quelle_));
  control("tmrDrag").setEnabled(true);
}

void PunkteTabelleForm::ziehenAnzeigen() {
  control("tmrDrag").setEnabled(false);
  const core::Zustand& z = anwendung_.zustand();
  if (quelle_ < 0 || quelle_ >= static_cast<int>(z.Punkte.size())) return;
  control("DragLabel").setCaption(PunktZeile(z, z.Punkte[static_cast<size_t>(quelle_)]));
}

void PunkteTabelleForm::ablegen(EventArgs& a) {
  control("tmrDrag").setEnabled(false);
  control("DragLabel").setCaption("");
  control("DragLabel").setTag("");
  const int von = quelle_;
  quelle_ = -1;
  if (!a.source || &a.source->form() != this || von < 0) return;
  const int r = a.row >= 0 ? a.row : grid().gridData().row;
  PunktVerschieben(anwendung_, von, PunktVonZeile(r));
}

int GezogenerPunkt(const forms::Control& quelle) {
  const forms::Form& form = quelle.form();
  if (forms::NameKey(form.name()) != forms::NameKey("PunkteTabelle")) return -1;
  const forms::Control* label = form.find("DragLabel");
  if (!label || label->tag().empty()) return -1;
  if (&quelle != label && &quelle != form.find("Grid")) return -1;
  return static_cast<int>(numbers::Val(label->tag()));
}

// ---- designation --------------------------------------------------------------------

void PunkteTabelleForm::umbenennen() {
  ZelleUebernehmen();
  core::Zustand& z = anwendung_.zustand();
  const Punktbereich bereich = MarkierteZeilen(z, grid());
  forms::Form* dialog = this->forms().load("PktKurzBezEingabe");
  if (!dialog) return;
  const int aktuell = PunktVonZeile(grid().gridData().row);
  const int vorschlag = aktuell >= 0 && aktuell < static_cast<int>(z.Punkte.size())
                            ? z.Punkte[static_cast<size_t>(aktuell)].KurzBez
                            : z.StandardKurzBezWert();
  if (Control* v = dialog->find("Vorschlag")) v->setText(std::to_string(vorschlag));
  if (Control* e = dialog->find("Ergebnis")) e->setText("-1");
  this->forms().show(*dialog, true);
  const Control* ergebnis = dialog->find("Ergebnis");
  const std::string text = ergebnis ? ergebnis->text() : std::string();
  if (dialog->loaded()) this->forms().unload(*dialog);
  if (numbers::IstLeer(text)) return;
  const double wert = numbers::ZahlLesen(text);
  if (wert < 0 || wert >= core::AnzahlKurzbezeichnungen) return;
  const int k = static_cast<int>(wert);

  for (int n = bereich.erste; n <= bereich.letzte && n < static_cast<int>(z.Punkte.size()); ++n) {
    core::Punkt& p = z.Punkte[static_cast<size_t>(n)];
    p.KurzBez = static_cast<core::Integer>(k);
    // The point colour list may name a colour for this designation.
    if (k < static_cast<int>(z.PunktFarben.size()) && !z.PunktFarben[static_cast<size_t>(k)].Name.empty())
      p.Farbe = z.PunktFarben[static_cast<size_t>(k)].Farbe;
  }
  z.TabelleGeaendert = core::Wahr;
  Repaint();
  anwendung_.RefreshGrafik();
}

}  // namespace kolm::points
