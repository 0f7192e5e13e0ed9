// The characters of a DXF file: pairs of a group code and a value, a line each.
#pragma once

#include <string>
#include <string_view>

#include "output/dxf_figures.h"

namespace pitchcraft {

/// A text as the value of a pair, in ASCII alone: control characters become a blank, degree signs "%%d",
/// other characters beyond ASCII "\U+XXXX" or, where four digits do not do, "?". What a person typed is never
/// taken for such a code: a blank stands between two per cent signs.
std::string DxfTextCode(std::string_view text);

class DxfPairs {
 public:
  void Name(int code, std::string_view value);
  void Whole(int code, int value);
  /// As few digits as a Single needs, whatever the locale. Raises Overflow for an infinity, a not-a-number or
  /// what is none as a Single.
  void Real(int code, double value);
  /// Group codes `code` and ten more.
  void Flat(int code, DxfPoint point);
  /// The same with a z of 0.
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
