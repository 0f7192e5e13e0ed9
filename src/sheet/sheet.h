// The design sheet: every control by its name, as plain state.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "sheet/combo.h"
#include "sheet/control.h"
#include "sheet/ft_in_text.h"
#include "sheet/lw_combo.h"
#include "sheet/tabs.h"

namespace pitchcraft {

/// A control of the sheet whatever its kind.
using AnyControl = std::variant<FtInText*, LWCombo*, ComboControl*, CheckControl*, LabelControl*,
                                ButtonControl*, SpinControl*, ContainerControl*>;

/// The common part of any control.
Control& ControlOf(const AnyControl& any);

/// The sheet. Index 0 of an array is the front or only roof, 1 the rear roof, 2 the extra field of the front
/// page. No row is ever made or destroyed: rows are moved, renamed, shown and hidden (row_layouts.h).
class Sheet {
 public:
  Sheet();
  Sheet(const Sheet&) = delete;
  Sheet& operator=(const Sheet&) = delete;

  ComboControl cboType;
  std::array<LWCombo, 3> LWSlope;
  std::array<ComboControl, 3> cboDegrees;  ///< the same slopes as degrees; only one of the two shows in a row
  std::array<FtInText, 3> FtSpan;
  std::array<FtInText, 2> FtOverhang;
  std::array<FtInText, 2> FtHeel;
  std::array<CheckControl, 2> chkHeel;
  std::array<FtInText, 2> FtSeat;
  std::array<CheckControl, 2> chkSeat;
  std::array<FtInText, 2> FtRidge;  ///< ridge lengths of a blind valley, heights of a gambrel
  std::array<FtInText, 2> FtKneewall;
  std::array<CheckControl, 2> chkKneewall;
  FtInText FtLastCommon;
  CheckControl chkLastCommon;
  std::array<LWCombo, 2> LWFascia;
  LWCombo LWRidge;
  std::array<LWCombo, 2> LWRafter;
  LWCombo LWHipVal;
  std::array<SpinControl, 8> Spin;
  ComboControl FTUpperFascia;
  LabelControl txtUpperFascia;
  ComboControl cboSpacing;
  LabelControl txtSpacing;
  ComboControl cboLedger;
  LabelControl txtLedger;
  std::array<LabelControl, 24> Label;
  CheckControl chkUpperSlope, chkLowerSlope, chkUpperSpan, chkUpperHeight, chkLowerHeight;
  ContainerControl Toolbar1;  ///< the strip with the four dimensions of a bay
  FtInText FtProjection, FtFace, FtBack, FtBayAngle;
  ButtonControl Command1;
  std::array<ContainerControl, 3> VSElastic;  ///< 1 lies under the two tool strips, 2 bounds Picture3
  std::array<IndexTab, 2> VSTab;              ///< 0: the pages of the roof type; 1: front and rear roof

  /// Every control in the order of the eye: down the front page, down the rear page, then the strips. It is
  /// the order of Tab, too.
  const std::vector<AnyControl>& Controls() const { return controls_; }
  /// The control of that name, written as `FtSpan(0)` or `LWRidge`; null when there is none.
  const AnyControl* Find(std::string_view name) const;
  /// The caption of the label that stands beside a field, without its colon; its tool tip where there is no
  /// label.
  std::string AccessibleNameOf(const Control& control) const;

  /// Runs `action` on every FtInText of the sheet, then on every LWCombo.
  template <typename Action>
  void ForEachMeasure(Action action) {
    for (const AnyControl& any : controls_) {
      if (auto* const* field = std::get_if<FtInText*>(&any)) action(**field);
      if (auto* const* pair = std::get_if<LWCombo*>(&any)) action(**pair);
    }
  }

 private:
  void Register(AnyControl any, std::string name);
  void NameControls();
  void PlaceControls();
  void FillConstants();

  std::vector<AnyControl> controls_;
  std::unordered_map<std::string, std::size_t> indexByName_;
};

}  // namespace pitchcraft
