// The tests of this room paint, so the toolkit is started before them.
#include <gtest/gtest.h>

#include "platform/font_setup.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  pitchcraft::EnsureGui();
  return RUN_ALL_TESTS();
}
