#include "core/records/records.h"

#include "forms/utf8.h"

namespace kolm::core {

std::string TextLinksFuellen(std::string_view text, std::size_t chars) {
  const int n = static_cast<int>(chars);
  std::string out(text.substr(0, forms::utf8::ByteOffset(text, n)));
  const int have = forms::utf8::Length(out);
  if (have < n) out.append(static_cast<std::size_t>(n - have), ' ');
  return out;
}

std::string TextRechtsFuellen(std::string_view text, std::size_t chars) {
  const int n = static_cast<int>(chars);
  std::string cut(text.substr(0, forms::utf8::ByteOffset(text, n)));
  const int have = forms::utf8::Length(cut);
  return std::string(static_cast<std::size_t>(n - have), ' ') + cut;
}

bool TextNurZeichen(std::string_view text, char c) {
  for (char ch : text)
    if (ch != c) return false;
  return true;
}

}  // namespace kolm::core
