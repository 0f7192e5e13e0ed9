// Which rows of the sheet a roof type shows, where they stand and what they are called.
#pragma once

#include <string_view>

#include "sheet/sheet.h"

namespace pitchcraft {

/// Lays the sheet out for the roof type of that code: tops, captions, what shows. Which of slope and degrees
/// shows in a row, the menus and the values are the document's affair. `gambrelHasPurlins` chooses between
/// "Purlins:" and "Ridge:" in the last row of a gambrel.
void LayOutRows(Sheet& sheet, int roofType, bool gambrelHasPurlins);

/// True when the extra slope of row 2 belongs to the roof type: hip, blind valley, gambrel.
bool HasSecondSlope(int roofType);

/// True for the roof types that are laid out like a gable: gable, shed, dual slope, valley.
bool HasGableRows(int roofType);

}  // namespace pitchcraft
