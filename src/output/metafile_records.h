// The records of a Windows metafile, as bytes.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace pitchcraft {

/// The codes of the records' functions.
enum class MetaFunction : std::uint16_t {
  kEof = 0x0000,
  kSetBkMode = 0x0102,
  kSetMapMode = 0x0103,
  kSetPolyFillMode = 0x0106,
  kSelectObject = 0x012D,
  kSetTextAlign = 0x012E,
  kDeleteObject = 0x01F0,
  kSetTextColor = 0x0209,
  kSetWindowOrg = 0x020B,
  kSetWindowExt = 0x020C,
  kLineTo = 0x0213,
  kMoveTo = 0x0214,
  kCreatePen = 0x02FA,
  kCreateFont = 0x02FB,
  kCreateBrush = 0x02FC,
  kPolygon = 0x0324,
  kEllipse = 0x0418,
  kRectangle = 0x041B,
  kTextOut = 0x0521,
  kRoundRect = 0x061C,
  kArc = 0x0817,
};

/// 16-bit words, low byte first.
class MetaWords {
 public:
  void Word(int value);
  void Long(std::uint32_t value);
  /// Padded with a 0 to a whole number of words.
  void Text(const std::string& bytes);

  const std::string& Bytes() const { return bytes_; }
  std::size_t Count() const { return bytes_.size() / 2; }

 private:
  std::string bytes_;
};

/// The records in order, with the two numbers that the header states about them.
class MetaRecords {
 public:
  void Add(MetaFunction function, const MetaWords& parameters);
  void Add(MetaFunction function, std::initializer_list<int> words);

  const std::string& Bytes() const { return records_.Bytes(); }
  std::size_t Words() const { return records_.Count(); }
  std::size_t LargestRecord() const { return largest_; }

 private:
  MetaWords records_;
  std::size_t largest_ = 0;
};

/// Players put a new object into the first free slot; this keeps count of the slots in the same way.
class MetaSlots {
 public:
  int Take();
  void Free(int slot) { used_[static_cast<std::size_t>(slot)] = false; }
  /// The most slots that were in use at one time.
  int Count() const { return static_cast<int>(used_.size()); }

 private:
  std::vector<bool> used_;
};

}  // namespace pitchcraft
