// Reads a project by replaying its values through the menus and the sheet.
#pragma once

#include <string>

#include "document/document.h"
#include "storage/ini_file.h"

namespace pitchcraft {

/// One reading. What the keys do is told by the table of project keys; their order is part of the product,
/// since a handler calculates with what has been read before.
class ProjectReader {
 public:
  ProjectReader(Document& document, const IniText& file) : document_(document), file_(file) {}

  /// Nothing on success; else why the project was refused, and the sheet stays as far as it got. Raises
  /// RunTimeError.
  const char* Read();

 private:
  /// The value of a key, or what stands for it where it is missing.
  std::string ValueOf(const ProjectKey& key) const;
  bool PickRoof(const std::string& text);
  void ReadKey(const ProjectKey& key, const std::string& text);
  void PutBackTwice();
  void ReadKneewall(const ProjectKey& key, const std::string& text, std::size_t row);
  void ReadGambrelSupport(const std::string& text);
  void TakeLocks();
  void FinishRoof();

  Document& document_;
  const IniText& file_;
};

}  // namespace pitchcraft
