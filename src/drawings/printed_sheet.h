// What all prints share: header line, title with its rule, three columns of rows, and the drawing.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "core/rafter.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"
#include "output/printer.h"

namespace pitchcraft {

/// What a print states besides its drawing.
struct PrintContext {
  DrawingContext Drawing;  ///< with the colours of paper
  bool Rear = false;       ///< of a dual slope: the rear roof's rafter
  bool ShowsRidge = true;  ///< the roof has a ridge board
  std::string Spacing;     ///< of the rafters, as it was entered
  std::string ProjectName;
  std::string Date;                               ///< today, in the system's short form
  std::function<std::string(double)> LengthText;  ///< a computed length in the document's unit
};

/// The rows of a print, column by column.
using SheetColumns = std::array<std::vector<std::string>, 3>;

/// All rows, one below another.
std::vector<std::string> Joined(const SheetColumns& columns);

/// The top line: the product on the left, the project in the middle, the date on the right. A name too long
/// for its place is cut short.
void PrintHeader(Printer& page, const PrintContext& context);

/// Lays out the print around a finished drawing. The title is an inch above the bottom edge, or higher if the
/// rows under it need the room; the drawing fills the space below the header. A row wider than its column
/// continues on the next line.
void PrintSheet(Printer& page, const PrintContext& context, const DrawingRecorder& drawing,
                const std::string& title, const SheetColumns& columns);

// --- Rows
/// A length of the record: "Run = 12' 0\"".
std::string LengthRow(const PrintContext& context, const std::string& label, double length);
/// A lumber's two sizes, thickness first.
std::string LumberRow(const PrintContext& context, const std::string& label, double thickness, double depth);
/// A slope's text and its angle in degrees, with one to four decimals: "Slope = 6/12 (26.5651º)".
std::string SlopeRow(const std::string& label, const std::string& pitch, double degrees);
/// At least one decimal and at most four, with no zero before the point: "45.0", ".5", "26.5651".
std::string FourDecimals(double degrees);

}  // namespace pitchcraft
