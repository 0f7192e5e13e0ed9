#include "ftcalc/ft_calc.h"

#include <cmath>

#include "measure/measure_converter.h"
#include "measure/measure_parser.h"

namespace pitchcraft {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kInchesPerMetre = 1000 / kMillimetresPerInch;
constexpr double kSquareFoot = 144;
// Enough for a day's work; the oldest lines drop off.
constexpr std::size_t kLongestTape = 1000;

constexpr bool IsDigit(char key) { return key >= '0' && key <= '9'; }

const char* SignOf(CalcOperation operation) {
  switch (operation) {
    case CalcOperation::kAdd: return "+";
    case CalcOperation::kSubtract: return "-";
    case CalcOperation::kMultiply: return "x";
    case CalcOperation::kDivide: return ":";
  }
  return "";
}

std::string PlainDecimal(double number, int decimals) {
  MeasureConverter converter;
  converter.Units = kPlainNumber;
  converter.DecimalPlaces = decimals;
  return converter.ToText(number);
}

}  // namespace

std::string FtCalc::Text(const Quantity& quantity) const {
  constexpr int kNumberDecimals = 6;
  if (quantity.dimension == 0) return PlainDecimal(quantity.amount, kNumberDecimals);
  if (quantity.dimension == 2) {
    constexpr int kAreaDecimals = 4;
    switch (units_) {
      case CalcUnits::kFeetAndInches:
        return PlainDecimal(quantity.amount / kSquareFoot, kAreaDecimals) + " sq ft";
      case CalcUnits::kInches: return PlainDecimal(quantity.amount, kAreaDecimals) + " sq in";
      case CalcUnits::kMillimetres:
        return PlainDecimal(quantity.amount / (kInchesPerMetre * kInchesPerMetre), kAreaDecimals) + " sq m";
    }
  }
  MeasureConverter converter;
  converter.DecimalPlaces = 2;
  converter.Units = units_ == CalcUnits::kFeetAndInches ? kFeetAndInches
                    : units_ == CalcUnits::kInches      ? kInchesAlone
                                                        : kMillimetres;
  return converter.ToText(quantity.amount);
}

// After a whole number the stroke starts a fraction; after a unit, a decimal point or another fraction it
// divides.
bool FtCalc::StrokeDivides() const {
  if (entry_.empty() || !IsDigit(entry_.back())) return !entry_.empty() || usable_;
  const std::size_t before = entry_.find_last_not_of("0123456789");
  return before != std::string::npos &&
         (entry_[before] == '.' || entry_[before] == ',' || entry_[before] == '/');
}

bool FtCalc::Key(char key) {
  switch (key) {
    case '+': return Operate(CalcOperation::kAdd), true;
    case '-':
      // After an operator it starts a negative number.
      if (entry_.empty() && !usable_) break;
      return Operate(CalcOperation::kSubtract), true;
    case '*':
    case 'x':
    case 'X': return Operate(CalcOperation::kMultiply), true;
    case ':': return Operate(CalcOperation::kDivide), true;
    case '/':
      if (!StrokeDivides()) break;
      return Operate(CalcOperation::kDivide), true;
    case '=': return Equals(), true;
    default: break;
  }
  constexpr std::string_view kOthers = ".,'\"/- finchetmoFINCHETMO";
  if (!IsDigit(key) && kOthers.find(key) == std::string_view::npos) return false;
  message_.clear();
  if (entry_.size() >= kLongestEntry || (entry_.empty() && key == ' ')) return true;
  entry_ += key;
  return true;
}

void FtCalc::Keys(std::string_view keys) {
  for (const char key : keys) Key(key);
}

void FtCalc::SetEntry(std::string_view text) {
  message_.clear();
  entry_ = text.substr(0, kLongestEntry);
}

void FtCalc::Backspace() {
  message_.clear();
  // A character of several bytes is deleted as one.
  while (!entry_.empty()) {
    const bool follows = (static_cast<unsigned char>(entry_.back()) & 0xC0U) == 0x80U;
    entry_.pop_back();
    if (!follows) break;
  }
}

void FtCalc::ChangeSign() {
  message_.clear();
  if (entry_.empty()) {
    if (!usable_) return;
    shown_.amount = shown_.amount == 0 ? 0 : -shown_.amount;
  } else if (entry_.front() == '-') {
    entry_.erase(0, 1);
  } else if (entry_.size() < kLongestEntry) {
    entry_.insert(0, 1, '-');
  }
}

void FtCalc::ClearEntry() {
  message_.clear();
  entry_.clear();
  if (usable_) shown_ = {};
}

void FtCalc::Clear() {
  pending_.reset();
  usable_ = true;
  ClearEntry();
}

/// The entry, or the last result if nothing is typed. Nothing, with a message, if the entry cannot be read.
std::optional<Quantity> FtCalc::Operand() {
  if (entry_.empty()) return shown_;
  const std::optional<Measure> measure = ReadMeasure(entry_);
  if (!measure) {
    message_ = "This is no number and no measure: " + entry_;
    return std::nullopt;
  }
  Quantity quantity{measure->amount, measure->system == LengthSystem::None ? 0 : 1};
  if (measure->system == LengthSystem::Millimetres) quantity.amount /= kMillimetresPerInch;
  if (!std::isfinite(quantity.amount)) return Refuse("This is too large.");
  return quantity;
}

void FtCalc::Show(const Quantity& quantity) {
  shown_ = quantity;
  usable_ = true;
  entry_.clear();
}

std::optional<Quantity> FtCalc::Refuse(const char* why) {
  message_ = why;
  return std::nullopt;
}

std::optional<Quantity> FtCalc::Combine(Quantity left, CalcOperation operation, Quantity right) {
  Quantity result;
  if (operation == CalcOperation::kAdd || operation == CalcOperation::kSubtract) {
    if (left.dimension + right.dimension == 1) {
      Quantity& number = left.dimension == 0 ? left : right;
      if (units_ == CalcUnits::kMillimetres) number.amount /= kMillimetresPerInch;
      number.dimension = 1;
    }
    if (left.dimension != right.dimension) {
      return Refuse("An area can only be added to an area, or taken from one.");
    }
    result = {operation == CalcOperation::kAdd ? left.amount + right.amount : left.amount - right.amount,
              left.dimension};
  } else if (operation == CalcOperation::kMultiply) {
    result = {left.amount * right.amount, left.dimension + right.dimension};
    if (result.dimension > 2) return Refuse("This would be more than an area.");
  } else {
    if (right.amount == 0) return Refuse("Nothing can be divided by zero.");
    result = {left.amount / right.amount, left.dimension - right.dimension};
    if (result.dimension < 0) {
      return Refuse(left.dimension == 0 ? "A number cannot be divided by a measure."
                                        : "A length cannot be divided by an area.");
    }
  }
  if (!std::isfinite(result.amount)) return Refuse("The result is too large.");
  if (result.amount == 0) result.amount = 0;  // never -0
  return result;
}

void FtCalc::Print(std::string_view sign, const Quantity& quantity) {
  tape_.push_back(std::string(sign) + " " + Text(quantity));
  if (tape_.size() > kLongestTape) tape_.erase(tape_.begin());
}

std::optional<Quantity> FtCalc::Sum(const Quantity& operand) {
  return pending_ ? Combine(pending_->left, pending_->operation, operand) : operand;
}

void FtCalc::Operate(CalcOperation operation) {
  message_.clear();
  // A second operator in a row replaces the first.
  if (entry_.empty() && !usable_ && pending_) {
    pending_->operation = operation;
    return;
  }
  const auto operand = Operand();
  const auto sum = operand ? Sum(*operand) : std::nullopt;
  if (!sum) return;
  Print(pending_ ? SignOf(pending_->operation) : " ", *operand);
  pending_ = Pending{*sum, operation};
  Show(*sum);
  usable_ = false;
}

void FtCalc::Equals() {
  message_.clear();
  if (entry_.empty() && !usable_) {
    message_ = "A number is missing behind the sign.";
    return;
  }
  if (entry_.empty() && !pending_) return;
  const auto operand = Operand();
  const auto sum = operand ? Sum(*operand) : std::nullopt;
  if (!sum) return;
  Print(pending_ ? SignOf(pending_->operation) : " ", *operand);
  Print("=", *sum);
  pending_.reset();
  Show(*sum);
}

void FtCalc::AddToMemory(int sign) {
  message_.clear();
  const auto operand = Operand();
  if (!operand) return;
  // An empty memory takes on the dimension of the operand.
  const Quantity before = memory_.value_or(Quantity{0, operand->dimension});
  const auto sum = Combine(before, sign > 0 ? CalcOperation::kAdd : CalcOperation::kSubtract, *operand);
  if (!sum) return;
  memory_ = sum;
  Print(sign > 0 ? "M+" : "M-", *operand);
  if (!entry_.empty()) Show(*operand);
}

void FtCalc::MemoryRecall() {
  message_.clear();
  if (!memory_) {
    message_ = "The memory is empty.";
    return;
  }
  Show(*memory_);
}

}  // namespace pitchcraft
