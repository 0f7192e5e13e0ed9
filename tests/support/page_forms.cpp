// The three forms of a page, taken apart.
#include "page_forms.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <numeric>

#include "../output/dxf_reading.h"
#include "page_words.h"

namespace pitchcraft::testing {
namespace {

/// The colours by which a recording tells what its strokes are.
struct Colors {
  DrawColor Line = 0;
  DrawColor Dimension = 0;
  DrawColor Back = 0;
};
constexpr Colors kScreenColors{0xFFFFFF, 0xFF, 0};
constexpr Colors kPaperColors{0, 0xFF, 0xFFFFFF};

constexpr double kFileGrain = 1e-3;

double Distance(FormPoint a, FormPoint b) { return std::hypot(b.X - a.X, b.Y - a.Y); }

struct Box {
  double Left = std::numeric_limits<double>::infinity();
  double Bottom = Left;
  double Right = -Left;
  double Top = -Left;

  void Include(FormPoint point) {
    Left = std::min(Left, point.X);
    Right = std::max(Right, point.X);
    Bottom = std::min(Bottom, point.Y);
    Top = std::max(Top, point.Y);
  }
  bool Holds(FormPoint point, double margin) const {
    return point.X >= Left - margin && point.X <= Right + margin && point.Y >= Bottom - margin &&
           point.Y <= Top + margin;
  }
};

Box BoxOf(const std::vector<FormStroke>& strokes) {
  Box box;
  for (const FormStroke& stroke : strokes) {
    box.Include(stroke.From);
    box.Include(stroke.To);
  }
  return box;
}

bool IsNote(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first != std::string::npos && text.compare(first, 2, "* ") == 0;
}

void TakeLabel(PageForm& form, const std::string& text) {
  if (text.find("bevel") != std::string::npos) {
    form.EndLabels.push_back(text);
  } else if (IsNote(text)) {
    form.Notes.push_back(text.substr(text.find('*')));
  } else {
    form.Labels.push_back(text);
  }
}

/// The strokes that hang together with the first one, taken out of `strokes`.
std::vector<FormStroke> TakePart(std::vector<FormStroke>& strokes, double near) {
  std::vector<FormStroke> part{strokes.back()};
  strokes.pop_back();
  for (std::size_t at = 0; at < part.size(); ++at) {
    const FormStroke grown = part[at];
    for (std::size_t i = strokes.size(); i-- > 0;) {
      const FormStroke& candidate = strokes[i];
      const bool touches =
          Distance(grown.From, candidate.From) <= near || Distance(grown.From, candidate.To) <= near ||
          Distance(grown.To, candidate.From) <= near || Distance(grown.To, candidate.To) <= near;
      if (!touches) continue;
      part.push_back(candidate);
      strokes.erase(strokes.begin() + static_cast<std::ptrdiff_t>(i));
    }
  }
  return part;
}

/// Takes the end view out of wood and centre lines: a ring of strokes that lies below all other wood.
void SeparateEndView(PageForm& form) {
  if (form.Wood.size() < 2) return;
  std::vector<FormStroke> rest = form.Wood;
  std::vector<std::vector<FormStroke>> parts;
  while (!rest.empty()) parts.push_back(TakePart(rest, form.Grain / 10));
  if (parts.size() < 2) return;
  std::sort(parts.begin(), parts.end(),
            [](const auto& a, const auto& b) { return BoxOf(a).Top < BoxOf(b).Top; });
  const Box lowest = BoxOf(parts.front());
  for (std::size_t i = 1; i < parts.size(); ++i) {
    if (BoxOf(parts[i]).Bottom <= lowest.Top) return;
  }
  form.EndView = FormEndView{
      {lowest.Left, lowest.Top}, lowest.Right - lowest.Left, lowest.Top - lowest.Bottom, parts.front()};
  form.Wood.clear();
  for (std::size_t i = 1; i < parts.size(); ++i)
    form.Wood.insert(form.Wood.end(), parts[i].begin(), parts[i].end());
  std::erase_if(form.Centers, [&](const FormStroke& center) {
    const bool inside = lowest.Holds(center.From, form.Grain) && lowest.Holds(center.To, form.Grain);
    if (inside) form.EndView->Strokes.push_back(center);
    return inside;
  });
}

class RecordingReader {
 public:
  RecordingReader(PageForm& form, double drawScale, const Colors& colors)
      : form_(form), scale_(drawScale), colors_(colors) {
    form_.Grain = 1 / drawScale;
  }

  void Read(const Recording& recording) {
    for (const DrawOp& operation : recording) {
      if (const auto* line = std::get_if<LineOp>(&operation)) {
        Take(*line);
      } else if (const auto* text = std::get_if<TextOp>(&operation)) {
        Take(*text);
      } else {
        form_.Unknown.emplace_back("a figure that is neither line nor text");
      }
    }
    LetGo(0);
    SeparateEndView(form_);
    SortLoose();
  }

 private:
  // Extension lines, dimension line in one or two strokes, two arrowheads of two strokes.
  static constexpr std::size_t kInsideStrokes = 7;
  static constexpr std::size_t kArrowStrokes = 4;

  FormPoint Real(DrawnPoint point) const { return {point.X / scale_, point.Y / scale_}; }
  FormStroke Real(const LineOp& line) const { return {Real(line.From), Real(line.To)}; }

  void Take(const LineOp& line) {
    const bool solid = line.Pen.Style == 0;
    if (line.Pen.Color == colors_.Dimension && solid) {
      run_.push_back(line);
      return;
    }
    LetGo(0);
    if (line.Pen.Color == colors_.Back) return;  // unseen: only the extents know of it
    if (line.Pen.Color == colors_.Line) {
      (solid ? form_.Wood : form_.Walls).push_back(Real(line));
    } else if (line.Pen.Color == colors_.Dimension) {
      form_.Centers.push_back(Real(line));
    } else {
      form_.Unknown.push_back("a line of colour " + std::to_string(line.Pen.Color));
    }
  }

  void Take(const TextOp& text) {
    if (run_.size() >= kInsideStrokes && EndsInArrows()) {
      TakeDimension(text.Text);
      return;
    }
    LetGo(0);
    if (text.Bold) {
      if (form_.Heading) form_.Unknown.push_back("a second heading: " + text.Text);
      form_.Heading = text.Text;
    } else {
      TakeLabel(form_, text.Text);
    }
  }

  /// Both strokes of an arrowhead begin at its tip.
  bool EndsInArrows() const {
    const LineOp* arrows = &run_[run_.size() - kArrowStrokes];
    return arrows[0].From == arrows[1].From && arrows[2].From == arrows[3].From;
  }

  void TakeDimension(const std::string& text) {
    const LineOp* arrows = &run_[run_.size() - kArrowStrokes];
    const DrawnPoint tip1 = arrows[0].From;
    const DrawnPoint tip2 = arrows[2].From;
    const LineOp& before = *(arrows - 1);
    const bool inside = before.From == tip1 && before.To == tip2;
    const std::size_t strokes = inside ? kInsideStrokes : kInsideStrokes + 1;
    FormDimension dimension{text, Real(tip1), Real(tip2), {}, false};
    const double length = Distance(dimension.P1, dimension.P2);
    if (length > 0) {
      dimension.Along = {(dimension.P2.X - dimension.P1.X) / length,
                         (dimension.P2.Y - dimension.P1.Y) / length};
    }
    form_.Dimensions.push_back(dimension);
    run_.resize(run_.size() - std::min(strokes, run_.size()));
    LetGo(0);
  }

  void LetGo(std::size_t kept) {
    for (std::size_t i = kept; i < run_.size(); ++i) loose_.push_back(Real(run_[i]));
    run_.clear();
  }

  /// In a layout the rafters have the pen of the dimensions, as the leaders have; a leader stands outside.
  void SortLoose() {
    const Box box = BoxOf(form_.Wood);
    for (const FormStroke& stroke : loose_) {
      const bool inside = box.Holds(stroke.From, form_.Grain) && box.Holds(stroke.To, form_.Grain);
      (inside ? form_.Centers : form_.Leaders).push_back(stroke);
    }
  }

  PageForm& form_;
  double scale_;
  const Colors& colors_;
  std::vector<LineOp> run_;  // strokes of a dimension, as long as its text is to come
  std::vector<FormStroke> loose_;
};

PageForm FormOfRecording(FormKind kind, const Recording& recording, double drawScale, const Colors& colors) {
  PageForm form;
  form.Kind = kind;
  RecordingReader(form, drawScale, colors).Read(recording);
  return form;
}

/// Rows stand in three columns. One that was too wide goes on in the next line, set in.
PageSheet SheetOf(const PrintedPage& page) {
  constexpr double kSetIn = 90;
  const double column = page.Paper.PrintableWidth() / 3;
  PageSheet sheet;
  for (const PageLayer& layer : page.Layers) {
    if (layer.Map.ScaleX != 1) continue;
    for (const DrawOp& operation : layer.Drawing) {
      const auto* text = std::get_if<TextOp>(&operation);
      if (text == nullptr || text->At.Y == 0) continue;  // the header
      if (text->Italic) {
        sheet.Title = text->Text;
        continue;
      }
      const double setIn = std::fmod(text->At.X + 1.0, column);
      if (setIn > kSetIn && !sheet.Rows.empty()) {
        sheet.Rows.back() += ' ' + text->Text;
      } else {
        sheet.Rows.push_back(text->Text);
      }
    }
  }
  return sheet;
}

double Number(const DxfRecord& record, int code) {
  const std::string text = record(code);
  const std::size_t begin = text.find_first_not_of(' ');
  double value = std::numeric_limits<double>::quiet_NaN();
  if (begin != std::string::npos) std::from_chars(text.data() + begin, text.data() + text.size(), value);
  return value;
}

FormPoint PointOf(const DxfRecord& record, int code) {
  return {Number(record, code), Number(record, code + 10)};
}

std::string Decoded(std::string text) {
  for (std::size_t at = text.find("%%d"); at != std::string::npos; at = text.find("%%d", at))
    text.replace(at, 3, kDegreeSign);
  return text;
}

void TakeLine(PageForm& form, const DxfRecord& line) {
  const FormStroke stroke{PointOf(line, 10), PointOf(line, 11)};
  const std::string layer = line(8);
  if (layer == "0") {
    form.Wood.push_back(stroke);
  } else if (layer == "HIDDEN") {
    form.Walls.push_back(stroke);
  } else if (layer == "CENTER") {
    form.Centers.push_back(stroke);
  } else if (layer == "DIMENSIONS") {
    form.Leaders.push_back(stroke);
  } else {
    form.Unknown.push_back("a line on layer " + layer);
  }
}

void TakeDimension(PageForm& form, const DxfRecord& record) {
  constexpr int kTypes = 7;  // further bits tell about the text
  constexpr int kAligned = 1;
  FormDimension dimension{Decoded(record(1)), PointOf(record, 13), PointOf(record, 14), {}, false};
  const double angle = Number(record, 50) * std::acos(-1.0) / 180;
  dimension.Along = {std::cos(angle), std::sin(angle)};
  dimension.OnPoints = (static_cast<int>(Number(record, 70)) & kTypes) == kAligned;
  form.Dimensions.push_back(dimension);
}

}  // namespace

PageForm FormOfScreen(const Recording& recording, double drawScale) {
  return FormOfRecording(FormKind::kScreen, recording, drawScale, kScreenColors);
}

SheetForm FormOfPaper(const PrintedPage& page, double drawScale) {
  SheetForm form;
  form.Sheet = SheetOf(page);
  Recording drawing;
  for (const PageLayer& layer : page.Layers) {
    if (layer.Map.ScaleX != 1) drawing.insert(drawing.end(), layer.Drawing.begin(), layer.Drawing.end());
  }
  form.Drawing = FormOfRecording(FormKind::kPaper, drawing, drawScale, kPaperColors);
  return form;
}

/// The title has the highest letters; a row has an equals sign.
SheetForm FormOfFile(const std::string& dxf) {
  const DxfContent content(dxf);
  SheetForm form;
  PageForm& drawing = form.Drawing;
  drawing.Kind = FormKind::kFile;
  drawing.Grain = kFileGrain;
  for (const DxfRecord& line : content.In("ENTITIES", "LINE")) TakeLine(drawing, line);
  for (const DxfRecord& dimension : content.In("ENTITIES", "DIMENSION")) TakeDimension(drawing, dimension);
  double highest = 0;
  const std::vector<DxfRecord> texts = content.In("ENTITIES", "TEXT");
  for (const DxfRecord& text : texts) highest = std::max(highest, Number(text, 40));
  for (const DxfRecord& text : texts) {
    const std::string words = Decoded(text(1));
    if (Number(text, 40) == highest && form.Sheet.Title.empty()) {
      form.Sheet.Title = words;
    } else if (words.find(" = ") != std::string::npos || words.ends_with(" =")) {
      form.Sheet.Rows.push_back(words);
    } else {
      TakeLabel(drawing, words);
    }
  }
  SeparateEndView(drawing);
  return form;
}

}  // namespace pitchcraft::testing
