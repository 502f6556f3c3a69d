#include "core/main/main_form.h"

#include <algorithm>
#include <stdexcept>

#include "core/main/help_forms.h"
#include "forms/names.h"

namespace kolm::core {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;
using forms::NameKey;

namespace {

struct MenuRow {
  const char* name;
  const char* parent;  // "" for the menus of the bar
  const char* caption;
  bool separatorBefore = false;
  const char* shortcut = "";
};

// The menu bar top to bottom; each entry's name is its command's name.
const MenuRow kMenus[] = {
    {"mnuDatei", "", "&Datei"},
    {"MnuDateiNeuTabelle", "mnuDatei", "&Neu"},
    {"MnuDateiÖffnenTabelle", "mnuDatei", "Ö&ffnen..."},
    {"MnuDateiSpeichernTabelle", "mnuDatei", "&Speichern"},
    {"MnuDateiEigenschaftenTabelle", "mnuDatei", "&Eigenschaften ändern..."},
    {"MnuDateiDuplizieren", "mnuDatei", "Duplizieren (&Klonen)"},
    {"MnuDateiNeuProjekt", "mnuDatei", "Neues &Projekt...", true},
    {"MnuDateiÖffnenProjekt", "mnuDatei", "P&rojekt Öffnen..."},
    {"MnuDateiProjektKopieren", "mnuDatei", "Projekt kopieren &nach..."},
    {"MnuDateiDrucken", "mnuDatei", "&Drucken", true},
    {"MnuDateiSeitenauswurf", "mnuDatei", "Seitenaus&wurf (Puffer leeren)"},
    {"MnuDateiDruckerEinstellungen", "mnuDatei", "Dr&uckereinstellungen"},
    {"MnuDateiImportieren", "mnuDatei", "&Importieren", true},
    {"MnuDateiImportKolmTabelle", "MnuDateiImportieren", "Tabelle (&Kolm)..."},
    {"MnuDateiImportTabellen", "MnuDateiImportieren", "&Tabellen (ImEx)..."},
    {"MnuImportLV_MDB", "MnuDateiImportieren", "LV von anderem &Projekt", true},
    {"MnuImportLV_ASCII", "MnuDateiImportieren", "LV aus &ASCII laden"},
    {"MnuImportProfil", "MnuDateiImportieren", "Profil aus (GEO101) ASCII &laden", true},
    {"MnuDateiExportieren", "mnuDatei", "E&xportieren"},
    {"MnuDateiExportTabellen", "MnuDateiExportieren", "&Tabellen (ImEx)..."},
    {"MnuExportProfil", "MnuDateiExportieren", "Tabelle &in (GEO101) ASCII speichern"},
    {"mnuDateiDatenübernahme", "mnuDatei", "D&atenübernahme"},
    {"mnuDateiÜbernahmeTC500", "mnuDateiDatenübernahme", "&Distomat TC 500 über RS-232"},
    {"mnuDateiÜbernahmeGeo400", "mnuDateiDatenübernahme", "&Geodimeter 400 über RS-232"},
    {"MnuDateiBeenden", "mnuDatei", "&Beenden", true},

    {"MnuBearbeiten", "", "&Bearbeiten"},
    {"MnuBearbeitenAusschneiden", "MnuBearbeiten", "&Ausschneiden"},
    {"MnuBearbeitenKopieren", "MnuBearbeiten", "&Kopieren"},
    {"MnuBearbeitenEinfügen", "MnuBearbeiten", "&Einfügen"},
    {"MnuBearbeitenAllesMarkieren", "MnuBearbeiten", "&Alles Markieren", true},

    {"mnuAnsicht", "", "&Ansicht"},
    {"MnuAnsichtFunktionsleiste", "mnuAnsicht", "&Funktionsleiste"},
    {"MnuAnsichtGeradenschnitte", "mnuAnsicht", "&Geradenschnitte"},
    {"MnuAnsichtKreisberechnungen", "mnuAnsicht", "&Kreisberechnungen"},
    {"MnuAnsichtInfoLeiste", "mnuAnsicht", "&Informationsleiste"},
    {"MnuAnsichtGrafikfenster", "mnuAnsicht", "G&rafikfenster", true},
    {"MnuTabelleLeistungsverzeichnis", "mnuAnsicht", "&Leistungsverzeichnis"},
    {"MnuTabellePunkte", "mnuAnsicht", "&Punkte"},
    {"MnuTabelleBezeichnung", "mnuAnsicht", "Punkt-&Bezeichnungen"},
    {"MnuTabelleBerechnung", "mnuAnsicht", "&Berechnungen"},
    {"MnuTabellenKorrekturen", "mnuAnsicht", "K&orrekturen"},
    {"MnuTabellenVerbindungen", "mnuAnsicht", "&Verbindungen"},
    {"MnuTabelleMassenermittlung", "mnuAnsicht", "&Massenermittlung"},
    {"MnuTabelleVariablen", "mnuAnsicht", "Var&iablen"},
    {"MnuAnsichtBeschriftung", "mnuAnsicht", "B&eschriftungen", true, "Ctrl+B"},
    {"mnuAnsichtHintergrundgrafiken", "mnuAnsicht", "&Hintergrundgrafiken", false, "Ctrl+H"},
    {"mnuAnsichtPunkteKontrolle", "mnuAnsicht", "Punkte-Kon&trollfenster", false, "Ctrl+P"},
    {"mnuAnsichtTaschenrechner", "mnuAnsicht", "Ta&schenrechner", false, "Ctrl+T"},

    {"MnuWerkzeuge", "", "&Werkzeuge"},
    {"MnuWerGeradenschnitte", "MnuWerkzeuge", "&Geradenschnitte"},
    {"MnuGerMittelnderPolygonzug", "MnuWerGeradenschnitte", "P&olygonzug"},
    {"MnuGerAbsteckdaten", "MnuWerGeradenschnitte", "&Absteckdaten"},
    {"MnuGerEinrechnen", "MnuWerGeradenschnitte", "polares/fortlaufendes &Einrechnen"},
    {"MnuGerKleinPunkte", "MnuWerGeradenschnitte", "&Kleinpunkte"},
    {"MnuGer3Pkt", "MnuWerGeradenschnitte", "&3 Pkt. (orthogonaler) Geradenschnitt", true},
    {"MnuGer4Pkt", "MnuWerGeradenschnitte", "&Geradenschnitt"},
    {"MnuGerParallelenschnitt", "MnuWerGeradenschnitte", "Geraden-&Parallelenschnitt"},
    {"MnuGerVorwärtsschnitt", "MnuWerGeradenschnitte", "&Vorwärtsschnitt", true},
    {"MnuGerRückwärtsschnitt", "MnuWerGeradenschnitte", "&Rückwärtsschnitt"},
    {"MnuGerDirekterAnsschluß", "MnuWerGeradenschnitte", "&Direkter Anschluß", true},
    {"MnuGerIndirekterAnschluß", "MnuWerGeradenschnitte", "&Indirekter Anschluß"},
    {"MnuGerWinkel", "MnuWerGeradenschnitte", "&Winkel zwischen 3 Punkten", true},
    {"MnuGerDist", "MnuWerGeradenschnitte", "Distanz &zwischen zwei Punkten"},
    {"MnuWerKreisberechnungen", "MnuWerkzeuge", "&Kreisberechnungen"},
    {"MnuKreisKreisGerade", "MnuWerKreisberechnungen", "Kreis-&Geradenschnitt"},
    {"MnuKreisKreisKreis", "MnuWerKreisberechnungen", "&Schnittpunkte zweier Kreise"},
    {"MnuKreisTangenten", "MnuWerKreisberechnungen", "&Tangenten an Kreis"},
    {"MnuKreisUmkreis", "MnuWerKreisberechnungen", "&Umkreis-Mittelpunkt aus 3 Punkten"},
    {"MnuKreisBogenWinkel", "MnuWerKreisberechnungen", "Bogenelemente mit &Winkel", true},
    {"MnuKreisBogenBABE", "MnuWerKreisberechnungen", "Bogenelemente mit &BA, BE"},
    {"MnuKreisBogenSehne", "MnuWerKreisberechnungen", "Bogenelemente mit Seh&ne"},
    {"MnuKreisAbsteckungXYS", "MnuWerKreisberechnungen", "Kreisbogenabsteckung mit &x, y, s", true},
    {"MnuKreisAbsteckungB", "MnuWerKreisberechnungen", "Kreisbogen&absteckung mit b"},
    {"MnuKreisFlächeS", "MnuWerKreisberechnungen", "Kreissegment-&Fläche mit S", true},
    {"MnuKreisFlächeBABE", "MnuWerKreisberechnungen", "&Kreissegment-Fläche mit BA, BE"},
    {"MnuKreisAusrundung", "MnuWerKreisberechnungen", "Aus&rundung", true},
    {"MnuWerKlotoiden", "MnuWerkzeuge", "K&lotoiden"},
    {"MnuKreisKlotoide", "MnuWerKlotoiden", "&Klotoidenberechnung"},
    {"MnuKreisEilinie", "MnuWerKlotoiden", "&Eilinie"},
    {"MnuKreisWendelinie", "MnuWerKlotoiden", "&Wendelinie"},
    {"MnuWerFlächenStrecken", "MnuWerkzeuge", "&Flächen-Strecken-Berechnung", true},
    {"MnuWerTaschenrechner", "MnuWerkzeuge", "&Taschenrechner"},
    {"MnuWerkzeugeGrafikKontrollFenster", "MnuWerkzeuge", "G&rafik-Kontrollfenster"},
    {"MnuWerkzeugePunkteKontrolle", "MnuWerkzeuge", "&Punkte-Kontrollfenster"},
    {"MnuWerkzeugeBeschriftung", "MnuWerkzeuge", "&Beschriftungen für Grafik"},
    {"MnuWerkzeugeHintergrund", "MnuWerkzeuge", "&Hintergrundgrafiken"},
    {"MnuWerkzeuge3DProfil", "MnuWerkzeuge", "Umwandlung &3D zu Profile"},
    {"MnuWerKoorSys", "MnuWerkzeuge", "Koordinatensystem", true},
    {"MnuWerKoorPolar", "MnuWerKoorSys", "&Polar"},
    {"MnuWerKoorDreiD", "MnuWerKoorSys", "&Dritte Koordinate (3D)"},
    {"mnuPH", "MnuWerKoorSys", "Dritte Koordinate ist &H (Höhe)"},
    {"mnuPZ", "MnuWerKoorSys", "Dritte Koordinate ist &Z"},
    {"MnuWerKoorPzuR", "MnuWerKoorSys", "Polar in Rechtwinkelig &umwandeln", true},
    {"MnuWerKoorRzuP", "MnuWerKoorSys", "&Rechtwinkelig in Polar umwandeln"},
    {"MnuWerOptionen", "MnuWerkzeuge", "&Optionen"},
    {"MnuOptionenKlotoidenAnzeigen", "MnuWerOptionen", "&Klotoiden am Schirm anzeigen"},
    {"mnuOptionenSkins", "MnuWerOptionen", "&Skins..."},
    {"mnuDruckoptionenTabellen", "MnuWerOptionen", "&Tabellendruck", true},
    {"MnuOptionenSchriftartDrucker", "mnuDruckoptionenTabellen", "&Schriftart..."},
    {"MnuOptionenRahmen", "mnuDruckoptionenTabellen", "&Rahmen drucken"},
    {"mnuPrinterT", "mnuDruckoptionenTabellen", "&Drucker wählen...", true},
    {"mnuDruckoptionenGrafik", "MnuWerOptionen", "&Grafikdruck"},
    {"MnuOptionenSchriftartGrafik", "mnuDruckoptionenGrafik", "&Schriftart..."},
    {"MnuOptionenKreisEmulieren", "mnuDruckoptionenGrafik", "&Kreise als Polygon zeichnen"},
    {"mnuPrinterG", "mnuDruckoptionenGrafik", "&Drucker wählen...", true},
    {"MnuOptionenAutoSpeichern", "MnuWerOptionen", "&Automatisch speichern...", true},

    {"MnuFenster", "", "&Fenster"},
    {"MnuFensterKaskade", "MnuFenster", "&Kaskadieren"},
    {"MnuFensterHorizontal", "MnuFenster", "&Horizontal teilen"},
    {"MnuFensterVertikal", "MnuFenster", "&Vertikal teilen"},
    {"MnuFensterSymboleAnordnen", "MnuFenster", "&Symbole anordnen"},

    {"MnuHilfe", "", "&Hilfe"},
    {"MnuHilfeHilfe", "MnuHilfe", "&Inhalt"},
    {"MnuHilfeZuFilfe", "MnuHilfe", "&Hilfe benutzen"},
    {"MnuHilfeInfo", "MnuHilfe", "Info...", true},
};

// Entries that carry a check mark: the bars, the table's coordinate flags and
// the on/off options.
const char* const kCheckable[] = {
    "MnuAnsichtFunktionsleiste", "MnuAnsichtGeradenschnitte", "MnuAnsichtKreisberechnungen",
    "MnuAnsichtInfoLeiste",      "MnuWerKoorPolar",           "MnuWerKoorDreiD",
    "MnuOptionenKlotoidenAnzeigen", "MnuOptionenRahmen",      "MnuOptionenKreisEmulieren",
    "MnuOptionenAutoSpeichern",
};

struct ButtonRow {
  const char* tip;
  const char* entry;  // "" when the button has a command of its own
  const char* icon;
};

// The general functions, in the order of their tool tips.
const ButtonRow kFunktionen[] = {
    {"Tabelle öffnen", "MnuDateiÖffnenTabelle", "tabelle_oeffnen"},
    {"Aktuelle Tabelle speichern", "MnuDateiSpeichernTabelle", "tabelle_speichern"},
    {"Drucken des aktiven Fensters (100% frei)", "MnuDateiDrucken", "drucken"},
    {"Seitenauswurf (Drucker-Puffer leeren)", "MnuDateiSeitenauswurf", "seitenauswurf"},
    {"Streckenberechnung", "MnuWerFlächenStrecken", "strecke"},
    {"Flächenberechnung", "MnuWerFlächenStrecken", "flaeche"},
    {"Massenermittlung", "MnuTabelleMassenermittlung", "massen"},
    {"Leistungsverzeichnis bearbeiten", "MnuTabelleLeistungsverzeichnis", "lv"},
    {"Taschenrechner mit UPN", "MnuWerTaschenrechner", "rechner"},
    {"Polar in Rechtwinkelig umwandeln", "MnuWerKoorPzuR", "polar_recht"},
    {"Rechtwinkelig in Polar umwandeln", "MnuWerKoorRzuP", "recht_polar"},
    {"Umwandlung 3D (Geländeaufnahme) in Profile", "MnuWerkzeuge3DProfil", "gelaende_3d"},
    {"Importieren einer Kolm Tabelle", "MnuDateiImportKolmTabelle", "import_tabelle"},
    {"Punkte Kontrollfenster (Addieren, Multiplizieren)", "MnuWerkzeugePunkteKontrolle", "punkte_kontrolle"},
    {"Punkt Darstellung, Bezeichnungen und Farben", "MnuTabelleBezeichnung", "punkt_darstellung"},
    {"Ansicht Geradenschnitte", "MnuAnsichtGeradenschnitte", "ansicht_geraden"},
    {"Ansicht Kreisberechnungen", "MnuAnsichtKreisberechnungen", "ansicht_kreise"},
    {"Hilfe zum aktuellen Koordinatensystem", "", "hilfe_koordinaten"},
    {"Ausschneiden", "MnuBearbeitenAusschneiden", "ausschneiden"},
    {"Kopieren", "MnuBearbeitenKopieren", "kopieren"},
    {"Einfügen", "MnuBearbeitenEinfügen", "einfuegen"},
};

// Icons of the calculation bars by entry; their tips are the captions.
const std::pair<const char*, const char*> kRechenIcons[] = {
    {"MnuGerMittelnderPolygonzug", "polygonzug"},
    {"MnuGerAbsteckdaten", "absteckdaten"},
    {"MnuGerEinrechnen", "einrechnen"},
    {"MnuGerKleinPunkte", "kleinpunkte"},
    {"MnuGer3Pkt", "geradenschnitt_3pkt"},
    {"MnuGer4Pkt", "geradenschnitt_4pkt"},
    {"MnuGerParallelenschnitt", "parallelenschnitt"},
    {"MnuGerVorwärtsschnitt", "vorwaertsschnitt"},
    {"MnuGerRückwärtsschnitt", "rueckwaertsschnitt"},
    {"MnuGerDirekterAnsschluß", "anschluss_direkt"},
    {"MnuGerIndirekterAnschluß", "anschluss_indirekt"},
    {"MnuGerWinkel", "winkel"},
    {"MnuGerDist", "distanz"},
    {"MnuKreisKreisGerade", "kreis_gerade"},
    {"MnuKreisKreisKreis", "kreis_kreis"},
    {"MnuKreisTangenten", "tangenten"},
    {"MnuKreisUmkreis", "umkreis"},
    {"MnuKreisBogenWinkel", "bogen_winkel"},
    {"MnuKreisBogenBABE", "bogen_babe"},
    {"MnuKreisBogenSehne", "bogen_sehne"},
    {"MnuKreisAbsteckungXYS", "absteckung_xys"},
    {"MnuKreisAbsteckungB", "absteckung_b"},
    {"MnuKreisFlächeS", "segment_s"},
    {"MnuKreisFlächeBABE", "segment_babe"},
    {"MnuKreisAusrundung", "ausrundung"},
    {"MnuKreisKlotoide", "klotoide"},
    {"MnuKreisEilinie", "eilinie"},
    {"MnuKreisWendelinie", "wendelinie"},
};

struct BarRow {
  const char* frame;
  const char* caption;
  const char* entry;
  const char* buttons;
};

const BarRow kBars[] = {
    {"FrameFunktionsleiste", "Funktionsleiste", "MnuAnsichtFunktionsleiste", "FnLButton"},
    {"FrameGeradenschnitte", "Geradenschnitte", "MnuAnsichtGeradenschnitte", "GerButton"},
    {"FrameKreisberechnungen", "Kreisberechnungen", "MnuAnsichtKreisberechnungen", "KreisButton"},
    {"FrameInformationsleiste", "Informationsleiste", "MnuAnsichtInfoLeiste", ""},
};

const BarRow& BarOf(MainForm::Bar bar) { return kBars[static_cast<int>(bar)]; }

std::string WithoutAccessKeys(const std::string& caption) {
  std::string out;
  for (size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&') {
      if (i + 1 < caption.size() && caption[i + 1] == '&') out += '&', ++i;
      continue;
    }
    out += caption[i];
  }
  return out;
}

const char* IconOf(const std::string& entry) {
  for (const auto& [name, icon] : kRechenIcons)
    if (entry == name) return icon;
  return "";
}

}  // namespace

MainForm::MainForm(forms::Forms& forms) : Form(forms, "Main", "Kolm") {
  declareMenus();
  declareBars();
  declareStrip();
  setPreferredSize(1024, 740);
}

void MainForm::declareMenus() {
  for (const MenuRow& row : kMenus) {
    if (*row.parent) {
      const std::string parentKey = NameKey(row.parent);
      if (std::find(submenus_.begin(), submenus_.end(), parentKey) == submenus_.end())
        submenus_.push_back(parentKey);
    }
  }
  for (const char* name : kCheckable) checkable_.push_back(NameKey(name));

  for (const MenuRow& row : kMenus) {
    Control& c = add(ControlKind::Menu, row.name).caption(row.caption).in(row.parent);
    if (row.separatorBefore) c.separatorBefore();
    if (*row.shortcut) c.shortcut(row.shortcut);
    if (opensSubmenu(c)) continue;
    c.disabled();
    const std::string key = NameKey(row.name);
    on(row.name, Event::Click, [this, key](Control&, EventArgs&) { runEntry(key); });
  }

  // What the frame does itself.
  for (const BarRow& bar : kBars) {
    const Bar which = static_cast<Bar>(&bar - kBars);
    setCommand(bar.entry, [this, which] { setBarVisible(which, !barVisible(which)); });
  }
  setCommand("MnuFensterKaskade", [this] { if (auto* d = services().desktop) d->cascade(); });
  setCommand("MnuFensterHorizontal", [this] { if (auto* d = services().desktop) d->tileHorizontally(); });
  setCommand("MnuFensterVertikal", [this] { if (auto* d = services().desktop) d->tileVertically(); });
  setCommand("MnuFensterSymboleAnordnen", [this] { if (auto* d = services().desktop) d->arrangeIcons(); });
  setCommand("MnuHilfeHilfe", [this] { showHelp(""); });
  setCommand("MnuHilfeZuFilfe", [this] { showHelp("hilfe_benutzen"); });
  setCommand("MnuHilfeInfo", [this] { this->forms().show("Info", true); });
  // Closing goes through unloading, as the close box does, so that the save
  // question later stands in one place.
  setCommand("MnuDateiBeenden", [this] { this->forms().unload(*this); });
  // The coordinate flags of the menu are the check boxes of the strip.
  setCommand("MnuWerKoorPolar", [this] { control("CheckPolar").click(); });
  setCommand("MnuWerKoorDreiD", [this] { control("Check3D").click(); });
}

void MainForm::declareBars() {
  int row = 0;
  for (const BarRow& bar : kBars) {
    add(ControlKind::Frame, bar.frame).caption(bar.caption).at(row++, 0);
    control(bar.entry).setChecked(true);
  }

  std::vector<ButtonBinding>& fn = buttons_[NameKey("FnLButton")];
  int i = 0;
  for (const ButtonRow& b : kFunktionen) {
    add(ControlKind::CommandButton, "FnLButton", i)
        .tip(b.tip).icon(b.icon).in("FrameFunktionsleiste").at(0, i);
    fn.push_back({b.entry, nullptr});
    ++i;
  }

  // The calculation bars follow the Werkzeuge menu.
  auto fill = [this](const char* bar, const char* menu, const char* frame) {
    std::vector<ButtonBinding>& list = buttons_[NameKey(bar)];
    const std::string menuKey = NameKey(menu);
    for (const MenuRow& row : kMenus) {
      if (NameKey(row.parent) != menuKey) continue;
      const int index = static_cast<int>(list.size());
      add(ControlKind::CommandButton, bar, index)
          .tip(WithoutAccessKeys(row.caption)).icon(IconOf(row.name)).in(frame).at(0, index);
      list.push_back({row.name, nullptr});
    }
  };
  fill("GerButton", "MnuWerGeradenschnitte", "FrameGeradenschnitte");
  fill("KreisButton", "MnuWerKreisberechnungen", "FrameKreisberechnungen");
  fill("KreisButton", "MnuWerKlotoiden", "FrameKreisberechnungen");

  for (const BarRow& bar : kBars) {
    if (!*bar.buttons) continue;
    const std::string barName = bar.buttons;
    const std::vector<ButtonBinding>& list = buttons_[NameKey(barName)];
    for (size_t i = 0; i < list.size(); ++i)
      control(barName, static_cast<int>(i)).setEnabled(!list[i].entry.empty() && hasCommand(list[i].entry));
    on(barName, Event::Click, [this, barName](Control&, EventArgs& a) { pressButton(barName, a.index); });
  }
  // Help on the coordinate systems until a sketch of its own takes over.
  setButtonCommand("FnLButton", 17, [this] { showHelp("koordinatensystem"); });
}

void MainForm::declareStrip() {
  const std::string strip = "FrameInformationsleiste";
  add(ControlKind::CheckBox, "Check3D").caption("3D").in(strip).at(0, 0);
  add(ControlKind::CheckBox, "CheckPolar").caption("Polar").in(strip).at(0, 1);
  add(ControlKind::ComboBox, "KoordinatenSystem")
      .items({"Math.links", "M31 rechts", "? Math rechts", "? M31 links"})
      .dropDownList().tip("Koordinatensystem der aktiven Tabelle").in(strip).at(0, 2).width(14);
  add(ControlKind::ComboBox, "ComboWinkelEinheit")
      .items({"Neugrad", "Altgrad", "Radiant"})
      .dropDownList().tip("Winkeleinheit").in(strip).at(0, 3).width(10);
  add(ControlKind::Label, "LabelAktTab")
      .tip("Aktive Tabelle – Klicken wählt eine andere Tabelle").in(strip).at(0, 4).width(24);
  add(ControlKind::Label, "LabelPktTab")
      .tip("Punktdatei der aktiven Tabelle – Klicken öffnet die Punkte-Tabelle").in(strip).at(0, 5).width(16);
  control("KoordinatenSystem").setListIndex(0);
  control("ComboWinkelEinheit").setListIndex(0);

  add(ControlKind::Label, "LabelInfo").at(5, 0);

  // Auto-save counts minutes; the drop wait keeps a closing dialog's mouse
  // release from counting as a drop.
  add(ControlKind::Timer, "TimerAuto").interval(60000).disabled();
  add(ControlKind::Timer, "TimerDropWait").interval(500).disabled();
  on("TimerDropWait", Event::Timer, [](Control& t, EventArgs&) { t.setEnabled(false); });

  add(ControlKind::Label, "DragContainer")
      .caption("Blue Box für Drag && Drop")
      .tip("Ablage für einen Wert oder Punkt: hierher ziehen, später wieder herausziehen")
      .draggable().dropTarget().at(6, 0);
  add(ControlKind::ComboBox, "cmbBlueBox").dropDownList().draggable().at(6, 1).width(30);

  for (const char* name : {"Check3D", "CheckPolar", "KoordinatenSystem", "ComboWinkelEinheit"})
    on(name, Event::Click, [this](Control& c, EventArgs&) { settingChanged(c); });

  // Opening the table choice and the point list, once those dialogs exist.
  on("LabelAktTab", Event::Click, [this](Control&, EventArgs&) {
    if (this->forms().isRegistered("Tabellenauswahl")) this->forms().show("Tabellenauswahl");
  });
  on("LabelPktTab", Event::Click, [this](Control&, EventArgs&) {
    if (this->forms().isRegistered("PunkteTabelle")) this->forms().show("PunkteTabelle");
  });

  settingChanged(control("Check3D"));
}

void MainForm::setProjectName(const std::string& name) { setCaption("Kolm: " + name); }

void MainForm::setCommand(std::string_view entry, std::function<void()> command) {
  Control* c = find(entry);
  if (!c || c->kind() != ControlKind::Menu || opensSubmenu(*c))
    throw std::invalid_argument("Kein Menüeintrag des Hauptfensters: " + std::string(entry));
  const std::string key = NameKey(entry);
  const bool on = static_cast<bool>(command);
  if (on) commands_[key] = std::move(command);
  else commands_.erase(key);
  c->setEnabled(on);
  refreshButtons(key);
}

bool MainForm::hasCommand(std::string_view entry) const {
  return commands_.count(NameKey(entry)) > 0;
}

void MainForm::setButtonCommand(std::string_view bar, int index, std::function<void()> command) {
  auto it = buttons_.find(NameKey(bar));
  if (it == buttons_.end() || index < 0 || index >= static_cast<int>(it->second.size()))
    throw std::invalid_argument("Keine Schaltfläche des Hauptfensters: " + std::string(bar) + "(" +
                                std::to_string(index) + ")");
  ButtonBinding& b = it->second[index];
  b.entry.clear();
  b.own = std::move(command);
  control(bar, index).setEnabled(static_cast<bool>(b.own));
}

std::string MainForm::buttonEntry(std::string_view bar, int index) const {
  auto it = buttons_.find(NameKey(bar));
  if (it == buttons_.end() || index < 0 || index >= static_cast<int>(it->second.size())) return {};
  return it->second[index].entry;
}

void MainForm::refreshButtons(const std::string& entryKey) {
  const bool on = commands_.count(entryKey) > 0;
  for (auto& [barKey, list] : buttons_) {
    for (size_t i = 0; i < list.size(); ++i) {
      if (list[i].entry.empty() || NameKey(list[i].entry) != entryKey) continue;
      // Before the buttons are declared there is nothing to enable yet.
      for (Control* button : array(barKey))
        if (button->index() == static_cast<int>(i)) button->setEnabled(on);
    }
  }
}

void MainForm::runEntry(const std::string& key) {
  auto it = commands_.find(key);
  if (it == commands_.end()) return;
  std::function<void()> command = it->second;  // the command may rebind itself
  command();
}

void MainForm::pressButton(const std::string& bar, int index) {
  auto it = buttons_.find(NameKey(bar));
  if (it == buttons_.end() || index < 0 || index >= static_cast<int>(it->second.size())) return;
  const ButtonBinding b = it->second[index];
  if (b.own) b.own();
  else if (!b.entry.empty()) control(b.entry).click();
}

bool MainForm::barVisible(Bar bar) const { return control(BarOf(bar).frame).visible(); }

void MainForm::setBarVisible(Bar bar, bool on) {
  control(BarOf(bar).frame).setVisible(on);
  control(BarOf(bar).entry).setChecked(on);
}

Control& MainForm::barFrame(Bar bar) const { return control(BarOf(bar).frame); }
Control& MainForm::barEntry(Bar bar) const { return control(BarOf(bar).entry); }

bool MainForm::opensSubmenu(const Control& menu) const {
  return menu.kind() == ControlKind::Menu &&
         std::find(submenus_.begin(), submenus_.end(), NameKey(menu.name())) != submenus_.end();
}

bool MainForm::checkable(const Control& entry) const {
  return entry.kind() == ControlKind::Menu &&
         std::find(checkable_.begin(), checkable_.end(), NameKey(entry.name())) != checkable_.end();
}

std::vector<Control*> MainForm::menuControls() const {
  std::vector<Control*> menus;
  for (const auto& c : controls())
    if (c->kind() == ControlKind::Menu) menus.push_back(c.get());
  return menus;
}

void MainForm::onSettingChanged(std::function<void(Control&)> listener) {
  settingListener_ = std::move(listener);
}

bool MainForm::dritte() const { return control("Check3D").value() == 1; }

bool MainForm::m31() const {
  const int system = control("KoordinatenSystem").listIndex();
  return system == 1 || system == 3;
}

void MainForm::settingChanged(Control& changed) {
  control("MnuWerKoorDreiD").setChecked(dritte());
  control("MnuWerKoorPolar").setChecked(control("CheckPolar").value() == 1);
  // H is the height of an M31 table, Z the third axis of any other.
  control("mnuPH").setVisible(dritte() && m31());
  control("mnuPZ").setVisible(dritte() && !m31());
  if (settingListener_) settingListener_(changed);
}

void MainForm::showHelp(const std::string& topic) {
  if (auto* help = services().help) help->showTopic(topic);
}

void MainForm::onClosing(std::function<bool()> question, std::function<void()> closing) {
  closeQuestion_ = std::move(question);
  closing_ = std::move(closing);
}

bool MainForm::QueryUnload() { return !closeQuestion_ || closeQuestion_(); }

void MainForm::Unload() {
  if (closing_) closing_();
  if (auto* d = services().desktop) d->quit();
}

// ---- status line ---------------------------------------------------------------

void MainStatusLine::show(const std::string& text) {
  pending_ = text;
  if (forms::Form* main = forms_.find("Main"))
    if (Control* label = main->find("LabelInfo")) label->setCaption(text);
}

std::string MainStatusLine::text() const {
  if (forms::Form* main = forms_.find("Main"))
    if (Control* label = main->find("LabelInfo")) return label->captionText();
  return pending_;
}

// ---- registration -----------------------------------------------------------------

void RegisterMainForms(forms::Forms& forms, std::string helpDir) {
  forms.registerForm("Main", [](forms::Forms& f) { return std::make_unique<MainForm>(f); });
  forms.registerForm("Hilfe", [helpDir](forms::Forms& f) { return std::make_unique<HilfeForm>(f, helpDir); });
  forms.registerForm("Info", [](forms::Forms& f) { return std::make_unique<InfoForm>(f); });
}

}  // namespace kolm::core
