#include "storage/lists.h"

#include <gtest/gtest.h>

namespace pitchcraft {
namespace {

TEST(Lists, Lumber) {
  const auto rows = DefaultLumberRows();
  ASSERT_EQ(rows.size(), 15U);
  EXPECT_EQ(rows.front(), "1x4|.75|3.5");
  EXPECT_EQ(rows[8], "5/4x10|1.125|9.5");
  EXPECT_EQ(rows.back(), "2x12|1.5|11.25");
}

TEST(Lists, SlopesOfBothUnitSystems) {
  const auto imperial = DefaultSlopeRows(12);
  ASSERT_EQ(imperial.size(), 60U);
  EXPECT_EQ(imperial.front(), "1/12|1|12");
  EXPECT_EQ(imperial.back(), "60/12|60|12");
  const auto metric = DefaultSlopeRows(1000);
  ASSERT_EQ(metric.size(), 50U);
  EXPECT_EQ(metric.front(), "100/1000|100|1000");
  EXPECT_EQ(metric.back(), "5000/1000|5000|1000");
}

TEST(Lists, Degrees) {
  const auto rows = DefaultDegreeRows();
  ASSERT_EQ(rows.size(), 80U);
  EXPECT_EQ(rows.front(), "1");
  EXPECT_EQ(rows.back(), "80");
}

}  // namespace
}  // namespace pitchcraft
