// The side views of the three rafters of a hip roof whose end has a slope of its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "core/geometry3d.h"
#include "core/run_time_error.h"
#include "drawing/text_trace.h"
#include "drawings/elevation_member.h"
#include "drawings/rafter_elevation.h"
#include "hip_case.h"
#include "legibility.h"
#include "support/golden.h"

namespace pitchcraft {
namespace {

using ::testing::Contains;
using testing::HipCase;
using ::testing::Not;
using testing::UnreadableTexts;

constexpr std::array kMembers = {Member::kCommon, Member::kHipEndCommon, Member::kBastardHip};

struct MemberCase : HipCase {
  MemberCase() { EndSlope = 9; }
  Member Type = Member::kBastardHip;
  bool SquareCut = false;
  int Tab = 3;
};

class DrawnMember {
 public:
  explicit DrawnMember(const MemberCase& c)
      : board(meter_, [this](double v) { return converter_.ToText(v); }) {
    if (c.Metric) {
      converter_.Units = kMillimetres;
      converter_.BaseUnits = kBaseMillimetres;
    }
    testing::CalculateHip(rafter, c);
    rafter.RafterType = c.Type;
    DrawingContext context = testing::ContextOf(c, rafter);
    context.SquareCut = c.SquareCut;
    context.OnDesignPage = c.Tab == 0;
    board.DrawScale = c.Metric ? 1 : 10;
    board.Recorder.SetCanvas({c.Width, c.Height});
    DrawBastardHipRafters(board, rafter, context);
  }

  double X(int point) const { return board.Pts(point).X / board.DrawScale; }
  double Y(int point) const { return board.Pts(point).Y / board.DrawScale; }
  double TailSlope() const { return (Y(1) - Y(2)) / (X(1) - X(2)); }
  double TopSlope() const { return (Y(0) - Y(1)) / (X(0) - X(1)); }
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const DrawOp& operation : board.Recorder.Finished()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(text->Text);
    }
    return texts;
  }
  std::string Trace() const {
    TextTrace trace(meter_);
    trace.Play(board.Recorder.Finished());
    return trace.Lines();
  }

 private:
  ArialMeter meter_;
  MeasureConverter converter_;

 public:
  Rafter rafter;
  DraftingBoard board;
};

template <typename Vary>
void ForEveryRoof(const Vary& vary) {
  for (const auto& [slope, endSlope] : {std::pair{6.0, 9.0}, {9.0, 6.0}, {3.0, 12.0}, {14.0, 4.0}}) {
    for (const bool equal : {false, true}) {
      for (const Member type : kMembers) {
        MemberCase c;
        c.Slope = slope;
        c.EndSlope = endSlope;
        c.OverhangsEqual = equal;
        c.Type = type;
        vary(c);
      }
    }
  }
}

TEST(BastardHipElevation, ShowsTheMeasuresOfItsMember) {
  ForEveryRoof([](const MemberCase& c) {
    SCOPED_TRACE(::testing::PrintToString(static_cast<const HipCase&>(c)));
    const DrawnMember drawn(c);
    Rafter rafter;
    testing::CalculateHip(rafter, c);
    rafter.OverhangsEqual = c.OverhangsEqual;
    rafter.RafterType = c.Type;
    rafter.CalculateBastardHip();  // of its own lengths
    EXPECT_NEAR(std::hypot(drawn.X(0) - drawn.X(1), drawn.Y(0) - drawn.Y(1)), rafter.Length1, 2e-3);
    EXPECT_NEAR(drawn.Y(0), rafter.RiseWithOverhang, 1e-3) << "all climb to one ridge";
    const bool end = c.Type == Member::kHipEndCommon;
    const bool hip = c.Type == Member::kBastardHip;
    EXPECT_NEAR(drawn.X(1) - drawn.X(2),
                hip   ? rafter.HipValOverhang
                : end ? rafter.HipEndOverhang
                      : rafter.Overhang,
                1e-3);
    EXPECT_NEAR(drawn.Y(0) - drawn.Y(8),
                hip   ? rafter.HipValPlumbCut
                : end ? rafter.HipEndPlumbCut
                      : rafter.PlumbCut,
                1e-3);
    EXPECT_NEAR(drawn.Y(1) - drawn.Y(5), hip ? rafter.HipHeel : rafter.Heel, 1e-3);
    EXPECT_NEAR(drawn.X(7) - drawn.X(5),
                hip   ? rafter.HipValSeat
                : end ? rafter.HipEndSeat
                      : rafter.Seat,
                1e-3);
    EXPECT_NEAR(drawn.Y(2) - drawn.Y(3),
                hip   ? rafter.HipFasciaCut
                : end ? rafter.HipEndFasciaCut
                      : rafter.AdjFasciaHeight,
                1e-3);
  });
}

// With equal overhangs, a hip's rise is measured to the ridge board, but its run ends at the main common's
// cheek. So the top edge bends at the wall by the difference; otherwise it must be straight.
TEST(BastardHipElevation, KeepsTheTopEdgeStraight) {
  ForEveryRoof([](const MemberCase& c) {
    SCOPED_TRACE(::testing::PrintToString(static_cast<const HipCase&>(c)));
    const DrawnMember drawn(c);
    double excess = 0;
    if (c.Type == Member::kBastardHip && c.OverhangsEqual) {
      excess = c.Slope / 12 * (0.75 * c.EndSlope / c.Slope - 0.75) / (drawn.X(0) - drawn.X(1));
    }
    EXPECT_NEAR(drawn.TopSlope() - drawn.TailSlope(), excess, 1e-4);
  });
}

TEST(BastardHipElevation, IsTitledByItsMember) {
  MemberCase c;
  c.Type = Member::kCommon;
  EXPECT_THAT(DrawnMember(c).Texts(), Contains(" 6/12"));
  c.Type = Member::kHipEndCommon;
  EXPECT_THAT(DrawnMember(c).Texts(), Contains(" 9/12"));
  c.RiseOverRun = false;
  EXPECT_THAT(DrawnMember(c).Texts(), Contains("36.87\u00BA"));
  c.Type = Member::kBastardHip;
  EXPECT_THAT(DrawnMember(c).Texts(), Contains("22.59\u00BA"));
}

TEST(BastardHipElevation, MeasuresTheWholeRiseOnThePagesOfAllThree) {
  for (const Member type : kMembers) {
    MemberCase c;
    c.Type = type;
    const DrawnMember drawn(c);
    EXPECT_NEAR(drawn.board.Pts(14).Y, drawn.board.Pts(0).Y, 1e-3) << "the head of its dimension";
    c.Tab = 0;
    EXPECT_EQ(DrawnMember(c).Texts().size() + 1, drawn.Texts().size());
  }
}

TEST(BastardHipElevation, LabelsTheTwoCheeksOnTwoRows) {
  MemberCase c;
  c.Slope = 30;
  c.EndSlope = 18;
  c.Run = 60;
  const DrawnMember drawn(c);
  std::vector<TextOp> bevels;
  for (const DrawOp& operation : drawn.board.Recorder.Finished()) {
    const auto* text = std::get_if<TextOp>(&operation);
    if (text != nullptr && text->Text.ends_with(" bevel")) bevels.push_back(*text);
  }
  ASSERT_EQ(bevels.size(), 4U);
  EXPECT_EQ(bevels[0].Text, "59.0\u00BA bevel") << "left above";
  EXPECT_EQ(bevels[1].Text, "31.0\u00BA bevel") << "right above";
  EXPECT_EQ(bevels[2].Text, "31.0\u00BA bevel") << "left below";
  EXPECT_EQ(bevels[3].Text, "59.0\u00BA bevel") << "right below";
  // The distance of an edge from the point is proportional to the tangent of its bevel.
  const auto back = [&](int edge, int point) { return std::fabs(drawn.X(edge) - drawn.X(point)); };
  EXPECT_NEAR(back(19, 20) / back(21, 20), std::pow(30.0 / 18, 2), 0.01);
  EXPECT_NEAR(back(22, 23) / back(18, 23), std::pow(30.0 / 18, 2), 0.01);
}

// The square cut.

/// The angle between top edge and square tail cut.
double TailAngle(const DrawnMember& drawn) {
  const double edge = std::atan2(drawn.Y(1) - drawn.Y(2), drawn.X(1) - drawn.X(2));
  const double cut = std::atan2(drawn.Y(3) - drawn.Y(2), drawn.X(3) - drawn.X(2));
  return (edge - cut) * 180 / std::acos(-1.0);
}

// One fascia runs around the roof: it is square to the main commons and keeps that tilt along the end. The
// hip's tail is cut along the lower corner of the fascia, as seen square to the side of the hip.
TEST(BastardHipElevation, CutsASquareTailAlongTheFascia) {
  using namespace geometry;  // NOLINT(google-build-using-namespace)
  ForEveryRoof([](MemberCase c) {
    SCOPED_TRACE(::testing::PrintToString(static_cast<const HipCase&>(c)));
    c.SquareCut = true;
    c.Overhang = 24;
    const DrawnMember drawn(c);
    const Plane mainFascia({1, 0, c.Slope / 12}, {});
    const Plane endFascia({0, 1, c.Slope / 12}, {});
    const Line corner = Intersect(mainFascia, endFascia);
    const Plane main = RoofFace({}, {1, 0, 0}, c.Slope / 12);
    const Plane end = RoofFace({}, {0, 1, 0}, c.EndSlope / 12);
    const Line hip = Intersect(main, end);
    // The top edge in the member's own plane, and the line of the fascia in it.
    Line edge = hip;
    Line cut = corner;
    if (c.Type == Member::kCommon) {
      edge = Intersect(main, AtY(0));
      cut = Intersect(mainFascia, AtY(0));
    } else if (c.Type == Member::kHipEndCommon) {
      edge = Intersect(end, AtX(0));
      cut = Intersect(endFascia, AtX(0));
    }
    const Vector along = Unit(InPlan(edge.direction));
    const double cutAlong = std::fabs(Dot(cut.direction, along));
    const double expected =
        Degrees(std::atan(SlopeOf(edge)) + std::atan2(std::fabs(cut.direction.z), cutAlong));
    EXPECT_NEAR(TailAngle(drawn), expected, 0.02);
  });
}

TEST(BastardHipElevation, WritesTheTailAngleThatIsNotSquare) {
  MemberCase c;
  c.SquareCut = true;
  c.Type = Member::kHipEndCommon;
  EXPECT_THAT(DrawnMember(c).Texts(), Contains("100.3\u00BA"));
  c.Type = Member::kCommon;
  EXPECT_THAT(DrawnMember(c).Texts(), Not(Contains("90.0\u00BA")));
}

// The whole figure.

TEST(BastardHipElevation, CanBeRead) {
  ForEveryRoof([](MemberCase c) {
    for (const bool square : {false, true}) {
      for (const double overhang : {0.0, 2.0, 10.5}) {
        for (const double run : {96.0, 144.0}) {
          for (const auto& [width, height] : {std::pair{5000.0, 5500.0}, {10000.0, 7000.0}}) {
            c.SquareCut = square;
            c.Overhang = overhang;
            c.Run = run;
            c.Width = width;
            c.Height = height;
            for (const std::string& fault : UnreadableTexts(DrawnMember(c).board.Recorder.Finished())) {
              ADD_FAILURE() << static_cast<int>(c.Type) << " " << static_cast<const HipCase&>(c)
                            << (square ? " square: " : ": ") << fault;
            }
          }
        }
      }
    }
  });
}

TEST(BastardHipElevation, IsDrawnAsBefore) {
  const char* const names[] = {"common", "end-common", "hip"};
  for (std::size_t at = 0; at < kMembers.size(); ++at) {
    const auto expect = [&](const std::string& kind, const MemberCase& c) {
      testing::ExpectGolden("drawings/golden/bastard-" + std::string(names[at]) + kind + ".trace",
                            DrawnMember(c).Trace());
    };
    MemberCase c;
    c.Type = kMembers[at];
    expect("", c);
    c.OverhangsEqual = true;
    expect("-equal", c);
    c.Slope = 18;
    c.Run = 72;  // narrow enough for the view of the ends
    c.SquareCut = true;
    expect("-square-steep", c);
  }
}

TEST(BastardHipElevation, EndsBlankWithOneOverflow) {
  for (const double value : {1e30, std::nan("")}) {
    for (const Member type : kMembers) {
      MemberCase c;
      c.Type = type;
      c.Run = value;
      EXPECT_THROW(DrawnMember{c}, RunTimeError);
    }
  }
}

}  // namespace
}  // namespace pitchcraft
