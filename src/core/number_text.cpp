#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace pitchcraft {
namespace {

constexpr int kSignificantDigits = 7;

template <typename Number, typename... Format>
std::string CharsOf(Number value, Format... format) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value > 0 ? "inf" : "-inf";
  std::array<char, 64> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format...);
  return {buffer.data(), result.ptr};
}

}  // namespace

std::string PlainText(double value) {
  if (value == 0) return "0";  // and no "-0"
  std::string text = CharsOf(value, std::chars_format::general, kSignificantDigits);
  if (std::isfinite(value)) std::replace(text.begin(), text.end(), 'e', 'E');
  return text;
}

std::string SignedText(double value) {
  std::string text = PlainText(value);
  const bool negative = text.front() == '-';
  const std::size_t first = negative ? 1 : 0;
  if (text.compare(first, 2, "0.") == 0) text.erase(first, 1);
  return negative ? text : " " + text;
}

std::string ExactText(float value) { return CharsOf(value); }

std::string ExactText(double value) { return CharsOf(value); }

double RoundTo(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  const double rounded = std::nearbyint(value * scale) / scale;
  return std::isfinite(rounded) ? rounded : value;
}

double LeadingNumber(std::string_view text) {
  text = Trimmed(text);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  return result.ec == std::errc() && std::isfinite(value) ? value : 0.0;
}

std::string_view Trimmed(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace pitchcraft
