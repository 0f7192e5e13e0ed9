// The design sheet: every control by its name, as plain state.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "sheet/combo_control.h"
#include "sheet/control.h"
#include "sheet/measure_control.h"
#include "sheet/pair_control.h"
#include "sheet/tabs.h"

namespace pitchcraft {

/// A control of the sheet whatever its kind.
using AnyControl = std::variant<MeasureControl*, PairControl*, ComboControl*, CheckControl*, LabelControl*,
                                ButtonControl*, SpinControl*, ContainerControl*>;

/// The common part of any control.
Control& ControlOf(const AnyControl& any);

/// The sheet as a copyable value. Index 0 of an array is the front or only roof, 1 the rear roof, 2 the extra
/// field of the front page. No row is ever made or destroyed: rows are moved, renamed, shown and hidden
/// by the roof type.
class Sheet {
 public:
  Sheet();

  ComboControl RoofList;
  std::array<PairControl, 3> Slope;
  std::array<ComboControl, 3> Degrees;  ///< the same slopes as degrees; only one of the two shows in a row
  std::array<MeasureControl, 3> Span;
  std::array<MeasureControl, 2> Overhang;
  std::array<MeasureControl, 2> Heel;
  std::array<CheckControl, 2> HeelLock;
  std::array<MeasureControl, 2> Seat;
  std::array<CheckControl, 2> SeatLock;
  std::array<MeasureControl, 2> RidgeLength;  ///< ridge lengths of a blind valley, heights of a gambrel
  std::array<MeasureControl, 2> Kneewall;
  std::array<CheckControl, 2> HasKneewall;
  MeasureControl LastCommon;
  CheckControl HasLastCommon;
  std::array<PairControl, 2> Fascia;
  PairControl Ridge;
  std::array<PairControl, 2> Common;
  PairControl HipOrValley;
  std::array<SpinControl, 8> Spin;
  ComboControl UpperFascia;
  LabelControl UpperFasciaLabel;
  ComboControl Spacing;
  LabelControl SpacingLabel;
  ComboControl Ledger;
  LabelControl LedgerLabel;
  std::array<LabelControl, 24> Label;
  CheckControl UpperSlopeLock, LowerSlopeLock, UpperSpanLock, UpperHeightLock, LowerHeightLock;
  ContainerControl DimensionStrip;  ///< the strip with the four dimensions of a bay
  MeasureControl Projection, Face, Back, BayAngle;
  ButtonControl ResetBay;
  std::array<ContainerControl, 3> Frames;  ///< 1 lies under the two tool strips, 2 bounds Picture3
  std::array<IndexTab, 2> Tabs;            ///< 0: the pages of the roof type; 1: front and rear roof

  /// Every control in the order of the eye: down the front page, down the rear page, then the strips. It is
  /// the order of Tab, too.
  std::vector<AnyControl> Controls();
  std::vector<AnyControl> Controls() const;
  /// The control of that name, written as `FtSpan(0)` or `LWRidge`; nothing when there is none.
  std::optional<AnyControl> Find(std::string_view name);
  std::optional<AnyControl> Find(std::string_view name) const;
  /// The caption of the label that stands beside a field, without its colon; its tool tip where there is no
  /// label.
  std::string AccessibleNameOf(const Control& control) const;

  /// Runs `action` on every MeasureControl of the sheet, then on every PairControl.
  template <typename Action>
  void ForEachMeasure(Action action) {
    for (const AnyControl& any : Controls()) {
      if (auto* const* field = std::get_if<MeasureControl*>(&any)) action(**field);
      if (auto* const* pair = std::get_if<PairControl*>(&any)) action(**pair);
    }
  }

 private:
  void PlaceControls();
  void FillConstants();
};

}  // namespace pitchcraft
