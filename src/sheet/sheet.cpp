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
  Register(&cboType, "cboType");
  const auto page = [&](std::size_t i) {
    indexed(LWSlope, i, "LWSlope");
    indexed(cboDegrees, i, "cboDegrees");
    if (i == 0) {
      Register(&chkUpperSlope, "chkUpperSlope");
      indexed(LWSlope, 2, "LWSlope");
      indexed(cboDegrees, 2, "cboDegrees");
      Register(&chkLowerSlope, "chkLowerSlope");
    }
    indexed(FtSpan, i, "FtSpan");
    indexed(Spin, i == 0 ? 0 : 5, "Spin");
    if (i == 0) {
      indexed(FtSpan, 2, "FtSpan");
      indexed(Spin, 2, "Spin");
      Register(&chkUpperSpan, "chkUpperSpan");
      indexed(FtRidge, 0, "FtRidge");
      indexed(Spin, 3, "Spin");
      Register(&chkUpperHeight, "chkUpperHeight");
      indexed(FtRidge, 1, "FtRidge");
      indexed(Spin, 4, "Spin");
      indexed(Spin, 7, "Spin");
      Register(&chkLowerHeight, "chkLowerHeight");
    }
    indexed(FtOverhang, i, "FtOverhang");
    indexed(Spin, i == 0 ? 1 : 6, "Spin");
    indexed(FtHeel, i, "FtHeel");
    indexed(chkHeel, i, "chkHeel");
    indexed(FtSeat, i, "FtSeat");
    indexed(chkSeat, i, "chkSeat");
    indexed(LWFascia, i, "LWFascia");
    if (i == 0) Register(&LWRidge, "LWRidge");
    indexed(LWRafter, i, "LWRafter");
    if (i == 0) Register(&LWHipVal, "LWHipVal");
    indexed(FtKneewall, i, "FtKneewall");
    indexed(chkKneewall, i, "chkKneewall");
    if (i == 0) {
      Register(&FtLastCommon, "FtLastCommon");
      Register(&chkLastCommon, "chkLastCommon");
    }
  };
  page(0);
  page(1);
  Register(&txtUpperFascia, "txtUpperFascia");
  Register(&FTUpperFascia, "FTUpperFascia");
  Register(&txtLedger, "txtLedger");
  Register(&cboLedger, "cboLedger");
  Register(&txtSpacing, "txtSpacing");
  Register(&cboSpacing, "cboSpacing");
  Register(&Toolbar1, "Toolbar1");
  Register(&FtProjection, "FtProjection");
  Register(&FtFace, "FtFace");
  Register(&FtBack, "FtBack");
  Register(&FtBayAngle, "FtBayAngle");
  Register(&Command1, "Command1");
  for (std::size_t i = 0; i < Label.size(); ++i) indexed(Label, i, "Label");
  indexed(VSElastic, 1, "VSElastic");
  indexed(VSElastic, 2, "VSElastic");
}

void Sheet::PlaceControls() {
  const auto rowOf = [this](std::size_t i, Host host) {
    Place(LWSlope[i], host, kSlopeTop, kFieldLeft, kPairWidth);
    Place(cboDegrees[i], host, kSlopeTop, kFieldLeft, kFieldWidth);
    Place(FtSpan[i], host, kSpanTop, kFieldLeft, kFieldWidth);
    if (i == 2) return;
    Place(FtOverhang[i], host, kOverhangTop, kFieldLeft, kFieldWidth);
    Place(FtHeel[i], host, kHeelTop, kFieldLeft, kFieldWidth);
    Place(chkHeel[i], host, kHeelTop, kLockLeft, kBoxSide);
    Place(FtSeat[i], host, kSeatTop, kFieldLeft, kFieldWidth);
    Place(chkSeat[i], host, kSeatTop, kLockLeft, kBoxSide);
    Place(LWFascia[i], host, kFasciaTop, kFieldLeft, kPairWidth);
    Place(LWRafter[i], host, kRafterTop, kFieldLeft, kPairWidth);
    Place(FtKneewall[i], host, kKneewallTop, kFieldLeft, kFieldWidth);
    Place(chkKneewall[i], host, kKneewallTop, kLockLeft, kBoxSide);
  };
  rowOf(0, Host::kFrontPage);
  rowOf(1, Host::kRearPage);
  rowOf(2, Host::kFrontPage);
  Place(cboType, Host::kSheet, 60, kFieldLeft, kPairWidth);
  Place(LWRidge, Host::kFrontPage, kRidgeTop, kFieldLeft, kPairWidth);
  Place(LWHipVal, Host::kFrontPage, kHipValTop, kFieldLeft, kPairWidth);
  Place(FtRidge[0], Host::kFrontPage, kHeelTop, kFieldLeft, kFieldWidth);
  Place(FtRidge[1], Host::kFrontPage, kSeatTop, kFieldLeft, kFieldWidth);
  Place(FtLastCommon, Host::kFrontPage, kLastCommonTop, kFieldLeft, kFieldWidth);
  Place(chkLastCommon, Host::kFrontPage, kLastCommonTop, kLockLeft, kBoxSide);
  for (SpinControl& spin : Spin) Place(spin, Host::kFrontPage, kSpanTop, kSpinLeft, kSpinWidth);
  Place(Spin[1], Host::kFrontPage, kOverhangTop, kSpinLeft, kSpinWidth);
  Place(Spin[5], Host::kRearPage, kSpanTop, kSpinLeft, kSpinWidth);
  Place(Spin[6], Host::kRearPage, kOverhangTop, kSpinLeft, kSpinWidth);
  // The lock boxes of a gambrel, each in the row of what it locks.
  Place(chkUpperSlope, Host::kFrontPage, kSlopeTop, kPairLockLeft, kBoxSide);
  Place(chkLowerSlope, Host::kFrontPage, 860, kPairLockLeft, kBoxSide);
  Place(chkUpperSpan, Host::kFrontPage, 1200, kPairLockLeft, kBoxSide);
  Place(chkUpperHeight, Host::kFrontPage, 1920, kPairLockLeft, kBoxSide);
  Place(chkLowerHeight, Host::kFrontPage, 2280, kPairLockLeft, kBoxSide);

  const auto strip = [](auto& control, Host host, int width) { Place(control, host, 60, 0, width); };
  strip(txtUpperFascia, Host::kTabStrip, 1200);
  strip(FTUpperFascia, Host::kTabStrip, 1200);
  strip(txtLedger, Host::kTabStrip, 900);
  strip(cboLedger, Host::kTabStrip, 1600);
  strip(txtSpacing, Host::kTabStrip, 1150);
  strip(cboSpacing, Host::kTabStrip, 1100);
  Place(Toolbar1, Host::kNone, 420, 0, 0);
  strip(FtProjection, Host::kBayStrip, 1200);
  strip(FtFace, Host::kBayStrip, 1200);
  strip(FtBack, Host::kBayStrip, 1200);
  strip(FtBayAngle, Host::kBayStrip, 900);
  strip(Command1, Host::kBayStrip, 800);

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
  Place(VSElastic[1], Host::kNone, 420, 0, 0);
  Place(VSElastic[2], Host::kNone, 0, 0, 0);
  for (ContainerControl* box : {&Toolbar1, &VSElastic[1], &VSElastic[2]}) box->Height = 0;
  Toolbar1.Visible = false;
}

void Sheet::FillConstants() {
  Label[15].Caption = "Fascia:";
  Label[19].Caption = "Roof:";
  Label[23].Caption = "Last Common:";
  txtUpperFascia.Caption = "Upper Fascia:";
  txtSpacing.Caption = "O.C. Spacing:";
  txtLedger.Caption = "Dutch Hip:";
  Command1.Caption = "&Reset";
  VSTab[1].SetCaption("Front Roof|Rear Roof");
  VSTab[1].OnePageOnly = true;

  cboType.DropDownList = true;
  cboType.ToolTip = "Select a rafter or roof type";
  cboLedger.DropDownList = true;
  cboLedger.SetList({"Use Ledger", "Don't use Ledger"});
  FTUpperFascia.ToolTip = "Enter the upper fascia height or select from the dropdown list.";
  cboSpacing.ToolTip = "Enter the rafter spacing or select a value from the drop down list.";
  for (CheckControl& box : chkHeel) box.ToolTip = "Lock or unlock the heel height dimension";
  for (CheckControl& box : chkSeat) box.ToolTip = "Lock or unlock the seat cut dimension";
  for (FtInText& field : FtKneewall) {
    field.ToolTip = "Enter the distance from the outside wall to the face of the knewall.";
  }
  for (CheckControl& box : chkKneewall) box.ToolTip = "Check here to include kneewall calculations.";
  FtLastCommon.ToolTip =
      "Enter the distance from the corner to the center of the last main roof common rafter.";
  chkLastCommon.ToolTip =
      "Check here to layout the main roof jack rafters from the center of the last common rafter.";
  for (SpinControl& spin : Spin) spin.ToolTip = "Right click on the field to change the increment";
  for (LabelControl* box : {&txtUpperFascia, &txtSpacing, &txtLedger}) box->Visible = false;
  for (ComboControl* box : {&FTUpperFascia, &cboSpacing, &cboLedger}) box->Visible = false;
  // A slope is a plain number in both boxes, never a length; so is an angle.
  for (LWCombo& slope : LWSlope) slope.Format.Units = kPlainNumber;
  FtBayAngle.Format.Units = kPlainNumber;
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
  if (&control == &FtProjection) return "Projection";
  if (&control == &FtFace) return "Face";
  if (&control == &FtBack) return "Back";
  if (&control == &FtBayAngle) return "Angle";
  if (&control == &cboSpacing) return withoutColon(txtSpacing.Caption);
  if (&control == &cboLedger) return withoutColon(txtLedger.Caption);
  if (&control == &FTUpperFascia) return withoutColon(txtUpperFascia.Caption);
  for (const LabelControl& label : Label) {
    const bool beside =
        label.Host == control.Host && std::abs(label.Top - kLabelDrop - control.Top) <= kLabelDrop;
    if (beside && label.Visible && !label.Caption.empty()) return withoutColon(label.Caption);
  }
  return control.ToolTip.empty() ? control.Name : control.ToolTip;
}

}  // namespace pitchcraft
