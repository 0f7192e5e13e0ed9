// A started document with a printer that keeps its sheets.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "answering_dialogs.h"
#include "support/document_api.h"
#include "support/scratch_folder.h"

namespace pitchcraft {

class RecordingPrinter final : public PrintService {
 public:
  void ShowSetup() override { ++setups; }
  Paper NextPaper(bool metric) override {
    Paper paper = metric ? kA4Paper : kLetterPaper;
    paper.Color = color;
    return paper;
  }
  void Send(const PrintedPage& page, const std::string& name) override {
    if (broken) throw RunTimeError::PrinterError();
    sheets.push_back(page);
    names.push_back(name);
  }
  std::string Today() override { return "11/21/26"; }

  bool color = true;
  bool broken = false;
  int setups = 0;
  std::vector<PrintedPage> sheets;
  std::vector<std::string> names;
};

/// A text as it stands on a sheet: twips from the left upper corner of the printable area, y downward.
struct SheetText {
  double X = 0;
  double Top = 0;
  std::string Text;
  TextOp Op;
};

class PaperTest : public ::testing::Test {
 protected:
  PaperTest() { Start(document); }

  void Type(const char* name, const char* text) { Expect(actions.Type(name, text)); }
  void Pick(const char* name, const char* item) { Expect(actions.Pick(name, item)); }
  void Check(const char* name, bool on) { Expect(actions.Check(name, on)); }
  void Click(const char* name) { Expect(actions.Click(name)); }
  void Page(int page) { Expect(actions.Page("VSTab(0)", page)); }
  static void Expect(const Refusal& refusal) { EXPECT_FALSE(refusal) << refusal.value_or(""); }

  /// The sheet that the page gives.
  const PrintedPage& Print() {
    const std::size_t before = printer.sheets.size();
    Click("mnuFilePrint");
    EXPECT_EQ(printer.sheets.size(), before + 1) << ::testing::PrintToString(dialogs.messages);
    if (printer.sheets.empty()) printer.sheets.emplace_back();
    return printer.sheets.back();
  }

  /// What was written straight onto the sheet, in order.
  static std::vector<SheetText> RowsOf(const PrintedPage& sheet) {
    std::vector<SheetText> rows;
    for (const PageLayer& layer : sheet.Layers) {
      if (layer.Map.ScaleX != 1) continue;
      for (const DrawOp& operation : layer.Drawing) {
        if (const auto* text = std::get_if<TextOp>(&operation)) {
          rows.push_back({double(text->At.X), text->At.Y * layer.Map.ScaleY, text->Text, *text});
        }
      }
    }
    return rows;
  }

  /// The operations of the drawing on the sheet.
  static const PageLayer& FigureOf(const PrintedPage& sheet) {
    for (const PageLayer& layer : sheet.Layers) {
      if (layer.Map.ScaleX != 1) return layer;
    }
    static const PageLayer kNone;
    ADD_FAILURE() << "no drawing";
    return kNone;
  }

  pitchcraft::testing::ScratchFolder folder;
  AnsweringDialogs dialogs;
  MemoryStore store;
  RecordingPrinter printer;
  Document document{{dialogs, store, folder.Path(), &printer}};
  Actions actions{document};
};

}  // namespace pitchcraft
