#include "files/file_names.h"

#include <gtest/gtest.h>

namespace pitchcraft::testing {
namespace {

TEST(FileNames, TakeBothSeparators) {
  EXPECT_EQ(FileNameOf("C:\\roofs\\a.pcf"), "a.pcf");
  EXPECT_EQ(FileNameOf("/roofs/a.pcf"), "a.pcf");
  EXPECT_EQ(FileNameOf("a.pcf"), "a.pcf");
  EXPECT_EQ(FileNameOf("/roofs/"), "");
}

TEST(FileNames, GetAnExtensionOnlyWhereTheyHaveNone) {
  EXPECT_EQ(WithExtension("/roofs/shed", "pcf"), "/roofs/shed.pcf");
  EXPECT_EQ(WithExtension("/roofs/shed.txt", "pcf"), "/roofs/shed.txt");
  EXPECT_EQ(WithExtension("/roofs.old/shed", "pcf"), "/roofs.old/shed.pcf");
  EXPECT_EQ(WithExtension("", "pcf"), "");
}

TEST(FileNames, AnExtensionIsReadInSmallLetters) {
  EXPECT_EQ(ExtensionOf("Roof.PDF"), ".pdf");
  EXPECT_EQ(ExtensionOf("a.b/Roof"), "");
  EXPECT_EQ(ExtensionOf("Roof.Dxf.WMF"), ".wmf");
  EXPECT_EQ(ExtensionOf("C:\\a.b\\c"), "");
  EXPECT_EQ(ExtensionOf(".pcf"), "");
}

}  // namespace
}  // namespace pitchcraft::testing
