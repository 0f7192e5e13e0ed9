// The side view of one common, shed, hip or valley rafter with the measures that it is laid out by.
#pragma once

#include "core/rafter.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"

namespace pitchcraft {

/// Records the rafter on the board and closes the recording; Pts and DimensionPoints hold it afterwards. The
/// canvas size must stand. Raises Overflow when the figure is infinite or too large to draw; the recording is
/// then empty.
void DrawRafter(DraftingBoard& board, const CRafter& rafter, const DrawingContext& context);

}  // namespace pitchcraft
