// Files that are read and written as a whole: nobody ever finds half of one.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace pitchcraft {

/// The bytes of a regular file, or nothing where it cannot be read or is larger than `largest`.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& path, std::size_t largest);

/// Puts the bytes into a new file of the same folder, waits until they are on the disk, and renames it over
/// `path`: whatever happens meanwhile, `path` is the old file or the new one. False where it could not be
/// written; the old file is then untouched. A new file has the usual rights, a replaced one keeps its own.
bool WriteWholeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace pitchcraft
