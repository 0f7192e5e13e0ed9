// Saves an export as a file and raises the errors that people are shown.
#pragma once

#include <filesystem>
#include <string_view>

namespace pitchcraft {

/// Raises "Path not found" (76) if the folder is missing, "Path/File access error" (75) if anything else
/// keeps the file from being written; an old file then stays as it was. Only a regular file is replaced.
void SaveFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace pitchcraft
