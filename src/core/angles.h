// The two conversion factors between degrees and radians. They are literals of the product, each standing
// here once: a printed figure depends on their last digits.
#pragma once

namespace pitchcraft {

inline constexpr double kDegreesPerRadian = 57.295779513082;
inline constexpr double kRadiansPerDegree = 0.01745329252;

}  // namespace pitchcraft
