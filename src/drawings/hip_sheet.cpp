// The prints of a hip roof's plan and layout: which measure goes into which column.
#include "drawings/hip_sheet.h"

#include "drawings/hip_plan.h"

namespace pitchcraft {
namespace {

bool IsBastard(const Rafter& rafter) { return rafter.RafterType == Member::kBastardHip; }

std::string RoofName(const Rafter& rafter) { return IsBastard(rafter) ? "Bastard Hip Roof" : "Hip Roof"; }

}  // namespace

std::string HipPlanTitle(const Rafter& rafter) {
  // As in the notes of the layout, the adjustment is mentioned only if a wall was moved.
  const bool adjusted = IsBastard(rafter) && rafter.HipEndOverhangExcess != 0;
  return RoofName(rafter) + " - Plan View" + (adjusted ? " (adjusted to make overhangs equal)" : "");
}

std::string HipLayoutTitle(const Rafter& rafter, const PrintContext& context) {
  return RoofName(rafter) + " - Layout  (" + context.Spacing + " o.c. spacing)";
}

SheetColumns HipRows(const Rafter& rafter, const PrintContext& context) {
  const auto length = [&](const char* label, double value) { return LengthRow(context, label, value); };
  const auto lumber = [&](const char* label, double thickness, double depth) {
    return LumberRow(context, label, thickness, depth);
  };
  const HipOutline outline = OutlineOfHip(rafter, context.Drawing.HipLayout);
  // Each jack is longer than the next by the difference for one unit along the wall, times the spacing.
  const double spacing = rafter.spacing;
  SheetColumns columns;
  columns[0] = {length("Common Rafter Run", rafter.Span), length("Common Overhang", rafter.Overhang),
                length("Hip End Common Run", outline.EndRun - outline.EndOverhang),
                length("Hip End Overhang", outline.EndOverhang)};
  columns[1] = {SlopeRow("Main Slope", rafter.Pitch, rafter.degrees),
                SlopeRow("Hip End Slope", rafter.HipEndPitch, rafter.HipEndDegrees),
                SlopeRow("Hip Rafter Slope", rafter.HipPitch, rafter.HipDegrees),
                "Rafter Spacing = " + context.Spacing,
                length("CommonDifference", rafter.CommonDifference * spacing),
                length("Hip End CommonDifference", rafter.HipEndCommonDifference * spacing)};
  columns[2] = {lumber("Common", rafter.Thickness, rafter.Depth),
                lumber("Hip", rafter.HipValThickness, rafter.HipValDepth),
                lumber("Ridge", rafter.RidgeThickness, rafter.RidgeDepth)};
  if (context.Drawing.SquareCut)
    columns[2].push_back(lumber("Fascia", rafter.FasciaThickness, rafter.FasciaHeight));
  // Where it is drawn: a field that tells less than the run to the peak is raised to it.
  if (outline.LastCommon)
    columns[2].push_back(length("Last Common (distance o.c. from corner)", *outline.LastCommon));
  return columns;
}

void PrintHipPlan(Printer& page, DraftingBoard& board, const Rafter& rafter, const PrintContext& context) {
  DrawHipPlan(board, rafter, context.Drawing);
  PrintSheet(page, context, board.Recorder, HipPlanTitle(rafter), HipRows(rafter, context));
}

void PrintHipLayout(Printer& page, DraftingBoard& board, const Rafter& rafter, const PrintContext& context) {
  DrawHipLayout(board, rafter, context.Drawing);
  PrintSheet(page, context, board.Recorder, HipLayoutTitle(rafter, context), HipRows(rafter, context));
}

}  // namespace pitchcraft
