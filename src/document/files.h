// Projects and the File menu: new, open, save, the project's name, the recent files.
#pragma once

#include <string>

#include "document/document.h"

namespace pitchcraft {

/// Writes the project whole. False, and a message, where it could not be written.
bool SaveProject(Document& document, const std::string& path);
/// Brings the design to what the file holds. False, and a message, where the file is none or refused; the
/// design then stays as far as it got.
bool LoadProject(Document& document, const std::string& path);
/// The file becomes the present project, and its name the project's where it could be loaded.
bool OpenProject(Document& document, const std::string& path);

// Items of the File menu.
void NewProject(Document& document, int = 0);
void OpenProjectByDialog(Document& document, int = 0);
void SaveProjectAgain(Document& document, int = 0);
void SaveProjectByDialog(Document& document, int = 0);
void NameProject(Document& document, int = 0);
void OpenRecentProject(Document& document, int place);

}  // namespace pitchcraft
