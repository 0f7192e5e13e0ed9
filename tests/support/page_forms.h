// One page in its three forms, brought to real size so that they can be compared: the recording on the
// screen, the printed sheet, the DXF file.
//
// Lengths are inches or millimetres. A form is read from what a person gets, not from what drew it, so that
// two forms agree only if both show the same roof.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawing/recording.h"
#include "output/printed_page.h"

namespace pitchcraft::testing {

struct FormPoint {
  double X = 0;
  double Y = 0;
};

struct FormStroke {
  FormPoint From, To;
};

/// A length and the two points that it is measured between: the tips of the arrowheads in a recording, the
/// definition points in a file.
struct FormDimension {
  std::string Text;
  FormPoint P1, P2;
  FormPoint Along;        ///< the direction of the measure, of length 1
  bool OnPoints = false;  ///< an aligned one of a file: both points are corners, not only level with them
};

/// A hip or valley rafter from below: six strokes and a centre line under everything else.
struct FormEndView {
  FormPoint LeftTop;
  double Length = 0;
  double Height = 0;
  std::vector<FormStroke> Strokes;
};

enum class FormKind { kScreen, kPaper, kFile };

struct PageForm {
  FormKind Kind = FormKind::kScreen;
  double Grain = 0;  ///< what coordinates are rounded to
  std::vector<FormStroke> Wood;
  std::vector<FormStroke> Walls;    ///< hidden edges
  std::vector<FormStroke> Centers;  ///< centre lines; in a layout the rafters
  std::vector<FormStroke> Leaders;  ///< from a text to what it tells about
  std::vector<FormDimension> Dimensions;
  std::optional<FormEndView> EndView;
  std::vector<std::string> EndLabels;  ///< of the end view
  std::vector<std::string> Notes;      ///< the rules of a layout
  std::vector<std::string> Labels;     ///< all other words
  std::optional<std::string> Heading;  ///< the slope over an elevation; a file has none
  std::vector<std::string> Unknown;    ///< what has no place above
};

/// The words beside the drawing.
struct PageSheet {
  std::string Title;
  std::vector<std::string> Rows;
};

/// A drawing with its sheet: what is printed, what a file holds.
struct SheetForm {
  PageForm Drawing;
  PageSheet Sheet;
};

/// `drawScale` is the number of drawing units for one unit of length. The colours are those of a document
/// whose settings are new.
PageForm FormOfScreen(const Recording& recording, double drawScale);
SheetForm FormOfPaper(const PrintedPage& page, double drawScale);
SheetForm FormOfFile(const std::string& dxf);

/// What the page is, beside its forms.
struct PageFacts {
  std::string Roof;                ///< as the list of roof types names it
  std::vector<std::string> Pages;  ///< the captions of all pages
  std::size_t Page = 0;
  bool Metric = false;
};

/// What does not agree, one line each. The words in front of the colon name the rule that is broken.
using Disagreements = std::vector<std::string>;

/// All that must hold. `paper` and `file` are null where nothing came out.
Disagreements Compare(const PageFacts& facts, const PageForm& screen, const SheetForm* paper,
                      const SheetForm* file);

// The parts of it.
Disagreements CompareDrawings(const PageForm& screen, const PageForm& other);
Disagreements CheckDimensions(const PageForm& form, bool metric);
Disagreements CheckSheet(const PageFacts& facts, const PageSheet& sheet);
Disagreements CheckHeading(const PageFacts& facts, const PageForm& form, const PageSheet& sheet);
Disagreements CompareSheets(const PageSheet& paper, const PageSheet& file);

}  // namespace pitchcraft::testing
