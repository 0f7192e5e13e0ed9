#include "document/actions.h"

#include <charconv>

#include "core/number_text.h"
#include "design/questions.h"
#include "document/calculate.h"
#include "document/commands.h"
#include "document/fields.h"
#include "document/menu_actions.h"
#include "document/pages.h"
#include "document/slopes.h"

namespace pitchcraft {

/// What happens on one event of a control: the step, and the title of the message where it fails.
struct ControlEvent {
  const char* title = nullptr;
  Step step = nullptr;
};

namespace {

/// What the events of a control run; the index of a control array is handed on.
struct ControlRow {
  std::string_view control;  // the name before the index
  ControlEvent leave = {};
  ControlEvent enter = {};
  ControlEvent edit = {};
  ControlEvent click = {};
};

constexpr ControlEvent kFascia{"LWFascia_Commit", &FasciaEntered};
constexpr ControlEvent kCommon{"LWRafter_Commit", &CommonEntered};
constexpr ControlEvent kRidge{"LWRidge_Commit", &RidgeEntered};
constexpr ControlEvent kHipOrValley{"LWHipVal_Commit", &HipOrValleyEntered};
constexpr ControlEvent kOverhang{"FtOverhang_Commit", &OverhangEntered};
constexpr ControlEvent kHeel{"FtHeel_Commit", &HeelEntered};
constexpr ControlEvent kSeat{"FtSeat_Commit", &SeatEntered};
constexpr ControlEvent kKneewall{"FtKneewall_Commit", &KneewallEntered};
constexpr ControlEvent kRidgeLength{"FtRidge_Commit", &RidgeLengthEntered};
constexpr ControlEvent kSpacing{"cboSpacing_Click", &SpacingEntered};
constexpr ControlEvent kUpperFascia{"FTUpperFascia_Click", &UpperFasciaChosen};
constexpr ControlEvent kDegrees{"cboDegrees_Click", &DegreesPicked};
constexpr ControlEvent kBayField{"CalculateBayDimensions", &BayFieldEntered};
constexpr ControlEvent kNothing{};

template <int Which>
void ClickLock(Design& design, Reply& reply, int) {
  ClickGambrelLock(design, reply, Which);
}

constexpr ControlEvent Click(const char* title, Step step) { return {title, step}; }

constexpr ControlRow kControls[] = {
    // control, when it is left, on Enter, while typing, when it is picked or clicked
    {"cboType", kNothing, kNothing, kNothing, Click("cboType_Click", &RoofPicked)},
    {"LWSlope",
     {"LWSlope_Commit", &SlopeLeft},
     {"LWSlope_KeyPress", &SlopeConfirmed},
     kNothing,
     Click("LWSlope_Click", &SlopePicked)},
    {"cboDegrees", {"cboDegrees_LostFocus", &DegreesLeft}, kDegrees, kNothing, kDegrees},
    {"FtSpan", {"FtSpan_Commit", &SpanEntered}, {"FtSpan_Commit", &SpanConfirmed}},
    {"FtOverhang", kOverhang, kOverhang},
    {"FtHeel", kHeel, kHeel, {"FtHeel_Edit", &HeelEdited}},
    {"FtSeat", kSeat, kSeat, {"FtSeat_Edit", &SeatEdited}},
    {"FtKneewall", kKneewall, kKneewall},
    {"FtRidge", kRidgeLength, kRidgeLength},
    {"FtLastCommon",
     {"FtLastCommon_Commit", &LastCommonEntered},
     {"FtLastCommon_Commit", &LastCommonConfirmed}},
    {"LWFascia", kFascia, kFascia, kNothing, kFascia},
    {"LWRafter", kCommon, kCommon, kNothing, kCommon},
    {"LWRidge", kRidge, kRidge, kNothing, kRidge},
    {"LWHipVal", kHipOrValley, kHipOrValley, kNothing, kHipOrValley},
    {"cboSpacing", kSpacing, kSpacing, kNothing, kSpacing},
    {"FTUpperFascia", kUpperFascia, kUpperFascia, kNothing, kUpperFascia},
    {"cboLedger", kNothing, kNothing, kNothing, Click("mnuDutchLedger_Click", &LedgerPicked)},
    {"FtProjection", kBayField, kBayField},
    {"FtFace", kBayField, kBayField},
    {"FtBack", kBayField, kBayField},
    {"FtBayAngle", kBayField, kBayField},
    {"Command1", kNothing, kNothing, kNothing, Click("Command1_Click", &BayReset)},
    {"chkHeel", kNothing, kNothing, kNothing, Click("chkHeel_Click", &HeelLockClicked)},
    {"chkSeat", kNothing, kNothing, kNothing, Click("chkSeat_Click", &SeatLockClicked)},
    {"chkKneewall", kNothing, kNothing, kNothing, Click("chkKneewall_Click", &KneewallClicked)},
    {"chkLastCommon", kNothing, kNothing, kNothing, Click("chkLastCommon_Click", &LastCommonClicked)},
    {"chkUpperSlope", kNothing, kNothing, kNothing, Click("chkUpperSlope_Click", &ClickLock<0>)},
    {"chkLowerSlope", kNothing, kNothing, kNothing, Click("chkLowerSlope_Click", &ClickLock<1>)},
    {"chkUpperSpan", kNothing, kNothing, kNothing, Click("chkUpperSpan_Click", &ClickLock<2>)},
    {"chkUpperHeight", kNothing, kNothing, kNothing, Click("chkUpperHeight_Click", &ClickLock<3>)},
    {"chkLowerHeight", kNothing, kNothing, kNothing, Click("chkLowerHeight_Click", &ClickLock<4>)},
};

/// A control's name cut at its index: "Span(2)" is Span and 2.
struct IndexedName {
  std::string_view base;
  int index = 0;
};
IndexedName Cut(std::string_view name) {
  IndexedName cut{name, 0};
  const std::size_t bracket = name.find('(');
  if (bracket == std::string_view::npos) return cut;
  cut.base = name.substr(0, bracket);
  std::from_chars(name.data() + bracket + 1, name.data() + name.size(), cut.index);
  return cut;
}

const ControlRow* EventsOf(std::string_view base) {
  for (const ControlRow& row : kControls) {
    if (row.control == base) return &row;
  }
  return nullptr;
}

Refusal Refuse(std::string_view name, const char* why) { return std::string(name) + " " + why; }

// Puts a text into whatever takes one. False for a control without a text of its own.
struct PutText {
  std::string_view text;

  bool operator()(MeasureControl* field) const {
    if (!field->ReadOnly) field->SetEntry(text);
    return true;
  }
  bool operator()(PairControl* field) const {
    if (field->Locked) return true;
    const std::size_t bar = text.find('|');
    const bool both = bar != std::string_view::npos;
    const std::string right = both ? std::string(Trimmed(text.substr(bar + 1))) : field->RightText();
    field->SetEntry(both ? Trimmed(text.substr(0, bar)) : text, right);
    return true;
  }
  bool operator()(ComboControl* combo) const {
    if (combo->DropDownList) return false;
    if (!combo->Locked) combo->SetText(text);
    return true;
  }
  template <typename Other>
  bool operator()(Other*) const {
    return false;
  }
};

// A field that is left, or whose entry is confirmed, shows its value in its own form.
void Redisplay(const AnyControl& control) {
  if (auto* const* field = std::get_if<MeasureControl*>(&control)) (*field)->Redisplay();
  if (auto* const* pair = std::get_if<PairControl*>(&control)) (*pair)->Redisplay();
}

}  // namespace

void Actions::Run(const ControlEvent& event, int index) {
  if (event.step != nullptr) document_.Act(event.title, event.step, index);
}

Refusal Actions::Reach(std::string_view name, std::optional<AnyControl>& control) const {
  control = document_.design.sheet.Find(name);
  if (!control) return "there is no control named " + std::string(name);
  const Control& common = ControlOf(*control);
  if (!common.Visible) return Refuse(name, "is hidden");
  if (!common.Enabled) return Refuse(name, "is disabled");
  if (common.Host == Host::kBayStrip && !document_.design.sheet.DimensionStrip.Visible)
    return Refuse(name, "is hidden");
  return std::nullopt;
}

Refusal Actions::PutIn(std::string_view name, std::string_view text, Way way) {
  std::optional<AnyControl> control;
  if (Refusal refusal = Reach(name, control)) return refusal;
  const IndexedName cut = Cut(name);
  const ControlRow* events = EventsOf(cut.base);
  if (events == nullptr || !std::visit(PutText{text}, *control)) return Refuse(name, "takes no text");
  const ControlEvent& finish = way == Way::kStay    ? kNothing
                               : way == Way::kEnter ? events->enter
                                                    : events->leave;
  // A slope reads a percentage from the text as it was typed, so its own step brings it into form.
  const bool slope = cut.base == "LWSlope";
  if (way == Way::kStay && events->edit.step == nullptr) return std::nullopt;
  const auto step = [&](Design& design, Reply& reply) {
    if (events->edit.step != nullptr) events->edit.step(design, reply, cut.index);
    if (way == Way::kStay) return;
    if (!slope) Redisplay(*control);
    if (finish.step != nullptr) finish.step(design, reply, cut.index);
    if (slope) Redisplay(*control);
  };
  document_.Act(finish.title != nullptr ? finish.title : events->edit.title, step);
  TellWhatWaits(document_, name);
  return std::nullopt;
}

Refusal Actions::Type(std::string_view name, std::string_view text) { return PutIn(name, text, Way::kLeave); }

Refusal Actions::Enter(std::string_view name, std::string_view text) {
  return PutIn(name, text, Way::kEnter);
}

Refusal Actions::Edit(std::string_view name, std::string_view text) { return PutIn(name, text, Way::kStay); }

Refusal Actions::Pick(std::string_view name, std::string_view item) {
  std::optional<AnyControl> control;
  if (Refusal refusal = Reach(name, control)) return refusal;
  int row = -1;
  bool locked = false;
  if (auto* const* combo = std::get_if<ComboControl*>(&*control)) {
    row = (*combo)->RowOf(item);
    locked = (*combo)->Locked;
    if (row >= 0 && !locked) (*combo)->SetListIndex(row);
  } else if (auto* const* pair = std::get_if<PairControl*>(&*control)) {
    row = (*pair)->RowOf(item);
    locked = (*pair)->Locked;
    if (row >= 0 && !locked) (*pair)->SetListIndex(row);
  } else {
    return Refuse(name, "has no list");
  }
  if (row < 0) return Refuse(name, "has no such row");
  const IndexedName cut = Cut(name);
  const ControlRow* events = EventsOf(cut.base);
  if (events != nullptr && !locked) Run(events->click, cut.index);
  return std::nullopt;
}

Refusal Actions::Check(std::string_view name, bool on) {
  std::optional<AnyControl> control;
  if (Refusal refusal = Reach(name, control)) return refusal;
  auto* const* box = std::get_if<CheckControl*>(&*control);
  if (box == nullptr) return Refuse(name, "is no check box");
  if ((*box)->Ticked() == on) return std::nullopt;
  (*box)->Value = on ? 1 : 0;
  const IndexedName cut = Cut(name);
  const ControlRow* events = EventsOf(cut.base);
  if (events != nullptr) Run(events->click, cut.index);
  return std::nullopt;
}

Refusal Actions::ReachMenu(const MenuItem& item) const {
  if (!item.Visible) return Refuse(item.Name, "is hidden");
  if (!item.Enabled) return Refuse(item.Name, "is disabled");
  if (const MenuItem* holder = document_.design.menus.HolderOf(item)) {
    const bool popup = document_.design.menus.IsPopup(*holder);
    if (!popup && !holder->Visible) return Refuse(item.Name, "stands in a menu that is hidden");
  }
  return std::nullopt;
}

Refusal Actions::Click(std::string_view name) {
  if (MenuItem* item = document_.design.menus.Find(name)) {
    if (Refusal refusal = ReachMenu(*item)) return refusal;
    if (!ClickMenu(document_, *item)) return Refuse(name, "does nothing by itself");
    return std::nullopt;
  }
  std::optional<AnyControl> control;
  if (Refusal refusal = Reach(name, control)) return refusal;
  if (!std::holds_alternative<ButtonControl*>(*control)) return Refuse(name, "is no button and no menu item");
  const IndexedName cut = Cut(name);
  const ControlRow* events = EventsOf(cut.base);
  if (events != nullptr) Run(events->click, cut.index);
  return std::nullopt;
}

Refusal Actions::Press(std::string_view key) {
  const ToolButton* button = document_.design.toolBar.Find(key);
  if (button == nullptr) return Refuse(key, "is no button of the tool bar");
  if (!button->Visible) return Refuse(key, "is hidden");
  if (!document_.window.ToolBar) return Refuse(key, "stands on a tool bar that is hidden");
  if (!IsToolButtonEnabled(document_, *button)) return Refuse(key, "is disabled");
  PressToolButton(document_, key);
  return std::nullopt;
}

Refusal Actions::Spin(std::string_view name, bool up) {
  std::optional<AnyControl> control;
  if (Refusal refusal = Reach(name, control)) return refusal;
  if (!std::holds_alternative<SpinControl*>(*control)) return Refuse(name, "is no spin button");
  const Preferences& preferences = document_.preferences;
  const double step = document_.design.Metric ? preferences.MetricIncrement : preferences.Increment;
  const int index = Cut(name).index;
  document_.Act("Spin_Step",
                [&](Design& design, Reply& reply) { StepSpin(design, reply, index, up ? step : -step); });
  return std::nullopt;
}

Refusal Actions::Page(std::string_view name, int page) {
  const IndexedName cut = Cut(name);
  if (cut.base != "VSTab" || cut.index < 0 || cut.index > 1) return Refuse(name, "is no index tab");
  const IndexTab& tab = document_.design.sheet.Tabs[static_cast<std::size_t>(cut.index)];
  const int last = tab.OnePageOnly ? 0 : tab.PageCount() - 1;
  if (page < 0 || page > last) return Refuse(name, "has no such page");
  ShowPage(document_, cut.index, page);
  return std::nullopt;
}

Refusal Actions::Hover(std::string_view name) {
  const bool known = document_.design.menus.Find(name) != nullptr ||
                     document_.design.sheet.Find(name).has_value() || name == "Picture1" ||
                     name == "Picture3" || document_.design.toolBar.Find(name) != nullptr;
  if (!known) return Refuse(name, "is nothing to point at");
  ShowHint(document_, name);
  return std::nullopt;
}

Refusal Actions::Calculate() {
  document_.Act("CalculateRoof", &CalculateNow);
  return std::nullopt;
}

}  // namespace pitchcraft
