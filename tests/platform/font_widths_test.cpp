// The built-in table of widths compared with the face that the painter uses.
#include <gtest/gtest.h>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "drawing/arial_meter.h"
#include "platform/font_setup.h"

namespace pitchcraft {
namespace {

TEST(DrawingFont, IsThere) {
  EXPECT_TRUE(EnsureDrawingFont());
  EXPECT_EQ(QFontInfo(DrawingFont()).family().toStdString(), "Liberation Sans");
  EXPECT_FALSE(DrawingFont().kerning());
}

QImage Painted() {
  QImage image(600, 160, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setFont(DrawingFont());
  painter.drawText(QPointF(5, 120), "12' 6 1/2\"");
  return image;
}

TEST(DrawingFont, IsTheSameWhateverLettersTheDesktopHas) {
  const QImage usual = Painted();
  const QFont before = QGuiApplication::font();
  QFont odd("Liberation Serif", 20, QFont::Black, true);
  odd.setStretch(150);
  odd.setLetterSpacing(QFont::AbsoluteSpacing, 5);
  odd.setWordSpacing(30);
  odd.setCapitalization(QFont::SmallCaps);
  QGuiApplication::setFont(odd);
  EXPECT_EQ(Painted(), usual);
  QGuiApplication::setFont(before);
}

struct Face {
  const char* name;
  bool bold;
  bool italic;
};

class FontWidths : public testing::TestWithParam<Face> {};

TEST_P(FontWidths, AgreeWithTheTable) {
  const Face& face = GetParam();
  QFont font = DrawingFont();
  font.setBold(face.bold);
  font.setItalic(face.italic);
  const QFontMetricsF metrics(font);
  const ArialMeter meter;
  const double cell = font.pixelSize() / kEmPerCell;
  // Kerning would bring AV, To and 11 closer together.
  for (const char* text :
       {"12' 6 1/2\"", "0123456789", "AVAVAV To Ty 1111", "PITCHCRAFT Rafter fi ffl", "3600 mm",
        "26.57\u00b0", "\u00bd \u2013 \u2014 \u201c\u201d \u2026", "%&()*+,-./:;<=>?@[]"}) {
    const double table = meter.TextWidth(text, {"Arial", cell, face.bold, face.italic});
    const double painted = metrics.horizontalAdvance(QString::fromUtf8(text));
    EXPECT_NEAR(painted / table, 1, 0.005) << text;
  }
}

TEST_P(FontWidths, AgreeForEveryCharacterOfTheTable) {
  const Face& face = GetParam();
  QFont font = DrawingFont();
  font.setBold(face.bold);
  font.setItalic(face.italic);
  const QFontMetricsF metrics(font);
  const ArialMeter meter;
  const double cell = font.pixelSize() / kEmPerCell;
  for (char32_t code = 0x20; code < 0x100; ++code) {
    if (code >= 0x7F && code <= 0xA0) continue;  // no signs of their own
    if (code == 0xAD) continue;                  // a soft hyphen is not set
    if (code == 0xB7) continue;                  // the editions of the face do not agree on the middle dot
    const QString text = QString::fromUcs4(&code, 1);
    const double table = meter.TextWidth(text.toStdString(), {"Arial", cell, face.bold, face.italic});
    EXPECT_NEAR(metrics.horizontalAdvance(text), table, 0.005 * table) << text.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Faces, FontWidths,
                         testing::Values(Face{"regular", false, false}, Face{"bold", true, false},
                                         Face{"italic", false, true}, Face{"boldItalic", true, true}),
                         [](const auto& face) { return face.param.name; });

}  // namespace
}  // namespace pitchcraft
