#include "document/project_reader.h"

#include "core/number_text.h"
#include "document/commands.h"
#include "document/fields.h"
#include "document/slopes.h"
#include "document/units.h"
#include "roofs/bay.h"
#include "roofs/roof_types.h"
#include "roofs/switch_roof.h"

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
  design_.Loading = true;
  const std::span<const ProjectKey> keys = ProjectKeys();
  std::size_t next = 0;
  for (; keys[next].Step != ProjectStep::kRafterType; ++next) {
    ReadKey(keys[next], ValueOf(keys[next]));
  }
  const std::string roofText = ValueOf(keys[next]);
  if (roofText.empty()) return "Error reading file, can't load rafter";
  if (!PickRoof(roofText)) return "Not a valid roof type.";
  const bool bay = code_ == Roof::kBay;
  const std::span<const ProjectKey> values = keys.subspan(next + 1);
  if (bay) {
    for (const ProjectKey& key : values) {
      if (key.Step == ProjectStep::kBay) ReadKey(key, ValueOf(key));
    }
    BayDimensionEntered(design_, reply_);
  }
  for (const ProjectKey& key : values) {
    const bool done = bay && key.Step == ProjectStep::kBay;
    if (key.Read.Has(code_) && !done) ReadKey(key, ValueOf(key));
  }
  TakeLocks();
  PutBackTwice();
  // A file that calls its hip a plain one has one slope, whatever stands in the other key.
  if (code_ == Roof::kHip) design_.Rafter1.HipEndSlope = design_.Rafter1.Slope;
  RoofOf(design_).Start(design_, reply_, true);
  if (design_.RoofType == Roof::kHip) reply_.GiveFocus(design_.sheet.Span[0]);
  return nullptr;
}

// Steps that ran meanwhile calculated with a part of the values, and a calculation lowers a heel or a
// fascia that does not fit: what they may have changed is put back before the roof is calculated.
void ProjectReader::PutBackTwice() {
  for (const ProjectKey& key : ProjectKeys()) {
    const bool twice = key.Step == ProjectStep::kPutBackTwice && key.Read.Has(code_);
    if (twice) key.PutBack(design_, ValueOf(key));
  }
}

bool ProjectReader::PickRoof(const std::string& text) {
  const double number = LeadingNumber(text);
  if (!(number >= 0 && number <= static_cast<int>(Roof::kGambrel))) return false;
  int code = static_cast<int>(number);
  if (code != number) return false;
  if (code == kBayToo) code = static_cast<int>(Roof::kBay);
  code_ = static_cast<Roof>(code);
  const RoofType* type = RoofTypeByCode(code_);
  if (type == nullptr) return false;
  design_.sheet.RoofList.SetListIndex(ListIndexOfRoof(code_));
  SwitchRoof(design_, reply_, *type);
  return true;
}

void ProjectReader::ReadKey(const ProjectKey& key, const std::string& text) {
  switch (key.Step) {
    case ProjectStep::kPutBack:
    case ProjectStep::kPutBackTwice:
    case ProjectStep::kBay: return key.PutBack(design_, text);
    case ProjectStep::kUnits: return SwitchUnits(document_, reply_, LeadingNumber(text) == 1);
    case ProjectStep::kSlopeMode:
      SetSlopeMode(design_, LeadingNumber(text) == 1);
      if (design_.InDegrees) DegreesPicked(design_, reply_, 0);
      return;
    case ProjectStep::kRafterType: return;  // picked by its reader, since it can be refused
    case ProjectStep::kSquareCut:
      if (Holds(text, "True")) ChooseFasciaCut(design_, reply_, static_cast<int>(FasciaCut::kSquare));
      if (Holds(text, "False")) ChooseFasciaCut(design_, reply_, static_cast<int>(FasciaCut::kPlumb));
      return;
    case ProjectStep::kPlumbCut:
      if (Holds(text, "True")) ChooseFasciaCut(design_, reply_, static_cast<int>(FasciaCut::kPlumb));
      return;
    case ProjectStep::kLevelCut:
      if (Holds(text, "True")) ChooseFasciaCut(design_, reply_, static_cast<int>(FasciaCut::kLevel));
      return;
    case ProjectStep::kKneewall: return ReadKneewall(key, text, 0);
    case ProjectStep::kRearKneewall: return ReadKneewall(key, text, 1);
    // How jacks are laid out is a matter of the session: a project begins with the plain choices.
    case ProjectStep::kHipLayout: design_.Layout = JackLayout::kCenter; return;
    case ProjectStep::kOverhangsEqual:
      design_.OverhangsEqual = false;
      design_.Rafter1.OverhangsEqual = false;
      return;
    case ProjectStep::kJackMeasurement: design_.JacksWithOverhang = false; return;
    case ProjectStep::kSpacing: key.PutBack(design_, text); return SpacingEntered(design_, reply_, 0);
    case ProjectStep::kGambrelType:
      return ChooseGambrel(
          design_, reply_,
          static_cast<int>(Holds(text, "Regular") ? GambrelKind::kRegular : GambrelKind::kCustom));
    case ProjectStep::kSupport: return ReadSupport(text);
  }
}

// Both kneewalls are under the one box of the front row, and the rear one, which is read last, decides
// about it.
void ProjectReader::ReadKneewall(const ProjectKey& key, const std::string& text, std::size_t row) {
  key.PutBack(design_, text);
  Sheet& sheet = design_.sheet;
  const double value = (row == 0 ? design_.Rafter1 : design_.Rafter2).Kneewall;
  sheet.Kneewall[row].SetValue(value);
  sheet.HasKneewall[0].Value = value > 0 ? 1 : 0;
  Reply unheard;  // opening moves no focus
  TakeTick(unheard, sheet.HasKneewall[0], sheet.Kneewall[0], sheet.Label[0]);
}

void ProjectReader::ReadSupport(const std::string& text) {
  const auto choose = [this](GambrelSupport support) {
    ChooseSupport(design_, reply_, static_cast<int>(support));
  };
  if (Holds(text, "Purlins")) return choose(GambrelSupport::kPurlins);
  if (Holds(text, "Wall Supported Raised")) return choose(GambrelSupport::kRaisedWall);
  if (Holds(text, "Wall Supported")) choose(GambrelSupport::kWall);
}

// A box that is ticked in the file is clicked; where both are, the seat has the last word. The menu then
// speaks of the front row, whose page shows.
void ProjectReader::TakeLocks() {
  Reply locking;  // opening moves no focus
  for (int index = 0; index < 2; ++index) {
    const auto row = static_cast<std::size_t>(index);
    const bool seat = design_.sheet.SeatLock[row].Ticked();
    if (design_.sheet.HeelLock[row].Ticked()) HeelLockClicked(design_, locking, index);
    if (seat) {
      design_.sheet.SeatLock[row].Value = 1;
      SeatLockClicked(design_, locking, index);
    }
  }
  for (const Reply::Message& message : locking.Messages) reply_.Messages.push_back(message);
  design_.LockRow = 0;
}

}  // namespace pitchcraft
