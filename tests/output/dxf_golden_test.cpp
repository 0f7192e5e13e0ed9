// Whole files, as they were when outside readers showed them correctly.
#include <gtest/gtest.h>

#include "sample_dxf.h"
#include "support/golden.h"

namespace pitchcraft::testing {
namespace {

TEST(DxfGolden, ADrawingWithEverything) {
  ExpectGolden("output/golden/everything.dxf", SampleDrawing().Bytes());
}

TEST(DxfGolden, ADrawingWithNothing) { ExpectGolden("output/golden/nothing.dxf", SampleWriter().Bytes()); }

TEST(DxfGolden, ARecordedDimension) {
  DxfWriter writer = SampleWriter();
  writer.Units = DxfUnits::kMillimetre;
  writer.Line(0, 0, 1000, 500);
  writer.DimTextHeight = 40;
  const auto stroke = [](double x1, double y1, double x2, double y2) {
    return std::vector<DimensionValue>{Single(x1), Single(y1), Single(x2), Single(y2)};
  };
  std::vector<DimensionValue> list;
  for (const auto& values :
       {stroke(0, 20, 0, 120), stroke(1000, 520, 1000, 620), stroke(0, 100, 1000, 600)}) {
    list.insert(list.end(), values.begin(), values.end());
  }
  list.insert(list.end(),
              {Single(500), Single(360), std::string("1118"), Single(0.4636476), std::string("C")});
  writer.SetDimensionPoints(list, false);
  ExpectGolden("output/golden/recorded.dxf", writer.Bytes());
}

}  // namespace
}  // namespace pitchcraft::testing
