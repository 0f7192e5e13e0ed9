// The lists behind the lumber, slope and degree fields, as they are when nobody has edited them.
#pragma once

#include <string>
#include <vector>

namespace pitchcraft {

/// Rows "2x8|1.5|7.25": name, thickness, depth. The same inches in both unit systems: lumber is called by its
/// inches.
std::vector<std::string> DefaultLumberRows();

/// Rows "6/12|6|12": name, rise, run. `unitRun` 12: 1 to 60 by 1; otherwise 100 to 5000 by 100 over 1000.
std::vector<std::string> DefaultSlopeRows(int unitRun);

/// "1" to "80".
std::vector<std::string> DefaultDegreeRows();

}  // namespace pitchcraft
