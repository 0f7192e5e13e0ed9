// What the calculations share of plane geometry: right triangles, and angles in degrees.
#pragma once

#include <cmath>

#include "core/angles.h"

namespace pitchcraft {

inline double Hypotenuse(double rise, double run) { return std::sqrt(rise * rise + run * run); }

inline double SinDegrees(double degrees) { return std::sin(degrees * kRadiansPerDegree); }
inline double CosDegrees(double degrees) { return std::cos(degrees * kRadiansPerDegree); }
inline double TanDegrees(double degrees) { return std::tan(degrees * kRadiansPerDegree); }

/// The angle, in degrees, whose tangent is `ratio`.
inline double DegreesOf(double ratio) { return kDegreesPerRadian * std::atan(ratio); }

}  // namespace pitchcraft
