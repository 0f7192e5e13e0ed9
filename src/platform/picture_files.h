// Writes a drawing to a picture file.
#pragma once

#include <QByteArray>
#include <filesystem>
#include <optional>
#include <string>

#include "drawing/drawing_recorder.h"

class QPainter;

namespace pitchcraft {

class Document;

/// A finished drawing and the area that it is shown on.
struct Picture {
  const DrawingRecorder& Drawing;
  CanvasSize Size;  ///< of the area, in twips
  DrawColor Background = 0;
  std::string Title;
};

/// The drawing that the document shows, on the colour of its views.
Picture ShownPicture(const Document& document);

/// Paints the picture, its proportions kept, with a narrow border of its ground about it. The ground itself
/// is there already. `unitsPerTwip` and `magnified` are those of PainterCanvas.
void PaintPicture(QPainter& painter, const Picture& picture, double unitsPerTwip, double magnified = 1);

enum class PictureFormat { kPng, kSvg, kPdf };

/// The picture as the contents of a file.
QByteArray PictureBytes(const Picture& picture, PictureFormat format);

/// Writes the picture to a file whose ending tells the format: .png is 1600 pixels wide with the proportions
/// of the area, .svg scalable. The file is replaced whole or not touched at all. Nothing on success; else
/// what went wrong, as a sentence for the person.
std::optional<std::string> WritePicture(const Picture& picture, const std::filesystem::path& file);

}  // namespace pitchcraft
