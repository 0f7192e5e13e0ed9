// The lists of the lumber, slope and degree fields: from the program's folder, or as they are when nobody has
// edited them.
#include "storage/lists.h"

#include "document/document.h"
#include "storage/list_files.h"

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

}  // namespace

// The fields keep their values: an empty or shorter list changes no size that was entered.
void Document::DefaultLumberList() {
  Try("DefaultLumberList", [&] {
    const std::array<PairControl*, 6> fields{&sheet.Common[0], &sheet.Common[1], &sheet.Ridge,
                                             &sheet.Fascia[0], &sheet.Fascia[1], &sheet.HipOrValley};
    ShowRows(std::vector<std::string>(), fields);
    const auto stored = RowsIn(surroundings_.programFolder, LumberFileOf(UnitRun));
    ShowRows(stored ? *stored : DefaultLumberRows(), fields);
  });
}

void Document::DefaultSlopeList() {
  constexpr const char* kProcedure = "DefaultSlopeList";
  const std::array<PairControl*, 3> slopes{&sheet.Slope[0], &sheet.Slope[1], &sheet.Slope[2]};
  ShowRows(std::vector<std::string>(), slopes);
  Try(kProcedure, [&] { FillDegreeLists(); });
  Try(kProcedure, [&] {
    const auto stored = RowsIn(surroundings_.programFolder, SlopeFileOf(UnitRun));
    if (stored) return ShowRows(*stored, slopes);
    // The list of row 2 stays empty then: an end slope is typed, and any slope is as likely as another.
    ShowRows(DefaultSlopeRows(UnitRun), std::array<PairControl*, 2>{&sheet.Slope[0], &sheet.Slope[1]});
  });
}

// A folder that takes no file is told once in a session; the boxes have their rows in any case.
void Document::FillDegreeLists() {
  std::vector<std::string> rows = DefaultDegreeRows();
  const auto show = [&] {
    for (ComboControl& degrees : sheet.Degrees) degrees.SetList(rows);
  };
  show();
  if (surroundings_.programFolder.empty() || degreesFailed_) return;
  degreesFailed_ = true;
  rows = ReadDegreesFile(surroundings_.programFolder / kDegreesFile, rows);
  degreesFailed_ = false;
  show();
}

}  // namespace pitchcraft
