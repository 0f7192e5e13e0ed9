#include "document/actions.h"

#include <charconv>

#include "core/number_text.h"

namespace pitchcraft {
namespace {

using Handler = void (Document::*)(int);

/// What the events of a control call; the index of a control array is handed on.
struct HandlerRow {
  std::string_view control;  // the name before the index
  Handler leave;
  Handler enter;
  Handler edit;
  Handler click;
};

using D = Document;
constexpr HandlerRow kHandlers[] = {
    // control          leaves                      Enter                    while typing     picks or clicks
    {"cboType", nullptr, nullptr, nullptr, &D::cboType_Click},
    {"LWSlope", &D::LWSlope_Commit, &D::LWSlope_Enter, nullptr, &D::LWSlope_Click},
    {"cboDegrees", &D::cboDegrees_LostFocus, &D::cboDegrees_Click, nullptr, &D::cboDegrees_Click},
    {"FtSpan", &D::FtSpan_Commit, &D::FtSpan_Enter, nullptr, nullptr},
    {"FtOverhang", &D::FtOverhang_Commit, &D::FtOverhang_Commit, nullptr, nullptr},
    {"FtHeel", &D::FtHeel_Commit, &D::FtHeel_Commit, &D::FtHeel_Edit, nullptr},
    {"FtSeat", &D::FtSeat_Commit, &D::FtSeat_Commit, &D::FtSeat_Edit, nullptr},
    {"FtKneewall", &D::FtKneewall_Commit, &D::FtKneewall_Commit, nullptr, nullptr},
    {"FtRidge", &D::FtRidge_Commit, &D::FtRidge_Commit, nullptr, nullptr},
    {"FtLastCommon", &D::FtLastCommon_Commit, &D::FtLastCommon_Enter, nullptr, nullptr},
    {"LWFascia", &D::LWFascia_Commit, &D::LWFascia_Commit, nullptr, &D::LWFascia_Commit},
    {"LWRafter", &D::LWRafter_Commit, &D::LWRafter_Commit, nullptr, &D::LWRafter_Commit},
    {"LWRidge", &D::LWRidge_Commit, &D::LWRidge_Commit, nullptr, &D::LWRidge_Commit},
    {"LWHipVal", &D::LWHipVal_Commit, &D::LWHipVal_Commit, nullptr, &D::LWHipVal_Commit},
    {"cboSpacing", &D::cboSpacing_Click, &D::cboSpacing_Click, nullptr, &D::cboSpacing_Click},
    {"FTUpperFascia", &D::FTUpperFascia_Click, &D::FTUpperFascia_Click, nullptr, &D::FTUpperFascia_Click},
    {"cboLedger", nullptr, nullptr, nullptr, &D::cboLedger_Click},
    {"FtProjection", &D::FtBay_Commit, &D::FtBay_Commit, nullptr, nullptr},
    {"FtFace", &D::FtBay_Commit, &D::FtBay_Commit, nullptr, nullptr},
    {"FtBack", &D::FtBay_Commit, &D::FtBay_Commit, nullptr, nullptr},
    {"FtBayAngle", &D::FtBay_Commit, &D::FtBay_Commit, nullptr, nullptr},
    {"Command1", nullptr, nullptr, nullptr, &D::Command1_Click},
    {"chkHeel", nullptr, nullptr, nullptr, &D::chkHeel_Click},
    {"chkSeat", nullptr, nullptr, nullptr, &D::chkSeat_Click},
    {"chkKneewall", nullptr, nullptr, nullptr, &D::chkKneewall_Click},
    {"chkLastCommon", nullptr, nullptr, nullptr, &D::chkLastCommon_Click},
    {"chkUpperSlope", nullptr, nullptr, nullptr, &D::chkUpperSlope_Click},
    {"chkLowerSlope", nullptr, nullptr, nullptr, &D::chkLowerSlope_Click},
    {"chkUpperSpan", nullptr, nullptr, nullptr, &D::chkUpperSpan_Click},
    {"chkUpperHeight", nullptr, nullptr, nullptr, &D::chkUpperHeight_Click},
    {"chkLowerHeight", nullptr, nullptr, nullptr, &D::chkLowerHeight_Click},
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

const HandlerRow* HandlersOf(std::string_view base) {
  for (const HandlerRow& row : kHandlers) {
    if (row.control == base) return &row;
  }
  return nullptr;
}

void Run(Document& document, Handler handler, int index) {
  if (handler != nullptr) (document.*handler)(index);
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

Refusal Actions::Reach(std::string_view name, const AnyControl*& control) const {
  control = document_.sheet.Find(name);
  if (control == nullptr) return Refuse(name, "is no control of the sheet");
  const Control& common = ControlOf(*control);
  if (!common.Visible) return Refuse(name, "is hidden");
  if (!common.Enabled) return Refuse(name, "is disabled");
  if (common.Host == Host::kBayStrip && !document_.sheet.DimensionStrip.Visible)
    return Refuse(name, "is hidden");
  return std::nullopt;
}

Refusal Actions::PutIn(std::string_view name, std::string_view text, Way way) {
  const AnyControl* control = nullptr;
  if (Refusal refusal = Reach(name, control)) return refusal;
  const IndexedName cut = Cut(name);
  const HandlerRow* handlers = HandlersOf(cut.base);
  if (handlers == nullptr || !std::visit(PutText{text}, *control)) return Refuse(name, "takes no text");
  Run(document_, handlers->edit, cut.index);
  if (way == Way::kStay) return std::nullopt;
  // A slope reads a percentage from the text as it was typed, so its own handler brings it into form.
  const bool slope = cut.base == "LWSlope";
  if (!slope) Redisplay(*control);
  Run(document_, way == Way::kEnter ? handlers->enter : handlers->leave, cut.index);
  if (slope) Redisplay(*control);
  return std::nullopt;
}

Refusal Actions::Type(std::string_view name, std::string_view text) { return PutIn(name, text, Way::kLeave); }

Refusal Actions::Enter(std::string_view name, std::string_view text) {
  return PutIn(name, text, Way::kEnter);
}

Refusal Actions::Edit(std::string_view name, std::string_view text) { return PutIn(name, text, Way::kStay); }

Refusal Actions::Pick(std::string_view name, std::string_view item) {
  const AnyControl* control = nullptr;
  if (Refusal refusal = Reach(name, control)) return refusal;
  int row = -1;
  bool locked = false;
  if (auto* const* combo = std::get_if<ComboControl*>(control)) {
    row = (*combo)->RowOf(item);
    locked = (*combo)->Locked;
    if (row >= 0 && !locked) (*combo)->SetListIndex(row);
  } else if (auto* const* pair = std::get_if<PairControl*>(control)) {
    row = (*pair)->RowOf(item);
    locked = (*pair)->Locked;
    if (row >= 0 && !locked) (*pair)->SetListIndex(row);
  } else {
    return Refuse(name, "has no list");
  }
  if (row < 0) return Refuse(name, "has no such row");
  const IndexedName cut = Cut(name);
  const HandlerRow* handlers = HandlersOf(cut.base);
  if (handlers != nullptr && !locked) Run(document_, handlers->click, cut.index);
  return std::nullopt;
}

Refusal Actions::Check(std::string_view name, bool on) {
  const AnyControl* control = nullptr;
  if (Refusal refusal = Reach(name, control)) return refusal;
  auto* const* box = std::get_if<CheckControl*>(control);
  if (box == nullptr) return Refuse(name, "is no check box");
  if ((*box)->Ticked() == on) return std::nullopt;
  (*box)->Value = on ? 1 : 0;
  const IndexedName cut = Cut(name);
  const HandlerRow* handlers = HandlersOf(cut.base);
  if (handlers != nullptr) Run(document_, handlers->click, cut.index);
  return std::nullopt;
}

Refusal Actions::ReachMenu(const MenuItem& item) const {
  if (!item.Visible) return Refuse(item.Name, "is hidden");
  if (!item.Enabled) return Refuse(item.Name, "is disabled");
  if (const MenuItem* holder = document_.menus.HolderOf(item)) {
    const bool popup = document_.menus.IsPopup(*holder);
    if (!popup && !holder->Visible) return Refuse(item.Name, "stands in a menu that is hidden");
  }
  return std::nullopt;
}

Refusal Actions::Click(std::string_view name) {
  if (MenuItem* item = document_.menus.Find(name)) {
    if (Refusal refusal = ReachMenu(*item)) return refusal;
    if (!document_.ClickMenu(*item)) return Refuse(name, "does nothing by itself");
    return std::nullopt;
  }
  const AnyControl* control = nullptr;
  if (Refusal refusal = Reach(name, control)) return refusal;
  if (!std::holds_alternative<ButtonControl*>(*control)) return Refuse(name, "is no button and no menu item");
  const IndexedName cut = Cut(name);
  const HandlerRow* handlers = HandlersOf(cut.base);
  if (handlers != nullptr) Run(document_, handlers->click, cut.index);
  return std::nullopt;
}

Refusal Actions::Press(std::string_view key) {
  const ToolButton* button = document_.toolBar.Find(key);
  if (button == nullptr) return Refuse(key, "is no button of the tool bar");
  if (!button->Visible) return Refuse(key, "is hidden");
  if (!document_.menus.ViewToolbar.Checked) return Refuse(key, "stands on a tool bar that is hidden");
  if (!document_.ToolButtonEnabled(*button)) return Refuse(key, "is disabled");
  document_.tbToolBar_ButtonClick(key);
  return std::nullopt;
}

Refusal Actions::Spin(std::string_view name, bool up) {
  const AnyControl* control = nullptr;
  if (Refusal refusal = Reach(name, control)) return refusal;
  if (!std::holds_alternative<SpinControl*>(*control)) return Refuse(name, "is no spin button");
  document_.Spin_Step(Cut(name).index, up);
  return std::nullopt;
}

Refusal Actions::Page(std::string_view name, int page) {
  const IndexedName cut = Cut(name);
  if (cut.base != "VSTab" || cut.index < 0 || cut.index > 1) return Refuse(name, "is no index tab");
  const IndexTab& tab = document_.sheet.Tabs[static_cast<std::size_t>(cut.index)];
  const int last = tab.OnePageOnly ? 0 : tab.PageCount() - 1;
  if (page < 0 || page > last) return Refuse(name, "has no such page");
  document_.VSTab_Switch(cut.index, tab.Page, page);
  return std::nullopt;
}

Refusal Actions::Hover(std::string_view name) {
  const bool known = document_.menus.Find(name) != nullptr || document_.sheet.Find(name) != nullptr ||
                     name == "Picture1" || name == "Picture3" || document_.toolBar.Find(name) != nullptr;
  if (!known) return Refuse(name, "is nothing to point at");
  document_.Hint(name);
  return std::nullopt;
}

}  // namespace pitchcraft
