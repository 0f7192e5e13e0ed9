// A folder of screenshots and the page that shows them.
#pragma once

#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QStringList>
#include <functional>

namespace pitchcraft {

/// Each shot becomes a PNG file in the folder and an entry on the page. If a picture cannot be written, the
/// program ends with a message, because half a gallery is no use.
class Gallery {
 public:
  explicit Gallery(const QString& folder);

  void Heading(const QString& text);
  /// Takes a widget as it is; it need not be on a screen.
  void Take(QWidget& widget, const QString& caption);
  /// Runs `open`, which waits in a dialog, and takes the dialog with `take`, or in a single shot without it.
  /// The dialog is then closed as Esc would close it.
  void TakeDialog(const QString& caption, const std::function<void()>& open,
                  const std::function<void(QDialog&)>& take = {});
  /// Runs `open`, which opens a menu, and takes the menu.
  void TakeMenu(const QString& caption, const std::function<void()>& open);

  /// Writes `page`, a file next to the folder, with every shot in order.
  void WritePage(const QString& page) const;
  int Count() const { return count_; }

 private:
  QDir folder_;
  QStringList lines_;
  int count_ = 0;
};

}  // namespace pitchcraft
