// Reduces the many ways to write a sign to one: keyboards and word processors have several for quotes and
// fractions.
#pragma once

#include <string>
#include <string_view>

namespace pitchcraft {

/// The text in small letters with plain signs: every kind of quote and prime is ' or ", two ' become one ", a
/// fraction sign is written out with a blank before it, dashes become -, unusual blanks become plain ones.
/// Takes UTF-8; any other byte is kept as it is.
std::string WithPlainSigns(std::string_view text);

}  // namespace pitchcraft
