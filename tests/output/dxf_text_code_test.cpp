// Texts as written in a DXF file.
#include <gtest/gtest.h>

#include "output/dxf_pairs.h"

namespace pitchcraft::testing {
namespace {

struct Case {
  const char* Name;
  const char* Text;
  const char* Code;
};

class DxfTextCodes : public ::testing::TestWithParam<Case> {};

TEST_P(DxfTextCodes, AreReadAsTheyWereTyped) { EXPECT_EQ(DxfTextCode(GetParam().Text), GetParam().Code); }

INSTANTIATE_TEST_SUITE_P(
    All, DxfTextCodes,
    ::testing::Values(Case{"Plain", "12' 6 1/2\"", "12' 6 1/2\""}, Case{"Degree", "45° bevel", "45%%d bevel"},
                      Case{"Ordinal", "26.6º", "26.6%%d"}, Case{"LineBreaks", "a\nb\r\nc\rd", "a b c d"},
                      Case{"TwoBreaks", "a\n\nb", "a  b"}, Case{"Tab", "a\tb", "a b"},
                      Case{"HighControl", "a\u0085b", "a b"}, Case{"Half", "½", "\\U+00BD"},
                      Case{"Euro", "€", "\\U+20AC"}, Case{"BeyondFourDigits", "\U0001F3E0", "?"},
                      Case{"NoUtf8",
                           "a\xFF"
                           "b",
                           "a?b"},
                      Case{"OnePercent", "100%", "100%"}, Case{"TypedCode", "%%d", "% %d"},
                      Case{"ThreePercents", "%%%", "% % %"}, Case{"PercentBeforeDegree", "5%°", "5% %%d"},
                      Case{"DegreeTwice", "°°", "%%d%%d"}, Case{"DegreeThenPercent", "°%", "%%d%"},
                      Case{"Caret", "a^J", "a^ J"}, Case{"TypedUnicodeCode", "\\U+00BA", "\\U+005CU+00BA"}),
    [](const auto& tested) { return std::string(tested.param.Name); });

}  // namespace
}  // namespace pitchcraft::testing
