// Whole metafiles, as they were when outside players showed them correctly.
#include <gtest/gtest.h>

#include "sample_recording.h"
#include "support/golden.h"

namespace pitchcraft::testing {
namespace {

TEST(MetafileGolden, ARecordingWithEverything) {
  ExpectGolden("output/golden/everything.wmf", PlaceableMetafile(SampleRecording(), SampleFrame()));
}

TEST(MetafileGolden, OnWhiteWithYDownward) {
  MetafileFrame frame = SampleFrame();
  frame.BackColor = 0xFFFFFF;
  frame.Upward = false;
  ExpectGolden("output/golden/downward.wmf", PlaceableMetafile(SampleRecording(), frame));
}

}  // namespace
}  // namespace pitchcraft::testing
