#include "drawings/hip_plan.h"

#include "drawings/hip_plan_drafter.h"
#include "drawings/lettering.h"

namespace pitchcraft {

void DrawHipPlan(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context) {
  RecordOrAbandon(board, [&] { HipPlanDrafter(board, rafter, context).DrawPlan(); });
}

void DrawHipLayout(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context) {
  RecordOrAbandon(board, [&] { HipPlanDrafter(board, rafter, context).DrawLayout(); });
}

}  // namespace pitchcraft
