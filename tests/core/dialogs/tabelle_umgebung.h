#pragma once
// A running core without windows for the table dialogs: the main window with
// its File entries bound, scripted answers, a temporary project folder, and
// stand-ins for the dialogs that deleting a table closes.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "core/app/anwendung.h"
#include "core/catalog/katalog.h"
#include "core/app/kern_verdrahtung.h"
#include "core/main/main_form.h"
#include "core/tables/tabellen_dateien.h"
#include "forms/keys.h"
#include "forms/scripted.h"
#include "support/befehls_protokoll.h"
#include "support/test_ordner.h"

namespace kolm::core::testing {

namespace fs = std::filesystem;

// Reads any file that exists as a small picture of its size in bytes.
class DateiBilder final : public forms::ImageCodec {
 public:
  std::optional<forms::Image> read(const std::string& path) override {
    std::error_code fehler;
    const auto groesse = fs::file_size(path, fehler);
    if (fehler || groesse == 0) return std::nullopt;
    forms::Image bild;
    bild.width = static_cast<int>(groesse);
    bild.height = 2;
    bild.pixels.assign(static_cast<std::size_t>(bild.width) * 2, 0xFF112233u);
    gelesen.push_back(path);
    return bild;
  }
  bool writeJpeg(const std::string&, const forms::Image&, int) override { return false; }
  bool writeBmp(const std::string&, const forms::Image&) override { return false; }
  std::vector<std::string> gelesen;
};

struct TabellenUmgebung {
  forms::ScriptedServices dienste;
  DateiBilder bilder;
  // The image codec must be in place before the core copies the services.
  bool bilderGesetzt = (dienste.services.images = &bilder, true);
  forms::HeadlessHost host;
  forms::Forms forms{dienste.services};
  Zustand zustand;
  Anwendung anwendung{zustand, forms};
  kolm::testhilfen::TestOrdner tmp{"tab"};
  const fs::path& ordner = tmp.pfad;

  TabellenUmgebung() {
    forms.setHost(&host);
    for (const char* name : {"Grafik", "PunkteTabelle", "Berechnungen", "Berechnen", "Verbindungen"})
      forms.registerForm(name, [name](forms::Forms& f) {
        return std::make_unique<testhilfen::BefehlsProtokoll>(f, name, std::initializer_list<const char*>{"Repaint"});
      });
    RegisterMainForms(forms, "/nicht/da");
    KernFormulareRegistrieren(forms, anwendung);
    anwendung.setMain(static_cast<MainForm*>(forms.load("Main")));
    KernBefehleVerbinden(*anwendung.main(), anwendung);
    zustand.ProjektVerzeichnis = ordner.string() + "/";
  }
  ~TabellenUmgebung() { forms.unloadAll(); }

  MainForm& main() { return *anwendung.main(); }
  void menue(const char* eintrag) { main().control(eintrag).click(); }
  forms::Form* dialog(const char* name) { return forms.find(name); }

  // A named row as the catalogue holds it, with its point file on disk (a
  // missing one is reported when the table opens).
  Tabelle& zeile(int n, const std::string& name, const std::string& stamm, double station = 0,
                 const std::string& pkt = "") {
    Tabelle& t = zustand.Tabellen[static_cast<std::size_t>(n)];
    t.TablName = name;
    t.Dateiname = stamm;
    t.PktDateiName = pkt.empty() ? stamm : pkt;
    t.Stationierung = station;
    if (!da(t.PktDateiName + ".pkt")) std::ofstream(datei(t.PktDateiName + ".pkt"));
    return t;
  }
  // Makes row n active with one point in memory and saves it to disk.
  void gespeichert(int n, int punkt = 7, double a = 12.5) {
    zustand.AktiveTabelle = static_cast<Integer>(n);
    zustand.TabellenInhaltLeeren();
    zustand.Punkte[static_cast<std::size_t>(punkt)].A = a;
    TabelleSpeichern(anwendung.kontext());
  }

  fs::path datei(const std::string& name) const { return ordner / name; }
  bool da(const std::string& name) const { return fs::exists(datei(name)); }
  std::string inhalt(const std::string& name) const {
    std::ifstream in(datei(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }
  // The point numbers a ".pkt" file holds.
  std::vector<int> punkteIn(const std::string& name) const {
    const std::string d = inhalt(name);
    std::vector<int> nummern;
    for (std::size_t pos = 0; pos + 40 <= d.size(); pos += 40)
      nummern.push_back(static_cast<int>(static_cast<unsigned char>(d[pos]) |
                                         (static_cast<unsigned char>(d[pos + 1]) << 8)));
    return nummern;
  }
  // The catalogue as a fresh program would read it from disk.
  std::vector<std::string> namenAufPlatte() const {
    Zustand frisch;
    frisch.ProjektVerzeichnis = zustand.ProjektVerzeichnis;
    KatalogKontext k(frisch);
    KatalogLesen(k);
    std::vector<std::string> namen;
    for (const Tabelle& t : frisch.Tabellen)
      if (ZeileBenannt(t)) namen.push_back(t.TablName);
    return namen;
  }

  static std::string gewaehlt(const forms::Form& f) {
    const forms::Control& liste = f.control("List");
    return liste.listIndex() < 0 ? std::string() : liste.list()[static_cast<std::size_t>(liste.listIndex())];
  }

  // Texts of the message boxes shown so far, and forget them.
  std::vector<std::string> meldungen() {
    std::vector<std::string> texte;
    for (const auto& m : dienste.messages.shown()) texte.push_back(m.message.text);
    dienste.messages.shown().clear();
    return texte;
  }
  const forms::Message& letzteMeldung() { return dienste.messages.shown().back().message; }

  static void tippen(forms::Control& feld, const std::u32string& text) {
    for (char32_t c : text) feld.form().sendKey(feld, forms::keys::KeyCodeOfChar(c), 0, c);
  }
};

}  // namespace kolm::core::testing
