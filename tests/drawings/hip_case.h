// One hip roof, calculated and drawn, for the tests of plan and layout.
#pragma once

#include <cmath>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "core/angles.h"
#include "core/rafter.h"
#include "drawing/arial_meter.h"
#include "drawing/drafting_board.h"
#include "drawings/hip_plan.h"
#include "measure/measure_converter.h"

namespace pitchcraft::testing {

/// A slope of 6 in 12 all around and 16" on center, unless stated otherwise.
struct HipCase {
  bool Metric = false;
  double Slope = 6;
  double EndSlope = 6;
  double Run = 144;
  double Overhang = 10.5;
  double Thickness = 1.5;
  double HipThickness = 1.5;
  double Spacing = 16;
  bool OverhangsEqual = false;
  JackLayout Layout = JackLayout::kCenter;
  bool WithOverhang = true;
  std::optional<double> PastPeak;  // of the last common
  bool RiseOverRun = true;
  double Width = 10000;  // of the picture, twips
  double Height = 7000;

  double Base() const { return Metric ? 1000 : 12; }
  bool IsBastard() const { return Slope != EndSlope; }
};

inline const char* NameOf(JackLayout layout) {
  if (layout == JackLayout::kCenter) return "center";
  return layout == JackLayout::kCorners ? "corners" : "flush";
}

inline std::ostream& operator<<(std::ostream& out, const HipCase& c) {
  out << NameOf(c.Layout) << " slopes " << c.Slope << "/" << c.EndSlope << " run " << c.Run << " overhang "
      << c.Overhang << (c.OverhangsEqual ? " equal" : "") << " lumber " << c.Thickness << "/"
      << c.HipThickness << " spacing " << c.Spacing << (c.WithOverhang ? "" : " from the wall");
  if (c.PastPeak) out << " last common past peak " << *c.PastPeak;
  return out << " picture " << c.Width << " x " << c.Height << (c.Metric ? " mm" : "");
}

inline HipCase MetricHip() {
  HipCase c;
  c.Metric = true;
  c.Slope = 500;
  c.EndSlope = 500;
  c.Run = 3600;
  c.Overhang = 300;
  c.Thickness = 38;
  c.HipThickness = 38;
  c.Spacing = 400;
  return c;
}

inline void CalculateHip(Rafter& rafter, const HipCase& c) {
  rafter.SetUnits(c.Metric ? 1 : 0);
  rafter.Slope = c.Slope;
  rafter.HipEndSlope = c.EndSlope;
  rafter.degrees = kDegreesPerRadian * std::atan(c.Slope / c.Base());
  rafter.HipEndDegrees = kDegreesPerRadian * std::atan(c.EndSlope / c.Base());
  rafter.Span = c.Run;
  rafter.Overhang = c.Overhang;
  rafter.Thickness = c.Thickness;
  rafter.RidgeThickness = rafter.FasciaThickness = c.Metric ? 38 : 1.5;
  rafter.HipValThickness = c.HipThickness;
  rafter.Depth = rafter.RidgeDepth = rafter.HipValDepth = c.Metric ? 184 : 7.25;
  rafter.FasciaHeight = c.Metric ? 140 : 5.5;
  rafter.spacing = c.Spacing;
  rafter.RafterType = c.IsBastard() ? Member::kBastardHip : Member::kHip;
  rafter.OverhangsEqual = c.OverhangsEqual;
  rafter.Calculate();
}

inline DrawingContext ContextOf(const HipCase& c, const Rafter& rafter) {
  DrawingContext context;
  context.RoofType = Roof::kHip;
  context.UnitRun = c.Base();
  context.UnitHipRun = c.Metric ? 1414.2135 : 16.970562;
  context.OnDesignPage = false;
  context.RiseOverRun = c.RiseOverRun;
  context.HipLayout.Layout = c.Layout;
  context.HipLayout.WithOverhang = c.WithOverhang;
  if (c.PastPeak) context.HipLayout.LastCommon = rafter.HipEndSpan + *c.PastPeak;
  return context;
}

class DrawnHip {
 public:
  using Procedure = void (*)(DraftingBoard&, const Rafter&, const DrawingContext&);

  explicit DrawnHip(const HipCase& c, Procedure draw = &DrawHipLayout)
      : board(meter_, [this](double v) { return converter_.ToText(v); }) {
    if (c.Metric) {
      converter_.Units = kMillimetres;
      converter_.BaseUnits = kBaseMillimetres;
    }
    CalculateHip(rafter, c);
    context = ContextOf(c, rafter);
    board.DrawScale = c.Metric ? 1 : 10;
    board.Recorder.SetCanvas({c.Width, c.Height});
    draw(board, rafter, context);
  }

  const Recording& Operations() const { return board.Recorder.Finished(); }
  HipLayout Layout() const { return LayOutHip(rafter, context.HipLayout); }
  std::string LengthText(double length) const { return board.LengthText(length); }

  template <typename Op>
  std::vector<Op> All() const {
    std::vector<Op> found;
    for (const DrawOp& operation : Operations()) {
      if (const auto* op = std::get_if<Op>(&operation)) found.push_back(*op);
    }
    return found;
  }
  /// The texts, in the order of their recording.
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const TextOp& text : All<TextOp>()) texts.push_back(text.Text);
    return texts;
  }

 private:
  ArialMeter meter_;
  MeasureConverter converter_;

 public:
  Rafter rafter;
  DrawingContext context;
  DraftingBoard board;
};

}  // namespace pitchcraft::testing
