// Plays a recording into the records of a Windows metafile.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>

#include "drawing/recording.h"
#include "output/metafile_records.h"

namespace pitchcraft {

/// A text in the code page of the metafile, 1252; a character that it lacks becomes "?".
std::string Windows1252(std::string_view text);

/// Coordinates of the recording times `scale` are those of the file. Pens, brushes and fonts are created when
/// they change, and the old ones are deleted.
class MetafilePlayer {
 public:
  /// `upward`: y grows upward in the picture.
  MetafilePlayer(MetaRecords& records, double scale, bool upward)
      : records_(records), scale_(scale), upward_(upward) {}

  int Slots() const { return slots_.Count(); }

  void Play(const LineOp& line);
  void Play(const TextOp& text);
  void Play(const FillOp& fill);
  void Play(const EllipseOp& ellipse);
  void Play(const ArcOp& arc);
  void Play(const RectangleOp& rectangle);

 private:
  struct Font {
    int Height = 0;
    int Escapement = 0;  // tenths of a degree
    bool Bold = false;
    bool Italic = false;
    std::string Name;
    bool operator==(const Font&) const = default;
  };
  /// The selected object of one kind; at first there is none.
  template <typename Kind>
  struct Selected {
    std::optional<Kind> Object;
    int Slot = 0;
  };

  /// Bottom, right, top and left as seen on the paper, in the order of the records.
  using Box = std::array<int, 4>;

  int Scaled(std::int32_t coordinate) const;
  Box BoxOf(DrawnPoint a, DrawnPoint b) const;
  void UsePen(const DrawnPen& pen);
  void UseBrush(const DrawnBrush& brush);
  void UseFont(const Font& font);
  void UseTextColor(DrawColor color);
  void UseTextAlign(int align);
  template <typename Kind>
  void Replace(Selected<Kind>& selected, const Kind& object, MetaFunction create, const MetaWords& words);

  MetaRecords& records_;
  double scale_;
  bool upward_;
  MetaSlots slots_;
  Selected<DrawnPen> pen_;
  Selected<DrawnBrush> brush_;
  Selected<Font> font_;
  std::optional<DrawColor> textColor_;
  std::optional<int> textAlign_;
  std::optional<DrawnPoint> current_;  // where the last line ended
};

}  // namespace pitchcraft
