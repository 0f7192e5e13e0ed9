// The dimensions of a drawing as a flat list, from which a file writer reads them.
#pragma once

#include <string>
#include <variant>

#include "core/single.h"

namespace pitchcraft {

/// One entry, in real units. A stroke takes four numbers; a text takes x, y, the text, its angle in radians
/// and a letter (L, C or R).
using DimensionValue = std::variant<Single, std::string>;

}  // namespace pitchcraft
