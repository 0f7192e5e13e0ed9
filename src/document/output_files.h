// The figure shown, as a file for other programs.
#pragma once

#include <filesystem>
#include <string>

#include "document/document.h"

namespace pitchcraft {

void ExportDxfByDialog(Document& document, int = 0);
void ExportMetafileByMenu(Document& document, int = 0);

/// Write the figure shown. Raise RunTimeError, the old file untouched; an error of a part of a DXF drawing
/// is told, and the rest is written.
void ExportDxf(Document& document, const std::string& path);
void ExportMetafile(const Document& document, const std::filesystem::path& path);

}  // namespace pitchcraft
