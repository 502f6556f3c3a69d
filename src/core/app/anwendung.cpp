#include "core/app/anwendung.h"

#include "core/main/main_form.h"
#include "core/settings/einstellungen.h"
#include "core/settings/einstellungen_datei.h"

#include <cstdlib>
#include "points/numbers/konstanten.h"

namespace kolm::core {

namespace {
bool ZeileImKatalog(int zeile) { return zeile >= 0 && zeile <= 500; }
bool Blank(const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; }
}  // namespace

Anwendung::Anwendung(Zustand& zustand, forms::Forms& forms)
    : zustand_(zustand), forms_(forms), kontext_(zustand, forms.services()) {
  zustand_.ProgrammIni = KolmIniPfad([](const char* name) { return std::getenv(name); });
}

void Anwendung::setMain(MainForm* main) {
  if (main_) main_->removeObserver(&mainBeobachter_);
  main_ = main;
  if (!main_) return;
  mainBeobachter_.anwendung = this;
  main_->addObserver(&mainBeobachter_);
  main_->onSettingChanged([this](forms::Control& c) { EinstellungGeaendert(c); });
  main_->on("TimerAuto", forms::Event::Timer, [this](forms::Control&, forms::EventArgs&) { TimerAutoTick(); });
  // The status line writes into LabelInfo from now on.
  kontext_.status = dienste().status;
}

// ---- Refresh ------------------------------------------------------------------------

void Anwendung::Trigger(const char* form, const char* befehl) { forms_.trigger(form, befehl); }

void Anwendung::RefreshBerechnen() { Trigger("Berechnen", "Repaint"); }
void Anwendung::RefreshBerechnungen() { Trigger("Berechnungen", "Repaint"); }
void Anwendung::RefreshBeschriftungen() { Trigger("Beschriftungen", "Repaint"); }
void Anwendung::RefreshKontrolleSystem() { Trigger("GrafikKontrolle", "KoordinatenSystem"); }
void Anwendung::RefreshGrafikKontrolle() { Trigger("GrafikKontrolle", "Repaint"); }
void Anwendung::RefreshGrafik() { Trigger("Grafik", "Repaint"); }
void Anwendung::RefreshImportTabelle() { Trigger("frmImportTabelle", "ReRead"); }
void Anwendung::RefreshPunkteKontrolle() { Trigger("PunkteKontrolle", "Repaint"); }
void Anwendung::RefreshPunkteTabelle() { Trigger("PunkteTabelle", "Repaint"); }
void Anwendung::RefreshPunkt(int nummer) {
  punktZumAuffrischen_ = nummer;
  Trigger("PunkteTabelle", "RepaintPunkt");
}
void Anwendung::RereadPunkteTabelle() { Trigger("PunkteTabelle", "ReRead"); }
void Anwendung::RefreshSkizze() { Trigger("SkizzeKoorHelp", "Repaint"); }
void Anwendung::RefreshVariablen() { Trigger("VariablenTabelle", "Repaint"); }
void Anwendung::RereadVariablen() { Trigger("VariablenTabelle", "ReRead"); }
void Anwendung::RefreshHintergrund() { Trigger("Hintergrundgrafiken", "Repaint"); }
void Anwendung::RefreshVerbindungen() { Trigger("Verbindungen", "Repaint"); }

void Anwendung::NachTabellenwechselAuffrischen() {
  RefreshGrafikKontrolle();
  if (forms_.FormGeladen("Grafik") >= 0) RefreshGrafik();
  RefreshSkizze();
  RefreshVerbindungen();
  RefreshPunkteTabelle();
  RefreshPunkteKontrolle();
  RefreshBerechnungen();
  RefreshBeschriftungen();
  RefreshHintergrund();
  RefreshImportTabelle();
}

// ---- The active table ---------------------------------------------------------------

bool Anwendung::AktiveZeileBenannt() const {
  const int zeile = zustand_.AktiveTabelle;
  return ZeileImKatalog(zeile) && !Blank(zustand_.Tabellen[zeile].TablName);
}

void Anwendung::HauptfensterAusAktiverZeile() {
  if (!main_) return;
  const Flag vorher = zustand_.Laden;
  zustand_.Laden = Wahr;
  const int zeile = zustand_.AktiveTabelle;
  if (ZeileImKatalog(zeile)) {
    const Tabelle& t = zustand_.Tabellen[zeile];
    main_->control("Check3D").setValue(t.Dritte ? 1 : 0);
    main_->control("CheckPolar").setValue(t.Polar ? 1 : 0);
    main_->control("KoordinatenSystem").setListIndex((t.M31 ? 1 : 0) + (t.Falschdrehend ? 2 : 0));
    main_->control("LabelAktTab").setCaption(t.TablName);
    main_->control("LabelPktTab").setCaption(t.PktDateiName);
  } else {
    main_->control("LabelAktTab").setCaption("");
    main_->control("LabelPktTab").setCaption("");
  }
  zustand_.Laden = vorher;
}

void Anwendung::TabelleOeffnen(int zeile) {
  zustand_.TabellenInhaltLeeren();
  zustand_.AktiveTabelle = static_cast<Integer>(zeile);
  zustand_.Laden = Wahr;
  forms::BusyGuard busy(dienste().busy);
  if (AktiveZeileBenannt()) {
    const Tabelle& t = zustand_.Tabellen[zeile];
    zustand_.M31 = t.M31;
    zustand_.Dritte = t.Dritte;
    zustand_.Polar = t.Polar;
    zustand_.Falschdrehend = t.Falschdrehend;
  }
  TabellenDateienLesen(kontext_);  // with the arc sweep
  HauptfensterAusAktiverZeile();
  if (AktiveZeileBenannt()) zustand_.AnsichtAusZeile(zustand_.Tabellen[zeile]);
  NachTabellenwechselAuffrischen();
  zustand_.Laden = Falsch;
  zustand_.TabelleGeaendert = Falsch;
  if (AktiveZeileBenannt()) Status("Tabelle " + zustand_.Tabellen[zeile].TablName + " geladen");
}

void Anwendung::TabelleSpeichernBefehl() {
  forms::BusyGuard busy(dienste().busy);
  TabelleSpeichern(kontext_);
  if (forms_.FormGeladen("Grafik") >= 0) RefreshGrafik();
}

void Anwendung::SpeichernFragen(const std::string& frage) {
  if (!zustand_.TabelleGeaendert || !AktiveZeileBenannt() || !dienste().messages) return;
  const forms::Answer a =
      dienste().messages->show({frage, "Kolm", forms::Buttons::YesNo, forms::Icon::Question});
  if (a == forms::Answer::Yes) TabelleSpeichernBefehl();
}

bool Anwendung::SchliessenFragen() {
  const int zeile = zustand_.AktiveTabelle;
  if (zeile < 0 || zeile > 500 || !zustand_.TabelleGeaendert || !AktiveZeileBenannt() ||
      !dienste().messages)
    return true;
  const forms::Answer a = dienste().messages->show(
      {"Aktive Tabelle speichern?", "Kolm", forms::Buttons::YesNoCancel, forms::Icon::Question});
  if (a == forms::Answer::Cancel) return false;
  if (a == forms::Answer::Yes) TabelleSpeichernBefehl();
  return true;
}


// ---- The settings strip of Main -----------------------------------------------------

void Anwendung::EinstellungGeaendert(forms::Control& c) {
  if (!main_) return;
  const std::string& name = c.name();
  if (name == "ComboWinkelEinheit") {
    zustand_.WinkelFaktor = numbers::WinkelFaktorFuer(c.listIndex());
    if (c.listIndex() >= 0) zustand_.Einstellungen.Winkeleinheit = static_cast<Integer>(c.listIndex());
    if (!zustand_.Laden) NachTabellenwechselAuffrischen();
    return;
  }
  const int system = main_->control("KoordinatenSystem").listIndex();
  zustand_.Dritte = main_->control("Check3D").value() == 1 ? Wahr : Falsch;
  zustand_.Polar = main_->control("CheckPolar").value() == 1 ? Wahr : Falsch;
  zustand_.M31 = (system == 1 || system == 3) ? Wahr : Falsch;
  zustand_.Falschdrehend = (system == 2 || system == 3) ? Wahr : Falsch;
  if (zustand_.Laden) return;
  const int zeile = zustand_.AktiveTabelle;
  if (ZeileImKatalog(zeile)) {
    Tabelle& t = zustand_.Tabellen[zeile];
    t.Dritte = zustand_.Dritte;
    t.Polar = zustand_.Polar;
    t.M31 = zustand_.M31;
    t.Falschdrehend = zustand_.Falschdrehend;
  }
  RefreshKontrolleSystem();
  NachTabellenwechselAuffrischen();
}

// ---- Auto-save ----------------------------------------------------------------------

void Anwendung::TimerAutoTick() {
  if (zustand_.Intervall <= 0) return;
  if (autoZaehler_ == 1) {
    Status("Automatisches Speichern ...");
    TabelleSpeichern(kontext_);
    Status("Automatisches Speichern durchgeführt");
  }
  --autoZaehler_;
  if (autoZaehler_ < 1) autoZaehler_ = zustand_.Intervall + 1;
}

void Anwendung::IntervallSetzen(int minuten) {
  zustand_.Intervall = static_cast<Integer>(minuten > 0 ? minuten : 0);
  if (!main_) return;
  main_->control("TimerAuto").setEnabled(zustand_.Intervall > 0);
  main_->control("MnuOptionenAutoSpeichern").setChecked(zustand_.Intervall >= 1);
}

void Anwendung::Status(const std::string& text) {
  if (dienste().status) dienste().status->show(text);
}

}  // namespace kolm::core
