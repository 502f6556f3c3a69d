#pragma once
// Storing a point under its number: the one save of every dialog, with its
// range check and overwrite question, and the numbers offered for the next
// point.
#include <functional>
#include <string>
#include <string_view>

#include "core/records/records.h"
#include "core/state/zustand.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

// Stores record in slot nummer. A number outside 0 .. AnzahlPunkte - 1 is
// refused with "Die Punktnummer muß zwischen 0 und <AnzahlPunkte>liegen!".
// A used slot whose KurzBez is below 100 is overwritten only on "Ja" to
// "Soll <Bezeichnung> <Nummer>: (<A>/<B>) überschrieben werden?"; the old
// point goes to the overwrite history. The slot takes the record with its
// number and the standard caption offsets; the graphic draws the point and
// the point grid repaints its row.
// record.Nummer is the number on success and -1 on refusal or "Nein", when
// the slot is unchanged. TabelleGeaendert is set in every case. Returns
// whether the point was stored.
bool PunktSpeichern(core::Anwendung& anwendung, core::Punkt& record, int nummer);

// The overwrite question for slot nummer with its title ("Punkt abspeichern"
// when saving, "Punkt verschieben" when the point grid moves a point). True
// when the slot may be overwritten: on "Ja", and without asking when the
// slot is empty or its KurzBez is 100 or above.
bool UeberschreibenErlaubt(core::Anwendung& anwendung, int nummer, const std::string& titel);

// The number offered for the next point: one above the highest used slot
// (gaps are not filled), 0 in an empty table and 0 when slot AnzahlPunkte
// itself is used, so a full table starts again at 0. The calculation
// dialogs' NaechsteFreieNummer is this same rule and uses this function.
int NaechsteNummer(const core::Zustand& z);

// The point number at the end of a text: the last four characters read by
// ZahlLesen and rounded; -1 for a blank text or a number outside
// 0 .. AnzahlPunkte.
int NummerAmEnde(const core::Zustand& z, std::string_view text);

// A list entry ending in its point number: copies that slot into record
// (Nummer set to the number). False, with record unchanged, when the text
// gives no valid number.
bool PunktAusListe(const core::Zustand& z, std::string_view text, core::Punkt& record);

// Where the graphic draws one changed point without a full repaint; the
// graphic sets it. PunktSpeichern calls it only while Grafik is loaded.
void GrafikPunktZeichnerSetzen(core::Anwendung& anwendung, std::function<void(int nummer)> zeichner);

}  // namespace kolm::points
