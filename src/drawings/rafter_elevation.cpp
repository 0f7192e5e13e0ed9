#include "drawings/rafter_elevation.h"

#include "core/run_time_error.h"
#include "drawings/rafter_elevation_drafter.h"

namespace pitchcraft {

void DrawRafter(DraftingBoard& board, const CRafter& rafter, const DrawingContext& context) {
  try {
    RafterElevationDrafter(board, rafter, context).Draw();
  } catch (const RunTimeError&) {
    board.AbandonDrawing();
    throw;
  }
}

}  // namespace pitchcraft
