// The arithmetic of the feet-and-inches calculator, without its window.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pitchcraft {

/// How lengths are shown; areas are in square feet, square inches or square metres to match.
enum class CalcUnits { kFeetAndInches, kInches, kMillimetres };

enum class CalcOperation { kAdd, kSubtract, kMultiply, kDivide };

/// A number, a length in inches or an area in square inches.
struct Quantity {
  double amount = 0;
  int dimension = 0;  ///< 0 number, 1 length, 2 area
};

/// Calculates from left to right, like an adding machine: 2 + 3 x 4 is 20.
///
/// - A number without a unit is a plain number. Added to or subtracted from a length it counts as inches, or
///   as millimetres while millimetres are shown.
/// - A length times a length is an area, an area divided by a length is a length, and a length divided by a
///   length is a number. What makes no sense on a roof, such as a volume or a number divided by a length, is
///   refused.
/// - What is refused or cannot be read leaves a message and changes nothing else, so that the entry can be
///   corrected.
class FtCalc {
 public:
  static constexpr std::size_t kLongestEntry = 40;

  CalcUnits Units() const { return units_; }
  void SetUnits(CalcUnits units) { units_ = units; }

  /// One key of the keyboard. Operators are + - * x and : and, where no fraction can follow, the stroke of a
  /// fraction; = ends a sum; all others go into the entry. False for a key that means nothing.
  bool Key(char key);
  void Keys(std::string_view keys);
  /// Replaces the entry by a whole text.
  void SetEntry(std::string_view text);
  void Backspace();
  void ChangeSign();
  void ClearEntry();
  /// Drops the sum and its message; the tape and the memory stay.
  void Clear();

  void Operate(CalcOperation operation);
  void Equals();

  void MemoryAdd() { AddToMemory(1); }
  void MemorySubtract() { AddToMemory(-1); }
  void MemoryRecall();
  void MemoryClear() { memory_.reset(); }
  bool HasMemory() const { return memory_.has_value(); }

  /// The entry as typed so far, or else the last result.
  std::string Display() const { return entry_.empty() ? Text(shown_) : entry_; }
  std::string MemoryText() const { return memory_ ? Text(*memory_) : ""; }
  /// Why the last key was refused; empty if it was not.
  const std::string& Message() const { return message_; }
  /// The tape, oldest line first.
  const std::vector<std::string>& Tape() const { return tape_; }
  void ClearTape() { tape_.clear(); }

  std::string Text(const Quantity& quantity) const;

 private:
  struct Pending {
    Quantity left;
    CalcOperation operation;
  };

  std::optional<Quantity> Operand();
  std::optional<Quantity> Sum(const Quantity& operand);
  bool StrokeDivides() const;
  void AddToMemory(int sign);
  std::optional<Quantity> Combine(Quantity left, CalcOperation operation, Quantity right);
  std::optional<Quantity> Refuse(const char* why);
  void Print(std::string_view sign, const Quantity& quantity);
  void Show(const Quantity& quantity);

  CalcUnits units_ = CalcUnits::kFeetAndInches;
  std::string entry_;
  Quantity shown_;
  bool usable_ = true;  ///< the shown value can be the next operand and does not merely repeat the left one
  std::optional<Pending> pending_;
  std::optional<Quantity> memory_;
  std::string message_;
  std::vector<std::string> tape_;
};

}  // namespace pitchcraft
