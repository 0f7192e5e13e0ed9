#include "document/project_reader.h"

#include "core/number_text.h"

namespace pitchcraft {
namespace {

// An old code of the bay.
constexpr int kBayToo = 6;

bool Holds(const std::string& text, const char* word) { return text.find(word) != std::string::npos; }

}  // namespace

std::string ProjectReader::ValueOf(const ProjectKey& key) const {
  return file_.Value(kProjectSection, key.Key).value_or(key.Default);
}

const char* ProjectReader::Read() {
  const std::span<const ProjectKey> keys = ProjectKeys();
  std::size_t next = 0;
  for (; keys[next].Step != ProjectStep::kRafterType; ++next) {
    ReadKey(keys[next], ValueOf(keys[next]));
  }
  const std::string roofText = ValueOf(keys[next]);
  if (roofText.empty()) return "Error reading file, can't load rafter";
  if (!PickRoof(roofText)) return "Not a valid roof type.";
  const std::span<const ProjectKey> values = keys.subspan(next + 1);
  if (document_.RoofType == roof::kBay) {
    for (const ProjectKey& key : values) {
      if (key.Step == ProjectStep::kBay) ReadKey(key, ValueOf(key));
    }
    document_.CalculateBayDimensions();
  }
  for (const ProjectKey& key : values) {
    const bool done = document_.RoofType == roof::kBay && key.Step == ProjectStep::kBay;
    if (key.Read.Has(document_.RoofType) && !done) ReadKey(key, ValueOf(key));
  }
  TakeLocks();
  PutBackTwice();
  document_.CalculateRoof(true);
  FinishRoof();
  return nullptr;
}

// Handlers that ran meanwhile calculated with a part of the values, and a calculation lowers a heel or a
// fascia that does not fit: what they may have changed is put back before the roof is calculated.
void ProjectReader::PutBackTwice() {
  for (const ProjectKey& key : ProjectKeys()) {
    const bool twice = key.Step == ProjectStep::kPutBackTwice && key.Read.Has(document_.RoofType);
    if (twice) key.PutBack(document_.Project(), ValueOf(key));
  }
}

bool ProjectReader::PickRoof(const std::string& text) {
  const double number = LeadingNumber(text);
  if (!(number >= 0 && number <= roof::kGambrel)) return false;
  int code = static_cast<int>(number);
  if (code != number) return false;
  if (code == kBayToo) code = roof::kBay;
  const int row = ListIndexOfRoof(code);
  if (row < 0) return false;
  document_.sheet.RoofList.SetListIndex(row);
  document_.cboType_Click();
  document_.RoofType = code;
  if (code == roof::kHip) document_.Focus(document_.sheet.Span[0]);
  return true;
}

void ProjectReader::ReadKey(const ProjectKey& key, const std::string& text) {
  switch (key.Step) {
    case ProjectStep::kPutBack:
    case ProjectStep::kPutBackTwice:
    case ProjectStep::kBay: return key.PutBack(document_.Project(), text);
    case ProjectStep::kUnits: return document_.SwitchUnits(LeadingNumber(text) == 1);
    case ProjectStep::kSlopeMode:
      if (LeadingNumber(text) != 1) return document_.mnuSettingsRiseOverRun_Click();
      document_.mnuSettingsDegrees_Click();
      return document_.cboDegrees_Click(0);
    case ProjectStep::kRafterType: return;  // picked by its reader, since it can be refused
    case ProjectStep::kSquareCut:
      if (Holds(text, "True")) document_.mnuSettingsSquareCut_Click();
      if (Holds(text, "False")) document_.mnuSettingsPlumbCut_Click();
      return;
    case ProjectStep::kPlumbCut:
      if (Holds(text, "True")) document_.mnuSettingsPlumbCut_Click();
      return;
    case ProjectStep::kLevelCut:
      if (Holds(text, "True")) document_.mnuSettingsLevelCut_Click();
      return;
    case ProjectStep::kKneewall: return ReadKneewall(key, text, 0);
    case ProjectStep::kRearKneewall: return ReadKneewall(key, text, 1);
    // How jacks are laid out is a matter of the session: a project begins with the plain choices.
    case ProjectStep::kHipLayout: return document_.ShowHipLayoutChecks(0);
    case ProjectStep::kOverhangsEqual:
      document_.menus.HipLayoutOverhangsEqual.Checked = document_.menus.PopUp1OverhangsEqual.Checked = false;
      document_.Rafter1.OverhangsEqual = false;
      return;
    case ProjectStep::kJackMeasurement:
      document_.menus.HipLayoutJackMeasurement.Checked = document_.menus.PopUp1JackMeasurement.Checked =
          false;
      return;
    case ProjectStep::kSpacing: key.PutBack(document_.Project(), text); return document_.cboSpacing_Click();
    case ProjectStep::kGambrelType:
      return Holds(text, "Regular") ? document_.mnuGambrelRegular_Click()
                                    : document_.mnuGambrelCustom_Click();
    case ProjectStep::kSupport: return ReadGambrelSupport(text);
  }
}

// Both kneewalls stand under the one box of the front row, and the rear one, which is read last, decides
// about it.
void ProjectReader::ReadKneewall(const ProjectKey& key, const std::string& text, std::size_t row) {
  key.PutBack(document_.Project(), text);
  const double value = (row == 0 ? document_.Rafter1 : document_.Rafter2).Kneewall;
  document_.sheet.Kneewall[row].SetValue(value);
  document_.sheet.HasKneewall[0].Value = value > 0 ? 1 : 0;
  const std::string focus = document_.FocusRequest;
  document_.TakeTick(document_.sheet.HasKneewall[0], document_.sheet.Kneewall[0], document_.sheet.Label[0]);
  document_.FocusRequest = focus;
}

void ProjectReader::ReadGambrelSupport(const std::string& text) {
  if (Holds(text, "Purlins")) return document_.mnuGambrelPurlins_Click();
  if (Holds(text, "Wall Supported Raised")) return document_.mnuGambrelWallSupportRaised_Click();
  if (Holds(text, "Wall Supported")) document_.mnuGambrelWallSupport_Click();
}

// A box that is ticked in the file is clicked; where both are, the seat has the last word. The menu then
// tells of the front row, whose page shows.
void ProjectReader::TakeLocks() {
  const std::string focus = document_.FocusRequest;
  for (std::size_t row = 0; row < 2; ++row) {
    const bool seat = document_.sheet.SeatLock[row].Ticked();
    if (document_.sheet.HeelLock[row].Ticked()) document_.chkHeel_Click(static_cast<int>(row));
    if (seat) {
      document_.sheet.SeatLock[row].Value = 1;
      document_.chkSeat_Click(static_cast<int>(row));
    }
  }
  document_.menus.SettingsHeelLocked.Checked = document_.sheet.HeelLock[0].Ticked();
  document_.menus.SettingsSeatLocked.Checked = document_.sheet.SeatLock[0].Ticked();
  document_.FocusRequest = focus;
}

// What the roof shows beside its calculation.
void ProjectReader::FinishRoof() {
  switch (document_.RoofType) {
    case roof::kHip:
      if (document_.IsBastardByRafter()) {
        document_.ShowOverhangsEqualMenus(true);
        document_.sheet.Slope[2].SetValues(document_.Rafter1.HipEndSlope, document_.UnitRun);
        document_.sheet.LastCommon.SetValue((document_.Rafter1.Slope / document_.Rafter1.HipEndSlope) *
                                                document_.Rafter1.Span -
                                            document_.Rafter1.HipEndOverhangExcess);
        document_.Draw(Drawing::kHipPlan, document_.Rafter1);
      } else {
        document_.sheet.Slope[2].CopyPositionFrom(document_.sheet.Slope[0]);
      }
      return document_.Focus(document_.sheet.Span[0]);
    case roof::kBay:
      document_.Rafter1.CalculateBay();
      document_.BayEditMode = 1;
      return;
    case roof::kBlindValley:
      document_.FillBlindValleyRidges();
      return document_.Draw(Drawing::kBlindValley, document_.Rafter1);
    case roof::kGambrel:
      // Its results do not touch the lumber fields, which show what was typed.
      document_.sheet.Common[0].SetValues(document_.Rafter1.Thickness, document_.Rafter1.Depth);
      document_.sheet.Ridge.SetValues(document_.Rafter1.RidgeThickness, document_.Rafter1.RidgeDepth);
      document_.sheet.Fascia[0].SetValues(document_.Rafter1.FasciaThickness, document_.Rafter1.FasciaHeight);
      return;
    default: return;
  }
}

}  // namespace pitchcraft
