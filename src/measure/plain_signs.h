// The many ways to write one sign, brought to one: what keyboards and word processors make of quotes and
// fractions.
#pragma once

#include <string>
#include <string_view>

namespace pitchcraft {

/// The text in small letters with plain signs: every kind of quote and prime is ' or ", two ' are one ", a
/// fraction sign is written out with a blank in front, dashes are -, unusual blanks are blanks. Takes UTF-8;
/// a byte that is none of these is kept as it is.
std::string WithPlainSigns(std::string_view text);

}  // namespace pitchcraft
