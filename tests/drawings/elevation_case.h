// One rafter, calculated and drawn, for the tests of the side view.
#pragma once

#include <cmath>
#include <ostream>
#include <string>

#include "core/angles.h"
#include "core/rafter.h"
#include "drawing/arial_meter.h"
#include "drawing/drafting_board.h"
#include "drawings/rafter_elevation.h"
#include "measure/measure_converter.h"

namespace pitchcraft::testing {

inline constexpr double kUnlocked = -1;

/// The measures of a new document with a slope of 6 in 12, unless stated otherwise.
struct ElevationCase {
  Member Type = Member::kCommon;
  int RoofType = 0;
  bool Metric = false;
  double Slope = 6;
  double Run = 144;
  double Overhang = 10.5;
  double Depth = 7.25;
  double HipDepth = 7.25;
  double Fascia = 5.5;
  double Heel = kUnlocked;
  double Kneewall = 0;
  bool SquareCut = false;
  bool RiseOverRun = true;
  int Tab = 0;
  double Width = 10000;  // of the picture, twips
  double Height = 7000;
};

inline std::ostream& operator<<(std::ostream& out, const ElevationCase& c) {
  return out << "type " << static_cast<int>(c.Type) << " roof " << c.RoofType << " slope " << c.Slope
             << " run " << c.Run << " overhang " << c.Overhang << " depth " << c.Depth << "/" << c.HipDepth
             << " fascia " << c.Fascia << " heel " << c.Heel << " kneewall " << c.Kneewall
             << (c.SquareCut ? " square" : " plumb") << " tab " << c.Tab << " picture " << c.Width << " x "
             << c.Height << (c.Metric ? " mm" : "");
}

inline ElevationCase Metric() {
  ElevationCase c;
  c.Metric = true;
  c.Slope = 500;
  c.Run = 3600;
  c.Overhang = 300;
  c.Depth = 184;
  c.HipDepth = 184;
  c.Fascia = 140;
  return c;
}

inline void Fill(Rafter& rafter, const ElevationCase& c) {
  const double thickness = c.Metric ? 38 : 1.5;
  rafter.SetUnits(c.Metric ? 1 : 0);
  rafter.Slope = c.Slope;
  rafter.degrees = kDegreesPerRadian * std::atan(c.Slope / rafter.SlopeBase);
  rafter.Span = c.Run;
  rafter.Overhang = c.Overhang;
  rafter.Thickness = thickness;
  rafter.FasciaThickness = thickness;
  rafter.RidgeThickness = thickness;
  rafter.HipValThickness = thickness;
  rafter.Depth = c.Depth;
  rafter.RidgeDepth = c.Depth;
  rafter.HipValDepth = c.HipDepth;
  rafter.FasciaHeight = c.Fascia;
  rafter.Kneewall = c.Kneewall;
  if (c.Heel != kUnlocked) {
    rafter.Heel = c.Heel;
    rafter.HeelLocked = true;
  }
}

inline DrawingContext ContextOf(const ElevationCase& c) {
  DrawingContext context;
  context.RoofType = static_cast<Roof>(c.RoofType);
  context.UnitRun = c.Metric ? 1000 : 12;
  context.UnitHipRun = c.Metric ? 1414.2135 : 16.970562;
  context.OnDesignPage = c.Tab == 0;
  context.SquareCut = c.SquareCut;
  context.RiseOverRun = c.RiseOverRun;
  return context;
}

/// Calculates and draws. As on the document's page, a common of a hip roof is calculated with the record of
/// the hip.
class DrawnElevation {
 public:
  explicit DrawnElevation(const ElevationCase& c)
      : board(meter_, [this](double v) { return converter_.ToText(v); }) {
    if (c.Metric) {
      converter_.Units = kMillimetres;
      converter_.BaseUnits = kBaseMillimetres;
    }
    Fill(rafter, c);
    rafter.RafterType = c.RoofType == 1 ? Member::kHip : c.Type;
    rafter.Calculate();
    rafter.RafterType = c.Type;
    board.DrawScale = c.Metric ? 1 : 10;
    board.Recorder.SetCanvas({c.Width, c.Height});
    DrawRafter(board, rafter, ContextOf(c));
  }

  const Recording& Operations() const { return board.Recorder.Finished(); }
  /// A point of the array in inches or millimetres.
  double X(int point) const { return board.Pts(point).X / board.DrawScale; }
  double Y(int point) const { return board.Pts(point).Y / board.DrawScale; }

 private:
  ArialMeter meter_;
  MeasureConverter converter_;

 public:
  Rafter rafter;
  DraftingBoard board;
};

}  // namespace pitchcraft::testing
