// What must agree between the three forms of a page, and what each must hold by itself.
#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <sstream>

#include "page_forms.h"
#include "page_words.h"

namespace pitchcraft::testing {
namespace {

constexpr double kSinglePrecision = 5e-7;  // of a coordinate's size, after a few sums
/// A point of a recording is off by half a grain either way in x and y: a distance by the diagonal of a
/// grain.
constexpr double kRounded = 1.5;

const char* NameOf(FormKind kind) {
  if (kind == FormKind::kScreen) return "screen";
  return kind == FormKind::kPaper ? "paper" : "file";
}

std::string EndsOf(const FormStroke& stroke) {
  return Said("(", stroke.From.X, ", ", stroke.From.Y, ")-(", stroke.To.X, ", ", stroke.To.Y, ")");
}

double Dot(FormPoint a, FormPoint b) { return a.X * b.X + a.Y * b.Y; }
double Cross(FormPoint a, FormPoint b) { return a.X * b.Y - a.Y * b.X; }
FormPoint operator-(FormPoint a, FormPoint b) { return {a.X - b.X, a.Y - b.Y}; }
double Length(FormPoint a) { return std::hypot(a.X, a.Y); }
double Length(const FormStroke& stroke) { return Length(stroke.To - stroke.From); }

/// The left lower corner of the wood, to which a drawing is brought: a form may stand anywhere.
FormPoint CornerOf(const PageForm& form) {
  FormPoint corner{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
  for (const FormStroke& stroke : form.Wood) {
    corner.X = std::min({corner.X, stroke.From.X, stroke.To.X});
    corner.Y = std::min({corner.Y, stroke.From.Y, stroke.To.Y});
  }
  return form.Wood.empty() ? FormPoint{} : corner;
}

double ExtentOf(const PageForm& form) {
  double extent = 0;
  for (const FormStroke& stroke : form.Wood) {
    for (const FormPoint point : {stroke.From, stroke.To})
      extent = std::max({extent, std::fabs(point.X), std::fabs(point.Y)});
  }
  return extent;
}

/// How far a point of one form may lie from the same point of another.
double Tolerance(const PageForm& a, const PageForm& b) {
  return std::max(kRounded * std::max(a.Grain, b.Grain),
                  kSinglePrecision * std::max(ExtentOf(a), ExtentOf(b)));
}

std::vector<FormStroke> Moved(std::vector<FormStroke> strokes, FormPoint corner) {
  for (FormStroke& stroke : strokes) stroke = {stroke.From - corner, stroke.To - corner};
  return strokes;
}

bool Same(const FormStroke& a, const FormStroke& b, double tolerance) {
  const auto near = [tolerance](FormPoint p, FormPoint q) { return Length(p - q) <= tolerance; };
  return (near(a.From, b.From) && near(a.To, b.To)) || (near(a.From, b.To) && near(a.To, b.From));
}

/// Each stroke has one of its own on the other side. A stroke that is no longer than the tolerance may have
/// none: rounded, it is a point, and a file leaves those out.
void MatchStrokes(const char* what, const PageForm& a, std::vector<FormStroke> ofA, const PageForm& b,
                  std::vector<FormStroke> ofB, double tolerance, Disagreements& found) {
  const auto missing = [&](const PageForm& has, const PageForm& lacks, const FormStroke& stroke) {
    if (Length(stroke) <= tolerance) return;
    found.push_back(
        Said(what, ": ", NameOf(has.Kind), " has ", EndsOf(stroke), ", ", NameOf(lacks.Kind), " does not"));
  };
  for (const FormStroke& stroke : ofA) {
    const auto partner = std::find_if(ofB.begin(), ofB.end(), [&](const FormStroke& candidate) {
      return Same(stroke, candidate, tolerance);
    });
    if (partner == ofB.end()) {
      missing(a, b, stroke);
    } else {
      ofB.erase(partner);
    }
  }
  for (const FormStroke& stroke : ofB) missing(b, a, stroke);
}

/// The letters of some CAD programs lack the degree sign, so a file writes "63.4" and "45d bevels".
std::string WithoutSigns(std::string text) {
  for (const std::string sign : {kDegreeSign, "d bevel"}) {
    const std::size_t at = text.find(sign);
    if (at != std::string::npos) text.replace(at, sign.size(), sign == kDegreeSign ? "" : " bevel");
  }
  return text;
}

/// Two notes are worded differently in a file; what they say is where the layout starts.
std::string MeaningOf(const std::string& note) {
  if (!note.starts_with("* layout is ") || note.starts_with("* layout is adjusted")) return note;
  if (note.find("flush") != std::string::npos) return "* layout is flush";
  return note.find("hip center") != std::string::npos ? "* layout from the center" : "* layout from corners";
}

void MatchWords(const char* what, const PageForm& a, std::vector<std::string> ofA, const PageForm& b,
                std::vector<std::string> ofB, Disagreements& found) {
  std::sort(ofA.begin(), ofA.end());
  std::sort(ofB.begin(), ofB.end());
  const auto report = [&](const PageForm& has, const auto& more, const PageForm& lacks, const auto& less) {
    std::vector<std::string> only;
    std::set_difference(more.begin(), more.end(), less.begin(), less.end(), std::back_inserter(only));
    for (const std::string& text : only)
      found.push_back(
          Said(what, ": ", NameOf(has.Kind), " says ", text, ", ", NameOf(lacks.Kind), " does not"));
  };
  report(a, ofA, b, ofB);
  report(b, ofB, a, ofA);
}

template <typename Change>
std::vector<std::string> Changed(std::vector<std::string> texts, Change change) {
  for (std::string& text : texts) text = change(text);
  return texts;
}

std::vector<std::string> TextsOf(const std::vector<FormDimension>& dimensions) {
  std::vector<std::string> texts;
  for (const FormDimension& dimension : dimensions) texts.push_back(dimension.Text);
  return texts;
}

/// How far a dimension's direction may be off, in lengths across for one along: two rounded tips give it.
double TiltOf(const FormDimension& dimension, double grain) {
  const bool level = dimension.Along.X == 0 || dimension.Along.Y == 0;
  const double span = Length(dimension.P2 - dimension.P1);
  return level || span == 0 ? 0 : kRounded * grain / span;
}

/// Lengths of the same text that are measured between the same points, seen along the measure. How far the
/// line stands off goes by the lettering, whose size each form has of its own.
bool SameMeasure(const FormDimension& a, FormPoint cornerA, const FormDimension& b, FormPoint cornerB,
                 double tilt, double tolerance) {
  if (a.Text != b.Text) return false;
  const FormPoint along = b.Along;
  const double reach = std::max(Length(a.P1 - cornerA), Length(b.P1 - cornerB));
  const double off = tolerance + tilt * reach;
  const double span = Length(a.P2 - a.P1);
  if (std::fabs(Cross(a.P2 - a.P1, along)) > tolerance + tilt * span) return false;
  const double a1 = Dot(a.P1 - cornerA, along), a2 = Dot(a.P2 - cornerA, along);
  const double b1 = Dot(b.P1 - cornerB, along), b2 = Dot(b.P2 - cornerB, along);
  return std::fabs(std::min(a1, a2) - std::min(b1, b2)) <= off &&
         std::fabs(std::max(a1, a2) - std::max(b1, b2)) <= off;
}

/// A measure of nothing, as a roof without a slope has: a file leaves it out.
bool SaysZero(const FormDimension& dimension) { return dimension.Text == "0\"" || dimension.Text == "0 mm"; }

std::vector<FormDimension> Measures(const PageForm& form) {
  std::vector<FormDimension> measures = form.Dimensions;
  std::erase_if(measures, SaysZero);
  return measures;
}

void MatchMeasures(const PageForm& a, const PageForm& b, double tolerance, Disagreements& found) {
  std::vector<FormDimension> left = Measures(b);
  const FormPoint cornerA = CornerOf(a);
  const FormPoint cornerB = CornerOf(b);
  for (const FormDimension& dimension : Measures(a)) {
    const auto partner = std::find_if(left.begin(), left.end(), [&](const FormDimension& candidate) {
      const double tilt = TiltOf(dimension, a.Grain) + TiltOf(candidate, b.Grain);
      return SameMeasure(dimension, cornerA, candidate, cornerB, tilt, 2 * tolerance);
    });
    if (partner == left.end()) {
      found.push_back(Said("measured elsewhere: ", dimension.Text, " of the ", NameOf(a.Kind), " in the ",
                           NameOf(b.Kind)));
    } else {
      left.erase(partner);
    }
  }
}

/// `12' 6 1/2"` or `3600 mm` as a number; not a number where it is neither.
double ValueOf(const std::string& text) {
  constexpr double kInchesPerFoot = 12;
  std::istringstream words(text);
  double value = 0;
  double sign = 1;
  for (std::string word; words >> word;) {
    if (word == "mm") continue;
    double number = 0;
    std::size_t at = 0;
    if (!ReadNumber(word, at, number)) return std::numeric_limits<double>::quiet_NaN();
    if (word.starts_with('-')) sign = -1;
    double divisor = 1;
    if (word.compare(at, 1, "/") == 0) ReadNumber(word, ++at, divisor);
    const bool feet = word.compare(at, 1, "'") == 0;
    value += std::fabs(number) / divisor * (feet ? kInchesPerFoot : 1);
  }
  return sign * value;
}

/// The corners that a measure can begin at. In an elevation the heel's line counts: where the wood has no
/// notch, seat and heel are corners of that line alone.
std::vector<FormPoint> CornersOf(const PageForm& form) {
  std::vector<FormPoint> corners;
  const auto add = [&](const std::vector<FormStroke>& strokes) {
    for (const FormStroke& stroke : strokes) {
      corners.push_back(stroke.From);
      corners.push_back(stroke.To);
    }
  };
  add(form.Wood);
  add(form.Walls);
  const bool elevation = form.Walls.empty();
  if (elevation) add(form.Centers);
  return corners;
}

double DistanceTo(const FormStroke& stroke, FormPoint point) {
  const FormPoint way = stroke.To - stroke.From;
  const double square = Dot(way, way);
  const double share = square == 0 ? 0 : std::clamp(Dot(point - stroke.From, way) / square, 0.0, 1.0);
  return Length(point - FormPoint{stroke.From.X + share * way.X, stroke.From.Y + share * way.Y});
}

/// One end of the rafter from below, seen from that end and in heights of the view.
std::vector<FormStroke> InHeights(const FormEndView& view) {
  std::vector<FormStroke> strokes = view.Strokes;
  const auto seen = [&](FormPoint point) {
    const double x = point.X - view.LeftTop.X;
    const bool right = x > view.Length / 2;
    const double apart = right ? 1000 : 0;  // so that no stroke of one end is like one of the other
    return FormPoint{apart + (right ? x - view.Length : x) / view.Height,
                     (point.Y - view.LeftTop.Y) / view.Height};
  };
  for (FormStroke& stroke : strokes) stroke = {seen(stroke.From), seen(stroke.To)};
  return strokes;
}

/// Ends that reach to the middle cannot be told apart.
bool HasShortEnds(const FormEndView& view) {
  constexpr double kLongestEnd = 3;  // a point of six half thicknesses
  return view.Height > 0 && view.Length > 2.5 * kLongestEnd * view.Height;
}

void CompareEndViews(const PageForm& a, const PageForm& b, double tolerance, Disagreements& found) {
  const FormEndView& viewA = *a.EndView;
  const FormEndView& viewB = *b.EndView;
  const double shift = (viewA.LeftTop.X - CornerOf(a).X) - (viewB.LeftTop.X - CornerOf(b).X);
  if (std::fabs(viewA.Length - viewB.Length) > tolerance || std::fabs(shift) > tolerance) {
    found.push_back(Said("end view: ", viewA.Length, " long on ", NameOf(a.Kind), ", ", viewB.Length, " in ",
                         NameOf(b.Kind), ", moved by ", shift));
  }
  MatchWords("end view", a, Changed(a.EndLabels, WithoutSigns), b, Changed(b.EndLabels, WithoutSigns), found);
  if (!HasShortEnds(viewA) || !HasShortEnds(viewB)) return;
  const double inHeights = 2 * tolerance / std::min(viewA.Height, viewB.Height);
  FormEndView scaledA = viewA, scaledB = viewB;
  scaledA.Strokes = InHeights(viewA);
  scaledB.Strokes = InHeights(viewB);
  MatchStrokes("end view", a, scaledA.Strokes, b, scaledB.Strokes, inHeights, found);
}

}  // namespace

Disagreements CompareDrawings(const PageForm& screen, const PageForm& other) {
  Disagreements found;
  const double tolerance = Tolerance(screen, other);
  const FormPoint corner = CornerOf(screen);
  const FormPoint otherCorner = CornerOf(other);
  const auto match = [&](const char* what, const std::vector<FormStroke>& a,
                         const std::vector<FormStroke>& b) {
    MatchStrokes(what, screen, Moved(a, corner), other, Moved(b, otherCorner), tolerance, found);
  };
  match("wood", screen.Wood, other.Wood);
  match("walls", screen.Walls, other.Walls);
  match("centre lines", screen.Centers, other.Centers);
  const std::size_t before = found.size();
  MatchWords("dimensions", screen, TextsOf(Measures(screen)), other, TextsOf(Measures(other)), found);
  if (found.size() == before) MatchMeasures(screen, other, tolerance, found);
  MatchWords("labels", screen, Changed(screen.Labels, WithoutSigns), other,
             Changed(other.Labels, WithoutSigns), found);
  MatchWords("notes", screen, Changed(screen.Notes, MeaningOf), other, Changed(other.Notes, MeaningOf),
             found);
  if (other.Kind == FormKind::kPaper && screen.Heading != other.Heading) {
    found.push_back(Said("heading: ", screen.Heading.value_or("none"), " on the screen, ",
                         other.Heading.value_or("none"), " on paper"));
  }
  if (screen.EndView && other.EndView) {
    CompareEndViews(screen, other, tolerance, found);
  } else if (other.Kind == FormKind::kFile && screen.EndView.has_value() != other.EndView.has_value()) {
    found.emplace_back("end view: only one of screen and file has it");
  }
  return found;
}

Disagreements CheckDimensions(const PageForm& form, bool metric) {
  Disagreements found;
  const char* name = NameOf(form.Kind);
  const double rounded = metric ? 0.5 : 1.0 / 32;
  const double off = kRounded * form.Grain + kSinglePrecision * ExtentOf(form);
  const std::vector<FormPoint> corners = CornersOf(form);
  for (const FormDimension& dimension : Measures(form)) {
    const double tilt = TiltOf(dimension, form.Grain);
    const double measure = std::fabs(Dot(dimension.P2 - dimension.P1, dimension.Along));
    if (!(std::fabs(ValueOf(dimension.Text) - measure) <= rounded + off))
      found.push_back(Said("measure: ", dimension.Text, " is written over ", measure, " on ", name));
    for (const FormPoint point : {dimension.P1, dimension.P2}) {
      const bool level = std::any_of(corners.begin(), corners.end(), [&](FormPoint corner) {
        const FormPoint way = corner - point;
        return std::fabs(Dot(way, dimension.Along)) <= off + tilt * Length(way);
      });
      const bool onWood = dimension.OnPoints &&
                          std::any_of(form.Wood.begin(), form.Wood.end(), [&](const FormStroke& stroke) {
                            return DistanceTo(stroke, point) <= off;
                          });
      if (!(dimension.OnPoints ? onWood : level)) {
        found.push_back(Said("off the outline: ", dimension.Text, " on ", name, " begins at ", point.X, ", ",
                             point.Y, ", where there is no corner"));
      }
    }
  }
  return found;
}

Disagreements Compare(const PageFacts& facts, const PageForm& screen, const SheetForm* paper,
                      const SheetForm* file) {
  Disagreements found;
  const auto add = [&](const Disagreements& more) {
    for (const std::string& line : more) {  // what is wrong on paper and in the file is told once
      if (std::find(found.begin(), found.end(), line) == found.end()) found.push_back(line);
    }
  };
  const auto unknown = [&](const PageForm& form) {
    for (const std::string& what : form.Unknown)
      found.push_back(Said("unknown: ", what, " on ", NameOf(form.Kind)));
  };
  unknown(screen);
  add(CheckDimensions(screen, facts.Metric));
  if (paper != nullptr) {
    unknown(paper->Drawing);
    add(CompareDrawings(screen, paper->Drawing));
    add(CheckDimensions(paper->Drawing, facts.Metric));
    add(CheckSheet(facts, paper->Sheet));
    add(CheckHeading(facts, screen, paper->Sheet));
  }
  if (file != nullptr) {
    unknown(file->Drawing);
    add(CompareDrawings(screen, file->Drawing));
    add(CheckDimensions(file->Drawing, facts.Metric));
    add(CheckSheet(facts, file->Sheet));
  }
  if (paper != nullptr && file != nullptr) add(CompareSheets(paper->Sheet, file->Sheet));
  return found;
}

}  // namespace pitchcraft::testing
