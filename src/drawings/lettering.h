// What the drawings write and measure alike: slopes, angles, a plain dimension, and how a drawing that fails
// is left.
#pragma once

#include <string>
#include <string_view>

#include "core/run_time_error.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"

namespace pitchcraft {

inline constexpr const char* kDegreeSign = "\u00BA";

/// One decimal, and the degree sign of the lettering.
std::string AngleText(double degrees);
/// A label for a file whose readers may not have the sign: "63.4º" is "63.4", "45º bevels" is "45d bevels".
std::string WithoutDegreeSign(std::string_view label);
/// `pitch`, or the degrees with two decimals.
std::string SlopeText(const std::string& pitch, double degrees, bool riseOverRun);
/// Dimension pen and text colour, plain text at the height of a dimension.
void ChooseLettering(DraftingBoard& board, const DrawingContext& context);
/// A dimension with the board's measures.
Dimension PlainDimension(const DraftingBoard& board, int kind, int p1, int p2, double leg);

/// Runs the steps of a drawing. One that raises an error leaves a blank, and the error goes on.
template <typename Steps>
void RecordOrAbandon(DraftingBoard& board, const Steps& steps) {
  try {
    steps();
  } catch (const RunTimeError&) {
    board.AbandonDrawing();
    throw;
  }
}

}  // namespace pitchcraft
