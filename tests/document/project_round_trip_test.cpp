// A project comes back as it was: the same bytes when it is saved again, the same rafters, but for what the
// table of losses names. Each row of that table has a test here.
#include <set>

#include "core/rafter_members.h"
#include "project_test.h"
#include "storage/project_keys.h"

namespace pitchcraft {
namespace {

using RoundTripTest = WithFolder<::testing::TestWithParam<ProjectCase>>;

std::string TextOf(const MemberValue& value) {
  std::ostringstream text;
  text.precision(12);
  std::visit([&text](const auto& held) { text << held; }, value);
  return text.str();
}

Roof CodeOf(const Document& document) { return RoofKind(document.design); }

bool IsListed(Roof roofCode, const char* member) {
  for (const ProjectLoss& loss : ProjectLosses()) {
    if (loss.Roofs.Has(roofCode) && loss.Names(member)) return true;
  }
  return false;
}

/// The members in which two rafters differ.
std::set<std::string> Differences(const Rafter& one, const Rafter& other) {
  std::set<std::string> names;
  for (const RafterMember& member : RafterMembers()) {
    // Undefined numbers are equal as texts.
    if (TextOf(member.Read(one)) != TextOf(member.Read(other))) names.insert(member.Name);
  }
  return names;
}

void ExpectOnlyListed(const Rafter& before, const Rafter& after, Roof roofCode, const char* which) {
  for (const std::string& name : Differences(before, after)) {
    EXPECT_TRUE(IsListed(roofCode, name.c_str())) << which << "." << name << " came back different";
  }
}

/// The text without the key that a Dutch hip writes and does not read.
std::string WithoutIgnoredKey(const std::string& text, Roof roofCode) {
  const std::size_t start = roofCode == Roof::kDutchHip ? text.find("Span2=") : std::string::npos;
  return start == std::string::npos ? text : text.substr(0, start);
}

/// What a person reads in the fields.
void ExpectSameFields(Sheet& one, Sheet& other) {
  for (std::size_t i = 0; i < one.Controls().size(); ++i) {
    const AnyControl any = one.Controls()[i];
    const Control& control = ControlOf(any);
    EXPECT_EQ(control.Visible, ControlOf(other.Controls()[i]).Visible) << control.Name;
    if (!control.Visible || (control.Host == Host::kBayStrip && !one.DimensionStrip.Visible)) continue;
    if (auto* const* field = std::get_if<MeasureControl*>(&any)) {
      EXPECT_EQ((*field)->Text(), std::get<MeasureControl*>(other.Controls()[i])->Text()) << control.Name;
    }
    if (auto* const* pair = std::get_if<PairControl*>(&any)) {
      const PairControl& now = *std::get<PairControl*>(other.Controls()[i]);
      EXPECT_EQ((*pair)->LeftText(), now.LeftText()) << control.Name;
      EXPECT_EQ((*pair)->RightText(), now.RightText()) << control.Name;
    }
  }
}

TEST_P(RoundTripTest, SavesTheSameBytesAndHoldsTheSameRafters) {
  ProjectSession first;
  first.Enter(GetParam());
  ASSERT_TRUE(SaveProject(first.document, PathOf("first.pcf"))) << first.LastMessage();
  ProjectSession second;
  ASSERT_TRUE(LoadProject(second.document, PathOf("first.pcf"))) << second.LastMessage();
  EXPECT_EQ(second.around.dialogs.messages.size(), 0U) << second.LastMessage();
  EXPECT_EQ(second.document.design.Loading, 0);
  EXPECT_EQ(second.document.design.RoofType, first.document.design.RoofType);
  EXPECT_EQ(second.document.design.Metric, first.document.design.Metric);
  ExpectSameFields(first.document.design.sheet, second.document.design.sheet);
  ASSERT_TRUE(SaveProject(second.document, PathOf("second.pcf")));
  const Roof code = CodeOf(first.document);
  EXPECT_EQ(WithoutIgnoredKey(Read("first.pcf"), code), WithoutIgnoredKey(Read("second.pcf"), code));
  ExpectOnlyListed(first.document.design.Rafter1, second.document.design.Rafter1, code, "Rafter1");
  if (GetParam().twoRafters)
    ExpectOnlyListed(first.document.design.Rafter2, second.document.design.Rafter2, code, "Rafter2");
}

// Whatever the session did before, the file decides; from the second saving on the bytes stay the same.
TEST_P(RoundTripTest, AnEarlierRoofOfTheSessionLeavesNoTrace) {
  ProjectSession first;
  first.Enter(GetParam());
  ASSERT_TRUE(SaveProject(first.document, PathOf("first.pcf")));
  ProjectSession fresh;
  ASSERT_TRUE(LoadProject(fresh.document, PathOf("first.pcf")));
  ASSERT_TRUE(SaveProject(fresh.document, PathOf("fresh.pcf")));
  for (const ProjectCase& earlier : AllProjectRoofs()) {
    SCOPED_TRACE(earlier.name);
    ProjectSession used;
    used.Enter(earlier);
    ASSERT_TRUE(LoadProject(used.document, PathOf("first.pcf"))) << used.LastMessage();
    ASSERT_TRUE(SaveProject(used.document, PathOf("used.pcf")));
    EXPECT_EQ(Read("used.pcf"), Read("fresh.pcf"));
    ExpectSameFields(fresh.document.design.sheet, used.document.design.sheet);
  }
}

INSTANTIATE_TEST_SUITE_P(Roofs, RoundTripTest, ::testing::ValuesIn(AllProjectRoofs()),
                         [](const auto& roof) { return std::string(roof.param.name); });

// --- What does not come back, row by row
// -----------------------------------------------------------------------------------

class LossTest : public WithFolder<::testing::Test> {
 protected:
  /// Enters the roof in one session and opens it in another.
  void Take(const std::vector<ProjectAction>& actions) {
    before.Enter({"Loss", true, actions});
    ASSERT_TRUE(SaveProject(before.document, PathOf("loss.pcf")));
    ASSERT_TRUE(LoadProject(after.document, PathOf("loss.pcf"))) << after.LastMessage();
  }

  ProjectSession before, after;
};

TEST_F(LossTest, NumbersKeepSevenDigits) {
  before.document.design.Rafter1.Span = 123.456789;
  ASSERT_TRUE(SaveProject(before.document, PathOf("loss.pcf")));
  ASSERT_TRUE(LoadProject(after.document, PathOf("loss.pcf")));
  EXPECT_FLOAT_EQ(static_cast<float>(after.document.design.Rafter1.Span), 123.4568F);
  EXPECT_NE(double{after.document.design.Rafter1.Span}, double{before.document.design.Rafter1.Span});
}

TEST_F(LossTest, TextsComeBackAsShown) {
  Take({{"pick", "cboType", "Blind Valley"}, {"type", "LWSlope(2)", "8.12345 | 12"}});
  EXPECT_DOUBLE_EQ(before.document.design.sheet.Slope[2].LeftValue(), 8.12345);
  EXPECT_NEAR(after.document.design.sheet.Slope[2].LeftValue(), 8.12345, 0.0001);
  EXPECT_NE(after.document.design.sheet.Slope[2].LeftValue(), 8.12345);
  EXPECT_EQ(after.document.design.sheet.Slope[2].LeftText(),
            before.document.design.sheet.Slope[2].LeftText());
}

TEST_F(LossTest, HipOpensWithThePlainLayout) {
  Take({{"type", "LWSlope(0)", "6 | 12"},
        {"pick", "cboType", "Hip"},
        {"type", "LWSlope(2)", "9 | 12"},
        {"click", "mnuHipLayoutCorners"}});
  EXPECT_NE(Read("loss.pcf").find("HipLayout=Corner\r\nOverhangsEqual=True\r\nJackMeasurement=True"),
            std::string::npos);
  EXPECT_NE(double{before.document.design.Rafter1.HipShift}, 0) << "the overhangs were made equal";
  EXPECT_EQ(double{after.document.design.Rafter1.HipShift}, 0);
  EXPECT_LT(double{after.document.design.Rafter1.HipEndOverhang},
            double{after.document.design.Rafter1.Overhang});
  const Menus& menus = after.document.design.menus;
  for (const MenuItem* item :
       {&menus.HipLayoutCorners, &menus.PopUp1LayoutCorner, &menus.HipLayoutCornersFlush,
        &menus.HipLayoutOverhangsEqual, &menus.PopUp1OverhangsEqual, &menus.HipLayoutJackMeasurement,
        &menus.PopUp1JackMeasurement}) {
    EXPECT_FALSE(item->Checked) << item->Name;
  }
  EXPECT_TRUE(menus.HipLayoutCenter.Checked);
  EXPECT_TRUE(menus.PopUp1LayoutCenter.Checked);
}

TEST_F(LossTest, HipEndAngleIsThatOfTheBoxOfRow2) {
  Take({{"pick", "cboType", "Octagon"}});
  after.document.design.sheet.Degrees[2].SetText("33");
  ASSERT_TRUE(SaveProject(after.document, PathOf("other.pcf")));
  ASSERT_TRUE(LoadProject(after.document, PathOf("other.pcf")));
  EXPECT_EQ(double{after.document.design.Rafter1.HipEndDegrees}, 33);
}

TEST_F(LossTest, AngleOfASlopeThatWasNeverEnteredIsThatOfTheBox) {
  Take({});
  EXPECT_NEAR(before.document.design.Rafter1.degrees, 4.76, 0.001);
  EXPECT_EQ(double{after.document.design.Rafter1.degrees}, 1);
}

TEST_F(LossTest, KneewallOfOtherRoofsIsNotRead) {
  Take({{"check", "chkKneewall(0)", "on"}, {"type", "FtKneewall(0)", "40"}, {"pick", "cboType", "Valley"}});
  EXPECT_EQ(double{before.document.design.Rafter1.Kneewall}, 40);
  EXPECT_EQ(double{after.document.design.Rafter1.Kneewall}, 0);
}

TEST_F(LossTest, TheFrontKneewallBoxFollowsTheRearOne) {
  Take({{"check", "chkKneewall(0)", "on"}, {"type", "FtKneewall(0)", "40"}});
  EXPECT_EQ(double{after.document.design.Rafter1.Kneewall}, 40) << "the kneewall itself comes back";
  EXPECT_EQ(after.document.design.sheet.Kneewall[0].Value(), 40);
  EXPECT_EQ(after.document.design.sheet.HasKneewall[0].Value, 0);
  EXPECT_FALSE(after.document.design.sheet.Kneewall[0].Enabled);
}

TEST_F(LossTest, SpacingOfRoofsWithoutLayoutIsTheUsualOne) {
  before.document.design.sheet.Spacing.SetText("24\"");
  before.document.Act("cboSpacing_Click", &SpacingEntered);
  Take({});
  EXPECT_EQ(double{before.document.design.Rafter1.spacing}, 24);
  EXPECT_EQ(double{after.document.design.Rafter1.spacing}, 16);
}

TEST_F(LossTest, RidgeOfTheRearRafterIsTheUsualOne) {
  Take({{"pick", "cboType", "Dual Slope"}, {"type", "LWRidge", "0.75 | 9.25"}});
  EXPECT_EQ(double{before.document.design.Rafter2.RidgeThickness}, 0.75);
  EXPECT_EQ(double{after.document.design.Rafter1.RidgeThickness}, 0.75);
  EXPECT_EQ(double{after.document.design.Rafter2.RidgeThickness}, 1.5);
}

TEST_F(LossTest, LedgerOfADutchHipIsTheSessions) {
  Take({{"pick", "cboType", "Dutch Hip"}, {"click", "mnuDutchLedger(1)"}});
  EXPECT_EQ(double{before.document.design.Rafter2.RidgeThickness}, 0);
  EXPECT_EQ(double{after.document.design.Rafter2.RidgeThickness}, 1.5);
}

TEST_F(LossTest, SecondSpanOfADutchHipIsItsProjection) {
  Take({{"pick", "cboType", "Dutch Hip"}, {"type", "FtSpan(2)", "60"}});
  EXPECT_EQ(double{before.document.design.Rafter2.Span}, 144);
  EXPECT_EQ(double{after.document.design.Rafter2.Span}, 60);
  EXPECT_EQ(after.document.design.sheet.Span[2].Value(), 60);
}

}  // namespace
}  // namespace pitchcraft
