// Measures look and read the same wherever the user lives.
#include <gtest/gtest.h>

#include <clocale>
#include <ostream>
#include <string>

#include "measure/measure_converter.h"

namespace pitchcraft {
namespace {

struct Locale {
  const char* name;
  const char* decimalPoint;
};

std::string NameOf(const testing::TestParamInfo<Locale>& row) {
  return row.param.decimalPoint == std::string(".") ? "Point" : "Comma";
}

void PrintTo(const Locale& locale, std::ostream* out) { *out << locale.name; }

class UnderLocale : public testing::TestWithParam<Locale> {
 protected:
  void SetUp() override {
    if (std::setlocale(LC_ALL, GetParam().name) == nullptr)
      GTEST_SKIP() << GetParam().name << " is not there";
    ASSERT_STREQ(std::localeconv()->decimal_point, GetParam().decimalPoint);
  }
  void TearDown() override { std::setlocale(LC_ALL, before_.c_str()); }

  MeasureConverter converter_;

 private:
  std::string before_ = std::setlocale(LC_ALL, nullptr);
};

TEST_P(UnderLocale, ReadsAPoint) { EXPECT_EQ(converter_.ToValue("150.5"), 150.5); }

TEST_P(UnderLocale, ReadsADecimalComma) { EXPECT_EQ(converter_.ToValue("150,5"), 150.5); }

TEST_P(UnderLocale, ReadsFeetAndInches) { EXPECT_EQ(converter_.ToValue("12\u2019 6\u00BD\u201D"), 150.5); }

TEST_P(UnderLocale, ShowsAPoint) {
  converter_.Units = kPlainNumber;
  EXPECT_EQ(converter_.ToText(26.56506), "26.5651");
  EXPECT_EQ(converter_.ToText(1.5e30), "1.5E+30");
}

TEST_P(UnderLocale, ShowsMillimetresUngrouped) {
  converter_.Units = kMillimetres;
  converter_.BaseUnits = kBaseMillimetres;
  EXPECT_EQ(converter_.ToText(1234567.25), "1234567.25 mm");
}

INSTANTIATE_TEST_SUITE_P(Every, UnderLocale,
                         testing::Values(Locale{"C.UTF-8", "."}, Locale{"de_DE.UTF-8", ","}), NameOf);

}  // namespace
}  // namespace pitchcraft
