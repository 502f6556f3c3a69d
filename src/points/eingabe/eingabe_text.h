#pragma once
// The answer of Punkteingabe: one line for each shown field, its caption
// and its text ("X = 12.5"), the lines joined by CR. The captions tell the
// reader whether the values were typed in the other form of the table.
#include <string>
#include <string_view>

#include "core/records/records.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

// A caption as plain text: "&X =" gives "X =", "&&" gives "&".
std::string OhneZugriffstaste(std::string_view beschriftung);

// One line of the answer: the caption without its access key, a blank, the
// field's text.
std::string EingabeZeile(std::string_view beschriftung, std::string_view text);

// Reads an answer into A, B and C of record by ZahlLesen (C is 0 when the
// answer has no third line). Values typed in the other form (polar
// captions "e =", "Phi =" in a rectangular table, "X =", "Y =" in a polar
// one) are converted into the table's form. False for an empty answer
// (the dialog was cancelled); record is then unchanged. Number, designation
// and the rest of record are the caller's.
bool PunktAusEingabe(core::Anwendung& anwendung, std::string_view text, core::Punkt& record);

}  // namespace kolm::points
