// What each page shows, on screen, on paper and in a file: one table of expectations.
#include <gtest/gtest.h>

#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

using F = FigureKind;

struct Row {
  const char* name;
  Roof roof;
  int page;
  FigureKind figure;
  int record;
  Member member;
};

const Row kRows[] = {
    {"a gable on its design page", Roof::kGable, 0, F::kRafter, 1, Member::kCommon},
    {"a shed", Roof::kShed, 1, F::kRafter, 1, Member::kShed},
    {"a valley", Roof::kValley, 1, F::kRafter, 1, Member::kValley},
    {"a hip's plan", Roof::kHip, 0, F::kHipPlan, 1, Member::kHip},
    {"a hip's common", Roof::kHip, 1, F::kRafter, 1, Member::kCommon},
    {"a hip's rafter", Roof::kHip, 2, F::kRafter, 1, Member::kHip},
    {"a hip's layout", Roof::kHip, 3, F::kHipLayout, 1, Member::kHip},
    {"a hip has no fifth page", Roof::kHip, 4, F::kNone, 1, Member::kCommon},
    {"unequal slopes have one page more", Roof::kBastardHip, 4, F::kHipLayout, 1, Member::kBastardHip},
    {"their common", Roof::kBastardHip, 1, F::kBastardHipRafters, 1, Member::kCommon},
    {"their end common", Roof::kBastardHip, 2, F::kBastardHipRafters, 1, Member::kHipEndCommon},
    {"their hip", Roof::kBastardHip, 3, F::kBastardHipRafters, 1, Member::kBastardHip},
    {"a dual slope's section", Roof::kDualSlope, 0, F::kSaltbox, 1, Member::kCommon},
    {"a dual slope's rear", Roof::kDualSlope, 2, F::kRafter, 2, Member::kCommon},
    {"a bay without dimensions", Roof::kBay, 0, F::kBayDiagram, 1, Member::kBayCommon},
    {"a bay's ledger rafter", Roof::kBay, 3, F::kBayRafter, 1, Member::kBayLedger},
    {"a bay's center ledger", Roof::kBay, 4, F::kBayCenterLedger, 1, Member::kCenterLedger},
    {"a Dutch hip's common", Roof::kDutchHip, 1, F::kRafter, 1, Member::kCommon},
    {"a Dutch hip's hip", Roof::kDutchHip, 3, F::kBayRafter, 2, Member::kBayHip},
    {"an octagon's hip", Roof::kOctagon, 1, F::kOctagonRafter, 1, Member::kOctagonHip},
    {"an octagon's jack", Roof::kOctagon, 2, F::kOctagonRafter, 1, Member::kOctagonJack},
    {"an unequal valley's long one", Roof::kUnequalSpanValley, 2, F::kRafter, 2, Member::kLongValley},
    {"a gambrel's top", Roof::kGambrel, 2, F::kGambrelRafter, 2, Member::kGambrelTop},
    {"a page below the first", Roof::kGable, -1, F::kNone, 1, Member::kCommon},
};

TEST(PageFigures, EachPageShowsItsMember) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    Design design;
    const bool unequal = row.roof == Roof::kBastardHip;
    design.RoofType = unequal ? Roof::kHip : row.roof;
    if (unequal) design.Rafter1.HipEndSlope = design.Rafter1.Slope + 1;
    const PageFigure figure = RoofOf(design).FigureOn(design, row.page);
    EXPECT_EQ(figure.Kind, row.figure);
    if (row.figure == F::kNone) continue;
    EXPECT_EQ(figure.Record, row.record);
    EXPECT_EQ(figure.As, row.member);
    EXPECT_EQ(RoofOf(design).RecordOn(design, row.page).RafterType, row.member);
  }
}

TEST(RoofTypes, CodesAndPositions) {
  EXPECT_EQ(RoofTypes().size(), 11U);
  EXPECT_EQ(ListIndexOfRoof(Roof::kGambrel), 10);
  EXPECT_EQ(ListIndexOfRoof(Roof::kBastardHip), 3) << "a bastard hip stands under Hip";
  EXPECT_EQ(ListIndexOfRoof(static_cast<Roof>(6)), -1);
  EXPECT_EQ(RoofTypeByCode(static_cast<Roof>(7)), nullptr);
  EXPECT_EQ(RoofTypeByItem("hip"), nullptr) << "compared exactly";
  EXPECT_EQ(RoofTypeByItem("Hip")->About().HelpTopic, 400);
}

// What a job or a click left in the record would otherwise decide what is drawn.
TEST(PageFigures, TheTypeLeftInTheRecordDecidesNothing) {
  for (const RoofType* type : RoofTypes()) {
    Design design;
    design.RoofType = type->About().Code;
    for (int page = 0; page < 5; ++page) {
      const PageFigure before = type->FigureOn(design, page);
      design.Rafter1.RafterType = design.Rafter2.RafterType = Member::kCenterLedger;
      const PageFigure after = type->FigureOn(design, page);
      EXPECT_EQ(before.Kind, after.Kind) << type->About().Item << page;
      EXPECT_EQ(before.As, after.As) << type->About().Item << page;
    }
  }
}

}  // namespace
}  // namespace pitchcraft
