// The side view of one rafter as a DXF drawing.
#include "drawings/dxf_form.h"
#include "drawings/elevation_member.h"
#include "drawings/lettering.h"
#include "drawings/rafter_elevation.h"
#include "drawings/rafter_elevation_geometry.h"
#include "drawings/rafter_end_view.h"
#include "drawings/rafter_sheet.h"

namespace pitchcraft {
namespace {

/// The view from below, moved clear of the dimensions under the rafter.
void ExportEndView(DxfForm& form, const DraftingBoard& board, const EndLabels& labels) {
  const bool drawn = board.Pts(18).X != board.Pts(23).X || board.Pts(18).Y != board.Pts(23).Y;
  if (!drawn) return;
  const double top = form.Bottom() - 2 * form.TextHeight();
  const double half = form.Grown(board.DimTextHeight / 2);
  const auto at = [&](int point) {
    const bool ridge = point == 18 || point >= 22;
    const int end = ridge && point != 25 ? 0 : 2;
    const PointRecord& drawnPoint = board.Pts(point);
    return PointRecord{form.Real(end).X + form.Grown(drawnPoint.X - board.Pts(end).X),
                       top + form.Grown(drawnPoint.Y - board.Pts(18).Y)};
  };
  for (int corner = 18; corner < 24; ++corner) form.Line(at(corner), at(corner + 1));
  form.CenterLine(at(25), at(26));
  const auto label = [&](const std::vector<std::string>& rows, double x, const char* align) {
    double y = top - half;
    for (const std::string& row : rows) {
      form.Label(WithoutDegreeSign(row), {x, y}, align);
      y -= 1.5 * form.TextHeight();
    }
  };
  label(labels.Tail, form.Real(2).X - half, "R");
  label(labels.Ridge, form.Real(0).X + half, "L");
}

void ExportElevation(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                     const PrintContext& context, const RafterSheet& sheet) {
  const ElevationMember member = ChooseElevationMember(rafter, context.Drawing);
  PointArray points = board.Pts;
  const ElevationGeometry geometry =
      LayOutElevation(member, context.Drawing.SquareCut, board.DrawScale, points);
  DxfForm form(writer, board);
  form.Line(0, 1);
  form.Line(1, 2);
  for (std::size_t at = 0; at < geometry.StrokeCount; ++at)
    form.Line(geometry.Strokes[at].From, geometry.Strokes[at].To);
  form.CenterLine(1, 5);
  if (geometry.Kneewall) form.CenterLine(27, 28);
  form.Dimensions();
  const double gap = form.TextHeight();
  const PointRecord ridge = form.Real(0);
  form.Label(WithoutDegreeSign(AngleText(geometry.PlumbAngle)), {ridge.X + gap, ridge.Y + gap / 2}, "L");
  if (geometry.SquareCut && !member.SetsFascia()) {
    const PointRecord tail = form.Real(2);
    form.Label(WithoutDegreeSign(AngleText(geometry.TailAngle)), {tail.X - gap, tail.Y - gap}, "R");
  }
  ExportEndView(form, board, EndLabelsOf(rafter.RafterType, member));
  form.Title(sheet.Title);
  form.Block(Joined(sheet.Rows), 0);
}

}  // namespace

void ExportRafter(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                  const PrintContext& context) {
  ExportElevation(writer, board, rafter, context, RafterSheetOf(rafter, context));
}

void ExportBastardHipRafter(DxfWriter& writer, const DraftingBoard& board, const Rafter& rafter,
                            const PrintContext& context) {
  ExportElevation(writer, board, rafter, context, BastardHipSheetOf(rafter, context));
}

}  // namespace pitchcraft
