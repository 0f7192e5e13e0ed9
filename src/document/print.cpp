// The page shown, on paper.
#include "document/document.h"
#include "output/printer.h"

namespace pitchcraft {
namespace {

constexpr DrawColor kWhite = 0xFFFFFF;
constexpr DrawColor kBlack = 0;
constexpr int kPrintsInColor = 2;
constexpr const char* kPrint = "mnuFilePrint_Click";

}  // namespace

void Document::mnuFilePageSetup_Click(int) {
  Try("mnuFilePageSetup_Click", [&] {
    if (surroundings_.printer != nullptr) surroundings_.printer->ShowSetup();
  });
}

PageOutput Document::OutputOfPage(OutputForm form) const {
  return OutputOf(form, RoofType, CurrentTab,
                  {SlopesDiffer(), BayEditMode == 0, Rafter1.RafterType == RafterType::kCenterLedger});
}

void Document::mnuFilePrint_Click(int) {
  if (surroundings_.printer == nullptr) return MsgBox("There is no printer.", kPrint);
  const PageOutput output = OutputOfPage(OutputForm::kPaper);
  if (output.Drawing == Drawing::kNone) return;
  const DrawingForms& forms = FormsOf(output.Drawing);
  if (forms.Print == nullptr) return MsgBox("This page cannot be printed yet.", forms.PrintName);
  WithOutputRafter(output,
                   [&](const Rafter& rafter) { Try(forms.PrintName, [&] { PrintPage(output, rafter); }); });
}

PrintContext Document::OutputContext(int rafter) const {
  const std::string today = surroundings_.printer == nullptr ? std::string() : surroundings_.printer->Today();
  return {Context(), sheet, rafter == 2 ? 1U : 0U, ProjectName, today, board.LengthText};
}

/// White lines, made for a dark screen, come out black; on a printer without colour, or where the person
/// wants it, everything does.
PrintContext Document::PaperContext(int rafter, bool color) const {
  PrintContext context = OutputContext(rafter);
  DrawingContext& drawing = context.Drawing;
  drawing.BackColor = kWhite;
  drawing.LineWidth = LineWidth;
  if (drawing.LineColor == kWhite || !color) drawing.LineColor = kBlack;
  if (!color) drawing.DimColor = drawing.TextColor = kBlack;
  return context;
}

// The sheet has a board of its own: the drawing on screen stays as it is.
void Document::PrintPage(const PageOutput& output, const Rafter& rafter) {
  Printer page(surroundings_.printer->NextPaper(!Imperial()), meter);
  page.ScaleHeight = -page.ScaleHeight;
  const bool color = page.ColorMode == kPrintsInColor && !PrintAllBlack;
  DraftingBoard paper(meter, board.LengthText);
  paper.DrawScale = DrawScale();
  paper.TextFlip = RotateFonts ? -1 : 1;
  paper.Recorder.SetCanvas({page.ScaleWidth, page.ScaleHeight, true});
  FormsOf(output.Drawing).Print(page, paper, rafter, PaperContext(output.Rafter, color));
  surroundings_.printer->Send(page.EndDoc(), ProjectName);
}

}  // namespace pitchcraft
