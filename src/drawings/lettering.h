// What all drawings write and measure in the same way: slopes, angles, a plain dimension; and what is left
// when a drawing fails.
#pragma once

#include <string>
#include <string_view>

#include "core/run_time_error.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"

namespace pitchcraft {

inline constexpr const char* kDegreeSign = "\u00BA";

/// One decimal, with the degree sign of the lettering.
std::string AngleText(double degrees);
/// A label for a file whose reader may not have the sign: "63.4º" becomes "63.4", "45º bevels" becomes "45d
/// bevels".
std::string WithoutDegreeSign(std::string_view label);
/// `pitch`, or the degrees with two decimals.
std::string SlopeText(const std::string& pitch, double degrees, bool riseOverRun);
/// Chooses the dimension pen, the text colour and plain text at the height of a dimension.
void ChooseLettering(DraftingBoard& board, const DrawingContext& context);
/// A dimension with the board's own measures.
Dimension PlainDimension(const DraftingBoard& board, int kind, int p1, int p2, double leg);

/// Runs the steps of a drawing. If one raises an error, the drawing is left blank and the error is passed on.
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
