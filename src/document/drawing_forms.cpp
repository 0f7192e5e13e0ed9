#include "document/drawing_forms.h"

#include <array>
#include <cstddef>
#include <iterator>

#include "drawings/hip_plan.h"
#include "drawings/rafter_elevation.h"
#include "sheet/roof_types.h"

namespace pitchcraft {
namespace {

// The one place that says which drawings exist.
constexpr DrawingForms kForms[] = {
    {"DrawRafter", &DrawRafter, "PrintRafter", &PrintRafter, "ExportRafter", &ExportRafter},
    {"DrawHipPlan", &DrawHipPlan, "PrintHipPlan", &PrintHipPlan, "ExportHipPlan", &ExportHipPlan},
    {"DrawHipLayout", &DrawHipLayout, "PrintHipLayout", &PrintHipLayout, "ExportHipLayout", &ExportHipLayout},
    {"DrawBastardHipRafters", &DrawBastardHipRafters, "PrintBastardHipRafters", &PrintBastardHipRafters,
     "ExportBastardHipRafter", &ExportBastardHipRafter},
    {"DrawSaltbox", nullptr, "PrintSaltBox", nullptr, "ExportSaltbox", nullptr},
    {"DrawBayPlan", nullptr, "PrintBayPlan", nullptr, "ExportBayPlan", nullptr},
    {"DrawBayDiagram", nullptr, "PrintBayDiagram", nullptr, "ExportBayPlan", nullptr},
    {"DrawBayRafter", nullptr, "PrintBayRafter", nullptr, "ExportBayRafter", nullptr},
    {"DrawBayCenterLedger", nullptr, "PrintBayCenterLedger", nullptr, "ExportBayCenterLedger", nullptr},
    {"DrawDutchPlan", nullptr, "PrintDutchPlan", nullptr, "ExportDutchPlan", nullptr},
    {"DrawOctagonPlan", nullptr, "PrintOctagonPlan", nullptr, "ExportOctagonPlan", nullptr},
    {"DrawOctagonRafter", nullptr, "PrintOctagonRafter", nullptr, "ExportOctagonRafter", nullptr},
    {"DrawOctagonLayout", nullptr, "PrintOctagonLayout", nullptr, "ExportOctagonLayout", nullptr},
    {"DrawUnequalSpanValley", nullptr, "PrintUnequalSpanValley", nullptr, "ExportUnequalSpanValley", nullptr},
    {"DrawBlindValley", nullptr, "PrintBlindValley", nullptr, "ExportBlindValley", nullptr},
    {"DrawGambrelRafter", nullptr, "PrintGambrelRafter", nullptr, "ExportGambrelRafter", nullptr},
    {"DrawGambrelPreview", nullptr, "PrintGambrelPreview", nullptr, "ExportGambrelPreview", nullptr},
};
static_assert(std::size(kForms) == static_cast<std::size_t>(Drawing::kNone));

using D = Drawing;

/// What tells rows of one roof type apart.
enum class Case { kAny, kEqualSlopes, kUnequalSlopes, kBayPaper, kBayDiagramPaper, kBayDxf, kBayLedgerDxf };

// Where a row has fewer pages, the others give nothing.
struct OutputRow {
  int RoofType;
  Case When;
  std::array<PageOutput, 5> Pages;
};

constexpr std::array<PageOutput, 5> OnAnyPage(PageOutput page) { return {page, page, page, page, page}; }

// clang-format off
constexpr OutputRow kOutput[] = {
    {roof::kGable, Case::kAny, OnAnyPage({D::kRafter})},
    {roof::kValley, Case::kAny, OnAnyPage({D::kRafter})},
    {roof::kShed, Case::kAny, OnAnyPage({D::kRafter})},
    {roof::kHip, Case::kEqualSlopes, {{
        {D::kHipPlan}, {D::kRafter, 1, 0, 1}, {D::kRafter}, {D::kHipLayout}, {}}}},
    {roof::kHip, Case::kUnequalSlopes, {{
        {D::kHipPlan}, {D::kBastardHipRafters, 1, 0, 16}, {D::kBastardHipRafters, 1, 17, 16},
        {D::kBastardHipRafters, 1, 16, 16}, {D::kHipLayout}}}},
    {roof::kDualSlope, Case::kAny, {{
        {D::kSaltbox}, {D::kRafter}, {D::kRafter, 2}, {}, {}}}},
    {roof::kBay, Case::kBayPaper, {{
        {D::kBayPlan}, {D::kBayRafter, 1, 10, 10}, {D::kBayRafter, 1, 11, 11}, {D::kBayRafter, 1, 12, 12},
        {D::kBayCenterLedger}}}},
    {roof::kBay, Case::kBayDiagramPaper, {{
        {D::kBayDiagram}, {D::kBayRafter, 1, 10, 10}, {D::kBayRafter, 1, 11, 11}, {D::kBayRafter, 1, 12, 12},
        {D::kBayCenterLedger}}}},
    {roof::kBay, Case::kBayDxf, {{
        {D::kBayPlan}, {D::kBayRafter}, {D::kBayRafter}, {D::kBayRafter}, {D::kBayRafter}}}},
    {roof::kBay, Case::kBayLedgerDxf, OnAnyPage({D::kBayCenterLedger})},
    {roof::kDutchHip, Case::kAny, {{
        {D::kDutchPlan}, {D::kRafter}, {D::kBayRafter, 2}, {D::kBayRafter, 2}, {D::kBayCenterLedger, 2}}}},
    {roof::kOctagon, Case::kAny, {{
        {D::kOctagonPlan}, {D::kOctagonRafter, 1, 9, 18}, {D::kOctagonRafter, 1, 18, 18}, {D::kOctagonLayout},
        {}}}},
    {roof::kUnequalSpanValley, Case::kAny, {{
        {D::kUnequalSpanValley}, {D::kRafter}, {D::kRafter, 2}, {}, {}}}},
    {roof::kBlindValley, Case::kAny, OnAnyPage({D::kBlindValley})},
    {roof::kGambrel, Case::kAny, {{
        {D::kGambrelPreview}, {D::kGambrelRafter}, {D::kGambrelRafter, 2}, {}, {}}}},
};
// clang-format on

/// A bay goes by its page on paper and by its rafter's type in a file.
Case CaseOf(OutputForm form, int roofType, const OutputConditions& conditions) {
  if (roofType == roof::kHip) return conditions.SlopesDiffer ? Case::kUnequalSlopes : Case::kEqualSlopes;
  if (roofType != roof::kBay) return Case::kAny;
  if (form == OutputForm::kDxf) return conditions.BayShowsLedger ? Case::kBayLedgerDxf : Case::kBayDxf;
  return conditions.BayIsDiagram ? Case::kBayDiagramPaper : Case::kBayPaper;
}

}  // namespace

const DrawingForms& FormsOf(Drawing drawing) { return kForms[static_cast<std::size_t>(drawing)]; }

PageOutput OutputOf(OutputForm form, int roofType, int page, const OutputConditions& conditions) {
  const Case when = CaseOf(form, roofType, conditions);
  for (const OutputRow& row : kOutput) {
    if (row.RoofType != roofType || row.When != when) continue;
    const auto place = static_cast<std::size_t>(page);
    return place < row.Pages.size() ? row.Pages[place] : PageOutput{};
  }
  return {};
}

}  // namespace pitchcraft
