// The recorder of every drawing. It knows how far the drawing reaches and plays the recording on a real
// target, fitted and centred with its proportions kept.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/single.h"
#include "drawing/canvas.h"
#include "drawing/recording.h"

namespace pitchcraft {

class StrokeTool;
class TextTool;

/// The number of every error that a recording raises: the first one that is free for a program's own errors.
inline constexpr int kMetaFileError = 513;

inline constexpr int kIsotropic = 7;
inline constexpr int kAnisotropic = 8;

/// Where on the target a recording is played, in twips. A missing width or height means the target's own.
struct PlayArea {
  double Left = 0;
  double Top = 0;
  std::optional<double> Width;
  std::optional<double> Height;
  double Border = 0;  ///< left free on every side
};

/// The size of a twip in drawing units for the current extents.
struct PointSize {
  Single Ratio;  ///< (extent width / canvas width) / (extent height / canvas height); below 1 the drawing is
                 ///< narrow
  Single Size;   ///< drawing units per twip: a text of 240 times this is 12 points high
  bool Landscape = false;  ///< the orientation chosen on a printer
};

/// One recording and its state: empty, open (being recorded) or closed (ready to be played, any number of
/// times and on any target). Coordinates are drawing units, +Y up. Raises RunTimeError with the message given
/// at each call.
class DrawingRecorder {
 public:
  explicit DrawingRecorder(const TextMeter& meter);
  DrawingRecorder(const DrawingRecorder&) = delete;
  DrawingRecorder& operator=(const DrawingRecorder&) = delete;

  /// Makes both tools record here and report here how far they drew.
  void Attach(StrokeTool& drawFX, TextTool& textFX);
  /// Destroys both tools, which hold this object as their canvas, and lets go of them.
  void Destroy();

  /// Opens an empty recording in memory. "Metafile dc already exists!" while one is open.
  void Open(std::string_view name = {});
  /// Ends the recording; does nothing when none is open.
  void Close();
  /// Closes what is open, forgets the recording and zeroes the extents.
  void Discard();
  /// Takes a finished recording. "A metafile already exists!" when there is one, finished or open.
  void Load(Recording recording, Single minX, Single minY, Single maxX, Single maxY);
  /// Deletes what was recorded and opens a new recording.
  void Clear();
  bool IsOpen() const { return open_; }
  bool IsClosed() const { return closed_; }
  /// What has been recorded so far.
  const Recording& Operations() const { return operations_; }
  /// The finished recording. "No metafile defined!" when there is none.
  const Recording& Finished() const;
  /// Plays the finished recording. "No metafile to play!" when there is none.
  void Play(Canvas& target, const PlayArea& area = {}) const;
  /// The mapping that Play uses. An extent of 0 counts as 1, in either direction.
  CanvasMap FitInto(const CanvasSize& target, double unitsPerTwip, const PlayArea& area = {}) const;

  std::string Name;
  int MapMode = kIsotropic;
  int DrawMode = 13;
  DrawColor BackColor = 0xFFFFFF;

  // The extents always include the origin.
  Single MinX() const { return minX_; }
  Single MinY() const { return minY_; }
  Single MaxX() const { return maxX_; }
  Single MaxY() const { return maxY_; }
  /// Left may exceed Right, and Top may exceed Bottom.
  void BoundsChanged(double left, double top, double right, double bottom);

  /// The target that the drawing is meant for. "Not a valid canvas!" for a size that is not a finite number.
  void SetCanvas(const CanvasSize& size);
  void ClearCanvas() { canvas_.reset(); }
  const std::optional<CanvasSize>& Target() const { return canvas_; }
  /// Without a target Size is 0. A denominator of 0 counts as 1.
  PointSize CalcPointSize() const;
  /// The kind of this device: 5, a recording.
  static constexpr int CanvasKind() { return 5; }

  DrawnPen Pen;
  DrawnBrush Brush;
  DrawColor TextColor = 0;
  int TextAlign = 0;
  double TextAngle = 0;  ///< degrees
  std::string FontName = "Arial";
  std::int32_t FontHeight;  ///< of the cell, drawing units
  bool FontBold = false;
  bool FontItalic = false;
  bool FontUnderline = false;
  bool FontStrikethru = false;
  /// Sets FontHeight to this many points of twenty units each; 10 at the start.
  void SetFontSize(double points);
  double FontSize() const { return fontSize_; }

  /// In drawing units, in the current font.
  double TextWidth(std::string_view text) const;
  double TextHeight(std::string_view text) const;
  const TextMeter& Meter() const { return meter_; }

  // What the drawing tools record. While no recording is open, nothing is recorded.
  void MoveTo(DrawnPoint to) { current_ = to; }
  void LineTo(DrawnPoint to);
  void TextOut(DrawnPoint at, std::string_view text);
  void FillPolygon(std::vector<DrawnPoint> points, const DrawnBrush& brush);
  void Ellipse(DrawnPoint from, DrawnPoint to);
  void Arc(DrawnPoint from, DrawnPoint to, DrawnPoint start, DrawnPoint end);
  void Rectangle(DrawnPoint from, DrawnPoint to, std::int32_t corner = 0);
  double CurrentX() const { return current_.X; }
  double CurrentY() const { return current_.Y; }
  void SetCurrentX(double x);
  void SetCurrentY(double y);

 private:
  const TextMeter& meter_;
  StrokeTool* drawFX_ = nullptr;
  TextTool* textFX_ = nullptr;
  Recording operations_;
  bool open_ = false;
  bool closed_ = false;
  Single minX_, minY_, maxX_, maxY_;
  std::optional<CanvasSize> canvas_;
  double fontSize_ = 0;
  DrawnPoint current_;
};

}  // namespace pitchcraft
