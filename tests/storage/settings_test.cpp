#include "storage/settings.h"

#include <gtest/gtest.h>

namespace pitchcraft {
namespace {

TEST(Settings, AFirstRunHasTheDefaults) {
  const Settings settings = ReadSettings(MemoryStore());
  EXPECT_EQ(settings.Units, 0);
  EXPECT_EQ(settings.MainLeft, 1000);
  EXPECT_EQ(settings.MainWidth, 6500);
  EXPECT_EQ(settings.CtlForeColor, 65535U);
  EXPECT_EQ(settings.LineColor, 16777215U);
  EXPECT_EQ(settings.HipLayout, "Corner");
  EXPECT_TRUE(settings.OverhangsEqual);
  EXPECT_EQ(settings.DxfMetricTextSize, 2);
}

TEST(Settings, ComeBackAsTheyWereWritten) {
  Settings written;
  written.RotateFonts = true;
  written.Increment = 0.125;
  written.TextColor = 0xFF8000;
  written.HipLayout = "Corner Flush";
  written.DxfTextSize = 4.5;
  written.Kneewall1 = "2' 0\"";
  MemoryStore store;
  WriteSettings(written, store);
  const Settings read = ReadSettings(store);
  EXPECT_TRUE(read.RotateFonts);
  EXPECT_EQ(read.Increment, 0.125);
  EXPECT_EQ(read.TextColor, 0xFF8000U);
  EXPECT_EQ(read.HipLayout, "Corner Flush");
  EXPECT_EQ(read.DxfTextSize, 4.5);
  EXPECT_EQ(read.Kneewall1, "2' 0\"");
  EXPECT_EQ(store.Get("Pitchcraft", "Settings", "RotateFonts"), "True");
}

TEST(Settings, SomeAreNotWritten) {
  MemoryStore store;
  Settings settings;
  settings.WindowState = 2;
  settings.Units = 1;
  WriteSettings(settings, store);
  for (const char* key : {"MainLeft", "MainTop", "MainWidth", "MainHeight"}) {
    EXPECT_FALSE(store.Get("Pitchcraft", "Settings", key)) << key << " of a maximized window";
  }
  EXPECT_FALSE(store.Get("Pitchcraft", "Settings", "Spacing"))
      << "a metric session leaves the imperial spacing";
  EXPECT_FALSE(store.Get("Pitchcraft", "Settings", "MetricSpacing"));
  EXPECT_FALSE(store.Get("Pitchcraft", "Settings", "ShowDisclaimer"));
}

TEST(Settings, RubbishGivesWhatItsLeadingNumberSays) {
  MemoryStore store;
  store.Set("Pitchcraft", "Settings", "Units", "yes");
  store.Set("Pitchcraft", "Settings", "MainWidth", "9e99");
  store.Set("Pitchcraft", "Settings", "Increment", "1.5 inches");
  store.Set("Pitchcraft", "Settings", "RotateFonts", "-1");
  store.Set("Pitchcraft", "Colors", "DimColor", "-2147483643");
  const Settings settings = ReadSettings(store);
  EXPECT_EQ(settings.Units, 0);
  EXPECT_EQ(settings.MainWidth, 6500);
  EXPECT_EQ(settings.Increment, 1.5);
  EXPECT_TRUE(settings.RotateFonts);
  EXPECT_EQ(settings.DimColor, kSystemWindowColor);
}

TEST(Settings, SystemColorsTakeTheFieldsColorsOver) {
  MemoryStore store;
  store.Set("Pitchcraft", "Settings", "UseSystemColors", "True");
  store.Set("Pitchcraft", "Colors", "CtlBackColor", "123");
  const Settings settings = ReadSettings(store);
  EXPECT_EQ(settings.CtlBackColor, kSystemWindowColor);
  EXPECT_EQ(settings.CtlForeColor, kSystemWindowTextColor);
  EXPECT_EQ(settings.CtlCalcColor, kSystemWindowTextColor);
}

}  // namespace
}  // namespace pitchcraft
