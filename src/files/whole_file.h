// Files that are read and written as a whole, so that no one ever finds half a file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace pitchcraft {

/// The bytes of a regular file, or nothing if it cannot be read or is larger than `largest`.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& path, std::size_t largest);

/// Puts the bytes into a new file in the same folder, waits until they are on the disk, and renames it to
/// `path`: whatever happens meanwhile, `path` is either the old file or the new one. False if it could not be
/// written; the old file then stays as it was. A new file gets the usual permissions, a replaced file keeps
/// its own.
bool WriteWholeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace pitchcraft
