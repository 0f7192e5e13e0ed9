// The text of sections and keys, in every form in which it occurs.
#include "storage/ini_file.h"

#include <gtest/gtest.h>

namespace pitchcraft {
namespace {

struct ReadCase {
  const char* text;
  const char* value;  // of key Span in section Settings; null if there is none
};

TEST(IniTextTest, Reads) {
  const ReadCase cases[] = {
      {"[Settings]\r\nSpan=144\r\n", "144"},
      {"[Settings]\nSpan=144", "144"},
      {"[Settings]\rSpan=144\r", "144"},
      {"\xEF\xBB\xBF[Settings]\nSpan=144\n", "144"},
      {"  [ settings ]  \n\t SPAN \t= \t144 \t\n", "144"},
      {"[Settings]\nSpan=\"144\"\n", "144"},
      {"[Settings]\nSpan='  144 '\n", "  144 "},
      {"[Settings]\nSpan=\"\n", "\""},
      {"[Settings]\nSpan=16\"\n", "16\""},
      {"[Settings]\nSpan=a=b\n", "a=b"},
      {"[Settings]\nSpan=\n", ""},
      {"[Settings]\nSpan=1\nspan=2\n", "1"},
      {"[Other]\nSpan=9\n[Settings]\nSpan=1\n", "1"},
      {"[Settings]\nSlope=1\n[Other]\nSpan=9\n", nullptr},
      {"[Settings]\nSlope=1\n[Other]\nSpan=9\n[Settings]\nSpan=3\n", "3"},
      {"Span=9\n[Settings]\n", nullptr},
      {"[Settings]\n;Span=9\n", nullptr},
      {"[Settings]\nSpan 9\n", nullptr},
      {"[Settings\nSpan=9\n", nullptr},
      {"", nullptr},
  };
  for (const ReadCase& row : cases) {
    SCOPED_TRACE(row.text);
    const std::optional<std::string> value = IniText(row.text).Value("Settings", "Span");
    EXPECT_EQ(value.has_value(), row.value != nullptr);
    if (value && row.value != nullptr) {
      EXPECT_EQ(*value, row.value);
    }
  }
}

TEST(IniTextTest, ReadsWideCharactersBehindTheirMark) {
  std::string wide = "\xFF\xFE";
  for (const char c : std::string("[Settings]\r\nSpan=144 ")) wide += std::string{c, '\0'};
  wide += std::string("\xB0\x00\xAC\x20", 4);  // a degree sign, a euro sign
  EXPECT_EQ(IniText(wide).Value("Settings", "Span"), "144 \xC2\xB0\xE2\x82\xAC");
}

TEST(IniTextTest, TellsWhetherASectionIsThere) {
  EXPECT_TRUE(IniText("[SETTINGS]\n").HasSection("Settings"));
  EXPECT_FALSE(IniText("Settings=1\n[Other]\nSettings=2\n").HasSection("Settings"));
}

TEST(IniTextTest, CutsAValueBetweenLetters) {
  const std::string text = "[S]\nk=" + std::string(98, 'x') + "\xC3\xA9y\n";
  EXPECT_EQ(IniText(text).Value("S", "k"), std::string(98, 'x'));
  EXPECT_EQ(IniText("[S]\nk=" + std::string(500, 'x')).Value("S", "k")->size(), IniText::kLongestValue);
}

TEST(IniWriterTest, WritesCarriageReturns) {
  IniWriter writer("Settings");
  writer.Add("Span", "144");
  EXPECT_EQ(writer.Text(), "[Settings]\r\nSpan=144\r\n");
}

TEST(IniWriterTest, WhatIsWrittenIsRead) {
  for (const char* value : {"", "144", "16\"", "\"quoted\"", "'quoted'", " blank in front", "blank behind ",
                            "a=b", "[Settings]", ";no", "\"", "''", "12' 6 1/2\"", "\xC2\xB0"}) {
    IniWriter writer("Settings");
    writer.Add("Span", value);
    EXPECT_EQ(IniText(writer.Text()).Value("Settings", "Span"), value);
  }
}

TEST(IniWriterTest, AValueNeverBecomesALineOfItsOwn) {
  IniWriter writer("Settings");
  writer.Add("Span", "1\r\nSlope=9");
  EXPECT_FALSE(IniText(writer.Text()).Value("Settings", "Slope"));
}

}  // namespace
}  // namespace pitchcraft
