// One hip roof with the fields of its sheet, for the tests of prints and files.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "drawings/printed_sheet.h"
#include "hip_case.h"
#include "output/dxf_writer.h"
#include "output/printer.h"

namespace pitchcraft::testing {

class HipOutputs {
 public:
  explicit HipOutputs(const HipCase& c, DrawnHip::Procedure draw = &DrawHipLayout)
      : drawn(c, draw), metric_(c.Metric) {
    context.Drawing = drawn.context;
    context.Spacing = c.Metric ? "400" : "16\"";
    context.ProjectName = "Barn";
    context.Date = "1/2/2003";
    context.LengthText = drawn.board.LengthText;
  }

  /// The file written by an export.
  template <typename Export>
  std::string Exported(const Export& procedure, double textHeight = 2) {
    DxfWriter writer;
    writer.Units = metric_ ? DxfUnits::kMillimetre : DxfUnits::kInch;
    writer.LengthText = drawn.board.LengthText;
    writer.TextHeight = writer.DimTextHeight = writer.DimArrowSize = writer.DimExtension =
        writer.DimIncrement = writer.DimOffset = textHeight;
    writer.DimColor = 12;
    procedure(writer, drawn.board, drawn.rafter, context);
    return writer.Bytes();
  }

  /// The texts printed beside the drawing, each with its left upper corner, y downward.
  template <typename Print>
  std::vector<TextOp> Printed(const Print& procedure, const Paper& paper = kLetterPaper) {
    Printer page(paper, meter_);
    page.ScaleHeight = -page.ScaleHeight;
    DraftingBoard board(meter_, drawn.board.LengthText);
    board.DrawScale = drawn.board.DrawScale;
    board.Recorder.SetCanvas({page.ScaleWidth, page.ScaleHeight, true});
    context.Drawing.LineWidth = 1;
    procedure(page, board, drawn.rafter, context);
    Figure = board.Recorder.Finished();
    std::vector<TextOp> texts;
    const PrintedPage printed = page.EndDoc();
    for (const DrawOp& operation : printed.Layers.at(0).Drawing) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(*text);
    }
    return texts;
  }

  DrawnHip drawn;
  PrintContext context;
  Recording Figure;  ///< of the last sheet

 private:
  ArialMeter meter_;
  bool metric_;
};

/// The text before " = " in each row.
inline std::vector<std::string> LabelsOf(const std::vector<std::string>& rows) {
  std::vector<std::string> labels;
  for (const std::string& row : rows) labels.push_back(row.substr(0, row.find(" = ")));
  return labels;
}

inline std::string ValueOf(const std::vector<std::string>& rows, const std::string& label) {
  for (const std::string& row : rows) {
    if (row.starts_with(label + " = ")) return row.substr(label.size() + 3);
  }
  return "-";
}

}  // namespace pitchcraft::testing
