#pragma once
// Private-profile ("ini") files: sections "[Name]" and lines "Key=Value",
// read and written with the behaviour of the classic Windows profile
// functions, as far as the program relies on it.
//
// On disk a profile is Windows-1252 with CR LF line ends; lines ending in LF
// alone and a last line without line end are read too (a CR alone ends no
// line). Every text crossing
// this interface is UTF-8; section and key names and values are converted at
// the boundary.
//
// Reading
// - A line whose first non-blank character is "[" and which has a "]" later
//   starts a section; its name is the text up to the first "]", blanks
//   trimmed. Text after the "]" is ignored.
// - A line with "=" is a key: the text before the first "=" is the name, the
//   text after it the value, both with blanks trimmed.
// - Lines starting with ";" are comments. Blank lines, comments, lines
//   without "=", lines with an empty key name and lines before the first
//   section carry no setting; they are kept as they stand when writing.
// - Section and key names match without regard to case: the letters of
//   ASCII and the letters of Windows-1252 with an upper and a lower form
//   (so "Ä" matches "ä"); "ß" matches only itself. Names asked for are
//   trimmed of blanks first, so "MitLVDrucken " finds "MitLVDrucken".
// - The first section of a name wins, and in it the first key of a name:
//   keys of a later duplicate are never seen.
// - A value in matching quotes, single or double, loses them when read.
//
// Writing
// - An existing key keeps its line and its own spelling; only the text of
//   the value is replaced. A missing key goes after the last line of its
//   section that is neither blank nor a comment (so a comment or blank line
//   before the next section stays there), or right after the header; a
//   missing section goes at the end of the file. New section and key names
//   are written exactly as given, blanks included.
// - Lines that carry no setting, other sections and the order of all lines
//   are kept byte for byte; only line ends become CR LF.
// - A value ends at its first NUL, CR or LF, as the file cannot hold them.
// - Names that could not be found again after writing are refused: empty
//   after trimming, holding a line break, a key holding "=" or starting with
//   ";" or "[", a section holding "]".
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kolm::core::profile {

// The buffer the settings read text values with unless told otherwise.
inline constexpr std::size_t kSettingsBuffer = 40;

// Files larger than this are read only up to it and never written back, so a
// huge file cannot exhaust memory and no write can lose its tail.
inline constexpr std::size_t kMaxFileBytes = 32u << 20;

class ProfileFile {
 public:
  enum class State {
    Empty,       // made in memory, or the file did not exist
    Complete,    // the whole file was read
    Cut,         // the file was larger than the limit; saving is refused
    Unreadable,  // the file exists but could not be read; saving is refused
  };

  ProfileFile() = default;
  // Bytes as they stand in a file.
  static ProfileFile FromBytes(std::string_view bytes);
  // Reads a file once; a missing file gives an empty profile.
  static ProfileFile Load(const std::string& path, std::size_t maxBytes = kMaxFileBytes);

  State state() const { return state_; }
  // True after a write or deletion that changed the content.
  bool modified() const { return modified_; }

  // The file content: Windows-1252, every line ending in CR LF.
  const std::string& Bytes() const { return bytes_; }
  // Writes Bytes() atomically; false when that failed or the profile was not
  // read completely.
  bool Save(const std::string& path) const;

  // The value of the key, or the default when the section or the key is
  // missing. The result holds at most bufferLength - 1 characters of the
  // code page (nothing for a buffer of 0 or 1) and ends at the value's first
  // NUL. The default loses its trailing blanks and is cut the same way.
  std::string GetString(std::string_view section, std::string_view key, std::string_view defaultValue,
                        std::size_t bufferLength) const;
  // The leading decimal number of the value: blanks, a sign, digits, up to
  // the first other character; no digit gives 0. Digits accumulate modulo
  // 2^32, as in the classic functions. A missing key gives the default.
  std::int32_t GetInt(std::string_view section, std::string_view key, std::int32_t defaultValue) const;

  // The names of all sections, and of all keys of a section, in file order,
  // as spelled at their first occurrence, each once.
  std::vector<std::string> SectionNames() const;
  std::vector<std::string> KeyNames(std::string_view section) const;

  // Sets a value, creating key and section when missing. False only for a
  // refused name; writing the value a key already has changes nothing.
  bool WriteString(std::string_view section, std::string_view key, std::string_view value);
  // Removes every line of the key from the section that reads see (the
  // classic write of a null value). False only for a refused name.
  bool DeleteKey(std::string_view section, std::string_view key);
  // Removes every section of the name with all its lines (the classic write
  // of a null key). False only for a refused name.
  bool DeleteSection(std::string_view section);

 private:
  std::string bytes_;
  State state_ = State::Empty;
  bool modified_ = false;
};

// One call per key, as the classic functions: each call reads the file, and
// each write that changes something writes it once, atomically. A write that
// would change nothing leaves the file untouched. For many keys in a row,
// load a ProfileFile once and save it once.
std::string ReadString(const std::string& path, std::string_view section, std::string_view key,
                       std::string_view defaultValue, std::size_t bufferLength);
std::int32_t ReadInt(const std::string& path, std::string_view section, std::string_view key,
                     std::int32_t defaultValue);
// False when the name is refused, the file could not be read completely or
// the write failed; the file then stays as it was.
bool WriteString(const std::string& path, std::string_view section, std::string_view key, std::string_view value);
bool DeleteKey(const std::string& path, std::string_view section, std::string_view key);
bool DeleteSection(const std::string& path, std::string_view section);

}  // namespace kolm::core::profile
