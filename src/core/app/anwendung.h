#pragma once
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <typeindex>
#include <typeinfo>
#include <vector>

#include "core/state/zustand.h"
#include "core/tables/tabellen_dateien.h"
#include "forms/forms.h"

namespace kolm::core {

class MainForm;
struct Einstellungen;

// The running program's core: the state, the loaded forms and the steps
// that hold them together — refreshing open dialogs, opening and saving the
// active table, the save questions and the auto-save. No window system here.
class Anwendung {
 public:
  Anwendung(Zustand& zustand, forms::Forms& forms);
  Anwendung(const Anwendung&) = delete;
  Anwendung& operator=(const Anwendung&) = delete;

  Zustand& zustand() const { return zustand_; }
  forms::Forms& forms() const { return forms_; }
  forms::Services& dienste() const { return forms_.services(); }
  TabellenKontext& kontext() { return kontext_; }

  // Main once it is loaded; the settings strip and TimerAuto report here.
  void setMain(MainForm* main);
  MainForm* main() const { return main_; }

  // ---- Refreshing open dialogs: each triggers the hidden command of its
  // dialog when that is loaded, and does nothing otherwise.
  void RefreshBerechnen();
  void RefreshBerechnungen();
  void RefreshBeschriftungen();
  void RefreshKontrolleSystem();
  void RefreshGrafikKontrolle();
  void RefreshGrafik();
  void RefreshImportTabelle();
  void RefreshPunkteKontrolle();
  void RefreshPunkteTabelle();
  // The point grid repaints the row of this number (PunktZumAuffrischen).
  void RefreshPunkt(int nummer);
  void RereadPunkteTabelle();
  void RefreshSkizze();
  void RefreshVariablen();
  void RereadVariablen();
  void RefreshHintergrund();
  void RefreshVerbindungen();
  int PunktZumAuffrischen() const { return punktZumAuffrischen_; }
  // The refreshes after another table was opened, in their order.
  void NachTabellenwechselAuffrischen();

  // ---- The active table
  // Opens catalogue row `zeile` the common way: clear, read the files with
  // their status texts, set the main window, copy the view values, refresh,
  // "Tabelle ... geladen". A row without a name clears the tables only.
  void TabelleOeffnen(int zeile);
  // Check3D, CheckPolar, KoordinatenSystem and the two labels of Main from
  // the active row, without storing anything back (Laden is set meanwhile).
  void HauptfensterAusAktiverZeile();
  // The save command of Main.
  void TabelleSpeichernBefehl();
  // Asks question (yes/no) when the active table has changed and its row a
  // name; yes saves.
  void SpeichernFragen(const std::string& frage = "Aktive Tabelle speichern?");
  // The question on closing, with yes, no and cancel; false when cancelled.
  bool SchliessenFragen();
  // True when the active row lies in 0 .. 500 and has a name.
  bool AktiveZeileBenannt() const;

  // ---- Start, projects, end
  // The load of Main: clear every table, read the settings with the project
  // (the parameter, else the last project, else the demo project), read the
  // catalogue, go to the project folder, load the active table, check the
  // LV database. False when the parameter names no usable folder: the
  // program ends then.
  // demo: open the demo project whatever the last one was.
  bool Starten(const std::string& parameter, bool demo = false);
  // Opens the project in `verzeichnis` as the OK of ProjektÖffnen does: the
  // catalogue of the project left is written first.
  void ProjektOeffnen(const std::string& verzeichnis);
  // name = folder in "projects" of Kolm.ini, and "last project".
  void ProjektEintragen(const std::string& name, const std::string& verzeichnis);
  void KatalogSpeichern();
  // Title "Kolm: " + ProjektName.
  void TitelSetzen();
  // The demo project's folder in the program data.
  std::string DemoVerzeichnis() const;

  // What the start and the projects need of others, set by the program: the
  // LV database of a project folder (create: make it when missing), and the
  // position of the main window.
  std::function<void(const std::string& projektVerzeichnis, bool anlegen)> lvPruefen;
  std::function<void(const Einstellungen&)> hauptfensterAnwenden;
  std::function<void(Einstellungen&)> hauptfensterMerken;

  // The end of the program once the question was answered: the settings
  // and the catalogue are written.
  void Beenden();
  void BeimBeenden(std::function<void()> schreiben) { beimBeenden_.push_back(std::move(schreiben)); }

  // ---- Auto-save
  // One tick of TimerAuto; the counter lives here.
  void TimerAutoTick();
  // Interval in minutes, 0 off: sets Intervall, the timer and the check
  // mark of MnuOptionenAutoSpeichern.
  void IntervallSetzen(int minuten);
  int AutoZaehler() const { return autoZaehler_; }

  void Status(const std::string& text);

  // ---- State that a module above the core keeps for the life of the
  // program (the points' overwrite history, later the BlueBox): one object
  // per type, made on first use, gone with the Anwendung. The core names no
  // type of those modules.
  template <class T>
  T& modulZustand() {
    std::shared_ptr<void>& slot = module_[std::type_index(typeid(T))];
    if (!slot) slot = std::make_shared<T>();
    return *static_cast<T*>(slot.get());
  }

 private:
  void EinstellungGeaendert(forms::Control& control);
  void EinstellungenEinlesen(bool mitProjektwahl, const std::string& parameter, bool demo,
                             bool& parameterFehlt);
  void AktiveTabelleEinlesen();
  void Trigger(const char* form, const char* befehl);

  Zustand& zustand_;
  forms::Forms& forms_;
  TabellenKontext kontext_;
  MainForm* main_ = nullptr;
  // Lets go of Main when it unloads, so nothing later reaches a freed form.
  struct MainBeobachter : forms::FormObserver {
    Anwendung* anwendung = nullptr;
    void propertyChanged(forms::Control&, forms::Property, int, int) override {}
    void formUnloaded() override { anwendung->main_ = nullptr; }
  } mainBeobachter_;
  int punktZumAuffrischen_ = -1;
  int autoZaehler_ = 0;
  std::vector<std::function<void()>> beimBeenden_;
  std::map<std::type_index, std::shared_ptr<void>> module_;
};

}  // namespace kolm::core
