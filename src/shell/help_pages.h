// The pages of help: where they are, what they are called, which of them hold a word.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace pitchcraft {

struct HelpPage {
  QString file;  ///< "60.html"
  QString title;
  QString text;  ///< without its marks, for searching
};

/// The first folder that holds pages: beside the program, in the data folder that it was installed with, in
/// the source tree whose build folder it stands in. Empty where none does.
QString HelpFolder(const QString& programFolder);

class HelpPages {
 public:
  /// Reads every page of the folder; a folder that is not there has none.
  explicit HelpPages(const QString& folder);

  const QString& Folder() const { return folder_; }
  /// By title, the contents first.
  const std::vector<HelpPage>& Pages() const { return pages_; }
  bool Has(const QString& file) const;
  /// The pages that hold every word, in any case and also as the beginning of a longer one; those with a word
  /// in the title first.
  std::vector<const HelpPage*> Find(const QString& words) const;

 private:
  QString folder_;
  std::vector<HelpPage> pages_;
};

}  // namespace pitchcraft
