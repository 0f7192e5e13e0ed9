// The lists for the lumber, slope and degree fields before anyone edits them.
#pragma once

#include <string>
#include <vector>

namespace pitchcraft {

/// Rows "2x8|1.5|7.25": name, thickness, depth. In inches for both unit systems, because lumber is named in
/// inches.
std::vector<std::string> DefaultLumberRows();

/// Rows "6/12|6|12": name, rise, run. For a `unitRun` of 12 the rises are 1 to 60; otherwise 100 to 5000 in
/// steps of 100, for a run of 1000.
std::vector<std::string> DefaultSlopeRows(int unitRun);

/// "1" to "80".
std::vector<std::string> DefaultDegreeRows();

}  // namespace pitchcraft
