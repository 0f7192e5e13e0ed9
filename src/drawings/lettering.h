// Small texts that the drawings share.
#pragma once

#include <string>
#include <string_view>

namespace pitchcraft {

/// The sign of the lettering for degrees.
inline constexpr std::string_view kDegreeSign = "\u00BA";

/// An angle as the drawings label it: one decimal and the sign.
std::string AngleLabel(double degrees);

/// A label for a file whose readers may not have the sign: "63.4º" is "63.4", "45º bevels" is "45d bevels".
std::string WithoutDegreeSign(std::string_view label);

}  // namespace pitchcraft
