// The end of a hip roof as DXF drawings: plan and layout.
#include <algorithm>
#include <string>
#include <vector>

#include "drawings/dxf_form.h"
#include "drawings/hip_notes.h"
#include "drawings/hip_plan.h"
#include "drawings/hip_sheet.h"
#include "drawings/lettering.h"

namespace pitchcraft {
namespace {

// In text heights.
constexpr double kSlopeHeight = 1.25;
constexpr double kFootPitch = 1.4;  // from one text to the next
constexpr double kLeaderGap = 0.25;
constexpr double kNotePitch = 2;
constexpr double kLetterWidth = 0.85;

constexpr int kUpward = 90;
constexpr double kShrink = 0.75;
constexpr int kMostShrinks = 12;

/// Drawn from the roof itself, not from its recording, in which every point is rounded.
class HipExport {
 public:
  HipExport(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter, const PrintContext& context)
      : form_(writer, board),
        board_(board),
        rafter_(rafter),
        context_(context),
        gap_(form_.TextHeight()),
        slopeGap_(0.75 * form_.TextHeight()) {}

  void WritePlan() {
    outline_ = OutlineOfHip(rafter_, context_.Drawing.HipLayout);
    WriteOutline();
    if (outline_.LastCommon) {
      const double y = outline_.LastCommonPlace();
      form_.Line({0, y}, {outline_.MainRun, y});
    }
    form_.Dimensions();
    WriteMainSlope();
    WriteEndSlope("C");
    if (outline_.LastCommon) {
      form_.Label("Last Common", {-gap_, outline_.LastCommonPlace() - form_.TextHeight() / 2}, "R");
    }
    WriteSheet(HipPlanTitle(rafter_));
  }

  void WriteLayout() {
    const HipLayout layout = LayOutHip(rafter_, context_.Drawing.HipLayout);
    outline_ = layout.Outline;
    WriteOutline();
    for (const LaidRafter& rafter : layout.Rafters) {
      if (rafter.Face == HipRoofFace::kEnd) {
        form_.CenterLine({rafter.Place, 0}, {rafter.Place, rafter.PlanLength});
      } else {
        form_.CenterLine({0, rafter.Place}, {rafter.PlanLength, rafter.Place});
      }
    }
    form_.Dimensions();
    WriteMainSlope();
    WriteEndSlope("L");
    WriteFeet(layout, HipRoofFace::kEnd);
    WriteFeet(layout, HipRoofFace::kMain);
    double base = form_.LowestWritten() - gap_;
    for (const HipNote& note : NotesOfHipLayout(rafter_, context_.Drawing.HipLayout)) {
      base -= kNotePitch * form_.TextHeight();
      form_.Label(ExportText(note, context_.LengthText), {0, base}, "L");
    }
    WriteSheet(HipLayoutTitle(rafter_, context_));
  }

 private:
  void WriteOutline() {
    const double width = 2 * outline_.MainRun;
    const double top = outline_.Top;
    const PointRecord peak{outline_.MainRun, outline_.EndRun};
    form_.Line({0, 0}, {width, 0});
    form_.Line({width, 0}, peak);
    form_.Line(peak, {0, 0});
    form_.Line(peak, {outline_.MainRun, top});
    form_.Line({0, 0}, {0, top});
    form_.Line({width, 0}, {width, top});
    const double wall = outline_.Overhang;
    const double endWall = outline_.EndOverhang;
    form_.HiddenLine({wall, top}, {wall, endWall});
    form_.HiddenLine({wall, endWall}, {width - wall, endWall});
    form_.HiddenLine({width - wall, endWall}, {width - wall, top});
  }

  static double WidthOf(const std::string& text, double height) {
    return static_cast<double>(text.size()) * height * kLetterWidth;
  }

  /// Between the ridge and the wall, above the extension line that runs out from the peak and below the
  /// dimension line of the whole width.
  void WriteMainSlope() {
    const std::string text = WithoutDegreeSign(MainSlopeText(rafter_, context_.Drawing.RiseOverRun));
    const double base = outline_.EndRun + slopeGap_;
    const double room = outline_.MainRun - outline_.Overhang - 2 * slopeGap_;
    double height = kSlopeHeight * form_.TextHeight();
    for (int step = 0; step < kMostShrinks; ++step) {
      if (WidthOf(text, height) <= room && base + height <= WidthLine() - slopeGap_) break;
      height *= kShrink;
    }
    const double middle = outline_.MainRun + (outline_.MainRun - outline_.Overhang) / 2;
    form_.Label(text, {middle, base}, "C", height);
  }

  /// Where the dimension line of the whole width is in the file.
  double WidthLine() const {
    double highest = outline_.Top;
    for (const DrawnDimension& dimension : board_.Dimensions) {
      if (dimension.Kind != 1) continue;
      highest = dimension.P1.Y / board_.DrawScale + form_.Grown(dimension.End1.Y - dimension.P1.Y);
    }
    return highest;
  }

  /// Between the hips, clear of the end wall.
  void WriteEndSlope(const char* align) {
    const std::string text = WithoutDegreeSign(EndSlopeText(rafter_, context_.Drawing.RiseOverRun));
    const bool centred = *align == 'C';
    const double wall = outline_.EndOverhang;
    double height = kSlopeHeight * form_.TextHeight();
    double base = 0;
    for (int step = 0; step < kMostShrinks; ++step, height *= kShrink) {
      base = outline_.EndRun / 4;
      if (wall >= base - slopeGap_ && wall <= base + height + slopeGap_) base = wall + slopeGap_;
      const double halfWay = outline_.MainRun * (1 - (base + height) / outline_.EndRun) - 2 * slopeGap_;
      if (WidthOf(text, height) <= (centred ? 2 * halfWay : halfWay)) break;
    }
    form_.Label(text, {outline_.MainRun + (centred ? 0 : slopeGap_), base}, align, height);
  }

  /// Where rafters are closer together than the lettering is high, the texts get smaller. The common's text
  /// moves aside for a jack close by; a line then leads to it.
  void WriteFeet(const HipLayout& layout, HipRoofFace face) {
    std::vector<const LaidRafter*> rafters;
    for (const LaidRafter& rafter : layout.Rafters) {
      if (rafter.Face == face) rafters.push_back(&rafter);
    }
    const bool end = face == HipRoofFace::kEnd;
    const double height =
        rafters.size() > 1 ? std::min(form_.TextHeight(), layout.Spacing / kFootPitch) : form_.TextHeight();
    for (std::size_t at = 0; at < rafters.size(); ++at) {
      const std::string text = FootText(*rafters[at], context_.LengthText);
      const double foot = rafters[at]->Place;
      double place = foot;
      if (at == 0 && rafters.size() > 1) place = std::max(place, rafters[1]->Place + kFootPitch * height);
      if (end) {
        form_.Label(text, {place + height / 2, -gap_}, "R", height, kUpward);
      } else {
        form_.Label(text, {-gap_, place - height / 2}, "R", height);
      }
      if (place == foot) continue;
      const double from = kLeaderGap * gap_;
      const double to = gap_ - kLeaderGap * height;
      if (end) {
        form_.Leader({foot, -from}, {place, -to});
      } else {
        form_.Leader({-from, foot}, {-to, place});
      }
    }
  }

  void WriteSheet(const std::string& title) {
    form_.Title(title);
    form_.Block(Joined(HipRows(rafter_, context_)), 0);
  }

  DxfForm form_;
  const DraftingBoard& board_;
  const Rafter& rafter_;
  const PrintContext& context_;
  double gap_;
  double slopeGap_;
  HipOutline outline_;
};

}  // namespace

void ExportHipPlan(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                   const PrintContext& context) {
  HipExport(writer, board, rafter, context).WritePlan();
}

void ExportHipLayout(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                     const PrintContext& context) {
  HipExport(writer, board, rafter, context).WriteLayout();
}

}  // namespace pitchcraft
