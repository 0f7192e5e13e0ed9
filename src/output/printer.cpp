#include "output/printer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/run_time_error.h"
#include "drawing/text_align.h"

namespace pitchcraft {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr int kLineWidth = 20;
constexpr double kHalfPoint = 10;
constexpr double kPrintWidth = 1400;
constexpr double kPrintHeight = 1600;

/// Turns pen widths counted in half points into drawing units, at a scale in twips per unit.
Recording WithPaperPens(Recording drawing, double scale) {
  const auto widen = [scale](DrawnPen& pen) {
    if (pen.Width > 0) pen.Width = std::max(1, ToLong(std::min(pen.Width * kHalfPoint / scale, 1e6)));
  };
  for (DrawOp& operation : drawing) {
    std::visit(
        [&](auto& figure) {
          if constexpr (requires { figure.Pen; }) widen(figure.Pen);
        },
        operation);
  }
  return drawing;
}

}  // namespace

void PrintedPage::PlayOn(Canvas& canvas) const {
  const double unit = canvas.UnitsPerTwip();
  for (const PageLayer& layer : Layers) {
    const CanvasMap& map = layer.Map;
    canvas.SetMap({map.ScaleX * unit, map.ScaleY * unit, map.OffsetX * unit, map.OffsetY * unit});
    canvas.Play(layer.Drawing);
  }
}

Printer::Printer(const Paper& paper, const TextMeter& meter)
    : ScaleWidth(paper.PrintableWidth()),
      ScaleHeight(paper.PrintableHeight()),
      ColorMode(paper.Color ? 2 : 1),
      meter_(meter) {
  page_.Paper = paper;
}

TextFace Printer::Face() const {
  return {FontName, FontSize * kTwipsPerPoint / kEmPerCell, FontBold, FontItalic};
}

double Printer::TextWidth(std::string_view text) const { return meter_.TextWidth(text, Face()); }

double Printer::TextHeight() const { return Downward() * Face().Height; }

/// Rows and rules share a layer until a drawing comes between them.
PageLayer& Printer::RowLayer() {
  const CanvasMap rows{1, Downward(), 0, 0};
  if (page_.Layers.empty() || page_.Layers.back().Map != rows) page_.Layers.push_back({{}, rows});
  return page_.Layers.back();
}

void Printer::Print(std::string_view text) {
  if (!text.empty()) {
    TextOp row;
    row.At = {ToLong(CurrentX), ToLong(CurrentY)};
    row.Text = text;
    row.Height = ToLong(Face().Height);
    row.Align = kAlignLeftTop;
    row.Color = ForeColor;
    row.Font = FontName;
    row.Bold = FontBold;
    row.Italic = FontItalic;
    RowLayer().Drawing.emplace_back(std::move(row));
  }
  CurrentX = 0;
  CurrentY += TextHeight();
}

void Printer::Line(double x1, double y1, double x2, double y2) {
  RowLayer().Drawing.emplace_back(
      LineOp{{ToLong(x1), ToLong(y1)}, {ToLong(x2), ToLong(y2)}, {ForeColor, 0, kLineWidth}});
}

void Printer::Play(const DrawingRecorder& drawing, const PlayArea& area) {
  PlayArea below = area;
  below.Top = Downward() * area.Top;
  const CanvasSize page{ScaleWidth, ScaleHeight, true};
  const CanvasMap map = drawing.FitInto(page, 1, below);
  page_.Layers.push_back({WithPaperPens(drawing.Finished(), std::fabs(map.ScaleX)), map});
}

void Printer::PrintRecording(const DrawingRecorder& drawing) {
  if (!drawing.IsClosed()) throw RunTimeError(kMetaFileError, "No metafile to print!");
  const double scale = std::min(ScaleWidth / kPrintWidth, std::fabs(ScaleHeight) / kPrintHeight);
  page_.Layers.push_back({WithPaperPens(drawing.Finished(), scale), {scale, scale, 0, 0}});
}

PrintedPage Printer::EndDoc() {
  CurrentX = CurrentY = 0;
  PrintedPage empty;
  empty.Paper = page_.Paper;
  return std::exchange(page_, std::move(empty));
}

}  // namespace pitchcraft
