// The words of the trade that a calculation, a sheet or a drawing is chosen by. Numbers given here are part
// of the product: they are in dumps and projects.
#pragma once

namespace pitchcraft {

/// The roof types.
enum class Roof : int {
  kGable = 0,
  kHip = 1,
  kValley = 2,
  kShed = 3,
  kDualSlope = 4,
  kBay = 5,
  kDutchHip = 8,
  kOctagon = 9,
  kUnequalSpanValley = 10,
  kBlindValley = 11,
  kBastardHip = 12,  ///< a hip whose two slopes differ, where a project or a title tells it from a plain one
  kGambrel = 13,
};

/// The members of a roof that one rafter record can stand for.
enum class Member : int {
  kCommon = 0,          ///< gable, dual slope, blind valley jack, main common of a Dutch or bastard hip
  kHip = 1,             ///< hip of a roof with equal slopes
  kValley = 2,          ///< valley of a roof with equal slopes
  kShed = 3,            ///< shed rafter: butts a whole ridge board
  kOctagonHip = 9,      ///< hip of an octagon
  kBayCommon = 10,      ///< common of a bay or of a Dutch hip
  kBayHip = 11,         ///< hip of a bay or of a Dutch hip
  kBayLedger = 12,      ///< ledger rafter of a bay
  kCenterLedger = 13,   ///< center ledger of a bay or of a Dutch hip
  kLongValley = 14,     ///< long valley of an unequal span valley
  kShortValley = 15,    ///< short valley of an unequal span valley
  kBastardHip = 16,     ///< hip between two different slopes
  kHipEndCommon = 17,   ///< common of the hip end of a bastard hip roof
  kOctagonJack = 18,    ///< longest jack of an octagon
  kGambrelBottom = 19,  ///< lower rafter of a gambrel
  kGambrelTop = 20,     ///< upper rafter of a gambrel
};

/// True for the members that run in a valley.
constexpr bool IsValley(Member member) {
  return member == Member::kValley || member == Member::kLongValley || member == Member::kShortValley;
}

/// How a rafter's tail meets the fascia.
enum class FasciaCut { kPlumb, kSquare, kLevel };

/// What carries the upper rafters of a gambrel at the break.
enum class GambrelSupport { kPurlins, kWall, kRaisedWall };

/// What the jacks of a hip are set out from.
enum class JackLayout {
  kCenter,        ///< on center, from the commons at the peak outward
  kCorners,       ///< on center, the first jack's middle at the wall corner
  kCornersFlush,  ///< the first jack's side flush with the wall corner
};

}  // namespace pitchcraft
