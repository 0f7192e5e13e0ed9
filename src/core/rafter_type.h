// The members of a roof that one rafter record can stand for.
#pragma once

namespace pitchcraft {

/// The member that a Rafter stands for. The numbers are part of the product: they stand in dumps and
/// projects.
enum class RafterType : int {
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

/// True for the members that run in a valley: 2, 14 and 15.
constexpr bool IsValley(RafterType type) {
  return type == RafterType::kValley || type == RafterType::kLongValley || type == RafterType::kShortValley;
}

}  // namespace pitchcraft
