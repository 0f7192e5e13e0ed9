// Numbers in a dump.
#pragma once

#include <nlohmann/json.hpp>

#include "core/single.h"

namespace pitchcraft {

/// Members keep the order in which they are put in.
using Json = nlohmann::ordered_json;

/// A Single with as many digits as bring back the same Single; what is no number is "inf", "-inf" or "nan".
Json NumberOf(Single value);
Json NumberOf(double value);

}  // namespace pitchcraft
