// A placeable metafile split into words and records, as a player does it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace pitchcraft::testing {

inline int WordAt(const std::string& bytes, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes.at(i)); };
  return byte(at) | byte(at + 1) << 8;
}
inline int SignedAt(const std::string& bytes, std::size_t at) {
  return static_cast<std::int16_t>(WordAt(bytes, at));
}
inline std::uint32_t LongAt(const std::string& bytes, std::size_t at) {
  return static_cast<std::uint32_t>(WordAt(bytes, at)) | static_cast<std::uint32_t>(WordAt(bytes, at + 2))
                                                             << 16U;
}

struct ReadRecord {
  int Function = 0;
  std::vector<int> Words;  // signed
  std::string Bytes;
};

inline constexpr std::size_t kPlaceableBytes = 22;
inline constexpr std::size_t kHeaderBytes = 18;

class MetafileContent {
 public:
  explicit MetafileContent(std::string bytes) : Bytes(std::move(bytes)) {
    std::size_t at = kPlaceableBytes + kHeaderBytes;
    while (at + 6 <= Bytes.size()) {
      const std::size_t words = LongAt(Bytes, at);
      Largest = std::max(Largest, words);
      ReadRecord record{WordAt(Bytes, at + 4), {}, {}};
      if (words < 3 || at + words * 2 > Bytes.size()) {
        ADD_FAILURE() << "a record of " << words << " words at " << at;
        return;
      }
      record.Bytes = Bytes.substr(at + 6, (words - 3) * 2);
      for (std::size_t i = 0; i < record.Bytes.size(); i += 2)
        record.Words.push_back(SignedAt(record.Bytes, i));
      Records.push_back(record);
      at += words * 2;
    }
    EXPECT_EQ(at, Bytes.size()) << "the records fill the file";
  }

  std::vector<ReadRecord> Named(int function) const {
    std::vector<ReadRecord> found;
    for (const ReadRecord& record : Records) {
      if (record.Function == function) found.push_back(record);
    }
    return found;
  }
  /// The words of the only record of this kind.
  std::vector<int> Only(int function) const {
    const auto found = Named(function);
    EXPECT_EQ(found.size(), 1U) << std::hex << function;
    return found.empty() ? std::vector<int>() : found[0].Words;
  }

  int Edge(int index) const { return SignedAt(Bytes, 6 + 2 * static_cast<std::size_t>(index)); }

  std::string Bytes;
  std::vector<ReadRecord> Records;
  std::size_t Largest = 0;
};

/// The table of objects, as a player keeps it. Fails a test that selects or deletes an object that does not
/// exist, or deletes the selected one.
class ObjectTable {
 public:
  void Play(const ReadRecord& record) {
    constexpr int kSelect = 0x012D;
    constexpr int kDelete = 0x01F0;
    const bool creates = record.Function == 0x02FA || record.Function == 0x02FB || record.Function == 0x02FC;
    if (creates) {
      std::size_t free = 0;
      while (free < slots_.size() && slots_[free] != 0) ++free;
      if (free == slots_.size()) slots_.push_back(0);
      slots_[free] = record.Function;
      ++Created;
    }
    if (record.Function != kSelect && record.Function != kDelete) return;
    const auto slot = static_cast<std::size_t>(record.Words.at(0));
    ASSERT_LT(slot, slots_.size());
    ASSERT_NE(slots_[slot], 0) << "an empty slot";
    if (record.Function == kSelect) {
      selected_[slots_[slot]] = slot;
    } else {
      EXPECT_NE(selected_[slots_[slot]], slot) << "deleted while selected";
      slots_[slot] = 0;
      ++Deleted;
    }
  }

  std::size_t Slots() const { return slots_.size(); }
  int Created = 0;
  int Deleted = 0;

 private:
  std::vector<int> slots_;
  std::map<int, std::size_t> selected_;
};

}  // namespace pitchcraft::testing
