#pragma once
#include <string>
#include <string_view>

namespace kolm::forms::utf8 {

// Number of code points of a UTF-8 text.
int Length(std::string_view text);
// Byte offset of code point number `chars` (clamped to the text).
size_t ByteOffset(std::string_view text, int chars);
// UTF-8 encoding of one code point.
std::string Encode(char32_t c);
// Decodes the code point starting at byte i and advances i; a bad byte is
// taken as the Windows-1252 character of the same value.
char32_t Next(std::string_view text, size_t& i);

}  // namespace kolm::forms::utf8
