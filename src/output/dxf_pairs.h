// The text of a DXF file: pairs of a group code and a value, each on a line of its own.
#pragma once

#include <string>
#include <string_view>

#include "output/dxf_figures.h"

namespace pitchcraft {

/// A text as the value of a pair, in plain ASCII: control characters become blanks, degree signs "%%d", other
/// characters beyond ASCII "\U+XXXX" or, if four digits are not enough, "?". Nothing that a person types is
/// taken for such a code: two per cent signs get a blank between them.
std::string DxfTextCode(std::string_view text);

class DxfPairs {
 public:
  void Name(int code, std::string_view value);
  void Whole(int code, int value);
  /// As few digits as a Single needs, in any locale. Raises Overflow for an infinity, a not-a-number or a
  /// number that does not fit a Single.
  void Real(int code, double value);
  /// Group codes `code` and `code` + 10.
  void Flat(int code, DxfPoint point);
  /// The same, with a z of 0.
  void Point(int code, DxfPoint point);
  /// A variable of the header.
  void Variable(std::string_view name) { Name(9, name); }

  std::string Take() { return std::move(bytes_); }

 private:
  void Code(int code);
  void EndLine() { bytes_ += "\r\n"; }

  std::string bytes_;
};

}  // namespace pitchcraft
