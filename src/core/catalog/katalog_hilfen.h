#pragma once
// Small text and path pieces shared by the catalogue units.
#include <string>
#include <string_view>

namespace kolm::core::katalog_hilfen {

// The code points of a UTF-8 text, and back.
std::u32string Zeichen(std::string_view utf8);
std::string Utf8(std::u32string_view zeichen);

// Small letter of a letter of ASCII or Windows-1252 ("Ä" -> "ä"); any
// other character as it is.
char32_t Klein(char32_t c);
// Text comparison without regard to case: < 0, 0, > 0.
int VergleichOhneGrossKlein(std::u32string_view a, std::u32string_view b);

bool IstZiffer(char32_t c);
bool IstAsciiBuchstabe(char32_t c);

// A folder as a path to append file names to: backslashes become the
// platform's separator, and a separator ends it (an empty folder stays
// empty, meaning the working directory).
std::string Ordner(std::string_view ordner);

}  // namespace kolm::core::katalog_hilfen
