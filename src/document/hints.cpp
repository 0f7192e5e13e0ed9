// What the status bar says while the pointer or the focus is on a field.
#include "document/document.h"

namespace pitchcraft {
namespace {

constexpr int kEvery = -1;

/// Which gambrel a text is for.
enum class Kind { kEither, kRegular, kCustom };

struct HintRow {
  std::string_view control;  // the name before the index
  int roofType;
  int index;
  Kind gambrel;
  const char* text;
};

// The first row that fits wins.
constexpr HintRow kHints[] = {
    {"FtSpan", roof::kBlindValley, kEvery, Kind::kEither, "Enter the total span of the blind valley"},
    {"FtSpan", roof::kOctagon, 2, Kind::kEither,
     "Enter the run of the octagon HIP rafter (do not subtract for the ridge)"},
    {"FtSpan", roof::kDutchHip, 2, Kind::kEither,
     "Enter the run of the DUTCH common rafter (do not subtract for the ledger board)"},
    {"FtSpan", roof::kHip, kEvery, Kind::kEither,
     "Enter the run of the MAIN ROOF COMMON rafter (don't subtract for the ridge board)"},
    {"FtSpan", roof::kOctagon, kEvery, Kind::kEither,
     "Enter the run of the octagon COMMON rafter (do not subtract for the ridge)"},
    {"FtSpan", roof::kGambrel, 0, Kind::kEither, "Enter the total span of the lower roof"},
    {"FtSpan", roof::kGambrel, 2, Kind::kRegular,
     "The upper span cannot be changed for a regular gambrel roof"},
    {"FtSpan", roof::kGambrel, 2, Kind::kCustom, "Enter the total span of the upper roof"},
    {"FtSpan", kEvery, kEvery, Kind::kEither,
     "Enter the run of the COMMON rafter (do not subtract for the ridge board)"},
    {"FtOverhang", roof::kGambrel, kEvery, Kind::kEither,
     "Enter the lower rafter overhang (do not include the fascia thickness)"},
    {"FtOverhang", kEvery, kEvery, Kind::kEither,
     "Enter the COMMON rafter overhang (do not include the fascia thickness)"},
    {"FtHeel", roof::kGambrel, kEvery, Kind::kEither, "Enter the lower rafter heel height (must be locked)"},
    {"FtHeel", kEvery, kEvery, Kind::kEither, "Enter the COMMON rafter heel height (must be locked)"},
    {"FtSeat", roof::kGambrel, kEvery, Kind::kEither,
     "Enter the lower rafter seat cut dimension (must be locked)"},
    {"FtSeat", kEvery, kEvery, Kind::kEither, "Enter the COMMON rafter seat cut dimension (must be locked)"},
    {"FtKneewall", kEvery, kEvery, Kind::kEither,
     "Enter the distance from the outside wall to the face of the kneewall."},
    {"FtRidge", roof::kGambrel, 1, Kind::kEither,
     "Enter the height above plate of the lower section (including heel height)."},
    {"FtRidge", roof::kGambrel, 0, Kind::kCustom, "Enter the rise of the upper roof."},
    {"FtRidge", roof::kGambrel, 0, Kind::kRegular,
     "The upper height cannot be directly changed for a regular gambrel roof."},
    {"FtRidge", kEvery, 0, Kind::kEither, "Enter the THEORETICAL ridge length."},
    {"FtRidge", kEvery, 1, Kind::kEither, "Enter the ACTUAL ridge length."},
    {"LWFascia", kEvery, kEvery, Kind::kEither,
     "Enter the fascia board size or select from the dropdown list"},
    {"LWRafter", roof::kBlindValley, kEvery, Kind::kEither,
     "Enter the jack rafter size or select from the dropdown list"},
    {"LWRafter", roof::kOctagon, kEvery, Kind::kEither,
     "Enter the octagon COMMON rafter size or select from the dropdown list"},
    {"LWRafter", roof::kGambrel, kEvery, Kind::kEither,
     "Enter the rafter size or select from the dropdown list"},
    {"LWRafter", kEvery, kEvery, Kind::kEither,
     "Enter the COMMON rafter size or select from the dropdown list"},
    {"LWRidge", roof::kGambrel, kEvery, Kind::kEither,
     "Enter the purlin/ridge board size or select from the dropdown list"},
    {"LWRidge", kEvery, kEvery, Kind::kEither, "Enter the ridge board size or select from the dropdown list"},
    {"LWHipVal", roof::kBlindValley, kEvery, Kind::kEither,
     "Enter the valley plate size or select from the dropdown list"},
    {"LWHipVal", roof::kOctagon, kEvery, Kind::kEither,
     "Enter the octagon HIP rafter size or select from the dropdown list"},
    {"LWHipVal", kEvery, kEvery, Kind::kEither,
     "Enter the hip/valley rafter size or select from the dropdown list"},
    {"LWSlope", roof::kBlindValley, 0, Kind::kEither,
     "Enter the slope of the ADDITION roof or select from the dropdown list"},
    {"LWSlope", roof::kBlindValley, 2, Kind::kEither,
     "Enter the slope of the MAIN roof or select from the dropdown list"},
    {"LWSlope", roof::kGambrel, 0, Kind::kRegular,
     "The upper slope cannot be changed for a regular gambrel roof"},
    {"LWSlope", roof::kGambrel, 2, Kind::kRegular,
     "The lower slope cannot be changed for a regular gambrel roof"},
    {"LWSlope", roof::kGambrel, 0, Kind::kCustom,
     "Enter the slope of the upper roof or select from the dropdown list"},
    {"LWSlope", roof::kGambrel, 2, Kind::kCustom,
     "Enter the slope of the lower roof or select from the dropdown list"},
    {"LWSlope", roof::kDualSlope, 0, Kind::kEither,
     "Enter the slope of the FRONT roof or select from the dropdown list"},
    {"LWSlope", roof::kDualSlope, 1, Kind::kEither,
     "Enter the slope of the REAR roof or select from the dropdown list"},
    {"LWSlope", roof::kHip, 0, Kind::kEither,
     "Enter the slope of the MAIN roof or select from the dropdown list"},
    {"LWSlope", roof::kHip, 2, Kind::kEither,
     "Enter the slope of the HIP END roof or select from the dropdown list"},
    {"LWSlope", kEvery, kEvery, Kind::kEither,
     "Enter the slope of the COMMON rafter or select from the dropdown list"},
    {"chkHeel", kEvery, kEvery, Kind::kEither,
     "Lock the current heel dimension (overrides the default calculation)"},
    {"chkSeat", kEvery, kEvery, Kind::kEither,
     "Lock the current seat cut dimension (overrides the default calculation)"},
    {"chkKneewall", kEvery, kEvery, Kind::kEither, "Check to calculate birdsmouth for kneewall."},
    {"Spin", kEvery, kEvery, Kind::kEither, "Right click on field to change increment."},
    {"Picture1", kEvery, kEvery, Kind::kEither, "Right click on the drawing to display popup menu."},
    {"Picture3", kEvery, kEvery, Kind::kEither, "Right click on the drawing to display popup menu."},
};

}  // namespace

void Document::Hint(std::string_view controlName) {
  StatusText.clear();
  if (const MenuItem* item = menus.Find(controlName)) {
    StatusText = item->StatusText;
    return;
  }
  const std::size_t bracket = controlName.find('(');
  const std::string_view base = controlName.substr(0, bracket);
  const int index = bracket == std::string_view::npos ? 0 : controlName[bracket + 1] - '0';
  const Kind gambrel = menus.GambrelRegular.Checked ? Kind::kRegular : Kind::kCustom;
  for (const HintRow& row : kHints) {
    const bool fits = row.control == base && (row.roofType == kEvery || row.roofType == RoofType) &&
                      (row.index == kEvery || row.index == index) &&
                      (row.gambrel == Kind::kEither || row.gambrel == gambrel);
    if (!fits) continue;
    StatusText = row.text;
    return;
  }
}

}  // namespace pitchcraft
