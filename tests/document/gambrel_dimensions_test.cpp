#include <cmath>

#include "document_test.h"

namespace pitchcraft {
namespace {

class GambrelDimensionsTest : public DocumentTest {
 protected:
  GambrelDimensionsTest() { Pick("cboType", "Gambrel Roof"); }
  Rafter& top = document.design.Rafter2;
};

class CustomGambrelTest : public GambrelDimensionsTest {
 protected:
  CustomGambrelTest() {
    Click("mnuGambrelCustom");
    Type("FtSpan(0)", "24'");
    Type("LWSlope(2)", "24 | 12");
    Type("LWSlope(0)", "6 | 12");
    Type("FtSpan(2)", "16'");
  }
};

TEST_F(GambrelDimensionsTest, ARegularGambrelFitsItsCircle) {
  Type("FtSpan(0)", "20'");
  Type("FtOverhang(0)", "12");
  // Half the width and the overhang are the circle's radius; the break stands on it at 45 degrees.
  const double q = 132 / std::sqrt(2.0);
  EXPECT_NEAR(top.Span, q, 1e-4);
  EXPECT_NEAR(rafter.Span, (240 - 2 * q) / 2, 1e-4);
  EXPECT_NEAR(top.Slope / 12, std::tan(22.5 * M_PI / 180), 1e-6);
  EXPECT_NEAR(rafter.Slope / 12, std::tan(67.5 * M_PI / 180), 1e-6);
  EXPECT_EQ(sheet.Slope[0].LeftValue(), 5);
  EXPECT_EQ(sheet.Slope[2].LeftValue(), 29);
  EXPECT_EQ(sheet.Degrees[2].Text(), "67.5");
  EXPECT_EQ(rafter.degrees, 67.5);
}

TEST_F(GambrelDimensionsTest, MetricShowsItsOwnSlopes) {
  Click("mnuMetric");
  Pick("cboType", "Gambrel Roof");
  EXPECT_EQ(sheet.Slope[0].LeftText(), "414");
  EXPECT_EQ(sheet.Slope[2].LeftText(), "2414");
  EXPECT_NEAR(top.Slope, 414.213562, 1e-4);
}

TEST_F(GambrelDimensionsTest, RegularLocksWhatItDerives) {
  for (const std::size_t spin : {2, 4, 7}) EXPECT_FALSE(sheet.Spin[spin].Enabled) << spin;
  EXPECT_TRUE(sheet.Spin[3].Enabled);
  EXPECT_TRUE(sheet.Slope[0].Locked && sheet.Slope[2].Locked);
  EXPECT_FALSE(sheet.UpperSlopeLock.Visible);
  Click("mnuGambrelCustom");
  for (const std::size_t spin : {2, 3, 4, 7}) EXPECT_TRUE(sheet.Spin[spin].Enabled) << spin;
  EXPECT_FALSE(sheet.Slope[0].Locked || sheet.Slope[2].Locked);
  EXPECT_TRUE(sheet.UpperSlopeLock.Visible && sheet.LowerHeightLock.Visible);
  EXPECT_TRUE(menus.GambrelWallSupportRaised.Enabled);
  EXPECT_TRUE(menus.PopUp2GambrelCustom.Checked);
}

TEST_F(GambrelDimensionsTest, NoHeelNoOverhang) {
  Check("chkHeel(0)", true);
  Type("FtHeel(0)", "0");
  EXPECT_EQ(rafter.Overhang, 0);
  EXPECT_EQ(sheet.Overhang[0].Value(), 0);
}

TEST_F(CustomGambrelTest, TheTwoRunsShareTheWidth) {
  EXPECT_EQ(top.Span, 96);
  EXPECT_EQ(rafter.Span, 48);
  EXPECT_EQ(rafter.HipValSlope, 6);
  EXPECT_EQ(top.HipValSlope, 24);
  EXPECT_NEAR(sheet.RidgeLength[0].Value(), 48, 1e-4);
  EXPECT_NEAR(sheet.RidgeLength[1].Value(), 96 + rafter.Heel, 1e-4);
}

TEST_F(CustomGambrelTest, ALowerHeightMovesTheUpperSpan) {
  const double heel = rafter.Heel;
  Type("FtRidge(1)", "8'");
  EXPECT_NEAR(rafter.Span, (96 - heel) / 2, 1e-3);
  EXPECT_NEAR(sheet.Span[2].Value(), 288 - (96 - heel), 1e-3);
}

TEST_F(CustomGambrelTest, AnUpperHeightMovesTheUpperSlope) {
  Type("FtRidge(0)", "6'");
  EXPECT_NEAR(top.Slope, 9, 1e-5);
  EXPECT_NEAR(sheet.Slope[0].LeftValue(), 9, 1e-5);
  EXPECT_EQ(sheet.Degrees[0].Text().substr(0, 5), "36.86") << "unrounded";
}

TEST_F(CustomGambrelTest, AnUpperSlopeMovesTheUpperHeight) {
  Type("LWSlope(0)", "8 | 12");
  EXPECT_NEAR(sheet.RidgeLength[0].Value(), 64, 1e-4);
}

TEST_F(CustomGambrelTest, NoUpperSpanGivesAnInfiniteSlopeAndGoesOn) {
  Type("FtSpan(2)", "0");
  Type("FtRidge(0)", "4'");
  EXPECT_TRUE(std::isinf(top.Slope));
  Type("FtSpan(2)", "16'");
  Type("LWSlope(0)", "6 | 12");
  EXPECT_NEAR(sheet.RidgeLength[0].Value(), 48, 1e-4);
}

TEST_F(CustomGambrelTest, SupportsExcludeEachOther) {
  Click("mnuGambrelWallSupport");
  EXPECT_FALSE(rafter.Purlins);
  EXPECT_EQ(sheet.Label[22].Caption, "Ridge:");
  EXPECT_EQ(top.Heel, 0);
  Click("mnuGambrelWallSupportRaised");
  EXPECT_TRUE(sheet.UpperFascia.Visible);
  EXPECT_EQ(sheet.UpperFascia.ListIndex(), 0);
  EXPECT_NEAR(top.Heel, 3.5 * std::sqrt(1.25), 1e-5) << "the plumb height of the fascia on a slope of 6";
  EXPECT_NEAR(top.Overhang, 3.5 * std::sin(std::atan(0.5)), 1e-5);
  Click("mnuGambrelPurlins");
  EXPECT_TRUE(rafter.Purlins && top.Purlins);
  EXPECT_FALSE(sheet.UpperFascia.Visible);
  EXPECT_EQ(sheet.Label[22].Caption, "Purlins:");
  EXPECT_EQ(top.Overhang, 0);
}

TEST_F(CustomGambrelTest, CustomWithRaisedClearedFallsBackToPurlins) {
  Click("mnuGambrelWallSupportRaised");
  Click("mnuGambrelRegular");
  EXPECT_FALSE(menus.GambrelWallSupportRaised.Checked);
  EXPECT_TRUE(menus.GambrelPurlins.Checked);
  EXPECT_FALSE(sheet.UpperFascia.Visible);
}

TEST_F(CustomGambrelTest, AnUpperFasciaTallerThanTheRafterIsCutBack) {
  Click("mnuGambrelWallSupportRaised");
  Type("FTUpperFascia", "20");
  EXPECT_EQ(sheet.UpperFascia.Text(), "7 1/4\"");
}

TEST_F(GambrelDimensionsTest, AMetricUpperFasciaKeepsItsText) {
  Click("mnuMetric");
  Pick("cboType", "Gambrel Roof");
  Click("mnuGambrelCustom");
  Click("mnuGambrelWallSupportRaised");
  Pick("FTUpperFascia", "140");
  EXPECT_EQ(sheet.UpperFascia.Text(), "140");
  EXPECT_EQ(sheet.UpperFascia.ListIndex(), 4);
  Type("FTUpperFascia", "500");
  EXPECT_EQ(sheet.UpperFascia.Text(), "184");
}

TEST_F(CustomGambrelTest, OneLockBoxAtATime) {
  Check("chkUpperSlope", true);
  Check("chkLowerHeight", true);
  EXPECT_FALSE(sheet.UpperSlopeLock.Ticked() || sheet.LowerSlopeLock.Ticked() ||
               sheet.UpperSpanLock.Ticked() || sheet.UpperHeightLock.Ticked());
  Check("chkLowerHeight", false);
  EXPECT_TRUE(sheet.UpperSlopeLock.Ticked() && sheet.LowerSlopeLock.Ticked() &&
              sheet.UpperSpanLock.Ticked() && sheet.UpperHeightLock.Ticked());
}

TEST_F(CustomGambrelTest, TheTickedQuantityFollows) {
  Check("chkUpperSlope", true);
  Type("FtSpan(2)", "12'");
  EXPECT_NEAR(top.Slope, 12.0 * 48 / 72, 1e-4) << "the upper height stays at 48";
  Check("chkLowerSlope", true);
  const double heel = rafter.Heel, height = sheet.RidgeLength[1].Value();
  Type("FtSpan(2)", "18'");
  EXPECT_NEAR(rafter.Slope, 12 * (height - heel) / 36, 1e-3);
  Check("chkUpperSpan", true);
  Type("LWSlope(0)", "6 | 12");
  Type("FtRidge(0)", "4'");
  EXPECT_NEAR(sheet.Span[2].Value(), 192, 1e-3);
  EXPECT_EQ(top.Slope, 6);
}

}  // namespace
}  // namespace pitchcraft
