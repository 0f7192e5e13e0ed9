// The side view of one common, shed, hip or valley rafter with the measures that it is laid out by: on
// screen, on paper and as a DXF drawing.
#pragma once

#include "core/rafter.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"
#include "drawings/printed_sheet.h"
#include "output/dxf_writer.h"

namespace pitchcraft {

/// Records a common, shed, hip or valley rafter on the board and closes the recording; Pts and
/// DimensionPoints hold it afterwards. The canvas size must stand. Raises Overflow when the figure is
/// infinite or too large to draw; the recording is then empty.
void DrawRafter(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context);

/// The same for main common, hip end common and hip of a roof whose end has a slope of its own.
void DrawBastardHipRafters(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context);

/// Draws the rafter for paper and prints its sheet: the measures that it is cut by, under the drawing.
void PrintRafter(Printer& page, DraftingBoard& board, const Rafter& rafter, const PrintContext& context);
void PrintBastardHipRafters(Printer& page, DraftingBoard& board, const Rafter& rafter,
                            const PrintContext& context);

/// Writes the rafter that the board holds since its last drawing, in real size.
void ExportRafter(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                  const PrintContext& context);
void ExportBastardHipRafter(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                            const PrintContext& context);

}  // namespace pitchcraft
