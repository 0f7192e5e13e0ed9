#include "output/placeable_metafile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <variant>

#include "drawing/colors.h"
#include "output/metafile_player.h"
#include "output/metafile_records.h"
#include "output/save_file.h"

namespace pitchcraft {
namespace {

constexpr double kLargest = 32000;  // leaves a player's own arithmetic some room within 16 bits
constexpr double kLongerSideInches = 8;

/// The frame in the units of the file. No side may be 0, or nothing would show.
struct Bounds {
  int Left, Top, Right, Bottom;
  int Width() const { return Right - Left; }
  int Height() const { return Bottom - Top; }
};

/// The largest number that the file would have to hold.
class Reach {
 public:
  double Largest() const { return largest_; }
  void Hold(double value) { largest_ = std::max(largest_, std::fabs(value)); }
  void Hold(DrawnPoint point) {
    Hold(point.X);
    Hold(point.Y);
  }
  void Hold(const MetafileFrame& frame) {
    const double right = double{1} * frame.Left + frame.Width;
    const double bottom = double{1} * frame.Top + frame.Height;
    for (const double value : {double{1} * frame.Left, double{1} * frame.Top, right, bottom}) Hold(value);
    Hold(frame.Width);
    Hold(frame.Height);
  }
  void Hold(const LineOp& line) {
    Hold(line.From);
    Hold(line.To);
    Hold(line.Pen.Width);
  }
  void Hold(const TextOp& text) {
    Hold(text.At);
    Hold(text.Height);
  }
  void Hold(const FillOp& fill) {
    for (const DrawnPoint& point : fill.Points) Hold(point);
  }
  void Hold(const EllipseOp& ellipse) {
    Hold(ellipse.From);
    Hold(ellipse.To);
    Hold(ellipse.Pen.Width);
  }
  void Hold(const ArcOp& arc) {
    for (const DrawnPoint& point : {arc.From, arc.To, arc.Start, arc.End}) Hold(point);
    Hold(arc.Pen.Width);
  }
  void Hold(const RectangleOp& rectangle) {
    Hold(rectangle.From);
    Hold(rectangle.To);
    Hold(rectangle.Corner);
    Hold(rectangle.Pen.Width);
  }

 private:
  double largest_ = 0;
};

double ScaleFor(const Recording& recording, const MetafileFrame& frame) {
  Reach reach;
  reach.Hold(frame);
  for (const DrawOp& operation : recording) {
    std::visit([&reach](const auto& figure) { reach.Hold(figure); }, operation);
  }
  return reach.Largest() > kLargest ? kLargest / reach.Largest() : 1;
}

Bounds BoundsOf(const MetafileFrame& frame, double scale) {
  const auto scaled = [scale](double value) { return static_cast<int>(std::lround(value * scale)); };
  const int left = scaled(frame.Left);
  const int top = scaled(frame.Top);
  return {left, top, left + std::max(1, scaled(frame.Width)), top + std::max(1, scaled(frame.Height))};
}

MetaWords PlaceableHeader(const Bounds& bounds) {
  constexpr std::uint32_t kKey = 0x9AC6CDD7;
  const double longer = std::max(bounds.Width(), bounds.Height());
  const int unitsPerInch = std::max(1, static_cast<int>(std::lround(longer / kLongerSideInches)));
  MetaWords header;
  header.Long(kKey);
  header.Word(0);
  for (const int edge : {bounds.Left, bounds.Top, bounds.Right, bounds.Bottom}) header.Word(edge);
  header.Word(unitsPerInch);
  header.Long(0);
  unsigned checksum = 0;
  for (std::size_t i = 0; i < header.Bytes().size(); i += 2) {
    const auto low = static_cast<unsigned char>(header.Bytes()[i]);
    const auto high = static_cast<unsigned char>(header.Bytes()[i + 1]);
    checksum ^= static_cast<unsigned>(low) | static_cast<unsigned>(high) << 8U;
  }
  header.Word(static_cast<int>(checksum));
  return header;
}

MetaWords MetaHeader(const MetaRecords& records, int slots) {
  constexpr int kInMemory = 1;
  constexpr int kWords = 9;
  constexpr int kVersion = 0x0300;
  MetaWords header;
  header.Word(kInMemory);
  header.Word(kWords);
  header.Word(kVersion);
  header.Long(static_cast<std::uint32_t>(kWords + records.Words()));
  header.Word(slots);
  header.Long(static_cast<std::uint32_t>(records.LargestRecord()));
  header.Word(0);
  return header;
}

void SetWindow(MetaRecords& records, const Bounds& bounds, bool upward) {
  constexpr int kTransparent = 1;
  constexpr int kWinding = 2;
  const int top = upward ? bounds.Bottom : bounds.Top;
  const int height = upward ? -bounds.Height() : bounds.Height();
  records.Add(MetaFunction::kSetMapMode, {8});  // the player may stretch either axis
  records.Add(MetaFunction::kSetWindowOrg, {top, bounds.Left});
  records.Add(MetaFunction::kSetWindowExt, {height, bounds.Width()});
  records.Add(MetaFunction::kSetBkMode, {kTransparent});
  records.Add(MetaFunction::kSetPolyFillMode, {kWinding});
}

std::int32_t Sum(std::int32_t a, std::int32_t b) {
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::clamp(std::int64_t{a} + b, -kMost, kMost));
}

void PaintGround(MetafilePlayer& player, const MetafileFrame& frame) {
  const Rgb rgb = RgbOf(static_cast<std::uint32_t>(frame.BackColor));
  if (rgb.Red == 0xFF && rgb.Green == 0xFF && rgb.Blue == 0xFF) return;
  const std::int32_t right = Sum(frame.Left, frame.Width);
  const std::int32_t bottom = Sum(frame.Top, frame.Height);
  player.Play(FillOp{{{frame.Left, frame.Top}, {right, frame.Top}, {right, bottom}, {frame.Left, bottom}},
                     {frame.BackColor, 0}});
}

}  // namespace

std::string PlaceableMetafile(const Recording& recording, const MetafileFrame& frame) {
  const double scale = ScaleFor(recording, frame);
  const Bounds bounds = BoundsOf(frame, scale);
  MetaRecords records;
  SetWindow(records, bounds, frame.Upward);
  MetafilePlayer player(records, scale, frame.Upward);
  PaintGround(player, frame);
  for (const DrawOp& operation : recording) {
    std::visit([&player](const auto& figure) { player.Play(figure); }, operation);
  }
  records.Add(MetaFunction::kEof, {});
  return PlaceableHeader(bounds).Bytes() + MetaHeader(records, player.Slots()).Bytes() + records.Bytes();
}

void SaveMetafile(const std::filesystem::path& path, const Recording& recording, const MetafileFrame& frame) {
  SaveFile(path, PlaceableMetafile(recording, frame));
}

}  // namespace pitchcraft
