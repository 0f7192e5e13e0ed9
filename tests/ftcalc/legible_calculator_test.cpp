// All words of the calculator can be read, in the letters of any desktop.
#include <QTest>

#include "../support/faces.h"
#include "../support/legible_words.h"
#include "ftcalc/calculator_window.h"

namespace pitchcraft::testing {
namespace {

class LegibleCalculator : public ::testing::TestWithParam<Face>, WithFace {
 protected:
  LegibleCalculator() : WithFace(GetParam()) {}

  static void Look(CalculatorWindow& window, const QString& keys, const std::string& where) {
    window.show();
    QTest::keyClicks(window.findChild<QLineEdit*>("Display"), keys);
    QApplication::processEvents();
    ExpectWordsFit(window, where);
    window.resize(window.minimumSizeHint());
    QApplication::processEvents();
    ExpectWordsFit(window, where + ", smallest");
  }
};

TEST_P(LegibleCalculator, WithASumAndItsTape) {
  CalculatorWindow window(false);
  Look(window, "12'11 15/16+100'10 15/16=", "feet and inches");
  CalculatorWindow metric(true);
  Look(metric, "12345.5*3=", "millimetres");
}

TEST_P(LegibleCalculator, WithSomethingToSay) {
  CalculatorWindow window(false);
  Look(window, "5/0=", "a message");
  EXPECT_FALSE(window.findChild<QLabel*>("Message")->text().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Faces, LegibleCalculator, ::testing::ValuesIn(AllFaces()),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace pitchcraft::testing
