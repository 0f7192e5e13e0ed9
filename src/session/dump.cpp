#include "session/dump.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/rafter_members.h"
#include "design/questions.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

Json DumpVariables(const Document& d) {
  const Design& design = d.design;
  const Preferences& p = d.preferences;
  return {
      {"RoofType", static_cast<int>(design.RoofType)},
      {"UnitRun", UnitRun(design)},
      {"UnitHipRun", NumberOf(UnitHipRun(design))},
      {"UnitHipRatio", NumberOf(UnitHipRun(design) / UnitRun(design))},
      {"DrawScale", NumberOf(DrawScale(design))},
      {"CalcEnabled", true},
      {"LoadingProject", design.Loading ? 1 : 0},
      {"CurrentTab", PageShown(design)},
      {"HelpContext", RoofOf(design).About().HelpTopic},
      {"BayEditMode", design.BayEditMode},
      {"SavedGableSpan", NumberOf(design.SavedGableSpan)},
      {"SavedGableSlope", NumberOf(design.SavedGableSlope)},
      {"Spacing", NumberOf(design.Rafter1.spacing)},
      {"MetricSpacing", NumberOf(p.MetricSpacing)},
      {"Increment", NumberOf(p.Increment)},
      {"MetricIncrement", NumberOf(p.MetricIncrement)},
      {"ProjectName", d.project.Name},
      {"ProjectFile", d.project.File},
      {"LineWidth", p.LineWidth},
      {"PrintAllBlack", d.PrintAllBlack},
      {"RotateFonts", p.RotateFonts},
      {"UseSystemColors", p.UseSystemColors},
      {"CtlBackColor", p.CtlBackColor},
      {"CtlForeColor", p.CtlForeColor},
      {"CtlCalcColor", p.CtlCalcColor},
      {"BackColor", p.BackColor},
      {"LineColor", p.LineColor},
      {"DimColor", p.DimColor},
      {"TextColor", p.TextColor},
      {"DXFBackcolor", p.DxfBackColor},
      {"DXFTextcolor", p.DxfTextColor},
      {"DXFLinecolor", p.DxfLineColor},
      {"DXFDimcolor", p.DxfDimColor},
      {"DXFTextsize", NumberOf(p.DxfTextSize)},
      {"DXFMetricTextsize", NumberOf(p.DxfMetricTextSize)},
      {"DXFDimTextsize", NumberOf(p.DxfDimTextSize)},
  };
}

Json DumpMenus(const Menus& menus) {
  Json dump = Json::object();
  for (const MenuItem* item : menus.Items()) {
    dump[item->Name] = {{"Caption", item->Caption},
                        {"Visible", item->Visible},
                        {"Enabled", item->Enabled},
                        {"Checked", item->Checked}};
  }
  return dump;
}

Json DumpToolBar(const ToolBar& toolBar) {
  Json dump = Json::object();
  for (const ToolButton& button : toolBar.Buttons()) {
    dump[std::string(button.Key)] = {{"Visible", button.Visible}, {"Pressed", button.Pressed}};
  }
  return dump;
}

Json DumpTabs(const Sheet& sheet) {
  Json dump = Json::object();
  for (std::size_t i = 0; i < sheet.Tabs.size(); ++i) {
    dump["VSTab(" + PlainText(static_cast<double>(i)) + ")"] = {{"Caption", sheet.Tabs[i].Caption()},
                                                                {"Page", sheet.Tabs[i].Page}};
  }
  return dump;
}

Json DumpRafter(const Rafter& rafter) {
  Json dump = Json::object();
  for (const RafterMember& member : RafterMembers()) {
    dump[member.Name] = std::visit(
        [](const auto& value) -> Json {
          using Value = std::decay_t<decltype(value)>;
          if constexpr (std::is_same_v<Value, Single> || std::is_same_v<Value, double>) {
            return NumberOf(value);
          } else {
            return value;
          }
        },
        member.Read(rafter));
  }
  return dump;
}

struct MemberRow {
  const char* name;
  Json (*dump)(const Document&);
};

constexpr MemberRow kMembers[] = {
    {"title", [](const Document& d) -> Json { return d.window.Title; }},
    {"status", [](const Document& d) -> Json { return d.window.Status; }},
    {"document", [](const Document& d) { return DumpVariables(d); }},
    {"sheet", [](const Document& d) { return DumpSheet(d.design.sheet); }},
    {"menus", [](const Document& d) { return DumpMenus(d.design.menus); }},
    {"toolbar", [](const Document& d) { return DumpToolBar(d.design.toolBar); }},
    {"tabs", [](const Document& d) { return DumpTabs(d.design.sheet); }},
    {"Rafter1", [](const Document& d) { return DumpRafter(d.design.Rafter1); }},
    {"Rafter2", [](const Document& d) { return DumpRafter(d.design.Rafter2); }},
    {"drawing", [](const Document& d) { return DumpDrawing(d); }},
    {"waiting", [](const Document& d) -> Json { return Waiting(d.design); }},
};

}  // namespace

const std::vector<std::string>& DumpMembers() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> list;
    for (const MemberRow& row : kMembers) list.emplace_back(row.name);
    return list;
  }();
  return names;
}

Json DumpOf(const Document& document, const std::vector<std::string>& members) {
  Json dump = {{"event", "dump"}};
  for (const MemberRow& row : kMembers) {
    const bool wanted =
        members.empty() || std::find(members.begin(), members.end(), row.name) != members.end();
    if (wanted) dump[row.name] = row.dump(document);
  }
  return dump;
}

}  // namespace pitchcraft
