#include "document/figures.h"

#include <cstddef>
#include <iterator>

#include "design/questions.h"
#include "drawings/hip_plan.h"
#include "drawings/rafter_elevation.h"

namespace pitchcraft {
namespace {

// The one place that says which figures exist.
constexpr FigureForms kForms[] = {
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
static_assert(std::size(kForms) == static_cast<std::size_t>(FigureKind::kNone));

HipLayoutOptions HipLayoutOf(const Design& design) {
  HipLayoutOptions options;
  options.Layout = design.Layout;
  options.WithOverhang = design.JacksWithOverhang;
  if (design.sheet.HasLastCommon.Ticked()) options.LastCommon = design.sheet.LastCommon.Value();
  return options;
}

}  // namespace

const FigureForms* FormsOf(FigureKind kind) {
  return kind == FigureKind::kNone ? nullptr : &kForms[static_cast<std::size_t>(kind)];
}

DrawingContext ContextOf(const Design& design, const Preferences& preferences) {
  DrawingContext context;
  context.RoofType = design.RoofType;
  context.UnitRun = UnitRun(design);
  context.UnitHipRun = UnitHipRun(design);
  context.OnDesignPage = OnDesignPage(design);
  context.SquareCut = design.Cut == FasciaCut::kSquare;
  context.RiseOverRun = !design.InDegrees;
  context.HipLayout = HipLayoutOf(design);
  context.BackColor = static_cast<DrawColor>(preferences.BackColor);
  context.LineColor = static_cast<DrawColor>(preferences.LineColor);
  context.DimColor = static_cast<DrawColor>(preferences.DimColor);
  context.TextColor = static_cast<DrawColor>(preferences.TextColor);
  return context;
}

}  // namespace pitchcraft
