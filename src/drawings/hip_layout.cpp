#include "drawings/hip_layout.h"

#include <algorithm>
#include <cmath>

#include "core/run_time_error.h"

namespace pitchcraft {
namespace {

// Singles of a roof's size agree to within this fraction of its run.
constexpr double kSamePlace = 1e-5;
constexpr double kStubSpacings = 1.5;
// The cut through the main roof is at least this many spacings above the last common.
constexpr double kAboveLastCommon = 0.5;

/// The end of a plain hip is its side turned round: what the record holds of it may be older than the side.
bool IsPlain(const Rafter& rafter) { return rafter.RafterType != Member::kBastardHip; }

/// One face from the point of view of its jacks, which stand along its eave and run square to it.
struct Face {
  HipRoofFace Side = HipRoofFace::kEnd;
  double Middle = 0;   // the middle of its common along the eave
  double Corner = 0;   // the wall corner, along the eave
  double Wall = 0;     // the wall, along a jack
  double Ratio = 0;    // run of the hip along a jack for one unit along the eave
  double Slope = 0;    // rise for one unit of run
  double Longest = 0;  // run to the ridge board
  double WholeRun = 0;
};

/// Places at equal spacing, starting with the one nearest to the common.
struct Places {
  double First = 0;
  double Lowest = 0;  // a jack further out would be outside the eave
};

class HipLayoutBuilder {
 public:
  HipLayoutBuilder(const Rafter& rafter, const HipLayoutOptions& options)
      : options_(options),
        thickness_(rafter.Thickness),
        halfHip_(rafter.HipValThickness / 2),
        outline_(OutlineOfHip(rafter, options)) {
    layout_.Outline = outline_;
    layout_.Spacing = rafter.spacing;
    same_ = kSamePlace * std::max(outline_.MainRun, outline_.EndRun);
    const double ratio = outline_.Ratio();
    end_ = {HipRoofFace::kEnd,
            outline_.MainRun,
            outline_.Overhang,
            outline_.EndOverhang,
            ratio,
            (IsPlain(rafter) ? rafter.Slope : rafter.HipEndSlope) / rafter.SlopeBase,
            outline_.EndRun - rafter.RidgeAllowance * ratio,
            outline_.EndRun};
    main_ = {HipRoofFace::kMain,
             outline_.EndRun,
             outline_.EndOverhang,
             outline_.Overhang,
             1 / ratio,
             rafter.Slope / rafter.SlopeBase,
             outline_.MainRun - rafter.RidgeAllowance,
             outline_.MainRun};
  }

  HipLayout Build() {
    AddCommon(end_, end_.Middle, "End Common");
    AddJacks(end_, options_.Layout == JackLayout::kCenter ? FromCommon(end_.Middle) : FromCorner(end_));
    if (options_.LastCommon || options_.Layout == JackLayout::kCenter) {
      AddCommon(main_, outline_.LastCommonPlace(), "Common");
      AddJacks(main_, FromCommon(outline_.LastCommonPlace()));
    } else {
      AddCommon(main_, main_.Middle, StandsOnPeak() ? "Common" : "Commons");
      AddJacks(main_, FromCorner(main_));
    }
    return std::move(layout_);
  }

 private:
  void AddCommon(const Face& face, double place, const char* label) {
    layout_.Rafters.push_back({face.Side, label, place, face.WholeRun, std::nullopt});
  }

  Places FromCommon(double common) const { return {common - layout_.Spacing, 0}; }

  /// The places counted from the corner: the corner's own, those in the overhang and those towards the
  /// middle. A jack cannot be where the common is.
  Places FromCorner(const Face& face) const {
    const double own = face.Corner + (IsFlush() ? thickness_ / 2 : 0);
    const double steps = std::floor((face.Middle - thickness_ - own + same_) / layout_.Spacing);
    return {own + steps * layout_.Spacing, IsFlush() ? thickness_ / 2 - same_ : 0};
  }

  bool IsFlush() const { return options_.Layout == JackLayout::kCornersFlush; }

  /// Whether the common at the peak falls on one of the places counted from the corner.
  bool StandsOnPeak() const {
    const double own = main_.Corner + (IsFlush() ? thickness_ / 2 : 0);
    return std::fabs(std::remainder(main_.Middle - own, layout_.Spacing)) <= same_;
  }

  void AddJacks(const Face& face, const Places& places) {
    if (!(layout_.Spacing > 0) || !(layout_.Spacing >= thickness_ - same_)) return;
    if (!(places.First / layout_.Spacing < kMostJacks)) {
      throw RunTimeError(5, "The rafters stand too close: more than " + std::to_string(kMostJacks) +
                                " jacks on one face of the roof");
    }
    for (int step = 0;; ++step) {
      const double place = places.First - step * layout_.Spacing;
      if (place <= std::max(places.Lowest, same_)) return;
      if (!AddJack(face, place)) return;
    }
  }

  /// False when the hip leaves no room for this jack; further out there is no room either.
  bool AddJack(const Face& face, double place) {
    if (place >= face.Middle - same_) {
      AddCommon(face, place, "Common");
      return true;
    }
    // The longest edge is the one towards the common; it ends at the side of the hip or at the ridge board.
    const double toHip = (place + thickness_ / 2) * face.Ratio - halfHip_ * std::hypot(1, face.Ratio);
    const double run = std::min(toHip, face.Longest);
    if (!(run > same_)) return false;
    const double measured = options_.WithOverhang ? run : run - face.Wall;
    LaidRafter jack{face.Side, nullptr, place, place * face.Ratio, std::nullopt};
    if (measured > same_) jack.Length = measured * std::hypot(1, face.Slope);
    layout_.Rafters.push_back(jack);
    return true;
  }

  const HipLayoutOptions& options_;
  double thickness_;
  double halfHip_;
  HipOutline outline_;
  double same_ = 0;
  Face end_;
  Face main_;
  HipLayout layout_;
};

}  // namespace

HipOutline OutlineOfHip(const Rafter& rafter, const HipLayoutOptions& options) {
  const bool plain = IsPlain(rafter);
  const double endSpan = plain ? rafter.Span : rafter.HipEndSpan;
  HipOutline outline;
  outline.Overhang = rafter.Overhang;
  outline.EndOverhang = plain ? rafter.Overhang : rafter.HipEndOverhang;
  outline.MainRun = rafter.Span + outline.Overhang;
  outline.EndRun = endSpan + outline.EndOverhang;
  outline.Top = outline.EndRun + kStubSpacings * rafter.spacing;
  if (options.LastCommon) {
    // The last common reaches the ridge; below the peak it would be a jack.
    outline.LastCommon = std::max(*options.LastCommon, endSpan);
    outline.Top = std::max(outline.Top, outline.LastCommonPlace() + kAboveLastCommon * rafter.spacing);
  }
  return outline;
}

HipLayout LayOutHip(const Rafter& rafter, const HipLayoutOptions& options) {
  return HipLayoutBuilder(rafter, options).Build();
}

}  // namespace pitchcraft
