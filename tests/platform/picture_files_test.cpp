// Picture files: their contents, and what happens if they cannot be written.
#include "platform/picture_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>

#include "../support/document_api.h"
#include "core/run_time_error.h"
#include "document/null_surroundings.h"
#include "drawing/arial_meter.h"
#include "platform/clipboard.h"

namespace pitchcraft {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class PictureFiles : public testing::Test {
 protected:
  PictureFiles() : drawing_(meter_) {
    drawing_.Load({LineOp{{0, 0}, {1000, 500}, {0x0000FF, 0, 0}}}, 0, 0, 1000, 500);
  }
  std::filesystem::path File(const char* name) const {
    return std::filesystem::path(folder_.path().toStdString()) / name;
  }
  Picture Sheet(DrawColor background = 0xFFFFFF) const {
    return {drawing_, {9000, 4500, false}, background, "Title"};
  }

  QTemporaryDir folder_;
  ArialMeter meter_;
  DrawingRecorder drawing_;
};

TEST_F(PictureFiles, PngIs1600WideAndKeepsTheProportions) {
  ASSERT_EQ(WritePicture(Sheet(), File("a.png")), std::nullopt);
  const QImage image(QString::fromStdString(File("a.png").string()));
  EXPECT_EQ(image.width(), 1600);
  EXPECT_EQ(image.height(), 800);
  EXPECT_EQ(image.pixel(10, 10) & 0xFFFFFFU, 0xFFFFFFU);
  // The line runs from the lower left to the upper right.
  EXPECT_LT(qGreen(image.pixel(800, 400)), 60);
  EXPECT_GT(qRed(image.pixel(800, 400)), 200);
}

TEST_F(PictureFiles, EndingIsReadInAnyCase) { EXPECT_EQ(WritePicture(Sheet(), File("A.PNG")), std::nullopt); }

TEST_F(PictureFiles, SvgHoldsTheDrawing) {
  ASSERT_EQ(WritePicture(Sheet(), File("a.svg")), std::nullopt);
  QFile file(QString::fromStdString(File("a.svg").string()));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const std::string text = file.readAll().toStdString();
  EXPECT_THAT(text, StartsWith("<svg"));
  EXPECT_THAT(text, HasSubstr("M16 292 584 8"));
}

TEST_F(PictureFiles, TheClipboardHoldsAnImageAndSvg) {
  CopyToClipboard(Sheet());
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(qvariant_cast<QImage>(data->imageData()).width(), 1600);
  EXPECT_THAT(data->data("image/svg+xml").toStdString(), StartsWith("<svg"));
  const DrawingRecorder empty(meter_);
  EXPECT_THROW(CopyToClipboard({empty, {9000, 4500, false}, 0, ""}), RunTimeError);
}

TEST_F(PictureFiles, PdfHasThePicturesSize) {
  ASSERT_EQ(WritePicture(Sheet(), File("a.pdf")), std::nullopt);
  QFile file(QString::fromStdString(File("a.pdf").string()));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const std::string text = file.readAll().toStdString();
  EXPECT_THAT(text, StartsWith("%PDF"));
  EXPECT_THAT(text, HasSubstr("MediaBox [0 0 450")) << "in points";
}

TEST_F(PictureFiles, FileIsReplacedWhole) {
  ASSERT_EQ(WritePicture(Sheet(), File("a.svg")), std::nullopt);
  const DrawingRecorder empty(meter_);
  EXPECT_NE(WritePicture({empty, {9000, 4500, false}, 0, ""}, File("a.svg")), std::nullopt);
  EXPECT_GT(std::filesystem::file_size(File("a.svg")), 100U);
}

TEST_F(PictureFiles, FolderThatIsNotThereIsAMessageAndNoFile) {
  const auto outcome = WritePicture(Sheet(), File("no such folder") / "a.png");
  ASSERT_TRUE(outcome.has_value());
  EXPECT_THAT(*outcome, StartsWith("The picture cannot be written to "));
  EXPECT_FALSE(std::filesystem::exists(File("no such folder")));
}

TEST_F(PictureFiles, PathThroughAFileIsAMessage) {
  ASSERT_EQ(WritePicture(Sheet(), File("a.svg")), std::nullopt);
  EXPECT_TRUE(WritePicture(Sheet(), File("a.svg") / "b.svg").has_value());
}

TEST_F(PictureFiles, UnknownFormatIsAMessage) {
  EXPECT_THAT(WritePicture(Sheet(), File("a.xyz")).value_or(""), HasSubstr("format"));
  EXPECT_THAT(WritePicture(Sheet(), File("a")).value_or(""), HasSubstr("format"));
}

TEST_F(PictureFiles, UnfinishedDrawingIsAMessage) {
  const DrawingRecorder empty(meter_);
  EXPECT_TRUE(WritePicture({empty, {9000, 4500, false}, 0, ""}, File("a.png")).has_value());
  EXPECT_FALSE(std::filesystem::exists(File("a.png")));
}

TEST_F(PictureFiles, NameOutsideAsciiIsKept) {
  const std::filesystem::path file = File("") / u8"Dach \u00e4\u20ac.svg";
  EXPECT_EQ(WritePicture(Sheet(), file), std::nullopt);
  EXPECT_TRUE(std::filesystem::exists(file));
}

TEST_F(PictureFiles, DocumentShowsItsDrawing) {
  NullSurroundings surroundings;
  Document document(surroundings.Get());
  Start(document);
  const Picture shown = ShownPicture(document);
  EXPECT_EQ(shown.Size.ScaleWidth, document.Layout().picture1.Width);
  EXPECT_EQ(WritePicture(shown, File("roof.png")), std::nullopt);
  const QImage image(QString::fromStdString(File("roof.png").string()));
  int lit = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) lit += qGray(image.pixel(x, y)) > 127 ? 1 : 0;
  }
  EXPECT_GT(lit, 2000);
}

}  // namespace
}  // namespace pitchcraft
