#include "sheet/row_layouts.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "sheet/roof_types.h"

namespace pitchcraft {
namespace {

constexpr int kNo = -1;

struct Row {
  const char* name;
  int roof;
  int slope2, span0, span2, ridge0, ridge1, overhang, heel, seat, fascia, ridge, rafter, hipVal;
};

// Tops of the fields in twips; kNo where the roof type has no such row.
const Row kRows[] = {
    // name, roof, slope2, span0, span2, ridge0, ridge1, overhang, heel, seat, fascia, ridge, rafter, hipVal
    {"gable", roof::kGable, kNo, 840, kNo, kNo, kNo, 1200, 1560, 1920, 2400, 2730, 3060, kNo},
    {"shed", roof::kShed, kNo, 840, kNo, kNo, kNo, 1200, 1560, 1920, 2400, 2730, 3060, kNo},
    {"dual slope", roof::kDualSlope, kNo, 840, kNo, kNo, kNo, 1200, 1560, 1920, 2400, 2730, 3060, kNo},
    {"valley", roof::kValley, kNo, 840, kNo, kNo, kNo, 1200, 1560, 1920, 2400, 2730, 3060, 3390},
    {"bay", roof::kBay, kNo, kNo, kNo, kNo, kNo, 840, 1200, 1560, 2040, 2370, 2700, 3030},
    {"Dutch hip", roof::kDutchHip, kNo, 840, 1200, kNo, kNo, 1560, 1920, 2280, 2760, 3090, 3420, 3750},
    {"unequal", roof::kUnequalSpanValley, kNo, 840, 1200, kNo, kNo, 1560, 1920, 2280, 2760, 3090, 3420, 3750},
    {"octagon", roof::kOctagon, kNo, 840, 1200, kNo, kNo, 1560, 1920, 2280, 2760, kNo, 3090, 3420},
    {"hip", roof::kHip, 860, 1200, kNo, kNo, kNo, 1560, 1920, 2280, 2760, 3090, 3420, 3750},
    {"blind", roof::kBlindValley, 860, 1200, kNo, 1560, 1920, kNo, kNo, kNo, kNo, 2730, 3060, 3390},
    {"gambrel", roof::kGambrel, 860, 1560, 1200, 1920, 2280, 2640, 3000, 3360, 3750, 4470, 4110, kNo},
};

class RowLayoutTest : public testing::TestWithParam<Row> {};

int TopOf(const Control& control) { return control.Visible ? control.Top : kNo; }

TEST_P(RowLayoutTest, FieldsStandWhereTheRoofTypePutsThem) {
  const Row& row = GetParam();
  Sheet sheet;
  LayOutRows(sheet, roof::kGambrel, true);  // whatever stood before leaves nothing behind
  LayOutRows(sheet, row.roof, true);
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
  Sheet sheet;
  LayOutRows(sheet, GetParam().roof, true);
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
  Sheet sheet;
  LayOutRows(sheet, GetParam().roof, true);
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
  int roof;
  std::size_t label;
  const char* caption;
};
const CaptionRow kCaptions[] = {
    {roof::kGable, 10, "Slope:"},
    {roof::kGable, 11, "Run:"},
    {roof::kGable, 0, "Kneewall:"},
    {roof::kGable, 16, "Ridge:"},
    {roof::kShed, 16, "Ledger:"},
    {roof::kValley, 10, "Commn Slope:"},
    {roof::kValley, 18, "Hip/Val:"},
    {roof::kHip, 10, "Main Slope:"},
    {roof::kHip, 20, "End Slope:"},
    {roof::kDutchHip, 11, "Main Run:"},
    {roof::kDutchHip, 20, "Dutch Run:"},
    {roof::kDutchHip, 18, "Dutch Hip:"},
    {roof::kUnequalSpanValley, 20, "Main Run:"},
    {roof::kUnequalSpanValley, 16, "Ridges:"},
    {roof::kUnequalSpanValley, 18, "Valleys:"},
    {roof::kBay, 16, "Ledger:"},
    {roof::kOctagon, 20, "Hip Run:"},
    {roof::kOctagon, 16, "Jacks:"},
    {roof::kOctagon, 17, "Hips:"},
    {roof::kBlindValley, 10, "Addtn Slope:"},
    {roof::kBlindValley, 11, "Main Slope:"},
    {roof::kBlindValley, 12, "Addtn Span:"},
    {roof::kBlindValley, 13, "Thrtcl Ridge:"},
    {roof::kBlindValley, 14, "Actual Ridge:"},
    {roof::kBlindValley, 17, "Jacks:"},
    {roof::kBlindValley, 18, "Val Plates:"},
    {roof::kGambrel, 10, "Upper Slope:"},
    {roof::kGambrel, 20, "Lower Slope:"},
    {roof::kGambrel, 11, "Upper Span:"},
    {roof::kGambrel, 12, "Lower Span:"},
    {roof::kGambrel, 13, "Upper Height:"},
    {roof::kGambrel, 14, "Lower Height:"},
    {roof::kGambrel, 0, "Overhang:"},
    {roof::kGambrel, 22, "Purlins:"},
};

TEST(RowLayouts, CaptionsFollowTheRoofType) {
  for (const CaptionRow& row : kCaptions) {
    Sheet sheet;
    LayOutRows(sheet, row.roof, true);
    EXPECT_EQ(sheet.Label[row.label].Caption, row.caption) << row.roof;
    EXPECT_TRUE(sheet.Label[row.label].Visible) << row.roof << " " << row.caption;
  }
}

TEST(RowLayouts, AGambrelWithoutPurlinsHasARidge) {
  Sheet sheet;
  LayOutRows(sheet, roof::kGambrel, false);
  EXPECT_EQ(sheet.Label[22].Caption, "Ridge:");
}

TEST(RowLayouts, KneewallAndLastCommonRows) {
  Sheet sheet;
  LayOutRows(sheet, roof::kDualSlope, true);
  EXPECT_TRUE(sheet.Kneewall[0].Visible && sheet.Kneewall[1].Visible);
  LayOutRows(sheet, roof::kShed, true);
  EXPECT_TRUE(sheet.Kneewall[0].Visible);
  EXPECT_FALSE(sheet.Kneewall[1].Visible);
  EXPECT_FALSE(sheet.LastCommon.Visible);
  LayOutRows(sheet, roof::kHip, true);
  EXPECT_FALSE(sheet.Kneewall[0].Visible);
  EXPECT_TRUE(sheet.LastCommon.Visible && sheet.HasLastCommon.Visible && sheet.Label[23].Visible);
}

}  // namespace
}  // namespace pitchcraft
