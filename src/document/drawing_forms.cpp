#include "document/drawing_forms.h"

#include <array>
#include <cstddef>
#include <iterator>

#include "drawings/rafter_elevation.h"
#include "sheet/roof_types.h"

namespace pitchcraft {
namespace {

// The one place that says which drawings exist.
constexpr DrawingForms kForms[] = {
    {"DrawRafter", &DrawRafter, "PrintRafter", &PrintRafter},
    {"DrawHipPlan", nullptr, "PrintHipPlan", nullptr},
    {"DrawHipLayout", nullptr, "PrintHipLayout", nullptr},
    {"DrawBastardHipRafters", nullptr, "PrintBastardHipRafters", nullptr},
    {"DrawSaltbox", nullptr, "PrintSaltBox", nullptr},
    {"DrawBayPlan", nullptr, "PrintBayPlan", nullptr},
    {"DrawBayDiagram", nullptr, "PrintBayDiagram", nullptr},
    {"DrawBayRafter", nullptr, "PrintBayRafter", nullptr},
    {"DrawBayCenterLedger", nullptr, "PrintBayCenterLedger", nullptr},
    {"DrawDutchPlan", nullptr, "PrintDutchPlan", nullptr},
    {"DrawOctagonPlan", nullptr, "PrintOctagonPlan", nullptr},
    {"DrawOctagonRafter", nullptr, "PrintOctagonRafter", nullptr},
    {"DrawOctagonLayout", nullptr, "PrintOctagonLayout", nullptr},
    {"DrawUnequalSpanValley", nullptr, "PrintUnequalSpanValley", nullptr},
    {"DrawBlindValley", nullptr, "PrintBlindValley", nullptr},
    {"DrawGambrelRafter", nullptr, "PrintGambrelRafter", nullptr},
    {"DrawGambrelPreview", nullptr, "PrintGambrelPreview", nullptr},
};
static_assert(std::size(kForms) == static_cast<std::size_t>(Drawing::kNone));

using D = Drawing;

// A page of the table stands for itself; where a row has fewer pages, the others give nothing.
struct OutputRow {
  int RoofType;
  bool Conditional;  ///< the row is that of unequal slopes, or of a bay without dimensions
  std::array<PageOutput, 5> Pages;
};

constexpr std::array<PageOutput, 5> OnAnyPage(PageOutput page) { return {page, page, page, page, page}; }

constexpr OutputRow kOutput[] = {
    {roof::kGable, false, OnAnyPage({D::kRafter})},
    {roof::kValley, false, OnAnyPage({D::kRafter})},
    {roof::kShed, false, OnAnyPage({D::kRafter})},
    {roof::kHip, false, {{{D::kHipPlan}, {D::kRafter, 1, 0, 1}, {D::kRafter}, {D::kHipLayout}, {}}}},
    {roof::kHip,
     true,
     {{{D::kHipPlan},
       {D::kBastardHipRafters, 1, 0, 16},
       {D::kBastardHipRafters, 1, 17, 16},
       {D::kBastardHipRafters, 1, 16, 16},
       {D::kHipLayout}}}},
    {roof::kDualSlope, false, {{{D::kSaltbox}, {D::kRafter}, {D::kRafter, 2}, {}, {}}}},
    {roof::kBay,
     false,
     {{{D::kBayPlan},
       {D::kBayRafter, 1, 10, 10},
       {D::kBayRafter, 1, 11, 11},
       {D::kBayRafter, 1, 12, 12},
       {D::kBayCenterLedger}}}},
    {roof::kBay,
     true,
     {{{D::kBayDiagram},
       {D::kBayRafter, 1, 10, 10},
       {D::kBayRafter, 1, 11, 11},
       {D::kBayRafter, 1, 12, 12},
       {D::kBayCenterLedger}}}},
    {roof::kDutchHip,
     false,
     {{{D::kDutchPlan}, {D::kRafter}, {D::kBayRafter, 2}, {D::kBayRafter, 2}, {D::kBayCenterLedger, 2}}}},
    {roof::kOctagon,
     false,
     {{{D::kOctagonPlan},
       {D::kOctagonRafter, 1, 9, 18},
       {D::kOctagonRafter, 1, 18, 18},
       {D::kOctagonLayout},
       {}}}},
    {roof::kUnequalSpanValley, false, {{{D::kUnequalSpanValley}, {D::kRafter}, {D::kRafter, 2}, {}, {}}}},
    {roof::kBlindValley, false, OnAnyPage({D::kBlindValley})},
    {roof::kGambrel, false, {{{D::kGambrelPreview}, {D::kGambrelRafter}, {D::kGambrelRafter, 2}, {}, {}}}},
};

}  // namespace

const DrawingForms& FormsOf(Drawing drawing) { return kForms[static_cast<std::size_t>(drawing)]; }

PageOutput OutputOf(int roofType, int page, const OutputConditions& conditions) {
  const bool condition = (roofType == roof::kHip && conditions.SlopesDiffer) ||
                         (roofType == roof::kBay && conditions.BayIsDiagram);
  for (const OutputRow& row : kOutput) {
    if (row.RoofType != roofType || row.Conditional != condition) continue;
    const auto place = static_cast<std::size_t>(page);
    return place < row.Pages.size() ? row.Pages[place] : PageOutput{};
  }
  return {};
}

}  // namespace pitchcraft
