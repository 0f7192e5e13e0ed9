#include "drawing/drawing_recorder.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/run_time_error.h"
#include "drawing/stroke_tool.h"
#include "drawing/text_tool.h"

namespace pitchcraft {
namespace {

constexpr double kStartFontSize = 10;
constexpr double kUnitsPerPoint = 20;

RunTimeError Refusal(const char* message) { return {kMetaFileError, message}; }

double OneIfZero(double value) { return value == 0 ? 1 : value; }

struct Aspect {
  double Ratio;
  double Size;
};

/// The side that is fuller decides: the drawing must fit both ways.
Aspect AspectOn(double canvasWidth, double canvasHeight, double width, double height) {
  const double across = width / OneIfZero(std::fabs(canvasWidth));
  const double up = height / OneIfZero(std::fabs(canvasHeight));
  return {across / OneIfZero(up), std::max(across, up)};
}

}  // namespace

DrawingRecorder::DrawingRecorder(const TextMeter& meter) : meter_(meter) { SetFontSize(kStartFontSize); }

void DrawingRecorder::Attach(StrokeTool& drawFX, TextTool& textFX) {
  drawFX_ = &drawFX;
  textFX_ = &textFX;
  const auto widen = [this](double left, double top, double right, double bottom) {
    BoundsChanged(left, top, right, bottom);
  };
  drawFX.BoundsChanged = widen;
  textFX.BoundsChanged = widen;
  drawFX.SetCanvas(this);
  textFX.SetCanvas(this);
}

void DrawingRecorder::Destroy() {
  if (textFX_ != nullptr) textFX_->Destroy();
  if (drawFX_ != nullptr) drawFX_->Destroy();
  textFX_ = nullptr;
  drawFX_ = nullptr;
  Discard();
}

void DrawingRecorder::Open(std::string_view name) {
  if (open_) throw Refusal("Metafile dc already exists!");
  Discard();
  Name = name;
  open_ = true;
  MapMode = kIsotropic;
  current_ = {};
}

void DrawingRecorder::Close() {
  if (!open_) return;
  open_ = false;
  closed_ = true;
}

void DrawingRecorder::Discard() {
  open_ = false;
  closed_ = false;
  operations_.clear();  // keeps its capacity: the next drawing is about as long
  minX_ = minY_ = maxX_ = maxY_ = 0;
}

void DrawingRecorder::Load(Recording recording, Single minX, Single minY, Single maxX, Single maxY) {
  if (open_ || closed_) throw Refusal("A metafile already exists!");
  operations_ = std::move(recording);
  closed_ = true;
  minX_ = minX;
  minY_ = minY;
  maxX_ = maxX;
  maxY_ = maxY;
}

void DrawingRecorder::Clear() {
  Discard();
  Open();
}

const Recording& DrawingRecorder::Finished() const {
  if (!closed_) throw Refusal("No metafile defined!");
  return operations_;
}

void DrawingRecorder::BoundsChanged(double left, double top, double right, double bottom) {
  for (const double x : {left, right}) {
    if (x < minX_) minX_ = x;
    if (x > maxX_) maxX_ = x;
  }
  for (const double y : {top, bottom}) {
    if (y < minY_) minY_ = y;
    if (y > maxY_) maxY_ = y;
  }
}

void DrawingRecorder::SetCanvas(const CanvasSize& size) {
  if (!std::isfinite(size.ScaleWidth) || !std::isfinite(size.ScaleHeight))
    throw Refusal("Not a valid canvas!");
  canvas_ = size;
}

PointSize DrawingRecorder::CalcPointSize() const {
  if (!canvas_) return {};
  const double width = maxX_ - minX_;
  const double height = maxY_ - minY_;
  const Aspect upright = AspectOn(canvas_->ScaleWidth, canvas_->ScaleHeight, width, height);
  if (!canvas_->Printer) return {upright.Ratio, upright.Size, false};
  // Turn the paper so that the drawing fills it best: the way round whose proportions are nearer to the
  // drawing's.
  const Aspect turned = AspectOn(canvas_->ScaleHeight, canvas_->ScaleWidth, width, height);
  const bool turn = std::fabs(turned.Ratio - 1) < std::fabs(upright.Ratio - 1);
  const Aspect& taken = turn ? turned : upright;
  const bool isWide = std::fabs(canvas_->ScaleWidth) > std::fabs(canvas_->ScaleHeight);
  return {taken.Ratio, taken.Size, turn != isWide};
}

CanvasMap DrawingRecorder::FitInto(const CanvasSize& target, double unitsPerTwip,
                                   const PlayArea& area) const {
  const double areaWidth = area.Width.value_or(target.ScaleWidth) - 2 * area.Border;
  const double areaHeight = std::fabs(area.Height.value_or(target.ScaleHeight)) - 2 * area.Border;
  const double width = OneIfZero(maxX_ - minX_);
  const double height = OneIfZero(maxY_ - minY_);
  double scaleX = areaWidth / width;
  double scaleY = areaHeight / height;
  if (MapMode == kIsotropic) scaleX = scaleY = std::min(scaleX, scaleY);
  // What one side leaves over is shared between its two margins.
  const double left = area.Left + area.Border + (areaWidth - width * scaleX) / 2;
  const double top = area.Top + area.Border + (areaHeight - height * scaleY) / 2;
  return {scaleX * unitsPerTwip, -scaleY * unitsPerTwip, (left - minX_ * scaleX) * unitsPerTwip,
          (top + maxY_ * scaleY) * unitsPerTwip};
}

void DrawingRecorder::Play(Canvas& target, const PlayArea& area) const {
  if (!closed_) throw Refusal("No metafile to play!");
  target.SetMap(FitInto(target.Size(), target.UnitsPerTwip(), area));
  target.Play(operations_);
}

void DrawingRecorder::SetFontSize(double points) {
  fontSize_ = points;
  FontHeight = ToLong(points * kUnitsPerPoint);
}

double DrawingRecorder::TextWidth(std::string_view text) const {
  return meter_.TextWidth(text, {FontName, static_cast<double>(FontHeight), FontBold, FontItalic});
}

double DrawingRecorder::TextHeight(std::string_view) const { return FontHeight; }

void DrawingRecorder::LineTo(DrawnPoint to) {
  if (open_) operations_.emplace_back(LineOp{current_, to, Pen});
  current_ = to;
}

void DrawingRecorder::TextOut(DrawnPoint at, std::string_view text) {
  if (!open_) return;
  operations_.emplace_back(TextOp{at, std::string(text), FontHeight, TextAngle, TextAlign, TextColor,
                                  FontName, FontBold, FontItalic});
}

void DrawingRecorder::FillPolygon(std::vector<DrawnPoint> points, const DrawnBrush& brush) {
  if (open_) operations_.emplace_back(FillOp{std::move(points), brush});
}

void DrawingRecorder::Ellipse(DrawnPoint from, DrawnPoint to) {
  if (open_) operations_.emplace_back(EllipseOp{from, to, Pen, Brush});
}

void DrawingRecorder::Arc(DrawnPoint from, DrawnPoint to, DrawnPoint start, DrawnPoint end) {
  if (open_) operations_.emplace_back(ArcOp{from, to, start, end, Pen});
}

void DrawingRecorder::Rectangle(DrawnPoint from, DrawnPoint to, std::int32_t corner) {
  if (open_) operations_.emplace_back(RectangleOp{from, to, corner, Pen, Brush});
}

void DrawingRecorder::SetCurrentX(double x) { current_.X = ToLong(x); }
void DrawingRecorder::SetCurrentY(double y) { current_.Y = ToLong(y); }

}  // namespace pitchcraft
