// Where the program keeps its lists.
#pragma once

#include <filesystem>

namespace pitchcraft {

/// The executable's folder if it is writable, otherwise the user's own folder, created if necessary. The same
/// for window and driver.
std::filesystem::path ProgramFolder();

/// The files that come with the program: beside the executable, or in share/pitchcraft next to its folder.
std::filesystem::path DataFolder();

}  // namespace pitchcraft
