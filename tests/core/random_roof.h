// Random roofs for the properties, and how a calculated figure is compared with one measured in space.
#pragma once

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>

#include "core/rafter.h"

namespace pitchcraft {

/// Draws the numbers of one roof. All are sixteenths of an inch or of a slope, or quarters of a millimetre,
/// so that the record holds them without rounding.
class RandomRoof {
 public:
  explicit RandomRoof(Rafter& rafter) : rafter_(rafter) {
    rafter.SetUnits(*rc::gen::element(0, 0, 1));
    DrawLumber();
    rafter.Slope = Slope(1, 24);
    rafter.Span = Length(48, 400);
    rafter.Overhang = Length(0, 36);
    rafter.Kneewall = Length(0, 40);
    rafter.spacing = Length(8, 32);
    rafter.degrees = 30;
  }

  /// A length between two numbers of inches.
  double Length(int least, int most) const {
    const int sixteenths = *rc::gen::inRange(16 * least, 16 * most + 1);
    return rafter_.Units() == 0 ? sixteenths / 16.0 : sixteenths * 1.5;
  }

  /// A slope between two rises to 12, in the unit of the record.
  double Slope(int least, int most) const {
    const int sixteenths = *rc::gen::inRange(16 * least, 16 * most + 1);
    return rafter_.Units() == 0 ? sixteenths / 16.0 : sixteenths * 5.25;
  }

 private:
  void DrawLumber() {
    rafter_.Thickness = Length(1, 4);
    rafter_.Depth = Length(4, 14);
    rafter_.FasciaThickness = Length(1, 2);
    rafter_.FasciaHeight = Length(3, 16);
    rafter_.RidgeThickness = Length(0, 3);
    rafter_.RidgeDepth = Length(6, 16);
    rafter_.HipValThickness = Length(1, 4);
    rafter_.HipValDepth = Length(4, 16);
  }

  Rafter& rafter_;
};

/// Both figures are the same but for the few roundings to 32 bits of numbers as large as `scale`.
inline void Agree(const std::string& what, double calculated, double measured, double scale) {
  RC_LOG() << what << ": calculated " << calculated << ", measured " << measured << '\n';
  RC_ASSERT(std::abs(calculated - measured) <= 1e-6 * std::abs(scale));
}

inline void Agree(const std::string& what, double calculated, double measured) {
  Agree(what, calculated, measured, measured);
}

/// An angle that the product rounds to two decimals.
inline void AgreeRounded(const std::string& what, double calculated, double measured) {
  RC_LOG() << what << ": calculated " << calculated << ", measured " << measured << '\n';
  RC_ASSERT(std::abs(calculated - measured) <= 0.005 + 1e-5);
}

/// Rise for one unit of run.
inline double Steepness(const Rafter& rafter) { return rafter.Slope / rafter.SlopeBase; }

}  // namespace pitchcraft
