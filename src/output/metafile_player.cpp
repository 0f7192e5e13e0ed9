#include "output/metafile_player.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/colors.h"
#include "drawing/utf8.h"

namespace pitchcraft {
namespace {

constexpr int kNoPen = 5;
constexpr int kSolidPen = 0;
constexpr std::size_t kLongestFontName = 31;
constexpr std::size_t kLongestText = 0x7FFF;
constexpr std::size_t kMostPoints = 0x7FFF;

// The characters of the code page from 0x80 to 0x9F; 0 where it has none.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char Windows1252(char32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
  const auto* found = std::find(kHighControls.begin(), kHighControls.end(), code);
  if (code == 0 || found == kHighControls.end()) return '?';
  return static_cast<char>(0x80 + (found - kHighControls.begin()));
}

std::uint32_t ColorRef(DrawColor color) {
  const Rgb rgb = RgbOf(static_cast<std::uint32_t>(color));
  return static_cast<std::uint32_t>(rgb.Red | rgb.Green << 8 | rgb.Blue << 16);
}

}  // namespace

std::string Windows1252(std::string_view text) {
  std::string bytes;
  while (!text.empty()) bytes += Windows1252(TakeCharacter(text).Code);
  return bytes;
}

int MetafilePlayer::Scaled(std::int32_t coordinate) const {
  return static_cast<int>(std::lround(coordinate * scale_));
}

// A selected object must not be deleted, so the new one is selected first.
template <typename Kind>
void MetafilePlayer::Replace(Selected<Kind>& selected, const Kind& object, MetaFunction create,
                             const MetaWords& words) {
  const int slot = slots_.Take();
  records_.Add(create, words);
  records_.Add(MetaFunction::kSelectObject, {slot});
  if (selected.Object) {
    records_.Add(MetaFunction::kDeleteObject, {selected.Slot});
    slots_.Free(selected.Slot);
  }
  selected = {object, slot};
}

MetafilePlayer::Box MetafilePlayer::BoxOf(DrawnPoint a, DrawnPoint b) const {
  const int low = Scaled(std::min(a.Y, b.Y));
  const int high = Scaled(std::max(a.Y, b.Y));
  return {upward_ ? low : high, Scaled(std::max(a.X, b.X)), upward_ ? high : low, Scaled(std::min(a.X, b.X))};
}

void MetafilePlayer::UsePen(const DrawnPen& pen) {
  if (pen_.Object == pen) return;
  MetaWords words;
  words.Word(pen.Style >= 0 && pen.Style <= kNoPen ? pen.Style : kSolidPen);
  words.Word(Scaled(pen.Width));
  words.Word(0);
  words.Long(ColorRef(pen.Color));
  Replace(pen_, pen, MetaFunction::kCreatePen, words);
}

void MetafilePlayer::UseBrush(const DrawnBrush& brush) {
  if (brush_.Object == brush) return;
  constexpr int kFallingDiagonals = 2;
  MetaWords words;
  words.Word(brush.Style);
  words.Long(ColorRef(brush.Color));
  words.Word(kFallingDiagonals);
  Replace(brush_, brush, MetaFunction::kCreateBrush, words);
}

void MetafilePlayer::UseFont(const Font& font) {
  if (font_.Object == font) return;
  MetaWords words;
  words.Word(font.Height);  // positive: of the cell
  words.Word(0);
  words.Word(font.Escapement);
  words.Word(font.Escapement);
  words.Word(font.Bold ? 700 : 400);
  words.Word(font.Italic ? 1 : 0);  // no underline
  words.Word(0);                    // no strike-through; the code page is the western one
  words.Word(0);
  words.Word(0);
  const std::string name = Windows1252(font.Name).substr(0, kLongestFontName);
  words.Text(name + '\0');
  Replace(font_, font, MetaFunction::kCreateFont, words);
}

void MetafilePlayer::UseTextColor(DrawColor color) {
  if (textColor_ == color) return;
  textColor_ = color;
  MetaWords words;
  words.Long(ColorRef(color));
  records_.Add(MetaFunction::kSetTextColor, words);
}

void MetafilePlayer::UseTextAlign(int align) {
  if (textAlign_ == align) return;
  textAlign_ = align;
  records_.Add(MetaFunction::kSetTextAlign, {align});
}

void MetafilePlayer::Play(const LineOp& line) {
  UsePen(line.Pen);
  if (current_ != line.From) records_.Add(MetaFunction::kMoveTo, {Scaled(line.From.Y), Scaled(line.From.X)});
  records_.Add(MetaFunction::kLineTo, {Scaled(line.To.Y), Scaled(line.To.X)});
  current_ = line.To;
}

void MetafilePlayer::Play(const TextOp& text) {
  const std::string bytes = Windows1252(text.Text).substr(0, kLongestText);
  const int height = Scaled(text.Height);
  if (bytes.empty() || height <= 0) return;  // a player would replace a height of 0 by one of its own
  // Where y grows upward, players turn texts the other way round.
  const double turn = std::remainder(upward_ ? -text.Angle : text.Angle, 360);
  UseFont({height, static_cast<int>(std::lround(turn * 10)), text.Bold, text.Italic, text.Font});
  UseTextColor(text.Color);
  UseTextAlign(text.Align);
  MetaWords words;
  words.Word(static_cast<int>(bytes.size()));
  words.Text(bytes);
  words.Word(Scaled(text.At.Y));
  words.Word(Scaled(text.At.X));
  records_.Add(MetaFunction::kTextOut, words);
}

void MetafilePlayer::Play(const FillOp& fill) {
  if (fill.Points.size() < 3 || fill.Points.size() > kMostPoints) return;
  UsePen({0, kNoPen, 0});
  UseBrush(fill.Brush);
  MetaWords words;
  words.Word(static_cast<int>(fill.Points.size()));
  for (const DrawnPoint& point : fill.Points) {
    words.Word(Scaled(point.X));
    words.Word(Scaled(point.Y));
  }
  records_.Add(MetaFunction::kPolygon, words);
}

void MetafilePlayer::Play(const EllipseOp& ellipse) {
  UsePen(ellipse.Pen);
  UseBrush(ellipse.Brush);
  const Box box = BoxOf(ellipse.From, ellipse.To);
  records_.Add(MetaFunction::kEllipse, {box[0], box[1], box[2], box[3]});
}

void MetafilePlayer::Play(const ArcOp& arc) {
  UsePen(arc.Pen);
  // Players draw counter-clockwise as seen on the paper; a picture turned upside down is seen from behind.
  const DrawnPoint start = upward_ ? arc.Start : arc.End;
  const DrawnPoint end = upward_ ? arc.End : arc.Start;
  const Box box = BoxOf(arc.From, arc.To);
  records_.Add(MetaFunction::kArc, {Scaled(end.Y), Scaled(end.X), Scaled(start.Y), Scaled(start.X), box[0],
                                    box[1], box[2], box[3]});
}

void MetafilePlayer::Play(const RectangleOp& rectangle) {
  UsePen(rectangle.Pen);
  UseBrush(rectangle.Brush);
  const Box box = BoxOf(rectangle.From, rectangle.To);
  const int corner = Scaled(rectangle.Corner);
  if (corner == 0) {
    records_.Add(MetaFunction::kRectangle, {box[0], box[1], box[2], box[3]});
  } else {
    records_.Add(MetaFunction::kRoundRect, {corner, corner, box[0], box[1], box[2], box[3]});
  }
}

}  // namespace pitchcraft
