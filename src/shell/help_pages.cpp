#include "shell/help_pages.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>

namespace pitchcraft {
namespace {

constexpr const char* kContents = "index.html";

HelpPage ReadPage(const QDir& folder, const QString& name) {
  QFile file(folder.filePath(name));
  if (!file.open(QIODevice::ReadOnly)) return {name, {}, {}};
  QTextDocument page;
  page.setHtml(QString::fromUtf8(file.readAll()));
  return {name, page.metaInformation(QTextDocument::DocumentTitle), page.toPlainText()};
}

bool Holds(const QString& text, const QString& word) {
  const QRegularExpression begins(
      "\\b" + QRegularExpression::escape(word),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
  return begins.match(text).hasMatch();
}

}  // namespace

QString HelpFolder(const QString& programFolder) {
  for (const QString& folder : {programFolder + "/help", programFolder + "/../share/pitchcraft/help",
                                programFolder + "/../../docs/help"}) {
    if (QFile::exists(folder + '/' + kContents)) return QDir::cleanPath(folder);
  }
  return {};
}

HelpPages::HelpPages(const QString& folder) : folder_(folder) {
  if (folder.isEmpty()) return;
  const QDir place(folder);
  for (const QString& name : place.entryList({"*.html"}, QDir::Files))
    pages_.push_back(ReadPage(place, name));
  std::sort(pages_.begin(), pages_.end(), [](const HelpPage& left, const HelpPage& right) {
    const auto rank = [](const HelpPage& page) { return page.file == kContents ? 0 : 1; };
    return rank(left) != rank(right) ? rank(left) < rank(right) : left.title < right.title;
  });
}

bool HelpPages::Has(const QString& file) const {
  return std::any_of(pages_.begin(), pages_.end(), [&](const HelpPage& page) { return page.file == file; });
}

std::vector<const HelpPage*> HelpPages::Find(const QString& words) const {
  const QStringList wanted = words.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
  std::vector<const HelpPage*> found;
  if (wanted.isEmpty()) return found;
  for (const HelpPage& page : pages_) {
    const bool all = std::all_of(wanted.begin(), wanted.end(), [&](const QString& word) {
      return Holds(page.title, word) || Holds(page.text, word);
    });
    if (all) found.push_back(&page);
  }
  std::stable_partition(found.begin(), found.end(), [&](const HelpPage* page) {
    return std::any_of(wanted.begin(), wanted.end(),
                       [&](const QString& word) { return Holds(page->title, word); });
  });
  return found;
}

}  // namespace pitchcraft
