// The side view of one rafter with the measures that it is laid out by.
#pragma once

#include "core/rafter.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"

namespace pitchcraft {

/// Records a common, shed, hip or valley rafter on the board and closes the recording; Pts and
/// DimensionPoints hold it afterwards. The canvas size must stand. Raises Overflow when the figure is
/// infinite or too large to draw; the recording is then empty.
void DrawRafter(DraftingBoard& board, const CRafter& rafter, const DrawingContext& context);

/// The same for main common, hip end common and hip of a roof whose end has a slope of its own.
void DrawBastardHipRafters(DraftingBoard& board, const CRafter& rafter, const DrawingContext& context);

}  // namespace pitchcraft
