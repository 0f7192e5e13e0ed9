// The end of a hip roof in space, worked out from the design alone: faces, walls, and the boards where a jack
// ends. The jacks of the layout are compared with it.
//
// The eaves meet in the origin at height 0; x runs along the eave of the end, y along the main eave.
#pragma once

#include <algorithm>
#include <optional>
#include <vector>

#include "core/geometry3d.h"
#include "hip_case.h"

namespace pitchcraft::testing {

class HipSpace {
 public:
  explicit HipSpace(const HipCase& c)
      : case_(c),
        main_(geometry::RoofFace({}, {1, 0, 0}, c.Slope / c.Base())),
        end_(geometry::RoofFace({}, {0, 1, 0}, c.EndSlope / c.Base())),
        hip_(geometry::Intersect(main_, end_)),
        peak_(geometry::Intersect(hip_, geometry::AtX(c.Run + c.Overhang))) {
    // Both faces are equally high over their walls, unless the end wall is moved to get the main overhang.
    const geometry::Line endEdge = geometry::Intersect(end_, geometry::AtX(0));
    const double wallHeight = main_.HeightAt({c.Overhang, 0, 0});
    endWall_ = c.OverhangsEqual && c.IsBastard()
                   ? c.Overhang
                   : geometry::Intersect(endEdge, geometry::AtHeight(wallHeight)).y;
  }

  double MiddleOf(HipRoofFace face) const { return face == HipRoofFace::kEnd ? peak_.x : peak_.y; }
  /// The wall corner, along the eave of a face.
  double CornerOf(HipRoofFace face) const { return face == HipRoofFace::kEnd ? case_.Overhang : endWall_; }

  /// The distance from the eave to the point where the middle of a jack at `place` passes under the middle of
  /// the hip.
  double ToMiddleOfHip(HipRoofFace face, double place) const {
    const geometry::Vector meet = geometry::Intersect(hip_, Across(face, place));
    return face == HipRoofFace::kEnd ? meet.y : meet.x;
  }

  /// The longest edge of a jack, from the eave or the wall to the side of the hip or the ridge board,
  /// whichever comes first; nothing if no wood is left.
  std::optional<double> LongestEdge(HipRoofFace face, double place, bool fromEave) const {
    const bool end = face == HipRoofFace::kEnd;
    const geometry::Line edge =
        geometry::Intersect(end ? end_ : main_, Across(face, place + case_.Thickness / 2));
    const geometry::Vector atHip = geometry::Intersect(edge, SideOfHip(face));
    const double ridge = peak_.x - (case_.Metric ? 38 : 1.5) / 2;
    const geometry::Vector atRidge = end ? atHip : geometry::Intersect(edge, geometry::AtX(ridge));
    const geometry::Vector top = atRidge.x < atHip.x ? atRidge : atHip;
    const double wall = fromEave ? 0 : end ? endWall_ : case_.Overhang;
    const geometry::Vector foot = geometry::Intersect(edge, end ? geometry::AtY(wall) : geometry::AtX(wall));
    const double run = end ? top.y - foot.y : top.x - foot.x;
    if (!(run > kNothing)) return std::nullopt;
    return geometry::Distance(top, foot);
  }

  /// All places on a face where a jack can be, found by trying every step of the layout: inside the eave,
  /// beside the common but not in it, and with wood left beside the hip.
  std::vector<double> PlacesOf(HipRoofFace face) const {
    std::vector<double> places;
    const bool last = face == HipRoofFace::kMain && case_.PastPeak;
    const bool fromCommon = last || case_.Layout == JackLayout::kCenter;
    const double common = MiddleOf(face) + (last ? *case_.PastPeak : 0);
    const bool flush = !fromCommon && case_.Layout == JackLayout::kCornersFlush;
    const double aside = flush ? case_.Thickness / 2 : 0;
    const double start = fromCommon ? common : CornerOf(face) + aside;
    const int reach = static_cast<int>((common + start) / case_.Spacing) + 2;
    for (int step = reach; step >= -reach; --step) {
      const double place = start + step * case_.Spacing;
      const bool beside = place < MiddleOf(face) - kNothing && place + case_.Thickness <= common + kNothing;
      const bool inside = flush ? place - aside >= -kNothing : place > kNothing;
      if (beside && inside && LongestEdge(face, place, true)) places.push_back(place);
    }
    return places;
  }

 private:
  static constexpr double kNothing = 2e-3;

  static geometry::Plane Across(HipRoofFace face, double place) {
    return face == HipRoofFace::kEnd ? geometry::AtX(place) : geometry::AtY(place);
  }

  geometry::Plane SideOfHip(HipRoofFace face) const {
    const geometry::Vector across =
        geometry::Unit(geometry::Cross(geometry::InPlan(hip_.direction), {0, 0, 1}));
    // Towards the end face, x grows and y falls.
    const double towardsEnd = across.x > 0 ? 1 : -1;
    const double side = face == HipRoofFace::kEnd ? towardsEnd : -towardsEnd;
    return geometry::Upright(hip_.origin + side * case_.HipThickness / 2 * across, across);
  }

  HipCase case_;
  geometry::Plane main_;
  geometry::Plane end_;
  geometry::Line hip_;
  geometry::Vector peak_;
  double endWall_ = 0;
};

}  // namespace pitchcraft::testing
