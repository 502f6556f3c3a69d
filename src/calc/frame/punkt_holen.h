#pragma once
// Reading a point number typed into a field of a calculation dialog and
// fetching that point into the dialog's record.
#include <optional>
#include <string_view>

#include "core/records/records.h"
#include "core/state/zustand.h"

namespace kolm::calc {

// The value of the last four characters, rounded; nothing for a blank text.
// No range check: storing reports a number out of range itself.
std::optional<int> NummerAusText(std::string_view text);

// Copies the point whose number ends the text into record (its Nummer set).
// A blank text or a number outside 0 .. AnzahlPunkte leaves record as it
// was, without a message. True when it copied.
bool PunktHolen(const core::Zustand& z, std::string_view text, core::Punkt& record);

}  // namespace kolm::calc
