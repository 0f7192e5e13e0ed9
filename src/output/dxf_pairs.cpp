#include "output/dxf_pairs.h"

#include <array>
#include <charconv>
#include <cmath>

#include "core/run_time_error.h"
#include "core/single.h"
#include "drawing/utf8.h"

namespace pitchcraft {
namespace {

constexpr char32_t kDegree = 0xB0;
constexpr char32_t kOrdinal = 0xBA;  // which keyboards often have instead
constexpr char32_t kLargestFourDigits = 0xFFFF;

std::string UnicodeCode(char32_t code) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text = "\\U+";
  for (int shift = 12; shift >= 0; shift -= 4) text += kDigits[code >> static_cast<unsigned>(shift) & 0xFU];
  return text;
}

std::string CodeOf(char32_t code, char before) {
  // Readers disagree about "%%%", so a blank keeps two codes apart.
  const std::string apart = before == '%' ? " " : "";
  if (code == '%') return apart + "%";
  if (code == kDegree || code == kOrdinal) return apart + "%%d";
  if (code < ' ' || code == 0x7F || (code >= 0x80 && code < 0xA0)) return " ";
  if (code == '^') return "^ ";                // a caret alone starts a control character
  if (code == '\\') return UnicodeCode(code);  // and a backslash a code
  if (code < 0x7F) return {static_cast<char>(code)};
  return code > kLargestFourDigits || code == kNoCharacter ? "?" : UnicodeCode(code);
}

}  // namespace

std::string DxfTextCode(std::string_view text) {
  std::string coded;
  coded.reserve(text.size());
  char32_t last = 0;
  while (!text.empty()) {
    const char32_t code = TakeCharacter(text).Code;
    const bool endOfOneBreak = last == '\r' && code == '\n';
    // A degree sign ends in a letter, so only a per cent sign that was typed can run into the next code.
    if (!endOfOneBreak) coded += CodeOf(code, last == '%' ? '%' : ' ');
    last = code;
  }
  return coded;
}

void DxfPairs::Code(int code) {
  std::array<char, 8> digits{};
  const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), code).ptr;
  const std::string_view text(digits.data(), static_cast<std::size_t>(end - digits.data()));
  if (text.size() < 3) bytes_.append(3 - text.size(), ' ');
  bytes_ += text;
  EndLine();
}

void DxfPairs::Name(int code, std::string_view value) {
  Code(code);
  bytes_ += value;
  EndLine();
}

void DxfPairs::Whole(int code, int value) {
  Code(code);
  std::array<char, 16> digits{};
  bytes_.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr);
  EndLine();
}

void DxfPairs::Real(int code, double value) {
  // Far below anything that a drawing shows: this is rounding error, and would take 40 digits.
  constexpr double kNothing = 1e-9;
  const auto kept = static_cast<float>(double{Single(value)});
  if (!std::isfinite(kept)) throw RunTimeError::Overflow();
  Code(code);
  std::array<char, 64> digits{};
  const float shown = std::fabs(value) < kNothing ? 0.0F : kept;
  const char* end =
      std::to_chars(digits.data(), digits.data() + digits.size(), shown, std::chars_format::fixed).ptr;
  const std::string_view text(digits.data(), static_cast<std::size_t>(end - digits.data()));
  bytes_ += text;
  if (text.find('.') == std::string_view::npos) bytes_ += ".0";
  EndLine();
}

void DxfPairs::Flat(int code, DxfPoint point) {
  Real(code, point.X);
  Real(code + 10, point.Y);
}

void DxfPairs::Point(int code, DxfPoint point) {
  Flat(code, point);
  Real(code + 20, 0);
}

}  // namespace pitchcraft
