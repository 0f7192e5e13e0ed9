// The drawing shown, as a file for other programs.
#include "core/number_text.h"
#include "document/document.h"
#include "files/file_names.h"
#include "output/dxf_writer.h"
#include "output/placeable_metafile.h"

namespace pitchcraft {
namespace {

constexpr const char* kExtension = "dxf";
constexpr const char* kFilter = "Rafter (*.dxf)|*.dxf|all files (*.*)|*.*";
constexpr const char* kMetafileName = "export.wmf";

}  // namespace

// The exported file becomes the document's file, so that Save then asks for no name and replaces it.
void Document::mnuFileExportDXF_Click(int) {
  const PageOutput output = OutputOfPage(OutputForm::kDxf);
  if (output.Drawing != Drawing::kNone && FormsOf(output.Drawing).Export == nullptr)
    return MsgBox("This page cannot be exported yet.", FormsOf(output.Drawing).ExportName);
  Try("mnuFileExportDXF_Click", [&] {
    const auto answer = surroundings_.dialogs.SaveFile(
        {"Export DXF", surroundings_.programFolder, "", kExtension, kFilter, false, true});
    const std::string path(Trimmed(answer.value_or("")));
    if (path.empty()) return;
    ProjectFile = WithExtension(path, kExtension);
    ExportDxf(ProjectFile);
  });
}

/// A page without a drawing has nothing to write, nor has one whose figures are infinite.
void Document::RequireDrawing() const {
  if (!DrawingExists) throw RunTimeError::NotAvailable();
  if (!board.Recorder.IsClosed() || board.Recorder.Operations().empty()) throw RunTimeError::Overflow();
}

void Document::ExportDxf(const std::string& path) {
  RequireDrawing();
  DxfWriter writer;
  writer.FileName = path;
  SetUpWriter(writer);
  writer.SetDimensionPoints(board.DimensionPoints, false);
  const PageOutput output = OutputOfPage(OutputForm::kDxf);
  if (output.Drawing != Drawing::kNone) {
    const DrawingForms& forms = FormsOf(output.Drawing);
    if (forms.Export == nullptr) throw RunTimeError::NotAvailable();
    WithOutputRafter(output, [&](const Rafter& rafter) {
      Try(forms.ExportName, [&] { forms.Export(writer, board, rafter, OutputContext(output.Rafter)); });
    });
  }
  writer.Save();
}

void Document::SetUpWriter(DxfWriter& writer) const {
  const Single size = Imperial() ? DxfTextSize : DxfMetricTextSize;
  const bool namesOnly = RoofType == roof::kBay && BayEditMode == 0;  // the diagram of a bay measures nothing
  writer.Units = Imperial() ? DxfUnits::kInch : DxfUnits::kMillimetre;
  writer.LengthText = board.LengthText;
  writer.TextHeight = size;
  writer.DimTextHeight = namesOnly ? Single(0) : size;
  writer.DimArrowSize = size;
  writer.DimExtension = size;
  writer.DimIncrement = size;
  writer.DimOffset = size;
  writer.DimColor = DxfDimColor;
}

// One file, always of the same name: each export replaces the last one.
void Document::mnuFileExportMetafile_Click(int) {
  Try("mnuFileExportMetafile_Click", [&] { ExportMetafile(surroundings_.programFolder / kMetafileName); });
}

void Document::ExportMetafile(const std::filesystem::path& path) const {
  RequireDrawing();
  const DrawingRecorder& canvas = board.Recorder;
  MetafileFrame frame;
  frame.Left = ToLong(canvas.MinX());
  frame.Top = ToLong(canvas.MinY());
  frame.Width = ToLong(canvas.MaxX() - canvas.MinX());
  frame.Height = ToLong(canvas.MaxY() - canvas.MinY());
  frame.BackColor = static_cast<DrawColor>(BackColor);
  SaveMetafile(path, canvas.Finished(), frame);
}

}  // namespace pitchcraft
