#include "output/metafile_records.h"

#include <algorithm>

namespace pitchcraft {
namespace {

constexpr std::size_t kWordsBeforeParameters = 3;  // size and function

}  // namespace

void MetaWords::Word(int value) {
  const auto word = static_cast<std::uint16_t>(value);
  bytes_ += static_cast<char>(word & 0xFFU);
  bytes_ += static_cast<char>(word >> 8U);
}

void MetaWords::Long(std::uint32_t value) {
  Word(static_cast<int>(value & 0xFFFFU));
  Word(static_cast<int>(value >> 16U));
}

void MetaWords::Text(const std::string& bytes) {
  bytes_ += bytes;
  if (bytes.size() % 2 != 0) bytes_ += '\0';
}

void MetaRecords::Add(MetaFunction function, const MetaWords& parameters) {
  const std::size_t words = kWordsBeforeParameters + parameters.Count();
  records_.Long(static_cast<std::uint32_t>(words));
  records_.Word(static_cast<int>(function));
  records_.Text(parameters.Bytes());
  largest_ = std::max(largest_, words);
}

void MetaRecords::Add(MetaFunction function, std::initializer_list<int> words) {
  MetaWords parameters;
  for (const int word : words) parameters.Word(word);
  Add(function, parameters);
}

int MetaSlots::Take() {
  const auto free = std::find(used_.begin(), used_.end(), false);
  const auto slot = free - used_.begin();
  if (free == used_.end()) {
    used_.push_back(true);
  } else {
    *free = true;
  }
  return static_cast<int>(slot);
}

}  // namespace pitchcraft
