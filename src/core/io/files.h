#pragma once
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kolm::core::io {

// Reads a whole file; nothing when it cannot be opened. Files larger than
// maxBytes are read only up to maxBytes, so a huge or endless file cannot
// exhaust memory.
std::optional<std::string> ReadFile(const std::string& path, std::size_t maxBytes = 256u << 20);

// Writes bytes to path so that a failure at any point leaves the previous
// file complete: the bytes go to a temporary file in the same folder, which
// is flushed and then renamed over the old one. False when anything failed;
// the temporary file is then removed.
bool WriteFileAtomically(const std::string& path, std::string_view bytes);

// Copies a regular file of any size the same way: through a temporary file
// beside the target, renamed over it. False (target untouched) when the
// source is missing or no regular file, or anything failed.
bool CopyFileAtomically(const std::string& from, const std::string& to);

bool FileExists(const std::string& path);
bool DirectoryExists(const std::string& path);
bool RemoveFile(const std::string& path);

// Fault injection for tests: the step named ("open", "write", "sync",
// "rename") fails for the next writes while the hook returns true.
using FaultHook = std::function<bool(std::string_view step, const std::string& path)>;
void SetFaultHook(FaultHook hook);

}  // namespace kolm::core::io
