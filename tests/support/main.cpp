// A program with a window takes over the user's locale, and so do the tests: a number that is written or read
// as the C library does under that locale is found here.
#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv) {
  std::setlocale(LC_ALL, "");
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
