// The dimensions of a drawing as a flat list, for those who write them into a file.
#pragma once

#include <string>
#include <variant>

#include "core/single.h"

namespace pitchcraft {

/// One entry, in real units: four numbers a stroke; x, y, text, angle in radians and a letter (L, C or R) a
/// text.
using DimensionValue = std::variant<Single, std::string>;

}  // namespace pitchcraft
