#include "calc/frame/rechen_dialog.h"

#include "calc/frame/punkt_holen.h"
#include "core/app/anwendung.h"
#include "points/eingabe/eingabe_text.h"
#include "points/eingabe/punkt_speichern.h"
#include "points/eingabe/punkteingabe.h"
#include "points/koordinaten.h"
#include "points/numbers/numbers.h"
#include "points/variablen.h"
#include "points/zahl_feld.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;


namespace {
// Buttons stand below everything a dialog declares.
constexpr int KnopfZeile = 90;

std::string OhneGleich(const std::string& beschriftung) {
  const std::string ende = " =";
  if (beschriftung.size() >= ende.size() && beschriftung.compare(beschriftung.size() - ende.size(), ende.size(), ende) == 0)
    return beschriftung.substr(0, beschriftung.size() - ende.size());
  return beschriftung;
}
}  // namespace

std::pair<std::string, std::string> ErgebnisBeschriftung(const core::Zustand& z, const ErgebnisNamen& namen) {
  const points::Koordinatennamen n = points::KoordinatenBeschriftung(z, false);
  const std::string taste = namen.zugriffstaste ? "&" : "";
  return {taste + namen.vor + OhneGleich(n.a) + namen.nach + " =",
          taste + namen.vor + OhneGleich(n.b) + namen.nach + " ="};
}

RechenDialog::RechenDialog(forms::Forms& forms, core::Anwendung& anwendung, std::string name,
                           std::string caption, std::string skizze)
    : Form(forms, std::move(name), std::move(caption)), anwendung_(anwendung) {
  setResizable(false);
  add(ControlKind::CommandButton, "Berechnen").caption("&Berechnen").at(KnopfZeile, 0).asDefault();
  on("Berechnen", Event::Click, [this](forms::Control&, forms::EventArgs&) { Berechnen(); });
  if (!skizze.empty()) {
    // The sketch is the dialog's help topic: Skizze does what F1 does.
    setHelpTopic(std::move(skizze));
    add(ControlKind::CommandButton, "Skizze").caption("S&kizze").at(KnopfZeile, 1);
    on("Skizze", Event::Click, [this](forms::Control&, forms::EventArgs&) { showHelp(); });
  }
  add(ControlKind::CommandButton, "Schließen").caption("S&chließen").at(KnopfZeile + 1, 0).asCancel();
  on("Schließen", Event::Click, [this](forms::Control&, forms::EventArgs&) { this->forms().unload(*this); });
  // Stands for the dragged value; one by one unit, so nothing to see.
  add(ControlKind::Label, "DragLabel").at(KnopfZeile + 1, 1).width(0);
}

core::Zustand& RechenDialog::zustand() const { return anwendung_.zustand(); }

int RechenDialog::EingabePunkt(int n, std::string caption) {
  return EingangAnlegen("PP" + std::to_string(n), "Punkt" + std::to_string(n), std::move(caption));
}

int RechenDialog::EingabePunkt(const std::string& name, const std::string& rahmen, std::string caption) {
  return EingangAnlegen(name, rahmen, std::move(caption));
}

int RechenDialog::EingangAnlegen(const std::string& name, const std::string& rahmen, std::string caption) {
  const int i = static_cast<int>(eingaben_.size());
  core::Punkt leer;
  leer.Nummer = -1;
  eingaben_.push_back({name, leer});
  add(ControlKind::Frame, rahmen).caption(std::move(caption)).at(zeile_++, 0, 1, 2);
  add(ControlKind::TextBox, name + "Nr").in(rahmen).at(0, 0).width(8).dropTarget();
  add(ControlKind::CommandButton, "Get" + name).caption("...").in(rahmen).at(0, 1);
  add(ControlKind::Label, name).in(rahmen).at(1, 0, 1, 2).draggable().dropTarget();
  on(name + "Nr", Event::Change, [this, i](forms::Control&, forms::EventArgs&) { NummerGeaendert(i); });
  on("Get" + name, Event::Click, [this, i](forms::Control&, forms::EventArgs&) { PunktEingeben(i); });
  on(name, Event::DblClick, [this, i](forms::Control&, forms::EventArgs&) { PunktEingeben(i); });
  return i;
}

void RechenDialog::Parameter(int i, std::string caption) {
  add(ControlKind::Label, "Label", i).caption(std::move(caption)).at(zeile_, 0);
  add(ControlKind::TextBox, "Param", i).at(zeile_++, 1).width(12);
  on("Param", Event::GotFocus, [](forms::Control& feld, forms::EventArgs&) {
    feld.setSelection(0, static_cast<int>(feld.text().size()));
  });
  on("Param", Event::KeyPress, [this](forms::Control& feld, forms::EventArgs& args) { ParamTaste(feld, args); });
}

int RechenDialog::ErgebnisPunkt(int index, std::string rahmenCaption, ErgebnisNamen namen) {
  const int i = static_cast<int>(ergebnisse_.size());
  core::Punkt leer;
  leer.Nummer = -1;
  ergebnisse_.push_back({index, std::move(namen), leer});
  forms::Control& rahmen = add(ControlKind::Frame, "Ergebnis", index).caption(std::move(rahmenCaption));
  rahmen.at(zeile_++, 0, 1, 2);
  const std::string in = rahmen.address();
  add(ControlKind::Label, "LabelA", index).in(in).at(0, 0);
  add(ControlKind::Label, "ErgA", index).in(in).at(0, 1).width(14).draggable();
  add(ControlKind::Label, "LabelB", index).in(in).at(1, 0);
  add(ControlKind::Label, "ErgB", index).in(in).at(1, 1).width(14).draggable();
  add(ControlKind::Label, "LabelAlsNr", index).caption("Als &Nr.:").in(in).at(2, 0);
  add(ControlKind::TextBox, "PktNr", index).in(in).at(2, 1).width(8).dropTarget();
  add(ControlKind::CommandButton, "Speichern", index).caption("&Speichern").in(in).at(3, 0, 1, 2);
  on("PktNr", Event::Change, [this](forms::Control&, forms::EventArgs& args) {
    control("Speichern", args.index).setDefault(true);
  });
  on("Speichern", Event::Click, [this](forms::Control&, forms::EventArgs& args) {
    Speichern(ErgebnisVonIndex(args.index));
  });
  return i;
}

void RechenDialog::Skalar(int i, std::string caption) {
  if (!find("FrameErgebnis")) add(ControlKind::Frame, "FrameErgebnis").at(zeile_++, 0, 1, 2);
  const int zeile = static_cast<int>(array("Erg").size());
  add(ControlKind::Label, "ErgLabel", i).caption(std::move(caption)).in("FrameErgebnis").at(zeile, 0);
  add(ControlKind::Label, "Erg", i).in("FrameErgebnis").at(zeile, 1).width(14).draggable();
}

void RechenDialog::Fehlermeldung(std::string text, std::string titel) {
  fehlerText_ = std::move(text);
  fehlerTitel_ = std::move(titel);
}

double RechenDialog::Param(int i) const { return numbers::ZahlLesen(control("Param", i).text()); }

std::optional<double> RechenDialog::ParamGeprueft(int i) const {
  return points::FeldZahl(services().messages, control("Param", i).text());
}

void RechenDialog::SkalarZeigen(int i, const std::string& text) { control("Erg", i).setCaption(text); }

std::string RechenDialog::Standard(double wert) const {
  return numbers::ZahlText(wert, zustand().Einstellungen.StandardFormat);
}

void RechenDialog::Load() {
  for (Eingang& e : eingaben_) e.punkt.Nummer = -1;
  for (Ausgang& a : ergebnisse_) a.punkt.Nummer = -1;
  ErgebnisBeschriften();
  Beschriften();
}

void RechenDialog::ErgebnisBeschriften() {
  for (const Ausgang& a : ergebnisse_) {
    const auto [ca, cb] = ErgebnisBeschriftung(zustand(), a.namen);
    control("LabelA", a.index).setCaption(ca);
    control("LabelB", a.index).setCaption(cb);
  }
}

void RechenDialog::NummerGeaendert(int i) {
  Eingang& e = eingaben_.at(static_cast<size_t>(i));
  PunktHolen(zustand(), control(e.name + "Nr").text(), e.punkt);
  control(e.name).setCaption(points::PunktText(zustand(), e.punkt));
  control("Berechnen").setDefault(true);
}

bool RechenDialog::PunktEingeben(int i) {
  Eingang& e = eingaben_.at(static_cast<size_t>(i));
  forms::Control& feld = control(e.name + "Nr");
  const bool mitNummer = !numbers::IstLeer(feld.text()) && numbers::ZahlLesen(feld.text()) >= 0;
  const points::PunktEingabeAntwort antwort = points::PunktEingeben(anwendung_, e.punkt, mitNummer);
  if (antwort.text.empty()) return false;
  const bool gleich = feld.text() == antwort.punktNr;
  feld.setText(antwort.punktNr);  // its Change fetches a point given by number
  if (numbers::IstLeer(antwort.punktNr)) {
    core::Punkt p = e.punkt;
    p.Nummer = -1;
    const int k = zustand().StandardKurzBezeichnung;
    p.KurzBez = static_cast<core::Integer>(k >= 0 && k <= 99 ? k : 0);
    // Values typed in the other form come back in the table's form.
    points::PunktAusEingabe(anwendung_, antwort.text, p);
    e.punkt = p;
    control(e.name).setCaption(antwort.text);
    control("Berechnen").setDefault(true);
  } else if (gleich) {
    NummerGeaendert(i);
  }
  return true;
}

void RechenDialog::ParamTaste(forms::Control& feld, forms::EventArgs& args) {
  std::string text = feld.text();
  switch (points::VariablenTaste(zustand(), args.keyAscii, text)) {
    case points::VariablenWirkung::Eingesetzt:
      feld.setText(text);
      feld.setSelection(static_cast<int>(text.size()), 0);
      break;
    case points::VariablenWirkung::Gespeichert:
      anwendung_.RefreshVariablen();
      break;
    case points::VariablenWirkung::Keine:
      break;
  }
}

void RechenDialog::EingabenRechtwinklig(bool hin) {
  for (Eingang& e : eingaben_) {
    if (hin)
      points::PolarZuRechtwinklig(zustand(), e.punkt.A, e.punkt.B);
    else
      points::RechtwinkligZuPolar(zustand(), e.punkt.A, e.punkt.B);
  }
}

void RechenDialog::Berechnen() {
  // Read once: a handler may not change the table while the records are converted.
  const bool polar = zustand().Polar != 0;
  if (polar) EingabenRechtwinklig(true);
  if (!Rechnen()) {
    if (!fehlerText_.empty() && services().messages)
      services().messages->show({fehlerText_, fehlerTitel_.empty() ? caption() : fehlerTitel_,
                                 forms::Buttons::OK, forms::Icon::Exclamation});
  } else {
    ErgebnisBeschriften();
    Beschriften();
    const core::Zustand& z = zustand();
    const std::string angebot = numbers::ZahlOderLeer(points::NaechsteNummer(z), z.Einstellungen.NummernFormat);
    for (Ausgang& a : ergebnisse_) {
      if (polar) points::RechtwinkligZuPolar(z, a.punkt.A, a.punkt.B);
      control("ErgA", a.index).setCaption(numbers::ZahlText(a.punkt.A, z.Einstellungen.ErgebnisFormat));
      control("ErgB", a.index).setCaption(numbers::ZahlText(a.punkt.B, z.Einstellungen.ErgebnisFormat));
      control("PktNr", a.index).setText(angebot);
    }
    if (!ergebnisse_.empty()) {
      const int erster = ergebnisse_.front().index;
      control("PktNr", erster).setFocus();
    }
  }
  if (polar) EingabenRechtwinklig(false);
}

void RechenDialog::Speichern(int i) {
  Ausgang& a = ergebnisse_.at(static_cast<size_t>(i));
  const std::optional<int> nummer = NummerAusText(control("PktNr", a.index).text());
  if (!nummer) return;
  points::PunktSpeichern(anwendung_, a.punkt, *nummer);
}

int RechenDialog::ErgebnisVonIndex(int index) const {
  for (size_t i = 0; i < ergebnisse_.size(); ++i)
    if (ergebnisse_[i].index == index) return static_cast<int>(i);
  return 0;
}

}  // namespace kolm::calc
