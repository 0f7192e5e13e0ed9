// The window that shows the pages of help.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QTextBrowser>
#include <QWidget>

#include "shell/help_pages.h"

namespace pitchcraft {

class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  /// There are pages in the folder.
  explicit HelpWindow(const QString& folder);

  /// False where there is no such page; the window then stays as it is.
  bool ShowPage(const QString& file);
  void ShowSearch();
  /// Comes to the front.
  void Raise();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Search(const QString& words);
  void ListPages();
  void FitWords();
  void Choose(const QListWidgetItem& item);

  HelpPages pages_;
  QLineEdit* search_;
  QListWidget* list_;
  QLabel* count_;
  QSplitter* parts_;
  QTextBrowser* view_;
};

}  // namespace pitchcraft
