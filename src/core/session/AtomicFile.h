#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace qv {

// Replaces the file at `path` with `content` so that a crash at any moment leaves
// either the old file or the new one on disk, never a mix: the content goes to a
// temporary file in the same folder, is flushed to the disk, then renamed over
// `path`. Missing parent folders are not created. On failure the old file is
// untouched, no temporary file is left, and *error (if given) says why.
bool WriteFileAtomically(const std::filesystem::path& path, std::string_view content,
                         std::string* error = nullptr);

// The file's bytes, or std::nullopt when it cannot be opened or read.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& path);

}  // namespace qv
