// The drawings of the product, each in its forms: on screen, on paper and as a DXF drawing.
#pragma once

#include "core/rafter.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"
#include "drawings/printed_sheet.h"
#include "output/dxf_writer.h"
#include "output/printer.h"

namespace pitchcraft {

enum class Drawing {
  kRafter,
  kHipPlan,
  kHipLayout,
  kBastardHipRafters,
  kSaltbox,
  kBayPlan,
  kBayDiagram,
  kBayRafter,
  kBayCenterLedger,
  kDutchPlan,
  kOctagonPlan,
  kOctagonRafter,
  kOctagonLayout,
  kUnequalSpanValley,
  kBlindValley,
  kGambrelRafter,
  kGambrelPreview,
  kNone  ///< a page without a drawing of that form
};

using DrawProcedure = void (*)(DraftingBoard&, const Rafter&, const DrawingContext&);
using ExportProcedure = void (*)(DxfWriter&, const DraftingBoard&, const Rafter&, const PrintContext&);
using PrintProcedure = void (*)(Printer&, DraftingBoard&, const Rafter&, const PrintContext&);

/// One drawing. A procedure is null while that form does not exist; its name is the title of its messages.
struct DrawingForms {
  const char* DrawName;
  DrawProcedure Draw;
  const char* PrintName;
  PrintProcedure Print;
  const char* ExportName;
  ExportProcedure Export;  ///< from the points that the last Draw has left
};

/// `drawing` is not kNone.
const DrawingForms& FormsOf(Drawing drawing);

/// What a page of Tabs(0) gives in one form.
struct PageOutput {
  pitchcraft::Drawing Drawing = pitchcraft::Drawing::kNone;
  int Rafter = 1;       ///< 1 or 2
  int TypeBefore = -1;  ///< the type that the rafter takes for the work, or -1
  int TypeAfter = -1;   ///< the type that it keeps afterwards, or -1
};

enum class OutputForm { kPaper, kDxf };

/// What decides beside the roof type.
struct OutputConditions {
  bool SlopesDiffer = false;    ///< a hip roof's two slopes are unequal
  bool BayIsDiagram = false;    ///< no bay dimension was entered yet
  bool BayShowsLedger = false;  ///< a bay's rafter stands for its center ledger
};

/// A roof type that is not known and a page that is not there give kNone.
PageOutput OutputOf(OutputForm form, int roofType, int page, const OutputConditions& conditions);

}  // namespace pitchcraft
