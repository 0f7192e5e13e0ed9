// The one exception of the program: an error of the run time with its number and its description.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace pitchcraft {

/// An error that a procedure traps and reports as "description - number" under its own name.
class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}

  int Number() const { return number_; }
  std::string Description() const { return what(); }
  /// What a message box shows: "Overflow - 6".
  std::string Message() const { return Description() + " - " + std::to_string(number_); }

  static RunTimeError InvalidProcedureCall() { return {5, "Invalid procedure call or argument"}; }
  static RunTimeError Overflow() { return {6, "Overflow"}; }
  static RunTimeError SubscriptOutOfRange() { return {9, "Subscript out of range"}; }
  static RunTimeError DivisionByZero() { return {11, "Division by zero"}; }
  static RunTimeError FileNotFound() { return {53, "File not found"}; }
  static RunTimeError PathFileAccess() { return {75, "Path/File access error"}; }
  static RunTimeError PathNotFound() { return {76, "Path not found"}; }
  static RunTimeError NotAvailable() { return {445, "Object doesn't support this action"}; }
  static RunTimeError PrinterError() { return {482, "Printer error"}; }

 private:
  int number_;
};

/// The nearest 32-bit integer, ties to even. Raises Overflow for an infinity, a not-a-number or a value out
/// of range.
std::int32_t ToLong(double value);

/// The nearest 16-bit integer, ties to even. Raises Overflow as ToLong does.
std::int16_t ToInteger(double value);

/// The whole quotient of two integers, cut towards zero. Raises DivisionByZero.
std::int32_t IntegerDivision(std::int32_t dividend, std::int32_t divisor);

}  // namespace pitchcraft
