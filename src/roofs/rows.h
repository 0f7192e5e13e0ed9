// The rows of the sheet as a roof type wants them: where they are, what they are called, which are hidden.
#pragma once

#include <cstddef>
#include <span>

#include "sheet/sheet.h"

namespace pitchcraft {

inline constexpr int kHiddenRow = -1;

/// Tops of the fields in twips; kHiddenRow where the roof type has no such row. Rows are 360 apart above the
/// lumber and 330 apart in it.
struct RowTops {
  int slope2, span0, span2, ridge0, ridge1, overhang, heel, seat;
  int fascia, ridge, rafter, hipVal;
  // Labels 11 to 14 and 15 to 18 come in two runs; these are the tops of 11, 12 and 15. 20 is the extra
  // row's.
  int label11, label12, label15, label20;
  // Spin buttons 0, 1, 2, 3, 4 and 7 beside their fields.
  int spin0, spin1, spin2, spin3, spin4, spin7;
};

// Roof types that share a layout: a bay lacks the run row and moves up by one, roofs with an extra row move
// down by one.
extern const RowTops kGableTops;
extern const RowTops kDutchTops;

/// What a roof type calls a row where it departs from the usual caption.
struct RowCaption {
  std::size_t label;
  const char* caption;
};

struct RoofRows {
  const RowTops& tops;
  std::span<const RowCaption> captions = {};
  int kneewalls = 0;       ///< rows with a kneewall, from the front
  bool hipLumber = false;  ///< the size of hip, valley or plate is entered
  bool hipLumberIsNamed = true;
  bool rearPage = false;
  bool lastCommon = false;

  bool HasSecondSlope() const { return tops.slope2 != kHiddenRow; }
};

/// Lays the sheet out: tops, captions, what shows. Which of slope and degrees shows in a row, the menus and
/// the values are the steps'.
void LayOutRows(Sheet& sheet, const RoofRows& rows);

}  // namespace pitchcraft
