// All roof types, in the order of their list.
#pragma once

#include <span>
#include <string_view>

#include "roofs/roof_type.h"

namespace pitchcraft {

const RoofType& GableRoof();
const RoofType& ShedRoof();
const RoofType& DualSlopeRoof();
const RoofType& HipRoof();
const RoofType& ValleyRoof();
const RoofType& UnequalSpanValleyRoof();
const RoofType& BayRoof();
const RoofType& DutchHipRoof();
const RoofType& BlindValleyRoof();
const RoofType& OctagonRoof();
const RoofType& GambrelRoof();

std::span<const RoofType* const> RoofTypes();

/// The type of a code; a hip with two slopes is a hip. Null for a number that is no code.
const RoofType* RoofTypeByCode(Roof code);
/// The type of an item of the list, compared exactly, or null.
const RoofType* RoofTypeByItem(std::string_view item);
/// The position of a code in the list; -1 where there is none.
int ListIndexOfRoof(Roof code);

/// The type of the design's roof.
const RoofType& RoofOf(const Design& design);
/// The figure of the page that is shown.
PageFigure FigureShown(const Design& design);

}  // namespace pitchcraft
