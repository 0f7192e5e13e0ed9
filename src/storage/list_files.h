// The lists for the lumber, slope and degree fields, as files in the program's folder with one row per line.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pitchcraft {

inline constexpr const char* kDegreesFile = "Degrees.dat";
inline const char* LumberFileOf(int unitRun) { return unitRun == 12 ? "Lumber.dat" : "LumberM.dat"; }
inline const char* SlopeFileOf(int unitRun) { return unitRun == 12 ? "Slope.dat" : "SlopeM.dat"; }

/// The rows "name|left|right" of a list. Anything before a backslash is not part of the row, a comma ends the
/// row, and a line without bars is skipped. Nothing if there is no such file. Raises a run-time error for a
/// file that cannot be read.
std::optional<std::vector<std::string>> ReadListFile(const std::filesystem::path& file);

/// The rows of the list of degrees: one number per line. A missing file is created with the rows of
/// `defaults`; raises a run-time error if it cannot be.
std::vector<std::string> ReadDegreesFile(const std::filesystem::path& file,
                                         const std::vector<std::string>& defaults);

/// Replaces a list: the present file is kept as ".old", then the rows are written as a whole. Raises a
/// run-time error if either cannot be written; the present file then stays as it was.
void RewriteListFile(const std::filesystem::path& file, const std::vector<std::string>& rows);

/// One row of a list: "2x8|1.5|7.25".
std::string ListRow(std::string_view name, std::string_view left, std::string_view right);

}  // namespace pitchcraft
