// A DXF file split into pairs and records, as a reader does it.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace pitchcraft::testing {

/// Begins with a pair 0 and ends before the next.
struct DxfRecord {
  std::string Type;
  std::vector<std::pair<int, std::string>> Pairs;

  /// The value of the first pair with this code, or "-".
  std::string operator()(int code) const {
    for (const auto& [found, value] : Pairs) {
      if (found == code) return value;
    }
    return "-";
  }
  std::string Place(int code) const { return (*this)(code) + ", " + (*this)(code + 10); }
};

class DxfContent {
 public:
  explicit DxfContent(const std::string& bytes) {
    std::istringstream lines(bytes);
    std::string code;
    std::string value;
    while (std::getline(lines, code)) {
      if (!std::getline(lines, value)) ADD_FAILURE() << "a code without a value: " << code;
      if (!code.ends_with('\r') || !value.ends_with('\r')) ADD_FAILURE() << "a line end: " << code << value;
      code.pop_back();
      value.pop_back();
      const int number = std::stoi(code);
      if (number == 0) records_.push_back({value, {}});
      records_.back().Pairs.emplace_back(number, value);
    }
  }

  const std::vector<DxfRecord>& All() const { return records_; }

  std::vector<DxfRecord> Named(const std::string& type) const {
    std::vector<DxfRecord> found;
    for (const DxfRecord& record : records_) {
      if (record.Type == type) found.push_back(record);
    }
    return found;
  }

  /// The records of a type in a section. ENTITIES does not include those in blocks.
  std::vector<DxfRecord> In(const std::string& section, const std::string& type) const {
    std::vector<DxfRecord> found;
    std::string present;
    for (const DxfRecord& record : records_) {
      if (record.Type == "SECTION") present = record(2);
      if (present == section && record.Type == type) found.push_back(record);
    }
    return found;
  }

  /// The record of a table with this name.
  DxfRecord Entry(const std::string& type, const std::string& name) const {
    for (const DxfRecord& record : Named(type)) {
      if (record(2) == name) return record;
    }
    ADD_FAILURE() << type << " " << name << " is missing";
    return {};
  }

  /// The value after a variable of the header, `index` pairs further on.
  std::string Variable(const std::string& name, int index = 0) const {
    const auto& pairs = records_.at(0).Pairs;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
      if (pairs[i].first == 9 && pairs[i].second == name) return pairs.at(i + 1 + std::size_t(index)).second;
    }
    return "-";
  }

 private:
  std::vector<DxfRecord> records_;
};

}  // namespace pitchcraft::testing
