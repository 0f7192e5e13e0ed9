// An export as a file, with the errors that a person is told.
#pragma once

#include <filesystem>
#include <string_view>

namespace pitchcraft {

/// Raises "Path not found" (76) where the folder is missing, "Path/File access error" (75) for anything else
/// that keeps the file from being written. An old file is untouched then. Only a regular file is replaced.
void SaveFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace pitchcraft
