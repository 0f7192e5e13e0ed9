// Pages as PDF, with their fonts embedded, and on any painter.
#pragma once

#include <QByteArray>
#include <filesystem>
#include <string>

#include "drawing/text_meter.h"
#include "output/printed_page.h"

class QPainter;

namespace pitchcraft {

/// Paints a page with its printable area starting at the painter's origin. `unitsPerTwip` is the size of a
/// twip in the painter's coordinates.
void PaintPage(QPainter& painter, const PrintedPage& page, const TextMeter& meter, double unitsPerTwip);

/// One page as a PDF document.
QByteArray PdfOf(const PrintedPage& page, const TextMeter& meter, const std::string& title);

/// Writes the page to a PDF file, whole or not at all. Raises RunTimeError if it cannot be written.
void WritePdf(const PrintedPage& page, const TextMeter& meter, const std::string& title,
              const std::filesystem::path& file);

/// Today's date in the short form of the user's locale.
std::string ShortDateOfToday();

}  // namespace pitchcraft
