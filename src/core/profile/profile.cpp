#include "core/profile/profile.h"

#include <algorithm>

#include <array>
#include <limits>
#include <optional>

#include "core/io/codepage.h"
#include "core/io/files.h"

namespace kolm::core::profile {

namespace {

// The content is kept as one string of lines that all end in CR LF and is
// scanned per call: memory stays the size of the file whatever it holds, and
// a settings file of a few hundred lines is scanned in microseconds.

constexpr std::string_view kLineEnd = "\r\n";

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f'; }

std::string_view Trim(std::string_view s) {
  size_t b = 0, e = s.size();
  while (b < e && IsBlank(s[b])) ++b;
  while (e > b && IsBlank(s[e - 1])) --e;
  return s.substr(b, e - b);
}

// Lower-case partner of every byte of Windows-1252.
constexpr std::array<unsigned char, 256> MakeFoldTable() {
  std::array<unsigned char, 256> t{};
  for (int i = 0; i < 256; ++i) t[i] = static_cast<unsigned char>(i);
  for (int c = 'A'; c <= 'Z'; ++c) t[c] = static_cast<unsigned char>(c + 32);
  for (int c = 0xC0; c <= 0xDE; ++c)
    if (c != 0xD7) t[c] = static_cast<unsigned char>(c + 32);  // 0xD7 is the multiplication sign
  t[0x8A] = 0x9A;  // Š
  t[0x8C] = 0x9C;  // Œ
  t[0x8E] = 0x9E;  // Ž
  t[0x9F] = 0xFF;  // Ÿ
  return t;
}
constexpr std::array<unsigned char, 256> kFold = MakeFoldTable();

char Fold(char c) { return static_cast<char>(kFold[static_cast<unsigned char>(c)]); }

std::string Folded(std::string_view s) {
  std::string out(s);
  for (char& c : out) c = Fold(c);
  return out;
}

bool SameName(std::string_view inFile, std::string_view folded) {
  if (inFile.size() != folded.size()) return false;
  for (size_t i = 0; i < inFile.size(); ++i)
    if (Fold(inFile[i]) != folded[i]) return false;
  return true;
}

std::string_view CutAtNul(std::string_view s) { return s.substr(0, s.find('\0')); }

// A name asked for, as it compares with names in the file; empty when no
// name in the file can match it.
std::string LookupName(std::string_view utf8) {
  return Folded(Trim(io::Utf8ToCp1252(CutAtNul(utf8))));
}

enum class Kind { Blank, Comment, Header, Key, Other };

struct Parsed {
  Kind kind = Kind::Blank;
  std::string_view name;    // section or key name, trimmed
  size_t valueBegin = 0;    // offset of the value in the line
  std::string_view value;   // trimmed value
};

Parsed Parse(std::string_view line) {
  Parsed p;
  size_t i = 0;
  while (i < line.size() && IsBlank(line[i])) ++i;
  if (i == line.size()) return p;
  if (line[i] == ';') {
    p.kind = Kind::Comment;
    return p;
  }
  if (line[i] == '[') {
    const size_t close = line.find(']', i + 1);
    if (close != std::string_view::npos) {
      p.kind = Kind::Header;
      p.name = Trim(line.substr(i + 1, close - i - 1));
      return p;
    }
  }
  const size_t eq = line.find('=', i);
  p.kind = Kind::Other;
  if (eq == std::string_view::npos) return p;
  p.name = Trim(line.substr(i, eq - i));
  if (p.name.empty()) return p;
  p.kind = Kind::Key;
  size_t v = eq + 1;
  while (v < line.size() && IsBlank(line[v])) ++v;
  p.valueBegin = v;
  p.value = Trim(line.substr(v));
  return p;
}

// Walks the lines of normalized content.
struct LineCursor {
  std::string_view all;
  size_t begin = 0;  // start of the current line
  size_t end = 0;    // end of its text, before CR LF
  size_t next = 0;   // start of the following line

  bool Advance() {
    begin = next;
    if (begin >= all.size()) return false;
    const size_t nl = all.find('\n', begin);
    next = nl + 1;
    end = nl - 1;  // normalized: every LF follows a CR
    return true;
  }
  std::string_view Text() const { return all.substr(begin, end - begin); }
};

std::string Normalize(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 16 + 2);
  size_t pos = 0;
  while (pos < bytes.size()) {
    size_t nl = bytes.find('\n', pos);
    const bool last = nl == std::string_view::npos;
    if (last) nl = bytes.size();
    size_t end = nl;
    if (end > pos && bytes[end - 1] == '\r') --end;
    out.append(bytes.substr(pos, end - pos));
    out.append(kLineEnd);
    pos = last ? nl : nl + 1;
  }
  return out;
}

// Where the first section of a name lies: just past its header, and the
// start of the next header (or the end). Nothing when the name is absent.
struct SectionSpan {
  size_t body = 0;
  size_t end = 0;
};

std::optional<SectionSpan> FindSection(std::string_view all, std::string_view folded) {
  if (folded.empty()) return std::nullopt;
  LineCursor line{all};
  std::optional<SectionSpan> span;
  while (line.Advance()) {
    const Parsed p = Parse(line.Text());
    if (p.kind != Kind::Header) continue;
    if (span) {
      span->end = line.begin;
      return span;
    }
    if (SameName(p.name, folded)) span = SectionSpan{line.next, all.size()};
  }
  return span;
}

std::optional<std::string_view> FindValue(std::string_view all, std::string_view section, std::string_view key) {
  const std::string sectionName = LookupName(section);
  const std::string keyName = LookupName(key);
  if (keyName.empty()) return std::nullopt;
  const auto span = FindSection(all, sectionName);
  if (!span) return std::nullopt;
  LineCursor line{all.substr(0, span->end), 0, 0, span->body};
  while (line.Advance()) {
    const Parsed p = Parse(line.Text());
    if (p.kind == Kind::Key && SameName(p.name, keyName)) return p.value;
  }
  return std::nullopt;
}

// A value as the classic functions hand it out: up to its first NUL, without
// matching quotes.
std::string_view Unquoted(std::string_view value) {
  value = CutAtNul(value);
  if (value.size() >= 2 && (value[0] == '"' || value[0] == '\'') && value.back() == value[0])
    return value.substr(1, value.size() - 2);
  return value;
}

std::string_view Utf8Prefix(std::string_view s, size_t characters) {
  size_t i = 0, count = 0;
  while (i < s.size()) {
    if ((static_cast<unsigned char>(s[i]) & 0xC0) != 0x80) {
      if (count == characters) break;
      ++count;
    }
    ++i;
  }
  return s.substr(0, i);
}

// Lists a section or key name once, whatever its case; the first spelling stays.
void AddOnce(std::vector<std::string>& names, std::vector<std::string>& seen, std::string_view name) {
  std::string folded = Folded(name);
  if (std::find(seen.begin(), seen.end(), folded) != seen.end()) return;
  seen.push_back(std::move(folded));
  names.push_back(io::Cp1252ToUtf8(name));
}

// Names in the form they are written, or nothing when refused.
std::optional<std::string> SectionToWrite(std::string_view utf8) {
  std::string raw = io::Utf8ToCp1252(CutAtNul(utf8));
  if (Trim(raw).empty() || raw.find_first_of("\r\n]") != std::string::npos) return std::nullopt;
  return raw;
}

std::optional<std::string> KeyToWrite(std::string_view utf8) {
  std::string raw = io::Utf8ToCp1252(CutAtNul(utf8));
  const std::string_view name = Trim(raw);
  if (name.empty() || name[0] == ';' || name[0] == '[' || raw.find_first_of("\r\n=") != std::string::npos)
    return std::nullopt;
  return raw;
}

std::string ValueToWrite(std::string_view utf8) {
  return io::Utf8ToCp1252(utf8.substr(0, utf8.find_first_of(std::string_view("\0\r\n", 3))));
}

}  // namespace

ProfileFile ProfileFile::FromBytes(std::string_view bytes) {
  ProfileFile p;
  p.bytes_ = Normalize(bytes);
  p.state_ = State::Complete;
  return p;
}

ProfileFile ProfileFile::Load(const std::string& path, std::size_t maxBytes) {
  ProfileFile p;
  if (!io::FileExists(path)) return p;
  // One byte more than allowed tells a file of exactly the limit from a larger one.
  const size_t ask = maxBytes == std::numeric_limits<size_t>::max() ? maxBytes : maxBytes + 1;
  std::optional<std::string> bytes = io::ReadFile(path, ask);
  if (!bytes) {
    p.state_ = State::Unreadable;
    return p;
  }
  const bool cut = bytes->size() > maxBytes;
  if (cut) bytes->resize(maxBytes);
  p = FromBytes(*bytes);
  if (cut) p.state_ = State::Cut;
  return p;
}

bool ProfileFile::Save(const std::string& path) const {
  if (state_ == State::Cut || state_ == State::Unreadable) return false;
  return io::WriteFileAtomically(path, bytes_);
}

std::string ProfileFile::GetString(std::string_view section, std::string_view key, std::string_view defaultValue,
                                   std::size_t bufferLength) const {
  const size_t room = bufferLength == 0 ? 0 : bufferLength - 1;
  if (const auto value = FindValue(bytes_, section, key)) {
    const std::string_view text = Unquoted(*value);
    return io::Cp1252ToUtf8(text.substr(0, room));
  }
  std::string_view fallback = CutAtNul(defaultValue);
  while (!fallback.empty() && fallback.back() == ' ') fallback.remove_suffix(1);
  return std::string(Utf8Prefix(fallback, room));
}

std::int32_t ProfileFile::GetInt(std::string_view section, std::string_view key, std::int32_t defaultValue) const {
  const auto value = FindValue(bytes_, section, key);
  if (!value) return defaultValue;
  const std::string_view text = Unquoted(*value);
  size_t i = 0;
  while (i < text.size() && IsBlank(text[i])) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) negative = text[i++] == '-';
  std::uint32_t sum = 0;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
    sum = sum * 10u + static_cast<std::uint32_t>(text[i] - '0');
  if (negative) sum = 0u - sum;
  return static_cast<std::int32_t>(sum);
}

std::vector<std::string> ProfileFile::SectionNames() const {
  std::vector<std::string> names;
  std::vector<std::string> seen;
  LineCursor line{bytes_};
  while (line.Advance()) {
    const Parsed p = Parse(line.Text());
    if (p.kind != Kind::Header || p.name.empty()) continue;
    AddOnce(names, seen, p.name);
  }
  return names;
}

std::vector<std::string> ProfileFile::KeyNames(std::string_view section) const {
  std::vector<std::string> names;
  const auto span = FindSection(bytes_, LookupName(section));
  if (!span) return names;
  std::vector<std::string> seen;
  LineCursor line{std::string_view(bytes_).substr(0, span->end), 0, 0, span->body};
  while (line.Advance()) {
    const Parsed p = Parse(line.Text());
    if (p.kind != Kind::Key) continue;
    AddOnce(names, seen, p.name);
  }
  return names;
}

bool ProfileFile::WriteString(std::string_view section, std::string_view key, std::string_view value) {
  const auto sectionRaw = SectionToWrite(section);
  const auto keyRaw = KeyToWrite(key);
  if (!sectionRaw || !keyRaw) return false;
  const std::string valueRaw = ValueToWrite(value);
  const std::string keyName = Folded(Trim(*keyRaw));

  const auto span = FindSection(bytes_, Folded(Trim(*sectionRaw)));
  if (!span) {
    bytes_ += '[' + *sectionRaw + ']' + std::string(kLineEnd) + *keyRaw + '=' + valueRaw + std::string(kLineEnd);
    modified_ = true;
    return true;
  }
  size_t insertAt = span->body;
  LineCursor line{std::string_view(bytes_).substr(0, span->end), 0, 0, span->body};
  while (line.Advance()) {
    const Parsed p = Parse(line.Text());
    if (p.kind == Kind::Key && SameName(p.name, keyName)) {
      const size_t from = line.begin + p.valueBegin;
      if (std::string_view(bytes_).substr(from, line.end - from) == valueRaw) return true;
      bytes_.replace(from, line.end - from, valueRaw);
      modified_ = true;
      return true;
    }
    if (p.kind == Kind::Key || p.kind == Kind::Other) insertAt = line.next;
  }
  bytes_.insert(insertAt, *keyRaw + '=' + valueRaw + std::string(kLineEnd));
  modified_ = true;
  return true;
}

bool ProfileFile::DeleteKey(std::string_view section, std::string_view key) {
  const auto sectionRaw = SectionToWrite(section);
  const auto keyRaw = KeyToWrite(key);
  if (!sectionRaw || !keyRaw) return false;
  const std::string keyName = Folded(Trim(*keyRaw));
  const auto span = FindSection(bytes_, Folded(Trim(*sectionRaw)));
  if (!span) return true;
  std::string kept(std::string_view(bytes_).substr(0, span->body));
  LineCursor line{std::string_view(bytes_).substr(0, span->end), 0, 0, span->body};
  bool removed = false;
  while (line.Advance()) {
    const Parsed p = Parse(line.Text());
    if (p.kind == Kind::Key && SameName(p.name, keyName)) {
      removed = true;
      continue;
    }
    kept.append(bytes_, line.begin, line.next - line.begin);
  }
  if (!removed) return true;
  kept.append(bytes_, span->end);
  bytes_ = std::move(kept);
  modified_ = true;
  return true;
}

bool ProfileFile::DeleteSection(std::string_view section) {
  const auto sectionRaw = SectionToWrite(section);
  if (!sectionRaw) return false;
  const std::string name = Folded(Trim(*sectionRaw));
  std::string kept;
  kept.reserve(bytes_.size());
  bool skipping = false, removed = false;
  LineCursor line{bytes_};
  while (line.Advance()) {
    const Parsed p = Parse(line.Text());
    if (p.kind == Kind::Header) skipping = SameName(p.name, name);
    if (skipping) {
      removed = true;
      continue;
    }
    kept.append(bytes_, line.begin, line.next - line.begin);
  }
  if (!removed) return true;
  bytes_ = std::move(kept);
  modified_ = true;
  return true;
}

std::string ReadString(const std::string& path, std::string_view section, std::string_view key,
                       std::string_view defaultValue, std::size_t bufferLength) {
  return ProfileFile::Load(path).GetString(section, key, defaultValue, bufferLength);
}

std::int32_t ReadInt(const std::string& path, std::string_view section, std::string_view key,
                     std::int32_t defaultValue) {
  return ProfileFile::Load(path).GetInt(section, key, defaultValue);
}

namespace {
template <typename Change>
bool ChangeFile(const std::string& path, Change change) {
  ProfileFile file = ProfileFile::Load(path);
  if (file.state() == ProfileFile::State::Cut || file.state() == ProfileFile::State::Unreadable) return false;
  if (!change(file)) return false;
  return !file.modified() || file.Save(path);
}
}  // namespace

bool WriteString(const std::string& path, std::string_view section, std::string_view key, std::string_view value) {
  return ChangeFile(path, [&](ProfileFile& f) { return f.WriteString(section, key, value); });
}

bool DeleteKey(const std::string& path, std::string_view section, std::string_view key) {
  return ChangeFile(path, [&](ProfileFile& f) { return f.DeleteKey(section, key); });
}

bool DeleteSection(const std::string& path, std::string_view section) {
  return ChangeFile(path, [&](ProfileFile& f) { return f.DeleteSection(section); });
}

}  // namespace kolm::core::profile
