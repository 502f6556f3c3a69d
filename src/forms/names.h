#pragma once
#include <string>
#include <string_view>

namespace kolm::forms {

// Key under which form and control names are compared: lower case, and the
// umlauts and ß of UTF-8 names folded to ae, oe, ue, ss, so "Schließen",
// "schliessen" and "SCHLIESSEN" are one name.
std::string NameKey(std::string_view name);

}  // namespace kolm::forms
