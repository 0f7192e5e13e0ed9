#include "roofs/switch_roof.h"

#include "design/questions.h"
#include "roofs/gambrel.h"
#include "roofs/hip_menus.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

void ResetMenus(Design& design) {
  Menus& menus = design.menus;
  ShowHipLayoutMenus(menus, false);
  ShowOverhangsEqualMenus(menus, false);
  menus.Separator[18].Visible = false;
  menus.PopUp1JackMeasurement.Visible = false;
  const bool dutch = design.RoofType == Roof::kDutchHip;
  menus.Dutch.Visible = dutch;
  for (MenuItem& item : menus.DutchLedger) item.Enabled = dutch;
  design.sheet.Ledger.Visible = dutch;
  design.sheet.LedgerLabel.Visible = dutch;
  const bool gambrel = design.RoofType == Roof::kGambrel;
  menus.Gambrel.Visible = gambrel;
  menus.SettingsLevelCut.Visible = gambrel;
}

void ResetRows(Design& design, const RoofType& type) {
  Sheet& sheet = design.sheet;
  for (const std::size_t row : {0, 2}) {
    sheet.Slope[row].Locked = false;
    sheet.Degrees[row].Locked = false;
  }
  const bool bay = design.RoofType == Roof::kBay;
  sheet.DimensionStrip.Visible = bay;
  sheet.DimensionStrip.Height = bay ? 420 : 0;
  type.LayOut(design);
  const RoofRows& rows = type.About().Rows;
  ShowSlopeRow(design, 0);
  if (rows.rearPage) ShowSlopeRow(design, 1);
  if (rows.HasSecondSlope()) ShowSlopeRow(design, 2);
}

/// Hints that serve every roof type which has no other.
constexpr RoofHint kHints[] = {
    {"FtSpan", "Enter the run of the COMMON rafter (do not subtract for the ridge board)"},
    {"FtOverhang", "Enter the COMMON rafter overhang (do not include the fascia thickness)"},
    {"FtHeel", "Enter the COMMON rafter heel height (must be locked)"},
    {"FtSeat", "Enter the COMMON rafter seat cut dimension (must be locked)"},
    {"FtKneewall", "Enter the distance from the outside wall to the face of the kneewall."},
    {"FtRidge(0)", "Enter the THEORETICAL ridge length."},
    {"FtRidge(1)", "Enter the ACTUAL ridge length."},
    {"LWFascia", "Enter the fascia board size or select from the dropdown list"},
    {"LWRafter", "Enter the COMMON rafter size or select from the dropdown list"},
    {"LWRidge", "Enter the ridge board size or select from the dropdown list"},
    {"LWHipVal", "Enter the hip/valley rafter size or select from the dropdown list"},
    {"LWSlope", "Enter the slope of the COMMON rafter or select from the dropdown list"},
    {"chkHeel", "Lock the current heel dimension (overrides the default calculation)"},
    {"chkSeat", "Lock the current seat cut dimension (overrides the default calculation)"},
    {"chkKneewall", "Check to calculate birdsmouth for kneewall."},
    {"Spin", "Right click on field to change increment."},
    {"Picture1", "Right click on the drawing to display popup menu."},
    {"Picture3", "Right click on the drawing to display popup menu."},
};

const char* FirstFit(std::span<const RoofHint> hints, std::string_view control) {
  const std::string_view base = control.substr(0, control.find('('));
  for (const RoofHint& hint : hints) {
    if (hint.Field == control || hint.Field == base) return hint.Text;
  }
  return nullptr;
}

}  // namespace

void ArrangeRoof(Design& design, Reply& reply, const RoofType& type) {
  LeaveGambrel(design);
  design.RoofType = type.About().Code;
  design.sheet.Tabs[0].Page = 0;
  IndexTab& roofs = design.sheet.Tabs[1];
  roofs.OnePageOnly = !type.About().Rows.rearPage;
  if (roofs.OnePageOnly) roofs.Page = 0;
  ResetMenus(design);
  ResetRows(design, type);
  type.SetUp(design, reply);
}

void SwitchRoof(Design& design, Reply& reply, const RoofType& type) {
  if (!OnDesignPage(design)) TurnPage(design, reply, 0);
  ArrangeRoof(design, reply, type);
  type.Start(design, reply, false);
}

void TurnPage(Design& design, Reply& reply, int page) {
  design.sheet.Tabs[0].Page = page;
  RoofOf(design).TurnPage(design, reply, page);
}

const char* HintOf(const Design& design, std::string_view control) {
  const char* text = FirstFit(RoofOf(design).Hints(design), control);
  if (text == nullptr) text = FirstFit(kHints, control);
  return text == nullptr ? "" : text;
}

}  // namespace pitchcraft
