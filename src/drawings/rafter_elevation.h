// The side view of one common, shed, hip or valley rafter with the measures for laying it out: on screen, on
// paper and as a DXF drawing.
#pragma once

#include "core/rafter.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"
#include "drawings/printed_sheet.h"
#include "output/dxf_writer.h"

namespace pitchcraft {

/// Records a common, shed, hip or valley rafter on the board and closes the recording; Pts and
/// DimensionPoints hold it afterwards. The size of the canvas must be set. Raises Overflow if the figure is
/// infinite or too large to draw; the recording is then empty.
void DrawRafter(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context);

/// The same for main common, hip end common and hip of a roof whose end has a slope of its own.
void DrawBastardHipRafters(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context);

/// Draws the rafter for paper and makes its print: the drawing, with the measures to cut by under it.
void PrintRafter(Printer& page, DraftingBoard& board, const Rafter& rafter, const PrintContext& context);
void PrintBastardHipRafters(Printer& page, DraftingBoard& board, const Rafter& rafter,
                            const PrintContext& context);

/// Writes in real size the rafter whose drawing is on the board.
void ExportRafter(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                  const PrintContext& context);
void ExportBastardHipRafter(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                            const PrintContext& context);

}  // namespace pitchcraft
