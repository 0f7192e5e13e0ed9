// Absurd input in every field of every roof type: nothing crashes, nothing hangs, and plain input afterwards
// gives plain results.
#include <cmath>

#include "document_test.h"

namespace pitchcraft {
namespace {

const std::string kBadTexts[] = {
    "",
    "letters",
    "-7",
    "0",
    "1e30",
    "1e-30",
    "-1e30",
    "nan",
    "inf",
    "1/0",
    "1e400",
    std::string(10000, '9'),
    std::string(10000, 'x'),
    "\xE2\x88\x9E",
    "\xC2\xBD",
    "\xFF\xFE\x80",
    "6 | 12",
    "|",
    "%",
    "1|2|3",
    "0 | 0",
    "1e-30 | 1e30",
};

class BadInputTest : public DocumentTest, public testing::WithParamInterface<const char*> {};

TEST_P(BadInputTest, NoFieldOfTheRoofBreaks) {
  Pick("cboType", GetParam());
  for (const AnyControl& any : sheet.Controls()) {
    const std::string name = ControlOf(any).Name;
    for (const std::string& text : kBadTexts) {
      for (const auto action : {&Actions::Type, &Actions::Enter, &Actions::Edit, &Actions::Pick}) {
        (actions.*action)(name, text);
      }
    }
    EXPECT_EQ(document.window.Title, "Pitchcraft - [Untitled]") << name;
  }
  for (const auto& [title, text] : around.dialogs.messages) {
    EXPECT_FALSE(title.empty());
    EXPECT_FALSE(text.empty());
  }
  // After all that a unit switch and plain values give the plain roof.
  Click("mnuMetric");
  Click("mnuImperial");
  Type("LWSlope(0)", "6 | 12");
  EXPECT_NEAR(rafter.Length2, 171.898, 0.0005);
}

INSTANTIATE_TEST_SUITE_P(Roofs, BadInputTest,
                         testing::Values("Common Gable", "Common Shed", "Dual Slope", "Hip", "Valley",
                                         "Unequal Span Valley", "Bay Roof", "Dutch Hip", "Blind Valley",
                                         "Octagon", "Gambrel Roof"),
                         [](const auto& test) {
                           std::string name = test.param;
                           std::erase(name, ' ');
                           return name;
                         });

}  // namespace
}  // namespace pitchcraft
