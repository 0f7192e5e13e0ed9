// Exports as files: whole or not at all, and the errors that people are shown.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "core/run_time_error.h"
#include "output/placeable_metafile.h"
#include "sample_dxf.h"
#include "sample_recording.h"
#include "support/golden.h"

namespace pitchcraft::testing {
namespace {

namespace fs = std::filesystem;

class Saving : public ::testing::Test {
 protected:
  Saving() : folder_(fs::temp_directory_path() / ("pitchcraft-output-" + std::to_string(getpid()))) {
    fs::create_directories(folder_);
  }
  ~Saving() override { fs::remove_all(folder_); }

  static std::string Refused(const fs::path& path) {
    DxfWriter writer = SampleDrawing();
    writer.FileName = path.string();
    try {
      writer.Save();
    } catch (const RunTimeError& error) {
      return error.Message();
    }
    return "saved";
  }

  std::size_t Files() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), {}));
  }

  fs::path folder_;
};

TEST_F(Saving, ReplacesTheOldFileAsAWhole) {
  const fs::path path = folder_ / "roof.dxf";
  WriteWhole(path, std::string(100000, 'x'));
  EXPECT_EQ(Refused(path), "saved");
  EXPECT_EQ(ReadWhole(path), SampleDrawing().Bytes());
  EXPECT_EQ(Files(), 1U) << "nothing else is left in the folder";
}

TEST_F(Saving, AMissingFolderIsTold) {
  EXPECT_EQ(Refused(folder_ / "none" / "roof.dxf"), "Path not found - 76");
}

TEST_F(Saving, WhatCannotBeWrittenIsTold) {
  const std::string refusal = "Path/File access error - 75";
  EXPECT_EQ(Refused(""), refusal);
  EXPECT_EQ(Refused(folder_), refusal) << "a folder";
  EXPECT_EQ(Refused(folder_ / std::string(300, 'n')), refusal) << "a name that is too long";
  EXPECT_EQ(Refused("/proc/roof.dxf"), refusal) << "a folder that takes no files, from nobody";
  EXPECT_EQ(Refused("/dev/full"), refusal) << "a device";
  EXPECT_EQ(Files(), 0U);
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(Saving, AReadOnlyFolderKeepsItsFile) {
  if (geteuid() == 0) GTEST_SKIP() << "the superuser may write anywhere";
  const fs::path path = folder_ / "roof.dxf";
  WriteWhole(path, "old");
  fs::permissions(folder_, fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(Refused(path), "Path/File access error - 75");
  fs::permissions(folder_, fs::perms::owner_all);
  EXPECT_EQ(ReadWhole(path), "old");
}

TEST_F(Saving, AnOverflowLeavesTheOldFile) {
  const fs::path path = folder_ / "roof.dxf";
  WriteWhole(path, "old");
  DxfWriter writer = SampleDrawing();
  writer.FileName = path.string();
  writer.DimExtension = 1e39;
  EXPECT_THROW(writer.Save(), RunTimeError);
  EXPECT_EQ(ReadWhole(path), "old");
}

TEST_F(Saving, ANameMayHaveAnyLetters) { EXPECT_EQ(Refused(folder_ / "Dach º 木.dxf"), "saved"); }

TEST_F(Saving, MetafilesAreSavedAlike) {
  const fs::path path = folder_ / "export.wmf";
  SaveMetafile(path, {}, SampleFrame());
  SaveMetafile(path, SampleRecording(), SampleFrame());
  EXPECT_EQ(ReadWhole(path), PlaceableMetafile(SampleRecording(), SampleFrame()));
  EXPECT_EQ(Files(), 1U);
  try {
    SaveMetafile(folder_ / "none" / "export.wmf", {}, SampleFrame());
    FAIL() << "the folder is missing";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Message(), "Path not found - 76");
  }
}

}  // namespace
}  // namespace pitchcraft::testing
