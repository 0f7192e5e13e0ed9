// What a page of a roof type shows.
#pragma once

#include <optional>

#include "core/trade.h"

namespace pitchcraft {

enum class FigureKind {
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
  kNone  ///< nothing at all
};

/// The figure of a page and the member that it is of: the same on screen, on paper and in a file.
struct PageFigure {
  FigureKind Kind = FigureKind::kNone;
  int Record = 1;               ///< 1 or 2: the rafter record that it takes its measures from
  Member As = Member::kCommon;  ///< the member that the record stands for
  bool Empty = false;           ///< nothing of it is known yet: the page stays blank
};

}  // namespace pitchcraft
