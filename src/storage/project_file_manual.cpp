// docs/project-file.md, generated from the tables of keys and losses.
#include <vector>

#include "sheet/roof_types.h"
#include "storage/project_keys.h"

namespace pitchcraft {
namespace {

constexpr const char* kHead =
    "# The project file\n\n"
    "A project is a small text file with the ending `.pcf`: the section `[Settings]` and one `key=value` a "
    "line. It holds\n"
    "what was entered, never a result. Opening it plays the entries through the menus and the sheet and "
    "calculates.\n"
    "This page is made from the tables in `src/storage`; a test holds it to them.\n\n"
    "The writer ends lines with CR LF and replaces the file whole. The reader takes CR LF, LF and CR, a "
    "byte-order mark,\n"
    "UTF-8 and UTF-16, blanks around key and value, one pair of quotes around a value, keys in any case and "
    "order, other\n"
    "sections, lines that begin with `;`, and of two same keys the first. A value has at most 99 bytes. A "
    "file without\n"
    "the section, or of more than one megabyte, is refused.\n\n"
    "Numbers are plain, with a point and up to seven digits. Lengths are inches or millimetres by `Units`, "
    "slopes rises\n"
    "for a run of 12 or 1000. A text that is no number reads as 0.\n\n";

std::string RoofNames(const RoofSet& set) {
  if (set == RoofSet::All()) return "all";
  std::string names;
  for (int code = 0; code <= roof::kGambrel; ++code) {
    if (!set.Has(code)) continue;
    names += (names.empty() ? "" : ", ") + std::to_string(code);
  }
  return names.empty() ? "never" : names;
}

const char* HowRead(ProjectStep step) {
  switch (step) {
    case ProjectStep::kPutBack:
    case ProjectStep::kPutBackTwice: return "put back";
    case ProjectStep::kUnits: return "switches the units, with all defaults";
    case ProjectStep::kSlopeMode: return "switches the slope mode";
    case ProjectStep::kRafterType: return "picks the roof type; empty or unknown is refused";
    case ProjectStep::kSquareCut: return "True: square cut; False: plumb cut";
    case ProjectStep::kPlumbCut: return "True: plumb cut";
    case ProjectStep::kLevelCut: return "True: level cut";
    case ProjectStep::kKneewall:
    case ProjectStep::kRearKneewall: return "put back; the box of the front row follows";
    case ProjectStep::kHipLayout: return "Center, whatever it says";
    case ProjectStep::kOverhangsEqual:
    case ProjectStep::kJackMeasurement: return "False, whatever it says";
    case ProjectStep::kSpacing: return "put back, and becomes the spacing of the session";
    case ProjectStep::kBay: return "put back; of a bay before the numbers";
    case ProjectStep::kGambrelType: return "holds Regular: regular, else custom";
    case ProjectStep::kSupport: return "picks the support";
  }
  return "";
}

std::string Line(const std::vector<std::string>& cells) {
  std::string line = "|";
  for (const std::string& cell : cells) line += " " + cell + " |";
  return line + "\n";
}

std::string RoofTable() {
  std::string text = "## Roofs\n\n" + Line({"`RafterType`", "Roof"}) + "|---|---|\n";
  for (int code = 0; code <= roof::kGambrel; ++code) {
    const RoofTypeRow* row = RoofTypeByCode(code);
    if (row != nullptr) text += Line({std::to_string(code), std::string(row->Item)});
    if (code == 6) text += Line({"6", "Bay Roof, too"});
    if (code == roof::kBastardHip) text += Line({"12", "Hip with two slopes"});
  }
  return text + "\nAny other number is refused.\n\n";
}

}  // namespace

std::string ProjectFileManual() {
  std::string text =
      kHead + RoofTable() + "## Keys\n\nIn the order of writing. Roofs are named by their number.\n\n";
  text += Line({"Key", "Holds", "Where missing", "Written for", "Read for", "How it is read"}) +
          "|---|---|---|---|---|---|\n";
  for (const ProjectKey& key : ProjectKeys()) {
    const std::string missing = *key.Default == '\0' ? "empty" : "`" + std::string(key.Default) + "`";
    text += Line({"`" + std::string(key.Key) + "`", key.What, missing, RoofNames(key.Written),
                  RoofNames(key.Read), HowRead(key.Step)});
  }
  text += "\n## What does not come back\n\n" + Line({"Roof", "Members of the rafters", "Why"}) +
          "|---|---|---|\n";
  for (const ProjectLoss& loss : ProjectLosses()) text += Line({loss.RoofNames, loss.Members, loss.Why});
  return text;
}

}  // namespace pitchcraft
