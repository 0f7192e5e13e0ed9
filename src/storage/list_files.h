// The lists behind the lumber, slope and degree fields as files in the program's folder, one row a line.
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

/// The rows "name|left|right" of a list; what stands before a backslash belongs to no field, a comma ends a
/// row, and a line without bars is none. Nothing where there is no such file. Raises an error of the run time
/// for a file that cannot be read.
std::optional<std::vector<std::string>> ReadListFile(const std::filesystem::path& file);

/// The rows of the list of degrees: one number a line. A missing file is made, with the rows of `defaults`;
/// raises an error of the run time where it cannot be.
std::vector<std::string> ReadDegreesFile(const std::filesystem::path& file,
                                         const std::vector<std::string>& defaults);

/// Replaces a list: the file that is there becomes its ".old", then the rows are written whole. Raises an
/// error of the run time where one of the two could not be written; the file is then as it was.
void RewriteListFile(const std::filesystem::path& file, const std::vector<std::string>& rows);

/// One row of a list: "2x8|1.5|7.25".
std::string ListRow(std::string_view name, std::string_view left, std::string_view right);

}  // namespace pitchcraft
