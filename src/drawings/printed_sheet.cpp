#include "drawings/printed_sheet.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "core/number_text.h"
#include "drawing/utf8.h"
#include "drawings/lettering.h"

namespace pitchcraft {
namespace {

constexpr const char* kProduct = "Pitchcraft from Tamarack Benchworks";
constexpr const char* kEllipsis = "\u2026";

constexpr double kTitleSize = 12;
constexpr double kRowSize = 9;
constexpr double kRulePast = 100;  // the rule runs past the right edge
constexpr double kColumnGap = 120;
constexpr double kIndent = 180;
// The drawing starts half an inch down, leaves an inch and a half in all, and is moved a little to the right.
constexpr double kAboveDrawing = kTwipsPerInch / 2.0;
constexpr double kAroundDrawing = 1.5 * kTwipsPerInch;
constexpr double kLeftOfDrawing = 75;

/// The text, shortened until it fits the width.
std::string Fitted(const Printer& page, const std::string& text, double width) {
  if (page.TextWidth(text) <= width) return text;
  std::string kept;
  for (std::string_view rest = text; !rest.empty();) {
    std::string longer = kept + std::string(TakeCharacter(rest).Bytes);
    if (page.TextWidth(longer + kEllipsis) > width) break;
    kept = std::move(longer);
  }
  return kept + kEllipsis;
}

struct PlacedRow {
  std::string Text;
  double Indent = 0;
};

/// Breaks a row between words if it is wider than the column.
std::vector<PlacedRow> Broken(const Printer& page, const std::string& row, double width) {
  std::vector<PlacedRow> lines;
  std::string line;
  const auto indent = [&] { return lines.empty() ? 0 : kIndent; };
  std::size_t begin = 0;
  while (begin < row.size()) {
    const std::size_t end = std::min(row.find(' ', begin), row.size());
    const std::string word = row.substr(begin, end - begin);
    std::string longer = line;
    if (!longer.empty()) longer += ' ';
    longer += word;
    if (!line.empty() && page.TextWidth(longer) > width - indent()) {
      lines.push_back({line, indent()});
      line = word;
    } else {
      line = longer;
    }
    begin = end + 1;
  }
  lines.push_back({Fitted(page, line, width - indent()), indent()});
  return lines;
}

using PlacedColumns = std::array<std::vector<PlacedRow>, 3>;

void PrintRows(Printer& page, const PlacedColumns& columns) {
  const double top = page.CurrentY;
  const double lefts[] = {0, page.ScaleWidth / 3, page.ScaleWidth / 1.5};
  for (std::size_t column = 0; column < columns.size(); ++column) {
    page.CurrentY = top;
    for (const PlacedRow& row : columns[column]) {
      page.CurrentX = lefts[column] + row.Indent;
      page.Print(row.Text);
    }
  }
}

}  // namespace

std::vector<std::string> Joined(const SheetColumns& columns) {
  std::vector<std::string> rows;
  for (const std::vector<std::string>& column : columns)
    rows.insert(rows.end(), column.begin(), column.end());
  return rows;
}

std::string FourDecimals(double degrees) {
  if (!std::isfinite(degrees)) return PlainText(degrees);
  std::string text = PlainText(RoundTo(degrees, 4));
  if (text.find_first_of(".E") == std::string::npos) text += ".0";
  if (text.starts_with("0.")) text.erase(0, 1);
  if (text.starts_with("-0.")) text.erase(1, 1);
  return text;
}

std::string LengthRow(const PrintContext& context, const std::string& label, double length) {
  return label + " = " + context.LengthText(length);
}

std::string LumberRow(const PrintContext& context, const std::string& label, double thickness, double depth) {
  return label + " = " + context.LengthText(thickness) + " x " + context.LengthText(depth);
}

std::string SlopeRow(const std::string& label, const std::string& pitch, double degrees) {
  return label + " = " + std::string(Trimmed(pitch)) + " (" + FourDecimals(degrees) + kDegreeSign + ")";
}

void PrintHeader(Printer& page, const PrintContext& context) {
  page.FontName = "Arial";
  page.FontSize = kTitleSize;
  page.FontBold = true;
  page.FontItalic = true;
  page.CurrentX = 0;
  page.CurrentY = 0;
  page.Print(kProduct);
  const double side = std::max(page.TextWidth(kProduct), page.TextWidth(context.Date)) + kColumnGap;
  const std::string name = Fitted(page, context.ProjectName, std::max(0.0, page.ScaleWidth - 2 * side));
  page.CurrentY = 0;
  page.CurrentX = page.ScaleWidth / 2 - page.TextWidth(name) / 2;
  page.Print(name);
  page.CurrentY = 0;
  page.CurrentX = page.ScaleWidth - page.TextWidth(context.Date);
  page.Print(context.Date);
}

void PrintSheet(Printer& page, const PrintContext& context, const DrawingRecorder& drawing,
                const std::string& title, const SheetColumns& columns) {
  PrintHeader(page, context);
  const double titleHeight = std::fabs(page.TextHeight());
  page.FontItalic = false;
  page.FontSize = kRowSize;
  const double rowHeight = std::fabs(page.TextHeight());
  PlacedColumns placed;
  std::size_t rows = 0;
  for (std::size_t column = 0; column < columns.size(); ++column) {
    for (const std::string& row : columns[column]) {
      for (PlacedRow& line : Broken(page, row, page.ScaleWidth / 3 - kColumnGap)) {
        placed[column].push_back(std::move(line));
      }
    }
    rows = std::max(rows, placed[column].size());
  }
  const double needed = 1.25 * titleHeight + static_cast<double>(rows) * rowHeight;
  const double raised = std::max(0.0, needed - kTwipsPerInch);

  page.FontItalic = true;
  page.FontSize = kTitleSize;
  const std::string shown = Fitted(page, title, page.ScaleWidth);
  page.CurrentY = page.AboveBottom(kTwipsPerInch + raised);
  page.CurrentX = page.ScaleWidth / 2 - page.TextWidth(shown) / 2;
  page.Print(shown);
  page.Line(page.ScaleLeft, page.CurrentY, page.ScaleWidth + kRulePast, page.CurrentY);
  page.CurrentY += page.TextHeight() / 4;

  page.FontItalic = false;
  page.FontSize = kRowSize;
  PrintRows(page, placed);

  const double height = std::fabs(page.ScaleHeight) - kAroundDrawing - raised;
  page.Play(drawing, {kLeftOfDrawing, -kAboveDrawing, page.ScaleWidth, height});
}

}  // namespace pitchcraft
