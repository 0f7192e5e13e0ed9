#include "roofs/gambrel_dimensions.h"

#include <cmath>

#include "core/angles.h"
#include "core/number_text.h"
#include "design/questions.h"
#include "roofs/results.h"

namespace pitchcraft {
namespace {

// A regular gambrel fits a circle: 22.5 and 67.5 degrees. Its slopes are literals; the fields show them
// rounded.
struct RegularSlopes {
  double upperShown, lowerShown, upper, lower;
};
constexpr RegularSlopes kImperialSlopes{5, 29, 4.970562934875, 28.97056388855};
constexpr RegularSlopes kMetricSlopes{414, 2414, 414.213562011719, 2414.21337890625};

class Solver {
 public:
  explicit Solver(Design& design)
      : design_(design),
        sheet_(design.sheet),
        bottom_(design.Rafter1),
        top_(design.Rafter2),
        unitRun_(UnitRun(design)) {}

  // The roof fits the circle through the ends of the overhangs and the ridge. Gives the upper span.
  double SolveRegular() {
    const RegularSlopes& slopes = design_.Metric ? kMetricSlopes : kImperialSlopes;
    sheet_.Slope[0].SetValues(slopes.upperShown, unitRun_);
    sheet_.Slope[2].SetValues(slopes.lowerShown, unitRun_);
    top_.Slope = bottom_.HipValSlope = slopes.upper;
    bottom_.Slope = top_.HipValSlope = slopes.lower;
    sheet_.Degrees[0].SetText(PlainText(22.5));
    sheet_.Degrees[2].SetText(PlainText(67.5));
    bottom_.degrees = 67.5;
    top_.degrees = 22.5;
    const Single width = sheet_.Span[0].Value();
    const Single radius = sheet_.Overhang[0].Value() + width / 2;
    const Single half = std::sqrt(radius * radius / 2);
    const Single upper = 2 * half;
    bottom_.Span = (width - upper) / 2;
    top_.Span = half;
    top_.Heel = 0;
    top_.Overhang = 0;
    return upper;
  }

  // Gives the upper span; the two runs follow from it and the whole width. Unless a lock box names another
  // derived quantity, a change of the lower roof moves the upper span, and every other change the two
  // heights.
  double SolveCustom(GambrelChange changed) {
    using C = GambrelChange;
    top_.Slope = bottom_.HipValSlope = sheet_.Slope[0].LeftValue();
    bottom_.Slope = top_.HipValSlope = sheet_.Slope[2].LeftValue();
    const Single width = sheet_.Span[0].Value();
    Single upper = sheet_.Span[2].Value();
    const bool lowerRoof = changed == C::kLowerSpan || changed == C::kLowerHeight;
    const bool lowerHeightFollows = sheet_.LowerHeightLock.Ticked() && changed == C::kLowerSpan;
    const bool upperSpanFollows = sheet_.UpperSpanLock.Ticked() && changed == C::kLowerSlope;
    if (sheet_.LowerSlopeLock.Ticked() && (lowerRoof || changed == C::kUpperSpan)) {
      DeriveLowerSlope(width, upper);
    } else if ((lowerRoof && !lowerHeightFollows) || upperSpanFollows) {
      upper = UpperSpanFromLowerHeight(width);
    } else if (changed == C::kUpperHeight && sheet_.UpperSpanLock.Ticked()) {
      upper = 2 * unitRun_ * sheet_.RidgeLength[0].Value() / top_.Slope;
    } else if (changed == C::kUpperHeight || (changed == C::kUpperSpan && sheet_.UpperSlopeLock.Ticked())) {
      DeriveUpperSlope(upper);
    } else if (changed == C::kUpperSlope) {
      sheet_.RidgeLength[0].SetValue((upper / 2) * top_.Slope / unitRun_);
    }
    for (Rafter* rafter : {&bottom_, &top_}) {
      rafter->degrees = kDegreesPerRadian * std::atan(rafter->Slope / unitRun_);
    }
    bottom_.Span = (width - upper) / 2;
    top_.Span = upper / 2;
    SetUpperBearing();
    return upper;
  }

 private:
  // The lower roof keeps its height and slope: what is left of the width is the upper roof's.
  double UpperSpanFromLowerHeight(double width) {
    const Single lowerHeight = sheet_.RidgeLength[1].Value();
    bottom_.Span = unitRun_ * (lowerHeight - bottom_.Heel) / bottom_.Slope;
    return width - (bottom_.Span + bottom_.Span);
  }

  void DeriveUpperSlope(double upperSpan) {
    top_.Slope = unitRun_ * sheet_.RidgeLength[0].Value() / (upperSpan / 2);
    bottom_.HipValSlope = top_.Slope;
    ShowSlope(0, top_.Slope);
  }

  void DeriveLowerSlope(double width, double upperSpan) {
    bottom_.Slope = unitRun_ * (sheet_.RidgeLength[1].Value() - bottom_.Heel) / ((width - upperSpan) / 2);
    top_.HipValSlope = bottom_.Slope;
    ShowSlope(2, bottom_.Slope);
  }

  void ShowSlope(std::size_t row, double slope) {
    sheet_.Slope[row].SetValues(slope, unitRun_);
    sheet_.Degrees[row].SetText(PlainText(DegreesOfRow(design_, row)));
  }

  // On a raised wall the upper rafter has a heel of its fascia's plumb height; else it sits on the lower one.
  void SetUpperBearing() {
    top_.Heel = 0;
    top_.Overhang = 0;
    if (design_.Support != GambrelSupport::kRaisedWall) return;
    const Single fascia = LengthFormat(design_).ToValue(sheet_.UpperFascia.Text());
    const Single rise = fascia * top_.Slope / unitRun_;
    top_.Heel = std::sqrt(fascia * fascia + rise * rise);
    const double angle = std::atan(top_.Slope / unitRun_) + 1.570796326795;
    top_.Overhang = std::abs(Single(fascia * std::cos(angle)));
  }

  Design& design_;
  Sheet& sheet_;
  Rafter& bottom_;
  Rafter& top_;
  int unitRun_;
};

}  // namespace

void SolveGambrel(Design& design, GambrelChange changed) {
  Rafter& bottom = design.Rafter1;
  Rafter& top = design.Rafter2;
  Sheet& sheet = design.sheet;
  if (bottom.Heel == 0) {
    bottom.Overhang = 0;
    sheet.Overhang[0].SetValue(0);
  }
  Solver solver(design);
  const bool regular = design.Gambrel == GambrelKind::kRegular;
  const Single upperSpan = regular ? solver.SolveRegular() : solver.SolveCustom(changed);
  if (bottom.Heel == 0) bottom.Overhang = 0;
  bottom.Calculate();
  ShowFront(design);
  top.Calculate();
  KeepRear(design);
  sheet.Span[2].SetValue(upperSpan);
  sheet.RidgeLength[0].SetValue(top.RiseToSpan + top.Heel);
  sheet.RidgeLength[1].SetValue(bottom.RiseToSpan + bottom.Heel);
}

}  // namespace pitchcraft
