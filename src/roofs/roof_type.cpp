#include "roofs/roof_type.h"

#include <cmath>

#include "core/angles.h"

#include "design/questions.h"
#include "roofs/results.h"

namespace pitchcraft {
namespace {

// An angle is shown as it was entered, to the decimals that it has; where the slope has changed without it,
// the slope's own is.
void SettleAngle(Single& degrees, double slope, double base) {
  constexpr double kTwoDecimals = 0.0051;
  const double own = kDegreesPerRadian * std::atan(slope / base);
  if (std::abs(own - degrees) > kTwoDecimals) degrees = own;
}

}  // namespace

PageFigure RoofType::FigureOn(const Design& design, int page) const {
  const std::span<const RoofPage> pages = Pages(design);
  const auto place = static_cast<std::size_t>(page);
  return place < pages.size() ? pages[place].Figure : PageFigure{};
}

Rafter RoofType::RecordOn(const Design& design, int page) const {
  const PageFigure figure = FigureOn(design, page);
  Rafter record = figure.Record == 2 ? design.Calculated2 : design.Calculated1;
  record.RafterType = figure.As;
  SettleAngle(record.degrees, record.Slope, record.SlopeBase);
  SettleAngle(record.HipEndDegrees, record.HipEndSlope, record.SlopeBase);
  return record;
}

void RoofType::LayOut(Design& design) const { LayOutRows(design.sheet, facts_.Rows); }

void RoofType::TurnPage(Design& design, Reply& reply, int page) const {
  if (page == 0) FocusSlope(design, reply, RowShown(design));
}

void RoofType::RunEntered(Design& design, Reply& reply) const { Recalculate(design, reply); }

void RoofType::ExtraRunEntered(Design& design, Reply& reply) const { Recalculate(design, reply); }

void RoofType::OverhangEntered(Design& design, Reply& reply) const { TakeHeelAndRecalculate(design, reply); }

void RoofType::SlopeEntered(Design& design, Reply& reply, SlopeEntry) const { Recalculate(design, reply); }

void RoofType::LumberEntered(Design& design, Reply& reply, Lumber) const {
  TakeHeelAndRecalculate(design, reply);
}

void RoofType::TakeHeelAndRecalculate(Design& design, Reply& reply) const {
  if (facts_.TakesHeelFromField) design.Rafter1.Heel = design.sheet.Heel[0].Value();
  Recalculate(design, reply);
}

void FocusSlope(const Design& design, Reply& reply, std::size_t row) {
  if (design.InDegrees) {
    reply.GiveFocus(design.sheet.Degrees[row]);
  } else {
    reply.GiveFocus(design.sheet.Slope[row]);
  }
}

std::string CaptionsOf(std::span<const RoofPage> pages) {
  std::string captions;
  for (const RoofPage& page : pages) {
    if (!captions.empty()) captions += '|';
    captions += page.Caption;
  }
  return captions;
}

void NamePages(Design& design, std::span<const RoofPage> pages) {
  design.sheet.Tabs[0].SetCaption(CaptionsOf(pages));
}

}  // namespace pitchcraft
