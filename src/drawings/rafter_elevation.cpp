#include "drawings/rafter_elevation.h"

#include "drawings/lettering.h"
#include "drawings/rafter_elevation_drafter.h"

namespace pitchcraft {

void DrawRafter(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context) {
  RecordOrAbandon(board, [&] { RafterElevationDrafter(board, rafter, context).Draw(); });
}

// One view for all: the three members of a bastard hip roof differ only in their measures.
void DrawBastardHipRafters(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context) {
  DrawRafter(board, rafter, context);
}

}  // namespace pitchcraft
