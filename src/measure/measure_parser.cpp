#include "measure/measure_parser.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "measure/plain_signs.h"

namespace pitchcraft {
namespace {

struct Unit {
  std::string_view name;
  LengthSystem system;
  double size;  // in inches or in millimetres
};

constexpr Unit kInch = {"\"", LengthSystem::Inches, 1};

constexpr std::array kUnits = {
    Unit{"'", LengthSystem::Inches, 12},
    Unit{"ft", LengthSystem::Inches, 12},
    Unit{"foot", LengthSystem::Inches, 12},
    Unit{"feet", LengthSystem::Inches, 12},
    kInch,
    Unit{"in", LengthSystem::Inches, 1},
    Unit{"inch", LengthSystem::Inches, 1},
    Unit{"inches", LengthSystem::Inches, 1},
    Unit{"mm", LengthSystem::Millimetres, 1},
    Unit{"cm", LengthSystem::Millimetres, 10},
    Unit{"m", LengthSystem::Millimetres, 1000},
};

constexpr auto kIsDigit = [](char c) { return c >= '0' && c <= '9'; };
constexpr auto kIsLetter = [](char c) { return c >= 'a' && c <= 'z'; };
constexpr auto kIsBlank = [](char c) { return c == ' '; };

// Each Take... removes from the front of the rest what it can read, or nothing.

template <typename Kind>
std::string_view TakeWhile(std::string_view& rest, Kind kind) {
  const auto end = std::find_if_not(rest.begin(), rest.end(), kind);
  const std::string_view taken = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
  rest.remove_prefix(taken.size());
  return taken;
}

bool TakeOneOf(std::string_view& rest, std::string_view signs) {
  if (rest.empty() || signs.find(rest.front()) == std::string_view::npos) return false;
  rest.remove_prefix(1);
  return true;
}

std::optional<double> NumberFrom(std::string_view text) {
  double number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size()) return std::nullopt;
  return number;
}

std::optional<double> TakeFraction(std::string_view& rest) {
  std::string_view ahead = rest;
  const auto above = NumberFrom(TakeWhile(ahead, kIsDigit));
  if (!above || !TakeOneOf(ahead, "/")) return std::nullopt;
  const auto below = NumberFrom(TakeWhile(ahead, kIsDigit));
  if (!below || *below == 0) return std::nullopt;
  rest = ahead;
  return *above / *below;
}

// 6 1/2 and 6-1/2
std::optional<double> TakeMixedNumber(std::string_view& rest) {
  std::string_view ahead = rest;
  const auto whole = NumberFrom(TakeWhile(ahead, kIsDigit));
  const std::size_t afterWhole = ahead.size();
  TakeWhile(ahead, kIsBlank);
  TakeOneOf(ahead, "-");
  if (!whole || ahead.size() == afterWhole) return std::nullopt;
  TakeWhile(ahead, kIsBlank);
  const auto part = TakeFraction(ahead);
  if (!part) return std::nullopt;
  rest = ahead;
  return *whole + *part;
}

bool MayGroupThousands(std::string_view whole, std::string_view part) {
  return !whole.empty() && whole.size() <= 3 && whole.front() != '0' && part.size() == 3;
}

// e or E with at least one digit after it; the e of a word is left alone.
std::string_view TakeExponent(std::string_view& rest) {
  std::string_view ahead = rest;
  if (!TakeOneOf(ahead, "e")) return {};
  TakeOneOf(ahead, "+-");
  if (TakeWhile(ahead, kIsDigit).empty()) return {};
  const std::string_view exponent = rest.substr(0, rest.size() - ahead.size());
  rest = ahead;
  return exponent;
}

std::optional<double> TakeDecimal(std::string_view& rest) {
  std::string_view ahead = rest;
  const std::string_view whole = TakeWhile(ahead, kIsDigit);
  std::string number(whole);
  if (TakeOneOf(ahead, ".")) {
    number.append(".").append(TakeWhile(ahead, kIsDigit));
  } else if (!whole.empty() && ahead.size() > 1 && ahead[0] == ',' && kIsDigit(ahead[1])) {
    ahead.remove_prefix(1);
    const std::string_view part = TakeWhile(ahead, kIsDigit);
    if (MayGroupThousands(whole, part)) return std::nullopt;
    number.append(".").append(part);
  }
  number.append(TakeExponent(ahead));
  const auto value = NumberFrom(number);
  if (value) rest = ahead;
  return value;
}

std::optional<double> TakeQuantity(std::string_view& rest) {
  TakeWhile(rest, kIsBlank);
  if (const auto fraction = TakeFraction(rest)) return fraction;
  if (const auto mixed = TakeMixedNumber(rest)) return mixed;
  return TakeDecimal(rest);
}

const Unit* TakeUnit(std::string_view& rest) {
  TakeWhile(rest, kIsBlank);
  std::string_view ahead = rest;
  std::string_view name = TakeWhile(ahead, kIsLetter);
  if (!name.empty()) {
    TakeOneOf(ahead, ".");
  } else if (TakeOneOf(ahead, "'\"")) {
    name = rest.substr(0, 1);
  }
  const auto unit =
      std::find_if(kUnits.begin(), kUnits.end(), [&](const Unit& row) { return row.name == name; });
  if (unit == kUnits.end()) return nullptr;
  rest = ahead;
  return &*unit;
}

bool MayFollow(const Unit& larger, const Unit& unit) {
  return unit.system == larger.system && unit.size < larger.size;
}

}  // namespace

std::optional<Measure> ReadMeasure(std::string_view text) {
  const std::string plain = WithPlainSigns(text);
  std::string_view rest = plain;
  TakeWhile(rest, kIsBlank);
  const double sign = rest.starts_with('-') ? -1 : 1;
  TakeOneOf(rest, "+-");

  Measure measure = {0, LengthSystem::None};
  const Unit* larger = nullptr;
  for (;;) {
    const auto quantity = TakeQuantity(rest);
    if (!quantity) return std::nullopt;
    const Unit* unit = TakeUnit(rest);
    TakeWhile(rest, kIsBlank);
    if (unit == nullptr && larger == nullptr) {
      if (!rest.empty()) return std::nullopt;
      return Measure{sign * *quantity, LengthSystem::None};
    }
    if (unit == nullptr) unit = &kInch;
    if (larger != nullptr && !MayFollow(*larger, *unit)) return std::nullopt;
    measure = {measure.amount + sign * *quantity * unit->size, unit->system};
    larger = unit;
    if (rest.empty()) return measure;
    TakeOneOf(rest, "-,");
  }
}

}  // namespace pitchcraft
