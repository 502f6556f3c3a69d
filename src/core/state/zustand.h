#pragma once
// All process-wide tables and the values of the active table in one object.
// The program holds one; a test makes a fresh one. Nothing here is global.
#include <array>
#include <string>
#include <vector>

#include "core/records/records.h"
#include "core/settings/einstellungen.h"
#include "forms/drawing.h"

namespace kolm::core {

// Slot counts: a table of n slots has the numbers 0 .. n - 1.
constexpr int MinAnzahlPunkte = 999;
constexpr int MaxAnzahlPunkte = 9999;
constexpr int AnzahlVerbindungen = 2000;
constexpr int AnzahlBoegen = 500;
constexpr int AnzahlBeschriftungen = 1000;
constexpr int AnzahlBerechnungen = 300;
constexpr int AnzahlBilder = 21;
constexpr int AnzahlTabellen = 501;
constexpr int AnzahlKurzbezeichnungen = 100;
constexpr int AnzahlKorrekturen = 25;
constexpr int AnzahlPunktFarben = 40;
constexpr int AnzahlLinienFarben = 21;
constexpr int AnzahlVariablen = 26;

// Caption offset of a point for an alignment 0 .. 8 and a distance d; any
// other alignment leaves dx and dy as they are.
void RichtungsVersatz(int ausrichtung, double d, Single& dx, Single& dy);

// AnzahlPunkte as the settings allow it: 999 .. 9999.
int AnzahlPunkteBegrenzen(long long anzahl);

class Zustand {
 public:
  // Every table cleared, the settings values at their defaults, 999 points.
  Zustand();

  // ---- Tables ---------------------------------------------------------------
  int AnzahlPunkte = MinAnzahlPunkte;
  std::vector<Punkt> Punkte;                    // 0 .. AnzahlPunkte
  std::vector<Verbindung> Verbindungen;         // 0 .. 1999
  std::vector<Bogen> Boegen;                    // 0 .. 499, slot 0 unused by new arcs
  std::vector<Beschriftung> Beschriftungen;     // 0 .. 999
  std::vector<Berechnung> Berechnungen;         // 0 .. 299
  std::vector<Hintergrundbild> Hintergrundbilder;  // 0 .. 20
  std::vector<Tabelle> Tabellen;                // 0 .. 500
  std::vector<Kurzbezeichnung> Kurzbezeichnungen;  // 0 .. 99
  std::vector<Korrektur> Korrekturen;           // 0 .. 24
  std::array<double, AnzahlVariablen> Variablen{};  // "A" .. "Z"
  // The pictures of the background images by slot; an empty image where a
  // slot has none or its file could not be loaded.
  std::vector<forms::Image> BildSpeicher;

  // Lowest slot known to be free.
  Integer NaechsterFreierPunkt = 0;
  Integer NaechsteFreieVerbindung = 0;
  Integer NaechsterFreierBogen = 0;
  Integer NaechstesFreiesBild = 0;

  // ---- Settings values the clearing rules use --------------------------------
  Integer StandardKurzBezeichnung = 0;  // anything outside 0 .. 99 counts as 0
  double StandardDistanz = 0.1;
  Integer StandardAusrichtung = 2;
  Single StandardTextDx = 0, StandardTextDy = 0;  // from the two above
  Integer StandardPunktFarbe = 0;   // entry of PunktFarben
  Integer StandardLinienFarbe = 0;  // entry of LinienFarben
  std::vector<FarbEintrag> PunktFarben;   // 0 .. 39
  std::vector<FarbEintrag> LinienFarben;  // 0 .. 20

  // ---- The active table and the paths ---------------------------------------
  Integer AktiveTabelle = -1;
  Flag TabelleGeaendert = Falsch;
  Flag Laden = Falsch;
  Flag M31 = Falsch, Dritte = Falsch, Polar = Falsch, Falschdrehend = Falsch;
  double WinkelFaktor;  // radians per angle unit; Neugrad by default
  Integer Intervall = 0;
  TabellenAnsicht Ansicht;  // the view fields of the active row
  std::string ProgrammIni = "Kolm.ini";
  std::string ProgrammVerzeichnis;
  std::string ProjektName;
  std::string ProjektVerzeichnis;  // ends in a separator
  std::string ProjektIni;
  kolm::core::Einstellungen Einstellungen;  // the other values of the settings files

  // ---- Points ---------------------------------------------------------------
  // Sets AnzahlPunkte (clamped) and sizes Punkte to 0 .. AnzahlPunkte,
  // keeping the contents of the slots that remain.
  void PunkteDimensionieren(long long anzahl);
  // A..C all 0; false for a number outside 0 .. AnzahlPunkte.
  bool PunktLeer(long long nummer) const;
  void PunktLoeschen(int n);
  void PunkteLeeren();

  // ---- Connections ----------------------------------------------------------
  void VerbindungLoeschen(int n);  // ignored outside 0 .. 1999
  void VerbindungenLeeren();
  // The slot a new connection goes to, -1 when the cursor forbids one.
  int VerbindungsSlot() const;
  // After a connection was stored at the cursor: walk to the next slot with
  // Von below 0, at most to 2000.
  void VerbindungsCursorWeiter();
  // Stores v in the free slot and moves the cursor; -1 if no slot or a
  // negative point number.
  int VerbindungBelegen(const Verbindung& v);

  // ---- Arcs -----------------------------------------------------------------
  void BogenLoeschen(int n);  // only 1 .. 499
  void BoegenLeeren();
  // Raises a cursor of 0 to 1; -1 when it stands below 1 or at 499 or above.
  int BogenSlot();
  void BogenCursorWeiter();  // to the next slot with Radius 0, at most 499
  // Stores b (Nummer set to the slot) and moves the cursor; -1 if full.
  int BogenBelegen(Bogen b);
  // After loading: drops every arc no used calculation refers to and leaves
  // the cursor at the lowest free slot.
  void BoegenAufraeumen();

  // ---- Labels, calculations, images -----------------------------------------
  void BeschriftungLoeschen(int n);
  void BeschriftungenLeeren();
  // The record rule of the calculation dialog: also frees its arcs; Flaeche
  // keeps its value. Ignored outside 0 .. 299.
  void BerechnungLoeschen(int n);
  // Every record as new (Flaeche false too); the arcs are left alone, they
  // are cleared as a table of their own.
  void BerechnungenLeeren();
  void HintergrundbildLoeschen(int n);  // picture dropped too
  void HintergrundbilderLeeren();
  int BildSlot() const;          // -1 outside 0 .. 20
  void BildCursorWeiter();       // to the next slot with Breite 0, at most 21

  // ---- Catalogue, corrections, designations ---------------------------------
  // Texts empty, Stationierung 0, the four flags from the active table's.
  void TabellenZeileLeeren(int n);
  void TabellenLeeren();
  void KorrekturenLeeren();
  void KurzbezeichnungenLeeren();
  void VariablenLeeren();

  // Every table in the order of the start: catalogue, points, arcs,
  // corrections, connections, calculations, labels, images.
  void AllesLeeren();
  // The tables of the active table, before another one is opened.
  void TabellenInhaltLeeren();

  // ---- View values ----------------------------------------------------------
  // Caption offsets of new points from StandardDistanz and StandardAusrichtung.
  void StandardVersatzBerechnen();
  // Opening a row: all view fields into the active values (Rasterabstand 0 -> 10).
  void AnsichtAusZeile(const Tabelle& zeile);
  // Before saving or leaving: Massstab .. LogoSichtbar back into the row
  // (Rasterabstand 0 -> 10 first).
  void AnsichtInZeile(Tabelle& zeile);
  // The active row, or nothing when AktiveTabelle lies outside 0 .. 500.
  Tabelle* AktiveZeile();

  // Index of a letter's variable ("A" .. "Z", small letters alike), -1 for
  // any other character.
  static int VariablenIndex(char buchstabe);

  // Values the clearing rules put into a slot.
  Integer StandardKurzBezWert() const;
  Long StandardPunktFarbWert() const;
  Long StandardLinienFarbWert() const;
};

}  // namespace kolm::core
