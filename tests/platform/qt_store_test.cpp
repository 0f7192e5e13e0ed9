// The store of settings, in a file of its own.
#include "platform/qt_store.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "storage/settings.h"

namespace pitchcraft {
namespace {

TEST(QtStore, KeepsTextsBetweenTwoLives) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("settings.ini");
  const std::string text = "12' 6 1/2\", \xC3\xA4;=\\ [x] \xE2\x82\xAC";
  {
    QtStore store(file);
    EXPECT_EQ(store.Get("Program", "Options", "Line Width"), std::nullopt);
    store.Set("Program", "Options", "Line Width", "3");
    store.Set("Program", "Colors", "Line Width", text);
    EXPECT_TRUE(store.Sync());
  }
  const QtStore store(file);
  EXPECT_EQ(store.Get("Program", "Options", "Line Width"), "3");
  EXPECT_EQ(store.Get("Program", "Colors", "Line Width"), text);
  EXPECT_EQ(store.Get("Other", "Options", "Line Width"), std::nullopt);
  EXPECT_EQ(store.Get("Program", "Options", "line"), std::nullopt);
}

TEST(QtStore, CarriesTheSettings) {
  const QTemporaryDir folder;
  Settings settings;
  settings.Kneewall1 = "4' 2\"";
  settings.MainWidth = 12345;
  settings.LineColor = 0x00FF00;
  {
    QtStore store(folder.filePath("settings.ini"));
    WriteSettings(settings, store);
  }
  const QtStore store(folder.filePath("settings.ini"));
  const Settings read = ReadSettings(store);
  EXPECT_EQ(read.Kneewall1, settings.Kneewall1);
  EXPECT_EQ(read.MainWidth, 12345);
  EXPECT_EQ(read.LineColor, 0x00FF00U);
}

TEST(QtStore, UnreadableFileIsAnEmptyStore) {
  QtStore store("/proc/no such folder/settings.ini");
  store.Set("Program", "Options", "Key", "1");
  EXPECT_FALSE(store.Sync());
  EXPECT_EQ(store.Get("Program", "Options", "Other"), std::nullopt);
}

}  // namespace
}  // namespace pitchcraft
