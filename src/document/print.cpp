// The page shown, on paper.
#include "document/frm_document.h"
#include "output/printer.h"

namespace pitchcraft {
namespace {

constexpr DrawColor kWhite = 0xFFFFFF;
constexpr DrawColor kBlack = 0;
constexpr int kPrintsInColor = 2;
constexpr const char* kPrint = "mnuFilePrint_Click";

}  // namespace

void frmDocument::mnuFilePageSetup_Click(int) {
  Try("mnuFilePageSetup_Click", [&] {
    if (surroundings_.printer != nullptr) surroundings_.printer->ShowSetup();
  });
}

PageOutput frmDocument::OutputOfPage() const {
  return OutputOf(RoofType, CurrentTab, {SlopesDiffer(), BayEditMode == 0});
}

/// `work` reports its own errors.
template <typename Work>
void frmDocument::WithOutputRafter(const PageOutput& output, Work work) {
  CRafter& rafter = output.Rafter == 2 ? Rafter2 : Rafter1;
  if (output.TypeBefore >= 0) rafter.RafterType = static_cast<RafterType>(output.TypeBefore);
  work(rafter);
  if (output.TypeAfter >= 0) rafter.RafterType = static_cast<RafterType>(output.TypeAfter);
}

void frmDocument::mnuFilePrint_Click(int) {
  if (surroundings_.printer == nullptr) return MsgBox("There is no printer.", kPrint);
  const PageOutput output = OutputOfPage();
  if (output.Print == Drawing::kNone) return;
  const DrawingForms& forms = FormsOf(output.Print);
  if (forms.Print == nullptr) return MsgBox("This page cannot be printed yet.", forms.PrintName);
  WithOutputRafter(output,
                   [&](const CRafter& rafter) { Try(forms.PrintName, [&] { PrintPage(output, rafter); }); });
}

/// White lines, made for a dark screen, come out black; on a printer without colour, or where the person
/// wants it, everything does.
PrintContext frmDocument::PaperContext(int rafter, bool color) const {
  PrintContext context{
      Context(), sheet, rafter == 2 ? 1U : 0U, ProjectName, surroundings_.printer->Today(), board.LengthText};
  DrawingContext& drawing = context.Drawing;
  drawing.BackColor = kWhite;
  drawing.LineWidth = LineWidth;
  if (drawing.LineColor == kWhite || !color) drawing.LineColor = kBlack;
  if (!color) drawing.DimColor = drawing.TextColor = kBlack;
  return context;
}

// The sheet has a board of its own: the drawing on screen stays as it is.
void frmDocument::PrintPage(const PageOutput& output, const CRafter& rafter) {
  Printer page(surroundings_.printer->NextPaper(!Imperial()), meter);
  page.ScaleHeight = -page.ScaleHeight;
  const bool color = page.ColorMode == kPrintsInColor && !PrintAllBlack;
  DraftingBoard paper(meter, board.LengthText);
  paper.DrawScale = DrawScale();
  paper.TextFlip = RotateFonts ? -1 : 1;
  paper.MetaCanvas.SetCanvas({page.ScaleWidth, page.ScaleHeight, true});
  FormsOf(output.Print).Print(page, paper, rafter, PaperContext(output.Rafter, color));
  surroundings_.printer->Send(page.EndDoc(), ProjectName);
}

}  // namespace pitchcraft
