// What reading the keys of a project does, one after the other.
#include "core/number_text.h"
#include "document/frm_document.h"

namespace pitchcraft {
namespace {

// An old code of the bay.
constexpr int kBayToo = 6;

bool Holds(const std::string& text, const char* word) { return text.find(word) != std::string::npos; }

}  // namespace

bool frmDocument::PickProjectRoof(const std::string& text) {
  const double number = LeadingNumber(text);
  if (!(number >= 0 && number <= roof::kGambrel)) return false;
  int code = static_cast<int>(number);
  if (code != number) return false;
  if (code == kBayToo) code = roof::kBay;
  const int row = ListIndexOfRoof(code);
  if (row < 0) return false;
  sheet.cboType.SetListIndex(row);
  cboType_Click();
  RoofType = code;
  if (code == roof::kHip) Focus(sheet.FtSpan[0]);
  return true;
}

void frmDocument::ReadProjectKey(const ProjectKey& key, const std::string& text) {
  switch (key.Step) {
    case ProjectStep::kPutBack:
    case ProjectStep::kPutBackTwice:
    case ProjectStep::kBay: return key.PutBack(Project(), text);
    case ProjectStep::kUnits: return SwitchUnits(LeadingNumber(text) == 1);
    case ProjectStep::kSlopeMode:
      if (LeadingNumber(text) != 1) return mnuSettingsRiseOverRun_Click();
      mnuSettingsDegrees_Click();
      return cboDegrees_Click(0);
    case ProjectStep::kRafterType: return;  // picked by its reader, since it can be refused
    case ProjectStep::kSquareCut:
      if (Holds(text, "True")) mnuSettingsSquareCut_Click();
      if (Holds(text, "False")) mnuSettingsPlumbCut_Click();
      return;
    case ProjectStep::kPlumbCut:
      if (Holds(text, "True")) mnuSettingsPlumbCut_Click();
      return;
    case ProjectStep::kLevelCut:
      if (Holds(text, "True")) mnuSettingsLevelCut_Click();
      return;
    case ProjectStep::kKneewall: return ReadKneewall(key, text, 0);
    case ProjectStep::kRearKneewall: return ReadKneewall(key, text, 1);
    // How jacks are laid out is a matter of the session: a project begins with the plain choices.
    case ProjectStep::kHipLayout: return ShowHipLayoutChecks(0);
    case ProjectStep::kOverhangsEqual:
      menus.mnuHipLayoutOverhangsEqual.Checked = menus.mnuPopUp1OverhangsEqual.Checked = false;
      Rafter1.OverhangsEqual = false;
      return;
    case ProjectStep::kJackMeasurement:
      menus.mnuHipLayoutJackMeasurement.Checked = menus.mnuPopUp1JackMeasurement.Checked = false;
      return;
    case ProjectStep::kSpacing: key.PutBack(Project(), text); return cboSpacing_Click();
    case ProjectStep::kGambrelType:
      return Holds(text, "Regular") ? mnuGambrelRegular_Click() : mnuGambrelCustom_Click();
    case ProjectStep::kSupport: return ReadGambrelSupport(text);
  }
}

// Both kneewalls stand under the one box of the front row, and the rear one, which is read last, decides
// about it.
void frmDocument::ReadKneewall(const ProjectKey& key, const std::string& text, std::size_t row) {
  key.PutBack(Project(), text);
  const double value = (row == 0 ? Rafter1 : Rafter2).Kneewall;
  sheet.FtKneewall[row].SetValue(value);
  sheet.chkKneewall[0].Value = value > 0 ? 1 : 0;
  const std::string focus = FocusRequest;
  TakeTick(sheet.chkKneewall[0], sheet.FtKneewall[0], sheet.Label[0]);
  FocusRequest = focus;
}

void frmDocument::ReadGambrelSupport(const std::string& text) {
  if (Holds(text, "Purlins")) return mnuGambrelPurlins_Click();
  if (Holds(text, "Wall Supported Raised")) return mnuGambrelWallSupportRaised_Click();
  if (Holds(text, "Wall Supported")) mnuGambrelWallSupport_Click();
}

// A box that is ticked in the file is clicked; where both are, the seat has the last word. The menu then
// tells of the front row, whose page shows.
void frmDocument::TakeProjectLocks() {
  const std::string focus = FocusRequest;
  for (std::size_t row = 0; row < 2; ++row) {
    const bool seat = sheet.chkSeat[row].Ticked();
    if (sheet.chkHeel[row].Ticked()) chkHeel_Click(static_cast<int>(row));
    if (seat) {
      sheet.chkSeat[row].Value = 1;
      chkSeat_Click(static_cast<int>(row));
    }
  }
  menus.mnuSettingsHeelLocked.Checked = sheet.chkHeel[0].Ticked();
  menus.mnuSettingsSeatLocked.Checked = sheet.chkSeat[0].Ticked();
  FocusRequest = focus;
}

// What the roof shows beside its calculation.
void frmDocument::FinishProjectRoof() {
  switch (RoofType) {
    case roof::kHip:
      if (IsBastardByRafter()) {
        ShowOverhangsEqualMenus(true);
        sheet.LWSlope[2].SetValues(Rafter1.HipEndSlope, UnitRun);
        sheet.FtLastCommon.SetValue((Rafter1.Slope / Rafter1.HipEndSlope) * Rafter1.Span -
                                    Rafter1.HipEndOverhangExcess);
        Draw(Drawing::kHipPlan, Rafter1);
      } else {
        sheet.LWSlope[2].CopyPositionFrom(sheet.LWSlope[0]);
      }
      return Focus(sheet.FtSpan[0]);
    case roof::kBay:
      Rafter1.CalculateBay();
      BayEditMode = 1;
      return;
    case roof::kBlindValley: FillBlindValleyRidges(); return Draw(Drawing::kBlindValley, Rafter1);
    case roof::kGambrel:
      // Its results do not touch the lumber fields, which show what was typed.
      sheet.LWRafter[0].SetValues(Rafter1.Thickness, Rafter1.Depth);
      sheet.LWRidge.SetValues(Rafter1.RidgeThickness, Rafter1.RidgeDepth);
      sheet.LWFascia[0].SetValues(Rafter1.FasciaThickness, Rafter1.FasciaHeight);
      return;
    default: return;
  }
}

}  // namespace pitchcraft
