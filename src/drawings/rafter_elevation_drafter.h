// The steps that draw the side view of one rafter, in the order of their recording.
#pragma once

#include <optional>
#include <string>

#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"
#include "drawings/elevation_member.h"
#include "drawings/rafter_elevation_geometry.h"

namespace pitchcraft {

class RafterElevationDrafter {
 public:
  RafterElevationDrafter(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context);
  void Draw();

 private:
  void DrawOutline();
  void DrawTail();
  void DrawHeelLines();
  void WidenByMargin();

  // Dimensions, in the order of their recording.
  void DimensionAlongRafter();
  void DimensionTail();
  void DimensionOverhang();
  void DimensionHeel();
  void DimensionHeights();
  void DimensionRuns();
  void DimensionWholeRise();

  /// A dimension with the measures of this drawing.
  Dimension Plain(int kind, int p1, int p2, double leg) const;
  /// From `p1` up to `p2` along the top edge.
  void Along(int p1, int p2, double tier);
  void ChooseTailColumn(double lengthsLeft);
  PointRecord WholeRiseText();
  bool WholeRiseIsShown() const;
  /// Below the wood, with the text under the line and the text's centre between the two limits.
  void Below(int right, int left, double tier, double leftLimit, double rightLimit);
  Dimension BelowWood(int right, int left, double tier) const;
  double LevelBelow(double tier) const;
  /// True if the texts of overhang and run would meet on one line.
  bool RunNeedsOwnTier();
  int TailEnd() const { return geometry_.SquareCut ? 2 : 3; }
  std::optional<double> HeelColumnInside(double start, double textWidth) const;
  double LowestLineRight() const;
  void WholeHeight();
  void KneewallHeights();
  PointRecord BesideHeight(double begin, int upper, int lower, bool above);
  /// A height on the right: `column` is the x of its dimension line.
  Dimension RightOfRidge(int upper, int lower, double column) const;
  bool ArrowsStandOutside(int upper, int lower) const;
  bool TextStandsAside(int upper, int lower);

  double WidthOfLength(int kind, int p1, int p2);
  double Twips(double twips) const { return twips * board_.PointFactor; }

  void LabelAngles();
  double AngleLabelEnd();
  void WriteTitle();
  void DrawEndView();

  double X(int point) const { return board_.Pts(point).X; }
  double Y(int point) const { return board_.Pts(point).Y; }

  DraftingBoard& board_;
  const DrawingContext& context_;
  Member type_;
  ElevationMember member_;
  ElevationGeometry geometry_;
  Single ratio_;
  double tailGap_ = 0;  // of the heights to the left of the tail
  double tailLeg_ = 0;
  double heelColumnEnd_ = 0;  // right end of a heel dimension that is right of the ridge; otherwise 0
};

}  // namespace pitchcraft
