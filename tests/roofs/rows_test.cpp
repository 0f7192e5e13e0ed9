#include "roofs/rows.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr int kNo = kHiddenRow;

struct Row {
  const char* name;
  Roof roof;
  int slope2, span0, span2, ridge0, ridge1, overhang, heel, seat, fascia, ridge, rafter, hipVal;
};

// Tops of the fields in twips; kNo where the roof type has no such row.
const Row kRows[] = {
    // name, roof, slope2, span0, span2, ridge0, ridge1, overhang, heel, seat, fascia, ridge, rafter, hipVal
    {"gable", Roof::kGable, kNo, 840, kNo, kNo, kNo, 1200, 1560, 1920, 2400, 2730, 3060, kNo},
    {"shed", Roof::kShed, kNo, 840, kNo, kNo, kNo, 1200, 1560, 1920, 2400, 2730, 3060, kNo},
    {"dual slope", Roof::kDualSlope, kNo, 840, kNo, kNo, kNo, 1200, 1560, 1920, 2400, 2730, 3060, kNo},
    {"valley", Roof::kValley, kNo, 840, kNo, kNo, kNo, 1200, 1560, 1920, 2400, 2730, 3060, 3390},
    {"bay", Roof::kBay, kNo, kNo, kNo, kNo, kNo, 840, 1200, 1560, 2040, 2370, 2700, 3030},
    {"Dutch hip", Roof::kDutchHip, kNo, 840, 1200, kNo, kNo, 1560, 1920, 2280, 2760, 3090, 3420, 3750},
    {"unequal", Roof::kUnequalSpanValley, kNo, 840, 1200, kNo, kNo, 1560, 1920, 2280, 2760, 3090, 3420, 3750},
    {"octagon", Roof::kOctagon, kNo, 840, 1200, kNo, kNo, 1560, 1920, 2280, 2760, kNo, 3090, 3420},
    {"hip", Roof::kHip, 860, 1200, kNo, kNo, kNo, 1560, 1920, 2280, 2760, 3090, 3420, 3750},
    {"blind", Roof::kBlindValley, 860, 1200, kNo, 1560, 1920, kNo, kNo, kNo, kNo, 2730, 3060, 3390},
    {"gambrel", Roof::kGambrel, 860, 1560, 1200, 1920, 2280, 2640, 3000, 3360, 3750, 4470, 4110, kNo},
};

/// A sheet laid out for a roof type, on whatever was there before.
void LayOutFor(Design& design, Roof roof, bool purlins = true) {
  design.RoofType = roof;
  design.Support = purlins ? GambrelSupport::kPurlins : GambrelSupport::kWall;
  RoofTypeByCode(roof)->LayOut(design);
}

bool HasSecondSlope(Roof roof) { return RoofTypeByCode(roof)->About().Rows.HasSecondSlope(); }

class RowLayoutTest : public testing::TestWithParam<Row> {};

int TopOf(const Control& control) { return control.Visible ? control.Top : kNo; }

TEST_P(RowLayoutTest, FieldsStandWhereTheRoofTypePutsThem) {
  const Row& row = GetParam();
  Design design;
  Sheet& sheet = design.sheet;
  LayOutFor(design, Roof::kGambrel);  // whatever stood before leaves nothing behind
  LayOutFor(design, row.roof);
  EXPECT_EQ(HasSecondSlope(row.roof), row.slope2 != kNo);
  EXPECT_EQ(TopOf(sheet.Span[0]), row.span0);
  EXPECT_EQ(TopOf(sheet.Span[2]), row.span2);
  EXPECT_EQ(TopOf(sheet.RidgeLength[0]), row.ridge0);
  EXPECT_EQ(TopOf(sheet.RidgeLength[1]), row.ridge1);
  EXPECT_EQ(TopOf(sheet.Overhang[0]), row.overhang);
  EXPECT_EQ(TopOf(sheet.Heel[0]), row.heel);
  EXPECT_EQ(TopOf(sheet.HeelLock[0]), row.heel);
  EXPECT_EQ(TopOf(sheet.Seat[0]), row.seat);
  EXPECT_EQ(TopOf(sheet.Fascia[0]), row.fascia);
  EXPECT_EQ(TopOf(sheet.Ridge), row.ridge);
  EXPECT_EQ(TopOf(sheet.Common[0]), row.rafter);
  EXPECT_EQ(TopOf(sheet.HipOrValley), row.hipVal);
}

// A label belongs to the row that begins up to 30 twips above it.
TEST_P(RowLayoutTest, EveryFieldHasOneLabelAndEveryLabelAField) {
  Design design;
  Sheet& sheet = design.sheet;
  LayOutFor(design, GetParam().roof);
  if (HasSecondSlope(GetParam().roof)) sheet.Slope[2].Visible = true;
  sheet.Degrees[0].Visible = false;
  std::vector<int> fieldTops;
  for (const AnyControl& any : sheet.Controls()) {
    const Control& control = ControlOf(any);
    const bool field =
        std::holds_alternative<MeasureControl*>(any) || std::holds_alternative<PairControl*>(any);
    if (field && control.Visible && control.Host == Host::kFrontPage) fieldTops.push_back(control.Top);
  }
  std::vector<int> labelTops;
  for (const LabelControl& label : sheet.Label) {
    if (!label.Visible || label.Host != Host::kFrontPage) continue;
    EXPECT_FALSE(label.Caption.empty()) << label.Name;
    labelTops.push_back(label.Top);
    const bool beside = std::any_of(fieldTops.begin(), fieldTops.end(),
                                    [&](int top) { return label.Top >= top && label.Top <= top + 30; });
    EXPECT_TRUE(beside) << label.Name << " " << label.Caption << " at " << label.Top;
  }
  for (const int top : fieldTops) {
    const auto count = std::count_if(labelTops.begin(), labelTops.end(),
                                     [&](int label) { return label >= top && label <= top + 30; });
    EXPECT_EQ(count, 1) << "field at " << top;
  }
}

TEST_P(RowLayoutTest, NoTwoFieldsShareARow) {
  Design design;
  Sheet& sheet = design.sheet;
  LayOutFor(design, GetParam().roof);
  std::vector<int> tops;
  for (const AnyControl& any : sheet.Controls()) {
    const Control& control = ControlOf(any);
    const bool field =
        std::holds_alternative<MeasureControl*>(any) || std::holds_alternative<PairControl*>(any);
    if (field && control.Visible && control.Host == Host::kFrontPage) tops.push_back(control.Top);
  }
  std::sort(tops.begin(), tops.end());
  for (std::size_t i = 1; i < tops.size(); ++i) EXPECT_GE(tops[i] - tops[i - 1], 315) << tops[i];
}

INSTANTIATE_TEST_SUITE_P(Roofs, RowLayoutTest, testing::ValuesIn(kRows), [](const auto& test) {
  std::string name = test.param.name;
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
});

struct CaptionRow {
  Roof roof;
  std::size_t label;
  const char* caption;
};
const CaptionRow kCaptions[] = {
    {Roof::kGable, 10, "Slope:"},
    {Roof::kGable, 11, "Run:"},
    {Roof::kGable, 0, "Kneewall:"},
    {Roof::kGable, 16, "Ridge:"},
    {Roof::kShed, 16, "Ledger:"},
    {Roof::kValley, 10, "Commn Slope:"},
    {Roof::kValley, 18, "Hip/Val:"},
    {Roof::kHip, 10, "Main Slope:"},
    {Roof::kHip, 20, "End Slope:"},
    {Roof::kDutchHip, 11, "Main Run:"},
    {Roof::kDutchHip, 20, "Dutch Run:"},
    {Roof::kDutchHip, 18, "Dutch Hip:"},
    {Roof::kUnequalSpanValley, 20, "Main Run:"},
    {Roof::kUnequalSpanValley, 16, "Ridges:"},
    {Roof::kUnequalSpanValley, 18, "Valleys:"},
    {Roof::kBay, 16, "Ledger:"},
    {Roof::kOctagon, 20, "Hip Run:"},
    {Roof::kOctagon, 16, "Jacks:"},
    {Roof::kOctagon, 17, "Hips:"},
    {Roof::kBlindValley, 10, "Addtn Slope:"},
    {Roof::kBlindValley, 11, "Main Slope:"},
    {Roof::kBlindValley, 12, "Addtn Span:"},
    {Roof::kBlindValley, 13, "Thrtcl Ridge:"},
    {Roof::kBlindValley, 14, "Actual Ridge:"},
    {Roof::kBlindValley, 17, "Jacks:"},
    {Roof::kBlindValley, 18, "Val Plates:"},
    {Roof::kGambrel, 10, "Upper Slope:"},
    {Roof::kGambrel, 20, "Lower Slope:"},
    {Roof::kGambrel, 11, "Upper Span:"},
    {Roof::kGambrel, 12, "Lower Span:"},
    {Roof::kGambrel, 13, "Upper Height:"},
    {Roof::kGambrel, 14, "Lower Height:"},
    {Roof::kGambrel, 0, "Overhang:"},
    {Roof::kGambrel, 22, "Purlins:"},
};

TEST(RowLayouts, CaptionsFollowTheRoofType) {
  for (const CaptionRow& row : kCaptions) {
    Design design;
    Sheet& sheet = design.sheet;
    LayOutFor(design, row.roof);
    EXPECT_EQ(sheet.Label[row.label].Caption, row.caption) << static_cast<int>(row.roof);
    EXPECT_TRUE(sheet.Label[row.label].Visible) << static_cast<int>(row.roof) << " " << row.caption;
  }
}

TEST(RowLayouts, AGambrelWithoutPurlinsHasARidge) {
  Design design;
  Sheet& sheet = design.sheet;
  LayOutFor(design, Roof::kGambrel, false);
  EXPECT_EQ(sheet.Label[22].Caption, "Ridge:");
}

TEST(RowLayouts, KneewallAndLastCommonRows) {
  Design design;
  Sheet& sheet = design.sheet;
  LayOutFor(design, Roof::kDualSlope);
  EXPECT_TRUE(sheet.Kneewall[0].Visible && sheet.Kneewall[1].Visible);
  LayOutFor(design, Roof::kShed);
  EXPECT_TRUE(sheet.Kneewall[0].Visible);
  EXPECT_FALSE(sheet.Kneewall[1].Visible);
  EXPECT_FALSE(sheet.LastCommon.Visible);
  LayOutFor(design, Roof::kHip);
  EXPECT_FALSE(sheet.Kneewall[0].Visible);
  EXPECT_TRUE(sheet.LastCommon.Visible && sheet.HasLastCommon.Visible && sheet.Label[23].Visible);
}

}  // namespace
}  // namespace pitchcraft
