// The end of a hip roof from above: its plan, and the layout of its rafters, on screen, on paper and as DXF
// drawings.
#pragma once

#include "core/rafter.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"
#include "drawings/printed_sheet.h"
#include "output/dxf_writer.h"

namespace pitchcraft {

/// Records hips, eaves, walls, slopes and the last common. The canvas size must stand. Raises Overflow when
/// the figure is infinite or too large to draw; the recording is then empty.
void DrawHipPlan(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context);

/// The same with each common and jack, the jacks' lengths at their feet and the rules of the layout. Raises
/// the error of LayOutHip, too.
void DrawHipLayout(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context);

/// Draws for paper and prints the sheet.
void PrintHipPlan(Printer& page, DraftingBoard& board, const Rafter& rafter, const PrintContext& context);
void PrintHipLayout(Printer& page, DraftingBoard& board, const Rafter& rafter, const PrintContext& context);

/// Writes the roof whose drawing the board holds, in real size, to the fraction of a unit that the layout is
/// worked out to.
void ExportHipPlan(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                   const PrintContext& context);
void ExportHipLayout(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                     const PrintContext& context);

}  // namespace pitchcraft
