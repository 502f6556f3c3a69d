#pragma once
// The rules behind the table dialogs NeueTabelle, TabelleDuplizieren,
// TabelleEigenschaften and frmNeueTabelleImport: file stems from names, the
// characters the stem fields accept, the proposed name, the checks on OK
// with their messages, filling and deleting a catalogue row. The dialogs
// show what these return; they decide nothing themselves.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/state/zustand.h"
#include "forms/services.h"

namespace kolm::core {

// ---- Stems and names ---------------------------------------------------------

// Longest stem a row stores.
constexpr int MaxStammLaenge = 8;

// The stem that follows a name, walking it from its last character: digits
// kept (and a digit seen), letters kept until a digit was seen - the first
// letter after that ends the walk -, "-" and "_" kept, all else skipped;
// when the walk ended early the name's first character goes in front; cut
// to 8 characters. "Profil 12" gives "P12", "A-1" "A-1". Letters are those
// of ASCII.
std::string DateinameAusName(std::string_view name);

// Whether a stem field or the project name field takes a typed character
// (a code point, as KeyPress gives it): digits, ASCII letters, "_", "-";
// control characters (Backspace and the like) pass so editing still works.
bool StammZeichenZulaessig(char32_t zeichen);
// A text with every character dropped that the field would not take
// (control characters too), for pasted or set texts.
std::string StammFiltern(std::string_view text);
// The first 8 characters, as a stem is stored.
std::string StammKuerzen(std::string_view stamm);

// The name NeueTabelle proposes after `name`: a trailing number raised by 1
// ("Profil 7" -> "Profil 8", "Profil 09" -> "Profil 10"); a name without
// one gets " 2" appended, the second of its kind; a blank name gives
// "Profil 1". Trailing blanks are ignored.
std::string NamensVorschlag(std::string_view name);
// The proposal from the active row; "Profil 1" without a named active row.
std::string NamensVorschlag(const Zustand& z);

// Entry of the list KoordinatenSystem for two flags, and back: entries 1
// and 3 are M31, entries 2 and 3 Falschdrehend.
int KoordinatenSystemEintrag(bool m31, bool falschdrehend);
bool KoordinatenSystemM31(int eintrag);
bool KoordinatenSystemFalschdrehend(int eintrag);

// ---- Checks on OK ------------------------------------------------------------

// The values of the dialog's fields.
struct TabellenEingabe {
  std::string TablName;
  std::string Stationierung;  // as typed; read comma-tolerant
  std::string Dateiname;
  std::string PktDateiName;
  int KoordinatenSystem = 0;  // list entry 0 .. 3
  bool Dritte = false;        // CheckDritte
  bool Polar = false;         // CheckPolar
};

enum class TabellenDialog { Neu, Duplizieren, Eigenschaften };

// One thing the check found, in the order the dialog must show them.
struct TabellenBefund {
  enum class Art {
    NameLeer,           // no name entered: refused
    NameVergeben,       // another row has the name: refused
    DateinameVergeben,  // another row has the Dateiname: refused
    PunkteGemeinsam,    // another row has the PktDateiName: OK shares, cancel refuses
    KeinPlatz,          // no blank row left: refused
  };
  Art art;
  int zeile = -1;  // the other row, -1 for NameLeer and KeinPlatz
  forms::Message meldung;
  // PunkteGemeinsam: the other row's Stationierung and the question, asked
  // after OK when it differs from the value held at that point, whether to
  // take it over (yes takes it).
  double stationierung = 0;
  forms::Message stationierungsFrage;
};

struct TabellenPruefung {
  std::vector<TabellenBefund> befunde;
  // The row the values go to: the first blank row (new, duplicate) or the
  // row itself (properties); -1 when there is none.
  int zeile = -1;
  // The entered Stationierung as read by the comma-tolerant parser.
  double stationierung = 0;
};

// Scans rows 0 .. 500 in order; per row the name, then Dateiname, then
// PktDateiName. A refusal ends the scan. Rows without a name and blank
// entered stems are not compared. Names and stems compare exactly (stems
// after cutting to 8), as file names do on this system. For
// TabelleEigenschaften `eigeneZeile` is the row being changed: it is not
// compared, a shared PktDateiName is only asked about when it was changed,
// and no free row is needed. The stationing in the question is written in
// the default number form with `dezimal` (empty: the system's character).
TabellenPruefung TabellenEingabePruefen(const Zustand& z, const TabellenEingabe& e, TabellenDialog dialog,
                                         int eigeneZeile = -1, std::string_view dezimal = "");

// What became of the check once the user answered.
struct TabellenEntscheidung {
  bool weiter = false;        // false: the dialog stays open
  int zeile = -1;             // the row to fill
  double stationierung = 0;   // to store, possibly taken over
  bool punkteGemeinsam = false;  // the points of another row are shared
};

// Shows the findings in order through the message service and follows the
// answers: a refusal stops, a shared point file asks OK/cancel and then the
// stationing question when the values differ.
TabellenEntscheidung TabellenPruefungAbarbeiten(const TabellenPruefung& p, forms::MessageService& meldungen);

// Fills a row from the dialog: the name, `stationierung`, the stems cut to 8
// characters, the four flags. Other fields stay.
void ZeileFuellen(Tabelle& zeile, const TabellenEingabe& e, double stationierung);
// The first row without a name, -1 when all 501 are used.
int ErsteFreieZeile(const Zustand& z);

// ---- Deleting a table --------------------------------------------------------

// The question of Löschen (OK and cancel, title "Tabelle löschen").
forms::Message TabelleLoeschenFrage();

struct TabellenLoeschung {
  // Full paths to delete where present: ".ver", ".bog", ".ber" of
  // Dateiname, and ".pkt" of PktDateiName unless another named row shares it.
  std::vector<std::string> dateien;
  // Set when the ".pkt" stays because another row uses it.
  std::optional<forms::Message> meldung;
};

// What deleting row `zeile` removes; nothing for a row outside 0 .. 500.
// Blank stems name no file.
TabellenLoeschung TabelleLoeschenPlanen(const Zustand& z, int zeile);

// Deletes the files of the plan that exist (failures ignored), shows its
// message and clears the row by the clearing rule. The caller closes the
// dialogs, writes the catalogue and shows "Tabelle gelöscht!".
TabellenLoeschung TabelleLoeschen(Zustand& z, int zeile, forms::MessageService* meldungen);

}  // namespace kolm::core
