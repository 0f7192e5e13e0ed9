// Roofs whose pages were once left to whoever drew last: screen, paper and file each showed something else.
#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "one_page.h"
#include "support/scratch_folder.h"

namespace pitchcraft {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::UnorderedElementsAre;

class OnePageTest : public ::testing::Test {
 protected:
  void Do(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) EXPECT_TRUE(page_.Do(line)) << line;
  }
  /// All three forms are there and agree.
  ThreeForms ExpectOneDrawing() {
    EXPECT_THAT(CheckPage(page_), IsEmpty());
    ThreeForms forms = TakeForms(page_);
    EXPECT_FALSE(page_.Screen().empty()) << "the page is blank";
    EXPECT_TRUE(forms.Paper && forms.File);
    if (!forms.Paper) forms.Paper.emplace();
    if (!forms.File) forms.File.emplace();
    return forms;
  }
  static std::vector<std::string> LengthsOf(const testing::PageForm& form) {
    std::vector<std::string> texts;
    for (const testing::FormDimension& dimension : form.Dimensions) texts.push_back(dimension.Text);
    return texts;
  }
  static double WidthOf(const testing::PageForm& form) {
    double left = 0;
    double right = 0;
    for (const testing::FormStroke& stroke : form.Wood) {
      left = std::min({left, stroke.From.X, stroke.To.X});
      right = std::max({right, stroke.From.X, stroke.To.X});
    }
    return right - left;
  }

  testing::ScratchFolder folder_;
  PageUnderTest page_{folder_.Path()};
};

// A slope of 6 in 12 over a run of 12' less half the ridge, with an overhang of 10 1/2":
// 153.75 sqrt(1 + 1/4) = 171.898.
constexpr const char* kWholeCommon = "14' 3 7/8\"";
constexpr const char* kWholeHip = "19' 2 5/8\"";

TEST_F(OnePageTest, ALockLeavesTheCommonOfAHipOnItsPage) {
  Do({"pick cboType Hip", "type LWSlope(0) 6 | 12", "page VSTab(0) 1", "click mnuSettingsHeelLocked",
      "click mnuSettingsHeelLocked"});
  const ThreeForms forms = ExpectOneDrawing();
  for (const testing::PageForm* form : {&forms.Screen, &forms.Paper->Drawing, &forms.File->Drawing}) {
    EXPECT_THAT(LengthsOf(*form), Contains(kWholeCommon));
    EXPECT_THAT(LengthsOf(*form), Not(Contains(kWholeHip)));
  }
  EXPECT_EQ(forms.Screen.Heading.value_or(""), forms.Paper->Drawing.Heading.value_or("-"));
  EXPECT_EQ(forms.Paper->Sheet.Title, "Hip Roof - Common Rafter");
  EXPECT_EQ(forms.File->Sheet.Title, "Hip Roof - Common Rafter");
}

TEST_F(OnePageTest, ALockLeavesTheLayoutOfAHipOnItsPage) {
  Do({"pick cboType Hip", "type LWSlope(0) 6 | 12", "page VSTab(0) 3", "click mnuSettingsHeelLocked",
      "click mnuSettingsHeelLocked"});
  const ThreeForms forms = ExpectOneDrawing();
  // The width over both eaves, and from the eave to the peak.
  EXPECT_THAT(LengthsOf(forms.Screen), UnorderedElementsAre("25' 9\"", "12' 10 1/2\""));
  EXPECT_THAT(LengthsOf(forms.File->Drawing), UnorderedElementsAre("25' 9\"", "12' 10 1/2\""));
  EXPECT_NEAR(WidthOf(forms.File->Drawing), 309, 1e-3);
  EXPECT_EQ(forms.File->Sheet.Title, "Hip Roof - Layout  (16\" o.c. spacing)");
}

TEST_F(OnePageTest, ALockLeavesTheFrontRafterOfADualSlopeOnItsPage) {
  Do({"pick cboType Dual Slope", "type LWSlope(0) 6 | 12", "page VSTab(0) 1", "click mnuSettingsHeelLocked",
      "click mnuSettingsHeelLocked"});
  const ThreeForms forms = ExpectOneDrawing();
  EXPECT_THAT(LengthsOf(forms.Screen), Contains(kWholeCommon));
  EXPECT_EQ(forms.File->Sheet.Title, "Dual Slope Roof - Front Rafter");
}

TEST_F(OnePageTest, TheLedgerLeavesTheCommonOfADutchHipOnItsPage) {
  Do({"pick cboType Dutch Hip", "type LWSlope(0) 6 | 12", "page VSTab(0) 1", "click mnuDutchLedger(1)"});
  const ThreeForms forms = ExpectOneDrawing();
  EXPECT_THAT(LengthsOf(forms.Screen), Contains(kWholeCommon));
  EXPECT_EQ(forms.File->Sheet.Title, "Dutch Hip Roof - Common Rafter");
}

// With equal slopes an overhang waits for the next calculation, and till then no form shows it.
TEST_F(OnePageTest, AnOverhangWidensThePlanOfAHipInAllFormsAtOnce) {
  Do({"pick cboType Hip", "type LWSlope(0) 6 | 12", "type FtOverhang(0) 30"});
  const ThreeForms before = ExpectOneDrawing();
  for (const testing::PageForm* form : {&before.Screen, &before.Paper->Drawing, &before.File->Drawing}) {
    EXPECT_THAT(LengthsOf(*form), UnorderedElementsAre("25' 9\"", "12' 10 1/2\""));
    EXPECT_NEAR(WidthOf(*form), 309, 0.05);
  }
  Do({"calculate"});
  const ThreeForms after = ExpectOneDrawing();
  for (const testing::PageForm* form : {&after.Screen, &after.Paper->Drawing, &after.File->Drawing}) {
    EXPECT_THAT(LengthsOf(*form), UnorderedElementsAre("29' 0\"", "14' 6\""));
    EXPECT_NEAR(WidthOf(*form), 348, 0.05);
  }
}

TEST_F(OnePageTest, TheSameDegreesInOtherWordsAreOneSlope) {
  Do({"pick cboType Hip", "click mnuSettingsDegrees", "type cboDegrees(0) 45", "type cboDegrees(2) 45.0"});
  EXPECT_THAT(page_.Facts().Pages, ElementsAre("Design", "Common", "Hip Rafter", "Layout"));
  EXPECT_FALSE(page_.Do("page VSTab(0) 4")) << "there is no fifth page";
  for (int shown = 0; shown < 4; ++shown) {
    SCOPED_TRACE(shown);
    Do({"page VSTab(0) " + std::to_string(shown)});
    ExpectOneDrawing();
  }
}

TEST_F(OnePageTest, TheLongValleyStatesWhatItsCommonIsCutBy) {
  Do({"pick cboType Unequal Span Valley", "type LWSlope(0) 6 | 12", "type FtSpan(0) 14'", "page VSTab(0) 2"});
  const ThreeForms forms = ExpectOneDrawing();
  for (const testing::PageSheet* sheet : {&forms.Paper->Sheet, &forms.File->Sheet}) {
    EXPECT_EQ(sheet->Title, "Unequal Span Valley - Long Valley Rafter");
    EXPECT_THAT(sheet->Rows, Contains("Common Slope = 6/12 (26.57\u00BA)"));
    EXPECT_THAT(sheet->Rows, Contains("Common Run = 14' 0\""));
    EXPECT_THAT(sheet->Rows, Contains("Common Overhang = 10 1/2\""));
    EXPECT_THAT(sheet->Rows, Contains("Common = 1 1/2\" x 7 1/4\""));
  }
}

/// The slopes that the page writes: over an elevation one, on a plan two.
std::vector<std::string> SlopesOf(const testing::PageForm& form) {
  std::vector<std::string> slopes;
  if (form.Heading) slopes.push_back(*form.Heading);
  if (!form.Walls.empty()) {
    for (const std::string& label : form.Labels) {
      if (label.ends_with("\u00BA") || label.find("/12") != std::string::npos) slopes.push_back(label);
    }
  }
  return slopes;
}

class SlopeModeTest : public OnePageTest, public ::testing::WithParamInterface<int> {};

TEST_P(SlopeModeTest, DegreesStandOnThePageAtOnce) {
  const int shown = GetParam();
  Do({"pick cboType Hip", "type LWSlope(0) 6 | 12", "page VSTab(0) " + std::to_string(shown),
      "click mnuSettingsDegrees"});
  const ThreeForms forms = ExpectOneDrawing();
  const std::string common = "26.57\u00BA";  // atan(6 / 12)
  const std::string hip = "19.47\u00BA";     // atan(6 / 16.97)
  const bool plan = shown == 0 || shown == 3;
  const std::vector<std::string> slopes = SlopesOf(forms.Screen);
  if (plan) {
    EXPECT_THAT(slopes, ElementsAre(common, common));
  } else {
    EXPECT_THAT(slopes, ElementsAre(shown == 1 ? common : hip));
  }
}

INSTANTIATE_TEST_SUITE_P(PagesOfAHip, SlopeModeTest, ::testing::Values(0, 1, 2, 3));

}  // namespace
}  // namespace pitchcraft
