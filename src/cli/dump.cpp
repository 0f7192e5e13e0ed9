#include "cli/dump.h"

#include <algorithm>

#include "core/rafter_members.h"

namespace pitchcraft {
namespace {

Json DumpVariables(const Document& d) {
  return {
      {"RoofType", d.RoofType},
      {"UnitRun", d.UnitRun},
      {"UnitHipRun", NumberOf(d.UnitHipRun)},
      {"UnitHipRatio", NumberOf(d.UnitHipRatio)},
      {"DrawScale", NumberOf(d.DrawScale())},
      {"CalcEnabled", d.CalcEnabled},
      {"LoadingProject", d.LoadingProject},
      {"CurrentTab", d.CurrentTab},
      {"HelpContext", d.HelpContext},
      {"BayEditMode", d.BayEditMode},
      {"SavedGableSpan", NumberOf(d.SavedGableSpan)},
      {"SavedGableSlope", NumberOf(d.SavedGableSlope)},
      {"Spacing", NumberOf(d.Spacing)},
      {"MetricSpacing", NumberOf(d.MetricSpacing)},
      {"Increment", NumberOf(d.Increment)},
      {"MetricIncrement", NumberOf(d.MetricIncrement)},
      {"ProjectName", d.ProjectName},
      {"ProjectFile", d.ProjectFile},
      {"LineWidth", d.LineWidth},
      {"PrintAllBlack", d.PrintAllBlack},
      {"RotateFonts", d.RotateFonts},
      {"UseSystemColors", d.UseSystemColors},
      {"CtlBackColor", d.CtlBackColor},
      {"CtlForeColor", d.CtlForeColor},
      {"CtlCalcColor", d.CtlCalcColor},
      {"BackColor", d.BackColor},
      {"LineColor", d.LineColor},
      {"DimColor", d.DimColor},
      {"TextColor", d.TextColor},
      {"DXFBackcolor", d.DxfBackColor},
      {"DXFTextcolor", d.DxfTextColor},
      {"DXFLinecolor", d.DxfLineColor},
      {"DXFDimcolor", d.DxfDimColor},
      {"DXFTextsize", NumberOf(d.DxfTextSize)},
      {"DXFMetricTextsize", NumberOf(d.DxfMetricTextSize)},
      {"DXFDimTextsize", NumberOf(d.DxfDimTextSize)},
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
    dump["VSTab(" + std::to_string(i) + ")"] = {{"Caption", sheet.Tabs[i].Caption()},
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
    {"title", [](const Document& d) -> Json { return d.Title; }},
    {"status", [](const Document& d) -> Json { return d.StatusText; }},
    {"document", [](const Document& d) { return DumpVariables(d); }},
    {"sheet", [](const Document& d) { return DumpSheet(d.sheet); }},
    {"menus", [](const Document& d) { return DumpMenus(d.menus); }},
    {"toolbar", [](const Document& d) { return DumpToolBar(d.toolBar); }},
    {"tabs", [](const Document& d) { return DumpTabs(d.sheet); }},
    {"Rafter1", [](const Document& d) { return DumpRafter(d.Rafter1); }},
    {"Rafter2", [](const Document& d) { return DumpRafter(d.Rafter2); }},
    {"drawing", [](const Document& d) { return DumpDrawing(d); }},
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
