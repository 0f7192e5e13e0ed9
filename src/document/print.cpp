#include "document/print.h"

#include "design/questions.h"
#include "document/figures.h"
#include "output/printer.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr DrawColor kWhite = 0xFFFFFF;
constexpr DrawColor kBlack = 0;
constexpr int kPrintsInColor = 2;
constexpr const char* kPrint = "mnuFilePrint_Click";

/// White lines, made for a dark screen, come out black; on a printer without color, or where the person
/// wants it, everything does.
PrintContext PaperContext(const Document& document, bool color) {
  PrintContext context = OutputContext(document);
  DrawingContext& drawing = context.Drawing;
  drawing.BackColor = kWhite;
  drawing.LineWidth = document.preferences.LineWidth;
  if (drawing.LineColor == kWhite || !color) drawing.LineColor = kBlack;
  if (!color) drawing.DimColor = drawing.TextColor = kBlack;
  return context;
}

// The sheet has a board of its own: the figure on screen stays as it is.
void Print(const Document& document, PrintService& printer, const FigureForms& forms) {
  const Design& design = document.design;
  Printer page(printer.NextPaper(design.Metric), document.Meter());
  page.ScaleHeight = -page.ScaleHeight;
  const bool color = page.ColorMode == kPrintsInColor && !document.PrintAllBlack;
  DraftingBoard paper(document.Meter(), document.Board().LengthText);
  paper.DrawScale = DrawScale(design);
  paper.TextFlip = document.preferences.RotateFonts ? -1 : 1;
  paper.Recorder.SetCanvas({page.ScaleWidth, page.ScaleHeight, true});
  forms.Print(page, paper, RoofOf(design).RecordOn(design, PageShown(design)), PaperContext(document, color));
  printer.Send(page.EndDoc(), document.project.Name);
}

}  // namespace

void SetUpPage(Document& document, int) {
  document.Guard("mnuFilePageSetup_Click", [&] {
    if (document.Around().printer != nullptr) document.Around().printer->ShowSetup();
  });
}

PrintContext OutputContext(const Document& document) {
  const Design& design = document.design;
  PrintService* printer = document.Around().printer;
  PrintContext context;
  context.Drawing = ContextOf(design, document.preferences);
  context.Rear = FigureShown(design).Record == 2;
  context.ShowsRidge = design.sheet.Ridge.Visible;
  context.Spacing = design.sheet.Spacing.Text();
  context.ProjectName = document.project.Name;
  if (printer != nullptr) context.Date = printer->Today();
  context.LengthText = document.Board().LengthText;
  return context;
}

void PrintPageShown(Document& document, int) {
  PrintService* printer = document.Around().printer;
  if (printer == nullptr) return document.Tell("There is no printer.", kPrint);
  const FigureForms* forms = FormsOf(FigureShown(document.design).Kind);
  if (forms == nullptr) return;
  if (forms->Print == nullptr) return document.Tell("This page cannot be printed yet.", forms->PrintName);
  document.Guard(forms->PrintName, [&] { Print(document, *printer, *forms); });
}

}  // namespace pitchcraft
