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

/// A finished drawing and the area in which it is shown.
struct Picture {
  const DrawingRecorder& Drawing;
  CanvasSize Size;  ///< of the area, in twips
  DrawColor Background = 0;
  std::string Title;
};

/// The drawing that the document shows, with the background of its views.
Picture ShownPicture(const Document& document);

/// Paints the picture with its proportions kept and a narrow border around it. The background must be painted
/// already. `unitsPerTwip` and `magnified` are those of PainterCanvas.
void PaintPicture(QPainter& painter, const Picture& picture, double unitsPerTwip, double magnified = 1);

enum class PictureFormat { kPng, kSvg, kPdf };

/// The picture as the contents of a file.
QByteArray PictureBytes(const Picture& picture, PictureFormat format);

/// Writes the picture to a file in the format of its extension: .png is 1600 pixels wide with the proportions
/// of the area, .svg is scalable. The file is replaced as a whole or not touched. Returns nothing on success,
/// otherwise a sentence for the user about what went wrong.
std::optional<std::string> WritePicture(const Picture& picture, const std::filesystem::path& file);

}  // namespace pitchcraft
