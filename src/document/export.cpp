// The drawing shown, as a file for other programs.
#include "core/number_text.h"
#include "document/frm_document.h"
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
void frmDocument::mnuFileExportDXF_Click(int) {
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
void frmDocument::RequireDrawing() const {
  if (!DrawingExists) throw RunTimeError::NotAvailable();
  if (!board.MetaCanvas.IsClosed() || board.MetaCanvas.Operations().empty()) throw RunTimeError::Overflow();
}

void frmDocument::ExportDxf(const std::string& path) {
  RequireDrawing();
  CDxfWriter writer;
  writer.FileName = path;
  SetUpWriter(writer);
  writer.SetDimensionPoints(board.DimensionPoints, false);
  const PageOutput output = OutputOfPage(OutputForm::kDxf);
  if (output.Drawing != Drawing::kNone) {
    const DrawingForms& forms = FormsOf(output.Drawing);
    if (forms.Export == nullptr) throw RunTimeError::NotAvailable();
    WithOutputRafter(output, [&](const CRafter& rafter) {
      Try(forms.ExportName, [&] { forms.Export(writer, board, rafter, OutputContext(output.Rafter)); });
    });
  }
  writer.Save();
}

void frmDocument::SetUpWriter(CDxfWriter& writer) const {
  const Single size = Imperial() ? DXFTextsize : DXFMetricTextsize;
  const bool namesOnly = RoofType == roof::kBay && BayEditMode == 0;  // the diagram of a bay measures nothing
  writer.Units = Imperial() ? DxfUnits::kInch : DxfUnits::kMillimetre;
  writer.LengthText = board.LengthText;
  writer.TextHeight = size;
  writer.DimTextHeight = namesOnly ? Single(0) : size;
  writer.DimArrowSize = size;
  writer.DimExtension = size;
  writer.DimIncrement = size;
  writer.DimOffset = size;
  writer.DimColor = DXFDimcolor;
}

// One file, always of the same name: each export replaces the last one.
void frmDocument::mnuFileExportMetafile_Click(int) {
  Try("mnuFileExportMetafile_Click", [&] { ExportMetafile(surroundings_.programFolder / kMetafileName); });
}

void frmDocument::ExportMetafile(const std::filesystem::path& path) const {
  RequireDrawing();
  const CMetaFile& canvas = board.MetaCanvas;
  MetafileFrame frame;
  frame.Left = ToLong(canvas.MinX());
  frame.Top = ToLong(canvas.MinY());
  frame.Width = ToLong(canvas.MaxX() - canvas.MinX());
  frame.Height = ToLong(canvas.MaxY() - canvas.MinY());
  frame.BackColor = static_cast<DrawColor>(BackColor);
  MetaSave(path, canvas.Finished(), frame);
}

}  // namespace pitchcraft
