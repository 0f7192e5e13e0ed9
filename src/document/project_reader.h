// Reads a project by replaying its values through the menus and the sheet.
#pragma once

#include <string>

#include "document/document.h"
#include "storage/ini_file.h"
#include "storage/project_keys.h"

namespace pitchcraft {

/// One reading. What the keys do is told by the table of project keys; their order is part of the product,
/// since a step calculates with what has been read before.
class ProjectReader {
 public:
  ProjectReader(Document& document, Reply& reply, const IniText& file)
      : document_(document), design_(document.design), reply_(reply), file_(file) {}

  /// Null on success; else why the project was refused, and the design stays as far as it got. Raises
  /// RunTimeError.
  const char* Read();

 private:
  /// The value of a key, or what it counts as where it is missing.
  std::string ValueOf(const ProjectKey& key) const;
  bool PickRoof(const std::string& text);
  void ReadKey(const ProjectKey& key, const std::string& text);
  void PutBackTwice();
  void ReadKneewall(const ProjectKey& key, const std::string& text, std::size_t row);
  void ReadSupport(const std::string& text);
  void TakeLocks();

  Document& document_;
  Design& design_;
  Reply& reply_;
  const IniText& file_;
  Roof code_ = Roof::kGable;  ///< as the file tells it
};

}  // namespace pitchcraft
