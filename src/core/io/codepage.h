#pragma once
#include <string>
#include <string_view>

namespace kolm::core::io {

// Windows-1252, the code page of the text files, to UTF-8 and back. Bytes
// that code page leaves undefined map to the control characters of the
// same value; characters it cannot hold become "?".
std::string Cp1252ToUtf8(std::string_view bytes);
std::string Utf8ToCp1252(std::string_view text);

}  // namespace kolm::core::io
