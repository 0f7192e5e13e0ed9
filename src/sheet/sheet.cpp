#include "sheet/sheet.h"

#include <cstdlib>

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

struct ControlRow {
  AnyControl (*of)(Sheet&);
  std::string_view name;
};

template <auto Control>
AnyControl One(Sheet& sheet) {
  return &(sheet.*Control);
}
template <auto Array, std::size_t Index>
AnyControl OneOf(Sheet& sheet) {
  return &(sheet.*Array)[Index];
}

// In the order of the eye, which is that of Tab, too: down the front page, down the rear page, then the
// strips.
// clang-format off
constexpr ControlRow kControls[] = {
    {One<&Sheet::RoofList>, "cboType"},
    {OneOf<&Sheet::Slope, 0>, "LWSlope(0)"},
    {OneOf<&Sheet::Degrees, 0>, "cboDegrees(0)"},
    {One<&Sheet::UpperSlopeLock>, "chkUpperSlope"},
    {OneOf<&Sheet::Slope, 2>, "LWSlope(2)"},
    {OneOf<&Sheet::Degrees, 2>, "cboDegrees(2)"},
    {One<&Sheet::LowerSlopeLock>, "chkLowerSlope"},
    {OneOf<&Sheet::Span, 0>, "FtSpan(0)"},
    {OneOf<&Sheet::Spin, 0>, "Spin(0)"},
    {OneOf<&Sheet::Span, 2>, "FtSpan(2)"},
    {OneOf<&Sheet::Spin, 2>, "Spin(2)"},
    {One<&Sheet::UpperSpanLock>, "chkUpperSpan"},
    {OneOf<&Sheet::RidgeLength, 0>, "FtRidge(0)"},
    {OneOf<&Sheet::Spin, 3>, "Spin(3)"},
    {One<&Sheet::UpperHeightLock>, "chkUpperHeight"},
    {OneOf<&Sheet::RidgeLength, 1>, "FtRidge(1)"},
    {OneOf<&Sheet::Spin, 4>, "Spin(4)"},
    {OneOf<&Sheet::Spin, 7>, "Spin(7)"},
    {One<&Sheet::LowerHeightLock>, "chkLowerHeight"},
    {OneOf<&Sheet::Overhang, 0>, "FtOverhang(0)"},
    {OneOf<&Sheet::Spin, 1>, "Spin(1)"},
    {OneOf<&Sheet::Heel, 0>, "FtHeel(0)"},
    {OneOf<&Sheet::HeelLock, 0>, "chkHeel(0)"},
    {OneOf<&Sheet::Seat, 0>, "FtSeat(0)"},
    {OneOf<&Sheet::SeatLock, 0>, "chkSeat(0)"},
    {OneOf<&Sheet::Fascia, 0>, "LWFascia(0)"},
    {One<&Sheet::Ridge>, "LWRidge"},
    {OneOf<&Sheet::Common, 0>, "LWRafter(0)"},
    {One<&Sheet::HipOrValley>, "LWHipVal"},
    {OneOf<&Sheet::Kneewall, 0>, "FtKneewall(0)"},
    {OneOf<&Sheet::HasKneewall, 0>, "chkKneewall(0)"},
    {One<&Sheet::LastCommon>, "FtLastCommon"},
    {One<&Sheet::HasLastCommon>, "chkLastCommon"},
    {OneOf<&Sheet::Slope, 1>, "LWSlope(1)"},
    {OneOf<&Sheet::Degrees, 1>, "cboDegrees(1)"},
    {OneOf<&Sheet::Span, 1>, "FtSpan(1)"},
    {OneOf<&Sheet::Spin, 5>, "Spin(5)"},
    {OneOf<&Sheet::Overhang, 1>, "FtOverhang(1)"},
    {OneOf<&Sheet::Spin, 6>, "Spin(6)"},
    {OneOf<&Sheet::Heel, 1>, "FtHeel(1)"},
    {OneOf<&Sheet::HeelLock, 1>, "chkHeel(1)"},
    {OneOf<&Sheet::Seat, 1>, "FtSeat(1)"},
    {OneOf<&Sheet::SeatLock, 1>, "chkSeat(1)"},
    {OneOf<&Sheet::Fascia, 1>, "LWFascia(1)"},
    {OneOf<&Sheet::Common, 1>, "LWRafter(1)"},
    {OneOf<&Sheet::Kneewall, 1>, "FtKneewall(1)"},
    {OneOf<&Sheet::HasKneewall, 1>, "chkKneewall(1)"},
    {One<&Sheet::UpperFasciaLabel>, "txtUpperFascia"},
    {One<&Sheet::UpperFascia>, "FTUpperFascia"},
    {One<&Sheet::LedgerLabel>, "txtLedger"},
    {One<&Sheet::Ledger>, "cboLedger"},
    {One<&Sheet::SpacingLabel>, "txtSpacing"},
    {One<&Sheet::Spacing>, "cboSpacing"},
    {One<&Sheet::DimensionStrip>, "Toolbar1"},
    {One<&Sheet::Projection>, "FtProjection"},
    {One<&Sheet::Face>, "FtFace"},
    {One<&Sheet::Back>, "FtBack"},
    {One<&Sheet::BayAngle>, "FtBayAngle"},
    {One<&Sheet::ResetBay>, "Command1"},
    {OneOf<&Sheet::Label, 0>, "Label(0)"},
    {OneOf<&Sheet::Label, 1>, "Label(1)"},
    {OneOf<&Sheet::Label, 2>, "Label(2)"},
    {OneOf<&Sheet::Label, 3>, "Label(3)"},
    {OneOf<&Sheet::Label, 4>, "Label(4)"},
    {OneOf<&Sheet::Label, 5>, "Label(5)"},
    {OneOf<&Sheet::Label, 6>, "Label(6)"},
    {OneOf<&Sheet::Label, 7>, "Label(7)"},
    {OneOf<&Sheet::Label, 8>, "Label(8)"},
    {OneOf<&Sheet::Label, 9>, "Label(9)"},
    {OneOf<&Sheet::Label, 10>, "Label(10)"},
    {OneOf<&Sheet::Label, 11>, "Label(11)"},
    {OneOf<&Sheet::Label, 12>, "Label(12)"},
    {OneOf<&Sheet::Label, 13>, "Label(13)"},
    {OneOf<&Sheet::Label, 14>, "Label(14)"},
    {OneOf<&Sheet::Label, 15>, "Label(15)"},
    {OneOf<&Sheet::Label, 16>, "Label(16)"},
    {OneOf<&Sheet::Label, 17>, "Label(17)"},
    {OneOf<&Sheet::Label, 18>, "Label(18)"},
    {OneOf<&Sheet::Label, 19>, "Label(19)"},
    {OneOf<&Sheet::Label, 20>, "Label(20)"},
    {OneOf<&Sheet::Label, 21>, "Label(21)"},
    {OneOf<&Sheet::Label, 22>, "Label(22)"},
    {OneOf<&Sheet::Label, 23>, "Label(23)"},
    {OneOf<&Sheet::Frames, 1>, "VSElastic(1)"},
    {OneOf<&Sheet::Frames, 2>, "VSElastic(2)"},
};
// clang-format on

}  // namespace

Control& ControlOf(const AnyControl& any) {
  return std::visit([](auto* control) -> Control& { return *control; }, any);
}

Sheet::Sheet() {
  for (const ControlRow& row : kControls) ControlOf(row.of(*this)).Name = row.name;
  PlaceControls();
  FillConstants();
}

std::vector<AnyControl> Sheet::Controls() {
  std::vector<AnyControl> controls;
  controls.reserve(std::size(kControls));
  for (const ControlRow& row : kControls) controls.push_back(row.of(*this));
  return controls;
}

// A row only finds its control; with a constant sheet nobody writes to what it gives.
std::vector<AnyControl> Sheet::Controls() const { return const_cast<Sheet*>(this)->Controls(); }

std::optional<AnyControl> Sheet::Find(std::string_view name) {
  for (const ControlRow& row : kControls) {
    if (row.name == name) return row.of(*this);
  }
  return std::nullopt;
}

std::optional<AnyControl> Sheet::Find(std::string_view name) const {
  return const_cast<Sheet*>(this)->Find(name);
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
