// The figures of the product, each in its forms: on screen, on paper and as a DXF drawing.
#pragma once

#include "design/design.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"
#include "drawings/printed_sheet.h"
#include "output/dxf_writer.h"
#include "output/printer.h"
#include "roofs/figure_kind.h"
#include "storage/settings.h"

namespace pitchcraft {

using DrawProcedure = void (*)(DraftingBoard&, const Rafter&, const DrawingContext&);
using ExportProcedure = void (*)(DxfWriter&, const DraftingBoard&, const Rafter&, const PrintContext&);
using PrintProcedure = void (*)(Printer&, DraftingBoard&, const Rafter&, const PrintContext&);

/// One figure. A procedure is null while that form does not exist; its name is the title of its messages.
struct FigureForms {
  const char* DrawName;
  DrawProcedure Draw;
  const char* PrintName;
  PrintProcedure Print;
  const char* ExportName;
  ExportProcedure Export;  ///< from the points that Draw has left
};

/// Null for kNone.
const FigureForms* FormsOf(FigureKind kind);

/// What a figure reads of the design beside its record.
DrawingContext ContextOf(const Design& design, const Preferences& preferences);

}  // namespace pitchcraft
