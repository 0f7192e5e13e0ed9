// The end of a hip roof from above: its plan, and the layout of its rafters.
#pragma once

#include "core/rafter.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"

namespace pitchcraft {

/// Records hips, eaves, walls, slopes and the last common. The canvas size must stand. Raises Overflow when
/// the figure is infinite or too large to draw; the recording is then empty.
void DrawHipPlan(DraftingBoard& board, const CRafter& rafter, const DrawingContext& context);

/// The same with each common and jack, the jacks' lengths at their feet and the rules of the layout. Raises
/// the error of LayOutHip, too.
void DrawHipLayout(DraftingBoard& board, const CRafter& rafter, const DrawingContext& context);

}  // namespace pitchcraft
