#include "points/kontrolle/punkte_kontrolle.h"

#include <algorithm>
#include <string>
#include <utility>

#include "calc/kernel/winkel.h"
#include "core/app/anwendung.h"
#include "forms/utf8.h"
#include "points/koordinaten.h"
#include "points/numbers/numbers.h"
#include "points/tabelle/punkte_tabelle.h"
#include "points/variablen.h"

namespace kolm::points {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

namespace {

constexpr const char* kTitel = "Punkte Kontrolle";
constexpr const char* kKeinBereich =
    "Bitte wählen Sie zuerst unter 'Ansicht': 'Punkte' und markieren Sie den zu bearbeitenden Bereich!";
constexpr const char* kNullWarnung =
    "Achtung: Multiplikation mit einer Komponente, die auf 0 gesetzt ist, löscht alle entsprechenden Einträge!";
constexpr const char* kNullTitel = "Multiplizieren von Punktkoordinaten";

// The last four characters of a text, where a point number stands in the
// fields and list entries of the program.
std::string LetzteVier(const std::string& text) {
  const int laenge = forms::utf8::Length(text);
  return text.substr(forms::utf8::ByteOffset(text, std::max(0, laenge - 4)));
}

}  // namespace

PunkteKontrolleForm::PunkteKontrolleForm(forms::Forms& forms, core::Anwendung& anwendung)
    : Form(forms, "PunkteKontrolle", kTitel), anwendung_(anwendung) {
  setResizable(false);
  add(ControlKind::Label, "LabelPunktNr").caption("Punkt &Nr.:").at(0, 0);
  add(ControlKind::TextBox, "PunktNr").width(8).dropTarget()
      .tip("Nummer eines Punktes: zeigt ihn in den Feldern").at(0, 1);
  add(ControlKind::Label, "LabelPunktKurzBez").width(14).at(0, 2);
  add(ControlKind::Label, "LabelA").at(1, 0);
  add(ControlKind::TextBox, "TextA").width(14).at(1, 1);
  add(ControlKind::Label, "LabelB").at(2, 0);
  add(ControlKind::TextBox, "TextB").width(14).at(2, 1);
  add(ControlKind::Label, "LabelC").at(3, 0);
  add(ControlKind::TextBox, "TextC").width(14).at(3, 1);
  add(ControlKind::CheckBox, "chkLeere").caption("leere &Einträge verwenden")
      .tip("Auch leere Punkte des Bereichs bearbeiten").at(4, 0, 1, 2);
  add(ControlKind::CommandButton, "Addieren").caption("&Addieren")
      .tip("Die Werte der Felder zu den markierten Punkten addieren").at(1, 2);
  add(ControlKind::CommandButton, "Multiplizieren").caption("&Multiplizieren")
      .tip("Die markierten Punkte mit den Werten der Felder multiplizieren").at(2, 2);
  add(ControlKind::CommandButton, "Vertauschen").at(3, 2);
  add(ControlKind::CommandButton, "Runden").caption("&Runden")
      .tip("Die markierten Punkte auf die Stellen des Ergebnisformats runden").at(4, 2);
  add(ControlKind::CommandButton, "Cancel").caption("Schließen").asCancel().at(5, 2);
  // Hidden command: the table's coordinate system changed.
  add(ControlKind::CommandButton, "Repaint").hidden();

  on("PunktNr", Event::Change, [this](Control&, EventArgs&) { punktZeigen(); });
  on("PunktNr", Event::DragDrop, [this](Control&, EventArgs& a) {
    if (a.source) uebernehmen(*a.source);
  });
  for (const char* feld : {"TextA", "TextB", "TextC"})
    on(feld, Event::KeyPress, [this](Control& c, EventArgs& a) { variablenTaste(c, a); });
  on("Addieren", Event::Click, [this](Control&, EventArgs&) { addieren(); });
  on("Multiplizieren", Event::Click, [this](Control&, EventArgs&) { multiplizieren(); });
  on("Vertauschen", Event::Click, [this](Control&, EventArgs&) { vertauschen(); });
  on("Runden", Event::Click, [this](Control&, EventArgs&) { runden(); });
  on("Repaint", Event::Click, [this](Control&, EventArgs&) { repaint(); });
  on("Cancel", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
}

void PunkteKontrolleForm::Load() { repaint(); }

void PunkteKontrolleForm::repaint() {
  const core::Zustand& z = anwendung_.zustand();
  const Koordinatennamen namen = KoordinatenBeschriftung(z, true);
  control("LabelA").setCaption(namen.a);
  control("LabelB").setCaption(namen.b);
  control("LabelC").setCaption(namen.c);
  control("LabelC").setVisible(z.Dritte != 0);
  control("TextC").setVisible(z.Dritte != 0);
  control("Vertauschen").setCaption(z.Polar ? "&Winkel normieren" : "&Vertausche X-Y");
  control("Vertauschen").setToolTip(z.Polar ? "Die Richtungen der markierten Punkte in einen Vollkreis bringen"
                                            : "Erste und zweite Koordinate der markierten Punkte tauschen");
}

void PunkteKontrolleForm::punktZeigen() {
  const core::Zustand& z = anwendung_.zustand();
  const std::string nummer = LetzteVier(control("PunktNr").text());
  if (numbers::IstLeer(nummer)) return;
  const auto n = numbers::CInt(numbers::Val(nummer));
  if (!n || *n < 0 || *n >= z.AnzahlPunkte) return;
  const core::Punkt& p = z.Punkte[static_cast<std::size_t>(*n)];
  const std::string& format = z.Einstellungen.StandardFormat;
  control("TextA").setText(numbers::ZahlText(p.A, format));
  control("TextB").setText(numbers::ZahlText(p.B, format));
  control("TextC").setText(numbers::ZahlText(p.C, format));
  control("LabelPunktKurzBez").setCaption(Bezeichnung(z, p.KurzBez));
}

// A point dragged from the point grid brings its number; any other source
// its text, whose last four characters name the point.
void PunkteKontrolleForm::uebernehmen(Control& quelle) {
  const int gezogen = GezogenerPunkt(quelle);
  if (gezogen >= 0)
    control("PunktNr").setText(numbers::ZahlText(gezogen, anwendung_.zustand().Einstellungen.NummernFormat));
  else
    control("PunktNr").setText(quelle.shownText());
}

void PunkteKontrolleForm::variablenTaste(Control& feld, EventArgs& args) {
  std::string text = feld.text();
  const VariablenWirkung wirkung = VariablenTaste(anwendung_.zustand(), args.keyAscii, text);
  if (wirkung == VariablenWirkung::Keine) return;
  feld.setText(text);
  feld.setSelection(forms::utf8::Length(text), 0);
  if (wirkung == VariablenWirkung::Gespeichert) anwendung_.RefreshVariablen();
}

PunkteKontrolleForm::Werte PunkteKontrolleForm::felder(double ohneDritte) const {
  const bool dritte = anwendung_.zustand().Dritte != 0;
  return {numbers::ZahlLesen(control("TextA").text()), numbers::ZahlLesen(control("TextB").text()),
          dritte ? numbers::ZahlLesen(control("TextC").text()) : ohneDritte};
}

std::optional<Punktbereich> PunkteKontrolleForm::bereich() {
  auto b = MarkiertePunkte(anwendung_.zustand(), forms());
  if (!b) {
    if (forms::MessageService* m = services().messages)
      m->show({kKeinBereich, kTitel, forms::Buttons::OK, forms::Icon::Exclamation});
  }
  return b;
}

void PunkteKontrolleForm::addieren() {
  const auto b = bereich();
  if (!b) return;
  core::Zustand& z = anwendung_.zustand();
  const Werte w = felder(0);
  const bool leere = control("chkLeere").value() == 1;
  for (int n = b->erste; n <= b->letzte; ++n) {
    if (!leere && z.PunktLeer(n)) continue;
    core::Punkt& p = z.Punkte[static_cast<std::size_t>(n)];
    p.A += w.a;
    p.B += w.b;
    p.C += w.c;
    p.Nummer = static_cast<core::Integer>(n);
  }
  geaendert();
}

void PunkteKontrolleForm::multiplizieren() {
  const auto b = bereich();
  if (!b) return;
  const Werte w = felder(1);
  if (w.a == 0 || w.b == 0 || w.c == 0) {
    forms::MessageService* m = services().messages;
    const forms::Answer antwort =
        m ? m->show({kNullWarnung, kNullTitel, forms::Buttons::OKCancel, forms::Icon::Exclamation})
          : forms::Answer::OK;
    if (antwort != forms::Answer::OK) return;
  }
  core::Zustand& z = anwendung_.zustand();
  const bool leere = control("chkLeere").value() == 1;
  for (int n = b->erste; n <= b->letzte; ++n) {
    if (!leere && z.PunktLeer(n)) continue;
    core::Punkt& p = z.Punkte[static_cast<std::size_t>(n)];
    p.A *= w.a;
    p.B *= w.b;
    p.C *= w.c;
  }
  geaendert();
}

void PunkteKontrolleForm::vertauschen() {
  const auto b = bereich();
  if (!b) return;
  core::Zustand& z = anwendung_.zustand();
  for (int n = b->erste; n <= b->letzte; ++n) {
    core::Punkt& p = z.Punkte[static_cast<std::size_t>(n)];
    if (z.Polar) p.B = kernel::WinkelNormieren(p.B * z.WinkelFaktor) / z.WinkelFaktor;
    else std::swap(p.A, p.B);
  }
  geaendert();
}

void PunkteKontrolleForm::runden() {
  const auto b = bereich();
  if (!b) return;
  core::Zustand& z = anwendung_.zustand();
  const std::string& format = z.Einstellungen.ErgebnisFormat;
  // The value becomes what the result format shows of it.
  const auto gerundet = [&format](double x) { return numbers::Val(numbers::ZahlText(x, format)); };
  for (int n = b->erste; n <= b->letzte; ++n) {
    core::Punkt& p = z.Punkte[static_cast<std::size_t>(n)];
    p.A = gerundet(p.A);
    p.B = gerundet(p.B);
    if (z.Dritte) p.C = gerundet(p.C);
  }
  geaendert();
}

void PunkteKontrolleForm::geaendert() {
  anwendung_.zustand().TabelleGeaendert = core::Wahr;
  anwendung_.RefreshPunkteTabelle();
  anwendung_.RefreshGrafik();
}

}  // namespace kolm::points
