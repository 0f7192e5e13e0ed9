#include "document/output_files.h"

#include "core/number_text.h"
#include "design/questions.h"
#include "document/figures.h"
#include "document/print.h"
#include "files/file_names.h"
#include "output/dxf_writer.h"
#include "output/placeable_metafile.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr const char* kExtension = "dxf";
constexpr const char* kFilter = "Rafter (*.dxf)|*.dxf|all files (*.*)|*.*";
constexpr const char* kMetafileName = "export.wmf";

/// A page without a figure has nothing to write, nor has one whose figures are infinite.
void RequireFigure(const Document& document) {
  const DrawingRecorder& recorder = document.Board().Recorder;
  if (!document.HasFigure()) throw RunTimeError::NotAvailable();
  if (!recorder.IsClosed() || recorder.Operations().empty()) throw RunTimeError::Overflow();
}

void SetUpWriter(DxfWriter& writer, const Document& document) {
  const Design& design = document.design;
  const Preferences& preferences = document.preferences;
  const Single size = design.Metric ? preferences.DxfMetricTextSize : preferences.DxfTextSize;
  // The diagram of a bay measures nothing.
  const bool namesOnly = FigureShown(design).Kind == FigureKind::kBayDiagram;
  writer.Units = design.Metric ? DxfUnits::kMillimetre : DxfUnits::kInch;
  writer.LengthText = document.Board().LengthText;
  writer.TextHeight = size;
  writer.DimTextHeight = namesOnly ? Single(0) : size;
  writer.DimArrowSize = size;
  writer.DimExtension = size;
  writer.DimIncrement = size;
  writer.DimOffset = size;
  writer.DimColor = preferences.DxfDimColor;
}

}  // namespace

// The exported file becomes the document's file, so that Save then asks for no name and replaces it.
void ExportDxfByDialog(Document& document, int) {
  const FigureForms* forms = FormsOf(FigureShown(document.design).Kind);
  if (forms != nullptr && forms->Export == nullptr)
    return document.Tell("This page cannot be exported yet.", forms->ExportName);
  document.Guard("mnuFileExportDXF_Click", [&] {
    const auto answer = document.Around().dialogs.SaveFile(
        {"Export DXF", document.Around().programFolder, "", kExtension, kFilter, false, true});
    const std::string path(Trimmed(answer.value_or("")));
    if (path.empty()) return;
    document.project.File = WithExtension(path, kExtension);
    ExportDxf(document, document.project.File);
  });
}

void ExportDxf(Document& document, const std::string& path) {
  RequireFigure(document);
  const Design& design = document.design;
  DxfWriter writer;
  writer.FileName = path;
  SetUpWriter(writer, document);
  writer.SetDimensionPoints(document.Board().DimensionPoints, false);
  if (const FigureForms* forms = FormsOf(FigureShown(design).Kind)) {
    if (forms->Export == nullptr) throw RunTimeError::NotAvailable();
    document.Guard(forms->ExportName, [&] {
      forms->Export(writer, document.Board(), RoofOf(design).RecordOn(design, PageShown(design)),
                    OutputContext(document));
    });
  }
  writer.Save();
}

// One file, always of the same name: each export replaces the last one.
void ExportMetafileByMenu(Document& document, int) {
  document.Guard("mnuFileExportMetafile_Click",
                 [&] { ExportMetafile(document, document.Around().programFolder / kMetafileName); });
}

void ExportMetafile(const Document& document, const std::filesystem::path& path) {
  RequireFigure(document);
  const DrawingRecorder& recorder = document.Board().Recorder;
  MetafileFrame frame;
  frame.Left = ToLong(recorder.MinX());
  frame.Top = ToLong(recorder.MinY());
  frame.Width = ToLong(recorder.MaxX() - recorder.MinX());
  frame.Height = ToLong(recorder.MaxY() - recorder.MinY());
  frame.BackColor = static_cast<DrawColor>(document.preferences.BackColor);
  SaveMetafile(path, recorder.Finished(), frame);
}

}  // namespace pitchcraft
