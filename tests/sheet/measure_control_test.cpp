#include "sheet/measure_control.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace pitchcraft {
namespace {

TEST(MeasureControl, ShowsAValueInItsOwnForm) {
  MeasureControl field;
  field.SetValue(150.5);
  EXPECT_EQ(field.Text(), "12' 6 1/2\"");
  EXPECT_EQ(field.Value(), 150.5);
}

TEST(MeasureControl, RoundsWhatItShowsAndNotWhatItHolds) {
  MeasureControl field;
  field.SetText("19.2");
  EXPECT_EQ(field.Text(), "1' 7 3/16\"");
  EXPECT_EQ(field.Value(), 19.2);
}

TEST(MeasureControl, ReadsANumberAsTextInBaseUnits) {
  MeasureControl field;
  field.Format.Units = kMillimetres;
  field.Format.BaseUnits = kBaseMillimetres;
  field.Format.DecimalPlaces = 0;
  field.SetText("3600");
  EXPECT_EQ(field.Text(), "3600 mm");
  EXPECT_EQ(field.Value(), 3600);
}

TEST(MeasureControl, KeepsAnEntryAsTypedUntilItIsLeft) {
  MeasureControl field;
  field.SetEntry("12'6");
  EXPECT_EQ(field.Text(), "12'6");
  EXPECT_EQ(field.Value(), 150);
  field.Redisplay();
  EXPECT_EQ(field.Text(), "12' 6\"");
}

TEST(MeasureControl, AnEmptyTextReadsZeroAndStaysEmpty) {
  MeasureControl field;
  field.SetValue(5);
  field.SetText("");
  EXPECT_EQ(field.Text(), "");
  EXPECT_EQ(field.Value(), 0);
}

TEST(MeasureControl, WhatCannotBeReadIsZero) {
  for (const char* text : {"letters", "nan", "inf", "1/0", "--", "\xF0\x9F\x8F\xA0"}) {
    MeasureControl field;
    field.SetText(text);
    EXPECT_EQ(field.Value(), 0) << text;
    EXPECT_EQ(field.Text(), "0\"") << text;
  }
}

TEST(MeasureControl, ShowsWhatIsNoNumberAndReadsItBackAsZero) {
  MeasureControl field;
  field.SetValue(std::numeric_limits<double>::infinity());
  EXPECT_EQ(field.Text(), "inf");
  EXPECT_EQ(field.Value(), 0);
  field.SetValue(std::nan(""));
  EXPECT_EQ(field.Text(), "nan");
  EXPECT_EQ(field.Value(), 0);
  field.SetValue(6);
  EXPECT_EQ(field.Value(), 6);
}

}  // namespace
}  // namespace pitchcraft
