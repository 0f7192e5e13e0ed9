// Where the program keeps its lists.
#pragma once

#include <filesystem>

namespace pitchcraft {

/// The executable's folder where it can be written, else the user's own, which is then made. Window and
/// driver have the same.
std::filesystem::path ProgramFolder();

}  // namespace pitchcraft
