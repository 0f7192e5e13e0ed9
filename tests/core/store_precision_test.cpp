// Where the 32 bits come in: each formula in 64 bits from stored 32-bit members, rounded once at its store. A
// version carried in 32 bits throughout, or one that skips a store, gives other last digits on many roofs;
// these tests walk over roofs until they have seen that it does.
#include <cmath>

#include "core/rafter.h"
#include "store_comparison.h"

namespace pitchcraft {
namespace {

template <typename Action>
void ForManyRoofs(Member type, Action action) {
  for (int rise = 2; rise <= 18; ++rise) {
    for (int step = 0; step < 80; ++step) {
      Rafter rafter;
      rafter.RafterType = type;
      rafter.Slope = rise + step / 96.0;
      rafter.Span = 100 + 2.3 * step;
      rafter.Overhang = 10.1;
      rafter.Thickness = 1.5;
      rafter.Depth = 5.5 + step / 48.0;
      rafter.RidgeThickness = 1.5;
      rafter.HipValThickness = 1.75;
      rafter.HipValDepth = 7.25 + step / 48.0;
      rafter.Calculate();
      action(rafter);
    }
  }
}

TEST(StorePrecision, PlumbCut) {
  Comparison comparison("PlumbCut");
  ForManyRoofs(Member::kCommon, [&](const Rafter& r) {
    const float rise = F(r.Slope * r.Depth / 12);
    const float in32 =
        std::sqrt(F(r.Depth) * F(r.Depth) + F(r.Slope) * F(r.Depth) / 12 * (F(r.Slope) * F(r.Depth) / 12));
    comparison.Check(r.PlumbCut, std::sqrt(r.Depth * r.Depth + double{rise} * rise), in32);
  });
}

TEST(StorePrecision, LengthOfACommon) {
  Comparison comparison("Length1");
  ForManyRoofs(Member::kCommon, [&](const Rafter& r) {
    const float in32 = std::sqrt(F(r.Rise) * F(r.Rise) + F(r.AdjSpan) * F(r.AdjSpan));
    comparison.Check(r.Length1, std::sqrt(r.Rise * r.Rise + r.AdjSpan * r.AdjSpan), in32);
  });
}

TEST(StorePrecision, LengthOfAHip) {
  Comparison comparison("Length1");
  ForManyRoofs(Member::kHip, [&](const Rafter& r) {
    const float in32 = std::sqrt(F(r.Rise) * F(r.Rise) + F(r.AdjHipSpan) * F(r.AdjHipSpan));
    comparison.Check(r.Length1, std::sqrt(r.Rise * r.Rise + r.AdjHipSpan * r.AdjHipSpan), in32);
  });
}

TEST(StorePrecision, Rise) {
  Comparison comparison("Rise");
  ForManyRoofs(Member::kCommon, [&](const Rafter& r) {
    comparison.Check(r.Rise, r.Slope * r.AdjSpan / 12, F(r.Slope) * F(r.AdjSpan) / 12);
  });
}

TEST(StorePrecision, Seat) {
  Comparison comparison("Seat");
  ForManyRoofs(Member::kCommon, [&](const Rafter& r) {
    const float in32 = (F(r.PlumbCut) - F(r.Heel)) * 12 / F(r.Slope);
    comparison.Check(r.Seat, (r.PlumbCut - r.Heel) * 12 / r.Slope, in32);
  });
}

TEST(StorePrecision, SeatOfAHip) {
  Comparison comparison("HipValSeat");
  ForManyRoofs(Member::kHip, [&](const Rafter& r) {
    const float in32 = (F(r.HipValPlumbCut) - F(r.HipHeel)) * 12 / F(r.Slope) * F(r.HipFactor);
    comparison.Check(r.HipValSeat, ((r.HipValPlumbCut - r.HipHeel) * 12 / r.Slope) * r.HipFactor, in32);
  });
}

TEST(StorePrecision, SpanOfAHipUsesTheFactorIn64Bits) {
  Comparison comparison("HipValSpan");
  ForManyRoofs(Member::kHip, [&](const Rafter& r) {
    comparison.Check(r.HipValSpan, r.Span * (16.970562 / 12), F(r.Span) * F(16.970562 / 12));
  });
}

TEST(StorePrecision, JackDifference) {
  Comparison comparison("CommonDifference16");
  ForManyRoofs(Member::kCommon, [&](const Rafter& r) {
    const float length = F(std::sqrt(r.Slope * r.Slope + 144));
    const float in32 = std::sqrt(F(r.Slope) * F(r.Slope) + 144) * 16 / 12;
    comparison.Check(r.CommonDifference16, double{length} * 16 / 12, in32);
  });
}

// The stores between the steps count as much as the 64 bits within one: from slope and run to length without
// storing the rise gives other digits.
TEST(StorePrecision, LengthGoesByTheStoredRise) {
  Comparison comparison("Length1");
  ForManyRoofs(Member::kCommon, [&](const Rafter& r) {
    const double unstored = r.Slope * r.AdjSpan / 12;
    const float without = F(std::sqrt(unstored * unstored + r.AdjSpan * r.AdjSpan));
    comparison.Check(r.Length1, std::sqrt(r.Rise * r.Rise + r.AdjSpan * r.AdjSpan), without);
  });
}

TEST(StorePrecision, SeatGoesByTheStoredHeel) {
  Comparison comparison("Seat");
  ForManyRoofs(Member::kCommon, [&](const Rafter& r) {
    const float without = F((r.PlumbCut - r.PlumbCut * 0.6666667) * 12 / r.Slope);
    comparison.Check(r.Seat, (r.PlumbCut - r.Heel) * 12 / r.Slope, without);
  });
}

// One roof on which every figure of a common differs in its last bits when carried in 32 bits; the bits were
// reckoned apart from this program, in both ways.
TEST(StorePrecision, BitsOfOneRoof) {
  Rafter rafter;
  rafter.Slope = 12.11875;
  rafter.Span = 699.03;
  rafter.Depth = 5.5 + 1619.0 / 700;
  rafter.RidgeThickness = 1.5;
  rafter.Calculate();
  EXPECT_EQ(Bits(rafter.Rise), 0x44304C2AU);                // in 32 bits 2B
  EXPECT_EQ(Bits(rafter.Length1), 0x44781A93U);             // in 32 bits 94
  EXPECT_EQ(Bits(rafter.PlumbCut), 0x4131A961U);            // in 32 bits 62
  EXPECT_EQ(Bits(rafter.Heel), 0x40ECE1D7U);                // in 32 bits D8
  EXPECT_EQ(Bits(rafter.Seat), 0x406A8F9EU);                // in 32 bits A0
  EXPECT_EQ(Bits(rafter.CommonDifference16), 0x41B5EACFU);  // in 32 bits CD
}

}  // namespace
}  // namespace pitchcraft
