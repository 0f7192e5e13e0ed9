// A drawing with everything that a DXF file can hold, added as an export would add it.
#pragma once

#include "output/dxf_writer.h"

namespace pitchcraft::testing {

inline std::string FeetAndInches(double length) {
  const int inches = static_cast<int>(length);
  return std::to_string(inches / 12) + "' " + std::to_string(inches % 12) + "\"";
}

inline DxfWriter SampleWriter() {
  DxfWriter writer;
  writer.LengthText = FeetAndInches;
  writer.TextHeight = writer.DimTextHeight = writer.DimArrowSize = 4;
  writer.DimExtension = writer.DimIncrement = writer.DimOffset = 4;
  writer.DimColor = 12;
  return writer;
}

/// The gable end of a shed roof, 12 feet wide and 6 feet high.
inline DxfWriter SampleDrawing() {
  DxfWriter writer = SampleWriter();
  writer.Line(0, 0, 144, 0);
  writer.Line(144, 0, 144, 72);
  writer.Line(144, 72, 0, 0);
  writer.Line(72, -12, 72, 48, "CENTER");
  writer.Text("Shed 26.6° or 26.6º", 0, 96, 8);
  writer.TextAlign = "R";
  writer.Text("100%", -4, 0);
  writer.TextAlign = "C";
  writer.Text("along the slope", 60, 34, {}, 27);
  writer.TextAlign = "L";
  writer.Color = 3;
  writer.Text("upright", 141, 8, 3, 90);
  writer.Color = kDxfByLayer;
  writer.DimFirstTier();
  writer.DimHorizontal(0, 0, 144, 0, -16);
  writer.DimNextTier();
  writer.DimHorizontal(0, 0, 72, 0, -8, 24);
  writer.DimVertical(144, 0, 144, 72, 170);
  writer.DimVertical(144, 0, 144, 72, 144);
  writer.DimAligned(0, 0, 144, 72, 0, 16);
  writer.DimHorizontal(144, 0, 147, 0, -8);
  return writer;
}

}  // namespace pitchcraft::testing
