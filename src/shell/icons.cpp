#include "shell/icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <charconv>

namespace pitchcraft {
namespace {

constexpr double kGrid = 24;

/// Paths on a grid of 24 by 24: M x y begins a stroke, more pairs go on, Z closes it. What matters of the
/// icon is drawn in the accent colour.
struct IconRow {
  std::string_view key;
  const char* body;
  const char* accent;
};

constexpr IconRow kIcons[] = {
    // Roofs in elevation, or in plan where the plan tells more.
    {"Gable", "M5 12.5 5 20.5 19 20.5 19 12.5", "M2 15 12 5.5 22 15"},
    {"Shed", "M5 14.5 5 20.5 19 20.5 19 7.5", "M2 16 22 6"},
    {"Dual", "M4.5 13 4.5 20.5 20 20.5 20 13", "M2 16.5 8.5 5.5 22.5 14.5"},
    {"Hip", "M2.5 6 21.5 6 21.5 18 2.5 18Z", "M2.5 6 8.5 12 2.5 18M21.5 6 15.5 12 21.5 18M8.5 12 15.5 12"},
    {"Valley", "M2 4.5 22 4.5 22 13 16.5 13 16.5 21 7.5 21 7.5 13 2 13Z",
     "M2 8.5 22 8.5M12 8.5 12 21M12 8.5 7.5 13M12 8.5 16.5 13"},
    {"Unequal Span Valley", "M2 4.5 22 4.5 22 15.5 14 15.5 14 21 8 21 8 15.5 2 15.5Z",
     "M2 10 22 10M11 12.5 11 21M8 15.5 11 12.5 14 15.5"},
    {"Bay", "M2 5.5 22 5.5M4.5 5.5 8.5 18 15.5 18 19.5 5.5", "M12 7 8.5 18M12 7 15.5 18M12 7 12 5.5"},
    {"Dutch Hip", "M5.5 15 5.5 20.5 18.5 20.5 18.5 15",
     "M2 15.5 7.5 10 16.5 10 22 15.5ZM7.5 10 12 5 16.5 10"},
    {"Blind Valley", "M3 4 21 4 21 20 3 20Z", "M12 8 12 20M5.5 20 12 8 18.5 20"},
    {"Octagon", "M8 2.5 16 2.5 21.5 8 21.5 16 16 21.5 8 21.5 2.5 16 2.5 8Z",
     "M8 2.5 16 21.5M16 2.5 8 21.5M2.5 8 21.5 16M21.5 8 2.5 16"},
    {"Gambrel", "M5 14.5 5 20.5 19 20.5 19 14.5", "M2.5 17 6 9.5 12 5 18 9.5 21.5 17"},
    // A rafter's tail and its fascia.
    {"Plumb", "M22 4 5 12.5 5 19.5 22 11", "M3 11.5 3 20"},
    {"Square", "M22 4 5 12.5 8.2 19 22 12", "M3 12.5 6.8 20.2"},
    {"Level", "M22 4 4 13 4 16.5 11.5 16.5 22 11.2", "M2.5 19 13 19"},
    // Files.
    {"New", "M6 2.5 14 2.5 19 7.5 19 21.5 6 21.5ZM14 2.5 14 7.5 19 7.5", ""},
    {"Open", "M2.5 19.5 2.5 5 9 5 11 7.5 19.5 7.5 19.5 10.5M2.5 19.5 6 10.5 22.5 10.5 19 19.5Z", ""},
    {"Save",
     "M3.5 3.5 17.5 3.5 20.5 6.5 20.5 20.5 3.5 20.5ZM7.5 3.5 7.5 9 15.5 9 15.5 3.5M7 20.5 7 13.5 17 13.5 17 "
     "20.5",
     ""},
    {"Print",
     "M6.5 9 6.5 3 17.5 3 17.5 9M6.5 17 3 17 3 9 21 9 21 17 17.5 17M6.5 14 17.5 14 17.5 21.5 6.5 21.5Z", ""},
};

QPainterPath PathOf(std::string_view text) {
  QPainterPath path;
  bool begins = false;
  double x = 0;
  bool hasX = false;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at < end) {
    double number = 0;
    const auto read = std::from_chars(at, end, number);
    if (read.ec != std::errc()) {
      if (*at == 'M') begins = true;
      if (*at == 'Z') path.closeSubpath();
      ++at;
      continue;
    }
    at = read.ptr;
    if (!hasX) {
      x = number;
    } else if (begins) {
      path.moveTo(x, number);
      begins = false;
    } else {
      path.lineTo(x, number);
    }
    hasX = !hasX;
  }
  return path;
}

/// An icon that is painted anew at every size.
class VectorIcon : public QIconEngine {
 public:
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }
};

class StrokeIcon : public VectorIcon {
 public:
  explicit StrokeIcon(const IconRow& row) : row_(row) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QGuiApplication::palette();
    const bool disabled = mode == QIcon::Disabled;
    const QColor ink = palette.color(disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
    const bool dark = palette.color(QPalette::Active, QPalette::Window).lightness() < 128;
    const QColor accent = disabled ? ink : dark ? QColor(0xFF, 0xA6, 0x57) : QColor(0xB4, 0x4A, 0x12);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / kGrid, rect.height() / kGrid);
    Stroke(*painter, row_.body, ink, 1.3);
    Stroke(*painter, row_.accent, accent, 1.8);
    painter->restore();
  }

  QIconEngine* clone() const override { return new StrokeIcon(row_); }

 private:
  static void Stroke(QPainter& painter, const char* path, const QColor& color, double width) {
    painter.strokePath(PathOf(path), QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }

  const IconRow& row_;
};

/// A roof over a house on a dark tile.
class BadgeIcon : public VectorIcon {
 public:
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / kGrid, rect.height() / kGrid);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(0x1C, 0x22, 0x2B));
    painter->drawRoundedRect(QRectF(0, 0, kGrid, kGrid), 4.5, 4.5);
    painter->strokePath(PathOf("M6 12 6 18.5 18 18.5 18 12"), QPen(Qt::white, 1.6));
    painter->strokePath(PathOf("M3.5 14 12 5.5 20.5 14"), QPen(QColor(0xFF, 0xD0, 0x30), 2.2));
    painter->restore();
  }
  QIconEngine* clone() const override { return new BadgeIcon; }
};

}  // namespace

QIcon IconOf(std::string_view key) {
  for (const IconRow& row : kIcons) {
    if (row.key == key) return QIcon(new StrokeIcon(row));
  }
  return {};
}

QIcon ProgramIcon() { return QIcon(new BadgeIcon); }

}  // namespace pitchcraft
