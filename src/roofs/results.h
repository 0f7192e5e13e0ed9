// A finished calculation's way back to the sheet.
#pragma once

#include "design/design.h"

namespace pitchcraft {

/// Shows the front rafter and all lumber, and keeps the record as calculated.
void ShowFront(Design& design);
/// The same of the second rafter of a roof that has no row of its own for it.
void KeepRear(Design& design);
/// Shows the rear rafter in the second row, and keeps it.
void ShowRear(Design& design);

/// What the second rafter of a roof takes from the first.
void CopySlope(Design& design);
void CopyLumber(Design& design);     ///< common rafter, ridge and fascia
void CopyHipLumber(Design& design);  ///< hip or valley
void CopyLocks(Design& design);

/// A result by its text in base units: the field then holds the seven digits that it was given.
void ShowResult(MeasureControl& field, double value);

/// The degrees box of a row follows its slope, and the front record takes the angle.
double DegreesOfRow(const Design& design, std::size_t row);
/// Row `to` takes list position, or values, of row `from`, slope and degrees alike.
void CopySlopeRow(Design& design, std::size_t from, std::size_t to);
/// Of slope and degrees the one shows that slopes are entered by.
void ShowSlopeRow(Design& design, std::size_t row);

}  // namespace pitchcraft
