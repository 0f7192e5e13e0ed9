// docs/project-file.md, generated from the tables of keys and losses.
#include <vector>

#include "core/number_text.h"
#include "roofs/roof_types.h"
#include "storage/project_keys.h"

namespace pitchcraft {
namespace {

constexpr const char* kHead =
    "# The project file\n\n"
    "A project is a small text file with the extension `.pcf`: a section `[Settings]` with one\n"
    "`key=value` per line. It holds what was entered, never a result. Opening it runs the entries through\n"
    "the menus and the sheet, then calculates. This page is generated from the tables in `src/storage`; a\n"
    "test checks that it matches them.\n\n"
    "The program ends lines with CR LF and replaces the file as a whole. It reads CR LF, LF and CR, a\n"
    "byte-order mark, UTF-8 and UTF-16, blanks around keys and values, one pair of quotes around a value,\n"
    "and keys in any case and order. It skips other sections and lines that begin with `;`; of two equal\n"
    "keys the first counts. A value has at most 99 bytes. A file without the section, or larger than one\n"
    "megabyte, is refused.\n\n"
    "Numbers are plain, with a decimal point and up to seven digits. `Units` says whether lengths are in\n"
    "inches or in millimetres; a slope is the rise for a run of 12 or 1000. A text that is not a number\n"
    "reads as 0.\n\n";

std::string RoofNames(const RoofSet& set) {
  if (set == RoofSet::All()) return "all";
  std::string names;
  for (int code = 0; code <= static_cast<int>(Roof::kGambrel); ++code) {
    if (!set.Has(static_cast<Roof>(code))) continue;
    names += (names.empty() ? "" : ", ") + PlainText(code);
  }
  return names.empty() ? "never" : names;
}

const char* HowRead(ProjectStep step) {
  switch (step) {
    case ProjectStep::kPutBack:
    case ProjectStep::kPutBackTwice: return "restored";
    case ProjectStep::kUnits: return "switches the units and with them all defaults";
    case ProjectStep::kSlopeMode: return "switches the slope mode";
    case ProjectStep::kRafterType: return "picks the roof type; an empty or unknown one is refused";
    case ProjectStep::kSquareCut: return "True: square cut; False: plumb cut";
    case ProjectStep::kPlumbCut: return "True: plumb cut";
    case ProjectStep::kLevelCut: return "True: level cut";
    case ProjectStep::kKneewall:
    case ProjectStep::kRearKneewall: return "restored; sets the box of the front row";
    case ProjectStep::kHipLayout: return "always Center";
    case ProjectStep::kOverhangsEqual:
    case ProjectStep::kJackMeasurement: return "always False";
    case ProjectStep::kSpacing: return "restored, also as the spacing of the session";
    case ProjectStep::kBay: return "restored; for a bay, before the numbers";
    case ProjectStep::kGambrelType: return "regular if it contains Regular, otherwise custom";
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
  for (int code = 0; code <= static_cast<int>(Roof::kGambrel); ++code) {
    const auto roof = static_cast<Roof>(code);
    const RoofType* type = roof == Roof::kBastardHip ? nullptr : RoofTypeByCode(roof);
    if (type != nullptr) text += Line({PlainText(code), std::string(type->About().Item)});
    if (code == 6) text += Line({"6", "Bay Roof"});
    if (roof == Roof::kBastardHip) text += Line({"12", "Hip with two slopes"});
  }
  return text + "\nAny other number is refused.\n\n";
}

}  // namespace

std::string ProjectFileManual() {
  std::string text =
      kHead + RoofTable() +
      "## Keys\n\nIn the order in which they are written. Roofs are given by their number.\n\n";
  text += Line({"Key", "Holds", "If missing", "Written for", "Read for", "When read"}) +
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
