// The lengths at the feet of the jacks, and the notes of a hip layout.
//
// A length is written across the eave, so the texts are as close together as the rafters. Where that is
// closer than the lettering is high, the lettering first shrinks a little, then every second text moves to
// another row, and only then does the lettering shrink further.
#include <algorithm>

#include "core/run_time_error.h"
#include "drawing/text_align.h"
#include "drawings/drawing_measures.h"
#include "drawings/hip_notes.h"
#include "drawings/hip_plan_drafter.h"

namespace pitchcraft {

using namespace measures;

namespace {

// In heights of the lettering.
constexpr double kPitch = kCapitalPerCell + 0.3;  // from one text to the next
constexpr double kSmallest = 0.75;                // of a single row
constexpr double kBaseUnderMiddle = 0.25;
constexpr double kLeaderGap = 0.25;
constexpr double kNotePitch = 1.5;

}  // namespace

struct HipPlanDrafter::FootLettering {
  double Height = 0;
  int Rows = 1;

  double LeastPitch() const { return kPitch * Height; }
};

void HipPlanDrafter::WriteFeet(const HipLayout& layout) {
  const FootLettering lettering = ChooseFootLettering(layout);
  board_.Letters.FontHeight = ToLong(lettering.Height);
  WriteFeetOf(HipRoofFace::kEnd, layout, lettering);
  WriteFeetOf(HipRoofFace::kMain, layout, lettering);
  board_.Letters.FontHeight = ToLong(board_.DimTextHeight);
}

HipPlanDrafter::FootLettering HipPlanDrafter::ChooseFootLettering(const HipLayout& layout) {
  const double full = board_.DimTextHeight;
  const bool hasJacks = std::any_of(layout.Rafters.begin(), layout.Rafters.end(),
                                    [](const LaidRafter& rafter) { return rafter.IsJack(); });
  if (!hasJacks) return {full, 1};
  const double fitting = Units(layout.Spacing) / kPitch;
  if (fitting >= kSmallest * full) return {std::min(full, fitting), 1};
  return {std::min(full, 2 * fitting), 2};
}

void HipPlanDrafter::WriteFeetOf(HipRoofFace face, const HipLayout& layout, const FootLettering& lettering) {
  std::vector<const LaidRafter*> rafters;
  double longest = 0;
  for (const LaidRafter& rafter : layout.Rafters) {
    if (rafter.Face != face) continue;
    rafters.push_back(&rafter);
    longest = std::max(longest, board_.WidthOf(FootText(rafter, board_.LengthText), lettering.Height));
  }
  for (std::size_t at = 0; at < rafters.size(); ++at) {
    const double foot = Units(rafters[at]->Place);
    double place = foot;
    // The other side of the common is free, so its text moves that way for a jack close by.
    if (at == 0 && rafters.size() > 1) {
      place = std::max(place, Units(rafters[1]->Place) + lettering.LeastPitch());
    }
    const double row = at % 2 == 1 && lettering.Rows == 2 ? longest + lettering.Height : 0;
    WriteFoot(face, foot, place, FootText(*rafters[at], board_.LengthText), row, lettering);
  }
}

/// `away` is how much further out than the first row the text begins. A thin line leads to a text that is not
/// at the foot of its rafter.
void HipPlanDrafter::WriteFoot(HipRoofFace face, double foot, double at, const std::string& text, double away,
                               const FootLettering& lettering) {
  if (text.empty()) return;
  const bool end = face == HipRoofFace::kEnd;
  const double begin = board_.DimTextHeight + away;
  if (at != foot || away > 0) {
    const double from = kLeaderGap * board_.DimTextHeight;
    const double to = begin - kLeaderGap * lettering.Height;
    if (end) {
      board_.Strokes.DrawLine(foot, -from, at, -to);
    } else {
      board_.Strokes.DrawLine(-from, foot, -to, at);
    }
  }
  const double base = kBaseUnderMiddle * lettering.Height;
  board_.Letters.Angle = end ? 90 : 0;
  board_.Text(text, end ? at + base : -begin, end ? -begin : at - base, kAlignRightBase);
  board_.Letters.Angle = 0;
}

/// Below everything else, so that no length runs into the notes.
void HipPlanDrafter::WriteNotes() {
  double base = board_.Recorder.MinY() - board_.DimTextHeight;
  for (const HipNote& note : NotesOfHipLayout(rafter_, context_.HipLayout)) {
    base -= kNotePitch * board_.DimTextHeight;
    board_.Text(ScreenText(note, board_.LengthText), X(0), base, kAlignLeftBase);
  }
}

}  // namespace pitchcraft
