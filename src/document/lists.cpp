#include "document/lists.h"

#include <array>
#include <optional>

#include "design/questions.h"
#include "storage/list_files.h"
#include "storage/lists.h"

namespace pitchcraft {
namespace {

/// The rows of a list file in the folder; nothing where there is no folder or no such file.
std::optional<std::vector<std::string>> RowsIn(const std::filesystem::path& folder, const char* name) {
  if (folder.empty()) return std::nullopt;
  return ReadListFile(folder / name);
}

/// The same list for several fields of one format: its texts are read once.
template <typename Fields>
void ShowRows(const std::vector<std::string>& rows, const Fields& fields) {
  PairControl& first = *fields[0];
  first.Clear();
  for (const std::string& row : rows) first.AddEntry(row);
  for (PairControl* field : fields) field->SetList(std::vector<PairRow>(first.List()));
}

void FillLumber(Document& document) {
  Sheet& sheet = document.design.sheet;
  const std::array<PairControl*, 6> fields{&sheet.Common[0], &sheet.Common[1], &sheet.Ridge,
                                           &sheet.Fascia[0], &sheet.Fascia[1], &sheet.HipOrValley};
  ShowRows(std::vector<std::string>(), fields);
  const auto stored = RowsIn(document.Around().programFolder, LumberFileOf(UnitRun(document.design)));
  ShowRows(stored ? *stored : DefaultLumberRows(), fields);
}

// A folder that takes no file is told once in a session; the boxes have their rows in any case.
void FillDegrees(Document& document) {
  std::vector<std::string> rows = DefaultDegreeRows();
  const auto show = [&] {
    for (ComboControl& degrees : document.design.sheet.Degrees) degrees.SetList(rows);
  };
  show();
  const std::filesystem::path& folder = document.Around().programFolder;
  if (folder.empty() || document.degreesFailed) return;
  document.degreesFailed = true;
  rows = ReadDegreesFile(folder / kDegreesFile, rows);
  document.degreesFailed = false;
  show();
}

void FillSlopes(Document& document) {
  Sheet& sheet = document.design.sheet;
  const int unitRun = UnitRun(document.design);
  const auto stored = RowsIn(document.Around().programFolder, SlopeFileOf(unitRun));
  if (stored)
    return ShowRows(*stored, std::array<PairControl*, 3>{&sheet.Slope[0], &sheet.Slope[1], &sheet.Slope[2]});
  // The list of row 2 stays empty then: an end slope is typed, and any slope is as likely as another.
  ShowRows(DefaultSlopeRows(unitRun), std::array<PairControl*, 2>{&sheet.Slope[0], &sheet.Slope[1]});
}

}  // namespace

void FillLists(Document& document) {
  constexpr const char* kSlopes = "DefaultSlopeList";
  Sheet& sheet = document.design.sheet;
  document.Guard("DefaultLumberList", [&] { FillLumber(document); });
  ShowRows(std::vector<std::string>(),
           std::array<PairControl*, 3>{&sheet.Slope[0], &sheet.Slope[1], &sheet.Slope[2]});
  document.Guard(kSlopes, [&] { FillDegrees(document); });
  document.Guard(kSlopes, [&] { FillSlopes(document); });
}

}  // namespace pitchcraft
