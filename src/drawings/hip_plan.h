// The end of a hip roof from above: its plan and the layout of its rafters, on screen, on paper and as DXF
// drawings.
#pragma once

#include "core/rafter.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"
#include "drawings/printed_sheet.h"
#include "output/dxf_writer.h"

namespace pitchcraft {

/// Records hips, eaves, walls, slopes and the last common. The size of the canvas must be set. Raises
/// Overflow if the figure is infinite or too large to draw; the recording is then empty.
void DrawHipPlan(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context);

/// The same with every common and jack, the lengths of the jacks at their feet and the rules of the layout.
/// Also raises the error of LayOutHip.
void DrawHipLayout(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context);

/// Draws for paper and makes the print.
void PrintHipPlan(Printer& page, DraftingBoard& board, const Rafter& rafter, const PrintContext& context);
void PrintHipLayout(Printer& page, DraftingBoard& board, const Rafter& rafter, const PrintContext& context);

/// Writes in real size the roof whose drawing is on the board, as exactly as its layout was worked out.
void ExportHipPlan(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                   const PrintContext& context);
void ExportHipLayout(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                     const PrintContext& context);

}  // namespace pitchcraft
