#include "sheet/sheet.h"

#include <cstdlib>
#include <utility>

namespace pitchcraft {
namespace {

// Columns of the sheet, in twips.
constexpr int kLabelLeft = 30;
constexpr int kLabelWidth = 1215;
constexpr int kFieldLeft = 1290;
constexpr int kFieldWidth = 1500;
constexpr int kSpinLeft = 2805;
constexpr int kSpinWidth = 240;
constexpr int kLockLeft = 2820;
constexpr int kPairWidth = 2250;
constexpr int kPairLockLeft = 3600;
constexpr int kBoxSide = 255;

// A label stands this much lower than its field, so that both texts share a baseline.
constexpr int kLabelDrop = 30;

// Tops of the rows that do not move: the rear page is laid out like a gable and stays so.
constexpr int kSlopeTop = 480;
constexpr int kSpanTop = 840;
constexpr int kOverhangTop = 1200;
constexpr int kHeelTop = 1560;
constexpr int kSeatTop = 1920;
constexpr int kFasciaTop = 2400;
constexpr int kRidgeTop = 2730;
constexpr int kRafterTop = 3060;
constexpr int kHipValTop = 3390;
constexpr int kKneewallTop = 3540;
constexpr int kLastCommonTop = 4170;

template <typename ControlType>
void Place(ControlType& control, Host host, int top, int left, int width) {
  control.Host = host;
  control.Top = top;
  control.Left = left;
  control.Width = width;
}

}  // namespace

Control& ControlOf(const AnyControl& any) {
  return std::visit([](auto* control) -> Control& { return *control; }, any);
}

Sheet::Sheet() {
  NameControls();
  PlaceControls();
  FillConstants();
}

void Sheet::Register(AnyControl any, std::string name) {
  indexByName_.emplace(name, controls_.size());
  ControlOf(any).Name = std::move(name);
  controls_.push_back(any);
}

void Sheet::NameControls() {
  const auto indexed = [this](auto& array, std::size_t index, const char* name) {
    Register(&array[index], std::string(name) + "(" + std::to_string(index) + ")");
  };
  Register(&RoofList, "cboType");
  const auto page = [&](std::size_t i) {
    indexed(Slope, i, "LWSlope");
    indexed(Degrees, i, "cboDegrees");
    if (i == 0) {
      Register(&UpperSlopeLock, "chkUpperSlope");
      indexed(Slope, 2, "LWSlope");
      indexed(Degrees, 2, "cboDegrees");
      Register(&LowerSlopeLock, "chkLowerSlope");
    }
    indexed(Span, i, "FtSpan");
    indexed(Spin, i == 0 ? 0 : 5, "Spin");
    if (i == 0) {
      indexed(Span, 2, "FtSpan");
      indexed(Spin, 2, "Spin");
      Register(&UpperSpanLock, "chkUpperSpan");
      indexed(RidgeLength, 0, "FtRidge");
      indexed(Spin, 3, "Spin");
      Register(&UpperHeightLock, "chkUpperHeight");
      indexed(RidgeLength, 1, "FtRidge");
      indexed(Spin, 4, "Spin");
      indexed(Spin, 7, "Spin");
      Register(&LowerHeightLock, "chkLowerHeight");
    }
    indexed(Overhang, i, "FtOverhang");
    indexed(Spin, i == 0 ? 1 : 6, "Spin");
    indexed(Heel, i, "FtHeel");
    indexed(HeelLock, i, "chkHeel");
    indexed(Seat, i, "FtSeat");
    indexed(SeatLock, i, "chkSeat");
    indexed(Fascia, i, "LWFascia");
    if (i == 0) Register(&Ridge, "LWRidge");
    indexed(Common, i, "LWRafter");
    if (i == 0) Register(&HipOrValley, "LWHipVal");
    indexed(Kneewall, i, "FtKneewall");
    indexed(HasKneewall, i, "chkKneewall");
    if (i == 0) {
      Register(&LastCommon, "FtLastCommon");
      Register(&HasLastCommon, "chkLastCommon");
    }
  };
  page(0);
  page(1);
  Register(&UpperFasciaLabel, "txtUpperFascia");
  Register(&UpperFascia, "FTUpperFascia");
  Register(&LedgerLabel, "txtLedger");
  Register(&Ledger, "cboLedger");
  Register(&SpacingLabel, "txtSpacing");
  Register(&Spacing, "cboSpacing");
  Register(&DimensionStrip, "Toolbar1");
  Register(&Projection, "FtProjection");
  Register(&Face, "FtFace");
  Register(&Back, "FtBack");
  Register(&BayAngle, "FtBayAngle");
  Register(&ResetBay, "Command1");
  for (std::size_t i = 0; i < Label.size(); ++i) indexed(Label, i, "Label");
  indexed(Frames, 1, "VSElastic");
  indexed(Frames, 2, "VSElastic");
}

void Sheet::PlaceControls() {
  const auto rowOf = [this](std::size_t i, Host host) {
    Place(Slope[i], host, kSlopeTop, kFieldLeft, kPairWidth);
    Place(Degrees[i], host, kSlopeTop, kFieldLeft, kFieldWidth);
    Place(Span[i], host, kSpanTop, kFieldLeft, kFieldWidth);
    if (i == 2) return;
    Place(Overhang[i], host, kOverhangTop, kFieldLeft, kFieldWidth);
    Place(Heel[i], host, kHeelTop, kFieldLeft, kFieldWidth);
    Place(HeelLock[i], host, kHeelTop, kLockLeft, kBoxSide);
    Place(Seat[i], host, kSeatTop, kFieldLeft, kFieldWidth);
    Place(SeatLock[i], host, kSeatTop, kLockLeft, kBoxSide);
    Place(Fascia[i], host, kFasciaTop, kFieldLeft, kPairWidth);
    Place(Common[i], host, kRafterTop, kFieldLeft, kPairWidth);
    Place(Kneewall[i], host, kKneewallTop, kFieldLeft, kFieldWidth);
    Place(HasKneewall[i], host, kKneewallTop, kLockLeft, kBoxSide);
  };
  rowOf(0, Host::kFrontPage);
  rowOf(1, Host::kRearPage);
  rowOf(2, Host::kFrontPage);
  Place(RoofList, Host::kSheet, 60, kFieldLeft, kPairWidth);
  Place(Ridge, Host::kFrontPage, kRidgeTop, kFieldLeft, kPairWidth);
  Place(HipOrValley, Host::kFrontPage, kHipValTop, kFieldLeft, kPairWidth);
  Place(RidgeLength[0], Host::kFrontPage, kHeelTop, kFieldLeft, kFieldWidth);
  Place(RidgeLength[1], Host::kFrontPage, kSeatTop, kFieldLeft, kFieldWidth);
  Place(LastCommon, Host::kFrontPage, kLastCommonTop, kFieldLeft, kFieldWidth);
  Place(HasLastCommon, Host::kFrontPage, kLastCommonTop, kLockLeft, kBoxSide);
  for (SpinControl& spin : Spin) Place(spin, Host::kFrontPage, kSpanTop, kSpinLeft, kSpinWidth);
  Place(Spin[1], Host::kFrontPage, kOverhangTop, kSpinLeft, kSpinWidth);
  Place(Spin[5], Host::kRearPage, kSpanTop, kSpinLeft, kSpinWidth);
  Place(Spin[6], Host::kRearPage, kOverhangTop, kSpinLeft, kSpinWidth);
  // The lock boxes of a gambrel, each in the row of what it locks.
  Place(UpperSlopeLock, Host::kFrontPage, kSlopeTop, kPairLockLeft, kBoxSide);
  Place(LowerSlopeLock, Host::kFrontPage, 860, kPairLockLeft, kBoxSide);
  Place(UpperSpanLock, Host::kFrontPage, 1200, kPairLockLeft, kBoxSide);
  Place(UpperHeightLock, Host::kFrontPage, 1920, kPairLockLeft, kBoxSide);
  Place(LowerHeightLock, Host::kFrontPage, 2280, kPairLockLeft, kBoxSide);

  const auto strip = [](auto& control, Host host, int width) { Place(control, host, 60, 0, width); };
  strip(UpperFasciaLabel, Host::kTabStrip, 1200);
  strip(UpperFascia, Host::kTabStrip, 1200);
  strip(LedgerLabel, Host::kTabStrip, 900);
  strip(Ledger, Host::kTabStrip, 1600);
  strip(SpacingLabel, Host::kTabStrip, 1150);
  strip(Spacing, Host::kTabStrip, 1100);
  Place(DimensionStrip, Host::kNone, 420, 0, 0);
  strip(Projection, Host::kBayStrip, 1200);
  strip(Face, Host::kBayStrip, 1200);
  strip(Back, Host::kBayStrip, 1200);
  strip(BayAngle, Host::kBayStrip, 900);
  strip(ResetBay, Host::kBayStrip, 800);

  for (LabelControl& label : Label) Place(label, Host::kFrontPage, 0, kLabelLeft, kLabelWidth);
  struct RearLabel {
    std::size_t index;
    const char* caption;
    int fieldTop;
  };
  constexpr RearLabel kRearLabels[] = {{2, "Slope:", kSlopeTop},       {3, "Run:", kSpanTop},
                                       {4, "Overhang:", kOverhangTop}, {5, "Heel:", kHeelTop},
                                       {7, "Seat:", kSeatTop},         {8, "Fascia:", kFasciaTop},
                                       {9, "Common:", kRafterTop},     {1, "Kneewall:", kKneewallTop}};
  for (const RearLabel& row : kRearLabels) {
    Place(Label[row.index], Host::kRearPage, row.fieldTop + kLabelDrop, kLabelLeft, kLabelWidth);
    Label[row.index].Caption = row.caption;
  }
  Label[10].Top = kSlopeTop + kLabelDrop;
  Place(Label[19], Host::kSheet, 60 + kLabelDrop, kLabelLeft, kLabelWidth);
  Label[23].Top = kLastCommonTop + kLabelDrop;
  Place(Frames[1], Host::kNone, 420, 0, 0);
  Place(Frames[2], Host::kNone, 0, 0, 0);
  for (ContainerControl* box : {&DimensionStrip, &Frames[1], &Frames[2]}) box->Height = 0;
  DimensionStrip.Visible = false;
}

void Sheet::FillConstants() {
  Label[15].Caption = "Fascia:";
  Label[19].Caption = "Roof:";
  Label[23].Caption = "Last Common:";
  UpperFasciaLabel.Caption = "Upper Fascia:";
  SpacingLabel.Caption = "O.C. Spacing:";
  LedgerLabel.Caption = "Dutch Hip:";
  ResetBay.Caption = "&Reset";
  Tabs[1].SetCaption("Front Roof|Rear Roof");
  Tabs[1].OnePageOnly = true;

  RoofList.DropDownList = true;
  RoofList.ToolTip = "Select a rafter or roof type";
  Ledger.DropDownList = true;
  Ledger.SetList({"Use Ledger", "Don't use Ledger"});
  UpperFascia.ToolTip = "Enter the upper fascia height or select from the dropdown list.";
  Spacing.ToolTip = "Enter the rafter spacing or select a value from the drop down list.";
  for (CheckControl& box : HeelLock) box.ToolTip = "Lock or unlock the heel height dimension";
  for (CheckControl& box : SeatLock) box.ToolTip = "Lock or unlock the seat cut dimension";
  for (MeasureControl& field : Kneewall) {
    field.ToolTip = "Enter the distance from the outside wall to the face of the knewall.";
  }
  for (CheckControl& box : HasKneewall) box.ToolTip = "Check here to include kneewall calculations.";
  LastCommon.ToolTip =
      "Enter the distance from the corner to the center of the last main roof common rafter.";
  HasLastCommon.ToolTip =
      "Check here to layout the main roof jack rafters from the center of the last common rafter.";
  for (SpinControl& spin : Spin) spin.ToolTip = "Right click on the field to change the increment";
  for (LabelControl* box : {&UpperFasciaLabel, &SpacingLabel, &LedgerLabel}) box->Visible = false;
  for (ComboControl* box : {&UpperFascia, &Spacing, &Ledger}) box->Visible = false;
  // A slope is a plain number in both boxes, never a length; so is an angle.
  for (PairControl& slope : Slope) slope.Format.Units = kPlainNumber;
  BayAngle.Format.Units = kPlainNumber;
}

const AnyControl* Sheet::Find(std::string_view name) const {
  const auto found = indexByName_.find(std::string(name));
  return found == indexByName_.end() ? nullptr : &controls_[found->second];
}

std::string Sheet::AccessibleNameOf(const Control& control) const {
  const auto withoutColon = [](std::string caption) {
    if (!caption.empty() && caption.back() == ':') caption.pop_back();
    return caption;
  };
  if (&control == &Projection) return "Projection";
  if (&control == &Face) return "Face";
  if (&control == &Back) return "Back";
  if (&control == &BayAngle) return "Angle";
  if (&control == &Spacing) return withoutColon(SpacingLabel.Caption);
  if (&control == &Ledger) return withoutColon(LedgerLabel.Caption);
  if (&control == &UpperFascia) return withoutColon(UpperFasciaLabel.Caption);
  for (const LabelControl& label : Label) {
    const bool beside =
        label.Host == control.Host && std::abs(label.Top - kLabelDrop - control.Top) <= kLabelDrop;
    if (beside && label.Visible && !label.Caption.empty()) return withoutColon(label.Caption);
  }
  return control.ToolTip.empty() ? control.Name : control.ToolTip;
}

}  // namespace pitchcraft
