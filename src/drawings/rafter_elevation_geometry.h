// The points of a rafter's side view and the strokes of its outline, the same for screen, paper and DXF.
#pragma once

#include <array>
#include <cstddef>

#include "drawing/drafting_board.h"
#include "drawings/elevation_member.h"

namespace pitchcraft {

/// One edge of the wood between two points of the array.
struct OutlineStroke {
  int From = 0;
  int To = 0;
};

struct ElevationGeometry {
  bool SquareCut = false;   ///< the tail is cut along the fascia plane
  bool Kneewall = false;    ///< points 27 to 30 hold a second notch
  bool FootInWood = false;  ///< point 6 is a corner of the wood: some underside is left between tail and wall
  int WallFoot = 6;         ///< the lowest corner of the wood on the wall line
  double PlumbAngle = 0;    ///< between rafter and plumb line, degrees
  double TailAngle = 0;     ///< between top edge and square tail cut, degrees
  PointRecord FirstTail;    ///< end of the tail before a hip's square cut shortens it; otherwise point 2
  std::array<OutlineStroke, 16> Strokes{};
  std::size_t StrokeCount = 0;

  void Add(int from, int to) { Strokes[StrokeCount++] = {from, to}; }
};

/// Fills points 0 to 8, and with a kneewall 27 to 30, in drawing units. Raises Overflow if one of them does
/// not fit 32 bits.
///
/// The wood is the band between top edge and underside, without what the soffit cut takes off below the tail
/// outside the wall, and without the notches, which take off everything inside the wall (or kneewall) below
/// the seat. So the outline never hangs below the lower of soffit and seat, and no stroke crosses a notch.
ElevationGeometry LayOutElevation(const ElevationMember& member, bool squareCut, double scale,
                                  PointArray& pts);

}  // namespace pitchcraft
