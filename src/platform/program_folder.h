// Where the program keeps its lists.
#pragma once

#include <filesystem>

namespace pitchcraft {

/// The executable's folder where it can be written, else the user's own, which is then made. Window and
/// driver have the same.
std::filesystem::path ProgramFolder();

/// What came with the program: beside the executable, or in share/pitchcraft next to its folder.
std::filesystem::path DataFolder();

}  // namespace pitchcraft
