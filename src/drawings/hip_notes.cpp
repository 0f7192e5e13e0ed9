#include "drawings/hip_notes.h"

#include <array>
#include <cmath>

#include "core/number_text.h"
#include "drawings/lettering.h"

namespace pitchcraft {
namespace {

struct Wording {
  HipNoteKind Kind;
  const char* Screen;
  const char* Export;
  const char* AfterLength = "";
};

constexpr const char* kScreenIndent = "   * ";
constexpr const char* kExportIndent = "* ";

constexpr std::array<Wording, 12> kWordings{{
    {HipNoteKind::kLongestEdge, "jacks are measured along longest edge",
     "jacks are measured along longest edge"},
    {HipNoteKind::kWithOverhang, "jack measurement includes overhang", "jack measurement includes overhang"},
    {HipNoteKind::kWithoutOverhang, "jack measurement DOES NOT includes overhang",
     "jack measurement DOES NOT includes overhang"},
    {HipNoteKind::kFromCenter, "layout is on center from hip center to outside corners",
     "layout is from hip center to outside wall corners"},
    {HipNoteKind::kFromCorners, "layout is on center from outside wall corners",
     "layout is centered from outside wall corners"},
    {HipNoteKind::kFlushFromCorners, "layout is flush from outside wall corners",
     "layout is flush from outside wall corners"},
    {HipNoteKind::kFromLastCommon, "main roof jacks are laid out o.c. from the last common",
     "main roof jacks are laid out o.c. from the last common"},
    {HipNoteKind::kLastCommon, "last common is ", "last common is ", " on center from wall corner"},
    {HipNoteKind::kOverhangsEqual, "layout is adjusted to make overhangs equal",
     "layout is adjusted to make overhangs equal"},
    {HipNoteKind::kHipsOffset, "hips are offset ", "hips are offset ", " from corners"},
    {HipNoteKind::kWallLower, "hip end wall is ", "hip end wall is ", " lower than side wall"},
    {HipNoteKind::kWallHigher, "hip end wall is ", "hip end wall is ", " higher than side wall"},
}};

const Wording& WordingOf(HipNoteKind kind) { return kWordings.at(static_cast<std::size_t>(kind)); }

constexpr bool StandInOrder() {
  for (std::size_t at = 0; at < kWordings.size(); ++at) {
    if (static_cast<std::size_t>(kWordings.at(at).Kind) != at) return false;
  }
  return true;
}
static_assert(StandInOrder());

std::string Told(const char* indent, const char* words, const HipNote& note,
                 const LengthTextFunction& lengthText) {
  std::string text = std::string(indent) + words;
  if (note.Length) text += lengthText(*note.Length) + WordingOf(note.Kind).AfterLength;
  return text;
}

HipNoteKind StartOf(JackLayout layout) {
  switch (layout) {
    case JackLayout::kCenter: return HipNoteKind::kFromCenter;
    case JackLayout::kCorners: return HipNoteKind::kFromCorners;
    case JackLayout::kCornersFlush: break;
  }
  return HipNoteKind::kFlushFromCorners;
}

}  // namespace

std::vector<HipNote> NotesOfHipLayout(const Rafter& rafter, const HipLayoutOptions& options) {
  std::vector<HipNote> notes{
      {HipNoteKind::kLongestEdge, {}},
      {options.WithOverhang ? HipNoteKind::kWithOverhang : HipNoteKind::kWithoutOverhang, {}},
      {StartOf(options.Layout), {}}};
  if (const auto lastCommon = OutlineOfHip(rafter, options).LastCommon) {
    notes.push_back({HipNoteKind::kFromLastCommon, {}});
    notes.push_back({HipNoteKind::kLastCommon, lastCommon});
  }
  // HipEndDrop may be left over from an earlier roof; it counts only if the end wall was moved.
  if (rafter.HipEndOverhangExcess == 0) return notes;
  notes.push_back({HipNoteKind::kOverhangsEqual, {}});
  notes.push_back({HipNoteKind::kHipsOffset, std::fabs(rafter.HipShift)});
  if (rafter.HipEndDrop < 0) notes.push_back({HipNoteKind::kWallLower, std::fabs(rafter.HipEndDrop)});
  if (rafter.HipEndDrop > 0) notes.push_back({HipNoteKind::kWallHigher, double{rafter.HipEndDrop}});
  return notes;
}

std::string ScreenText(const HipNote& note, const LengthTextFunction& lengthText) {
  return Told(kScreenIndent, WordingOf(note.Kind).Screen, note, lengthText);
}

std::string ExportText(const HipNote& note, const LengthTextFunction& lengthText) {
  return Told(kExportIndent, WordingOf(note.Kind).Export, note, lengthText);
}

std::string FootText(const LaidRafter& rafter, const LengthTextFunction& lengthText) {
  if (!rafter.IsJack()) return rafter.Label;
  return rafter.Length ? lengthText(*rafter.Length) : std::string();
}

std::string MainSlopeText(const Rafter& rafter, bool riseOverRun) {
  return std::string(Trimmed(SlopeText(rafter.Pitch, rafter.degrees, riseOverRun)));
}

std::string EndSlopeText(const Rafter& rafter, bool riseOverRun) {
  return std::string(Trimmed(SlopeText(rafter.HipEndPitch, rafter.HipEndDegrees, riseOverRun)));
}

}  // namespace pitchcraft
