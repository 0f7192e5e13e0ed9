#include "roofs/roof_type.h"

#include "design/questions.h"
#include "roofs/results.h"

namespace pitchcraft {

PageFigure RoofType::FigureOn(const Design& design, int page) const {
  const std::span<const RoofPage> pages = Pages(design);
  const auto place = static_cast<std::size_t>(page);
  return place < pages.size() ? pages[place].Figure : PageFigure{};
}

Rafter RoofType::RecordOn(const Design& design, int page) const {
  const PageFigure figure = FigureOn(design, page);
  Rafter record = figure.Record == 2 ? design.Calculated2 : design.Calculated1;
  record.RafterType = figure.As;
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

void NamePages(Design& design, std::span<const RoofPage> pages) {
  std::string captions;
  for (const RoofPage& page : pages) {
    if (!captions.empty()) captions += '|';
    captions += page.Caption;
  }
  design.sheet.Tabs[0].SetCaption(captions);
}

}  // namespace pitchcraft
