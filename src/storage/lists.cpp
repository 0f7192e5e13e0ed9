#include "storage/lists.h"

#include <utility>

namespace pitchcraft {

std::vector<std::string> DefaultLumberRows() {
  return {"1x4|.75|3.5",     "1x6|.75|5.5",     "1x8|.75|7.25",     "1x10|.75|9.25",    "1x12|.75|11.25",
          "5/4x4|1.125|3.5", "5/4x6|1.125|5.5", "5/4x8|1.125|7.25", "5/4x10|1.125|9.5", "5/4x12|1.125|11.25",
          "2x4|1.5|3.5",     "2x6|1.5|5.5",     "2x8|1.5|7.25",     "2x10|1.5|9.5",     "2x12|1.5|11.25"};
}

std::vector<std::string> DefaultSlopeRows(int unitRun) {
  const bool imperial = unitRun == 12;
  const int step = imperial ? 1 : 100;
  const int last = imperial ? 60 : 5000;
  const std::string run = std::to_string(unitRun);
  std::vector<std::string> rows;
  for (int rise = step; rise <= last; rise += step) {
    const std::string text = std::to_string(rise);
    std::string row = text;
    for (const std::string& part : {std::string("/"), run, std::string("|"), text, std::string("|"), run})
      row += part;
    rows.push_back(std::move(row));
  }
  return rows;
}

std::vector<std::string> DefaultDegreeRows() {
  std::vector<std::string> rows;
  for (int degrees = 1; degrees <= 80; ++degrees) rows.push_back(std::to_string(degrees));
  return rows;
}

}  // namespace pitchcraft
