// The steps that draw the plan and the layout of a hip roof's end, in the order of their recording.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"
#include "drawings/hip_layout.h"

namespace pitchcraft {

class HipPlanDrafter {
 public:
  HipPlanDrafter(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context);
  void DrawPlan();
  void DrawLayout();

 private:
  void DrawOutline(const HipOutline& outline);
  void DrawLastCommon(const HipOutline& outline);
  void DrawRafters(const HipLayout& layout);
  void LabelSlopes(int endAlign, double endX);
  /// Writes a slope at the first place that is clear, in smaller letters if none is.
  void WriteWhereClear(const std::string& text, const std::vector<PointRecord>& places, int align);
  void DimensionOutline();

  // Lengths at the feet of the jacks, and the notes below them.
  struct FootLettering;
  void WriteFeet(const HipLayout& layout);
  FootLettering ChooseFootLettering(const HipLayout& layout);
  void WriteFeetOf(HipRoofFace face, const HipLayout& layout, const FootLettering& lettering);
  void WriteFoot(HipRoofFace face, double foot, double at, const std::string& text, double away,
                 const FootLettering& lettering);
  void WriteNotes();

  double Units(double length) const { return length * board_.DrawScale; }
  double Twips(double twips) const { return twips * board_.PointFactor; }
  double X(int point) const { return board_.Pts(point).X; }
  double Y(int point) const { return board_.Pts(point).Y; }

  DraftingBoard& board_;
  const Rafter& rafter_;
  const DrawingContext& context_;
  double slopeLabelTop_ = 0;  // of the main slope's label
};

}  // namespace pitchcraft
