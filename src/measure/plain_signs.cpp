#include "measure/plain_signs.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace pitchcraft {
namespace {

struct Sign {
  std::string_view written;  // in UTF-8
  std::string_view plain;
};

constexpr std::array kSigns = {
    Sign{"\u2018", "'"},    Sign{"\u2019", "'"},    Sign{"\u2032", "'"},     // single quotes, prime
    Sign{"\u00B4", "'"},    Sign{"`", "'"},                                  // accents used as quotes
    Sign{"\u201C", "\""},   Sign{"\u201D", "\""},   Sign{"\u201E", "\""},    // double quotes
    Sign{"\u2033", "\""},                                                    // double prime
    Sign{"\u00BC", " 1/4"}, Sign{"\u00BD", " 1/2"}, Sign{"\u00BE", " 3/4"},  // quarters
    Sign{"\u215B", " 1/8"}, Sign{"\u215C", " 3/8"}, Sign{"\u215D", " 5/8"},  // eighths
    Sign{"\u215E", " 7/8"}, Sign{"\u2153", " 1/3"}, Sign{"\u2154", " 2/3"},  // and thirds
    Sign{"\u2044", "/"},    Sign{"\u2215", "/"},                             // fraction and division slash
    Sign{"\u2010", "-"},    Sign{"\u2011", "-"},    Sign{"\u2013", "-"},     // hyphens, en dash
    Sign{"\u2014", "-"},    Sign{"\u2212", "-"},                             // em dash, minus
    Sign{"\u00A0", " "},    Sign{"\u2009", " "},    Sign{"\u202F", " "},     // no-break, thin, narrow blank
    Sign{"\t", " "},        Sign{"\r", " "},        Sign{"\n", " "},
};

constexpr std::size_t At(char c) { return static_cast<unsigned char>(c); }

// Most bytes do not start a sign of the table and can skip the search.
constexpr auto kBeginsASign = [] {
  std::array<bool, 256> begins{};
  for (const Sign& sign : kSigns) begins[At(sign.written.front())] = true;
  return begins;
}();

const Sign* SignAtTheFront(std::string_view text) {
  if (!kBeginsASign[At(text.front())]) return nullptr;
  const auto sign =
      std::find_if(kSigns.begin(), kSigns.end(), [&](const Sign& s) { return text.starts_with(s.written); });
  return sign == kSigns.end() ? nullptr : &*sign;
}

char SmallLetter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::string WithPlainSigns(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  while (!text.empty()) {
    const Sign* sign = SignAtTheFront(text);
    const char letter = SmallLetter(text.front());
    const std::string_view next = sign == nullptr ? std::string_view(&letter, 1) : sign->plain;
    if (next == "'" && plain.ends_with('\'')) {
      plain.back() = '"';
    } else {
      plain += next;
    }
    text.remove_prefix(sign == nullptr ? 1 : sign->written.size());
  }
  return plain;
}

}  // namespace pitchcraft
