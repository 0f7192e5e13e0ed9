// A folder of screenshots and the page that shows them.
#pragma once

#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QStringList>
#include <functional>

namespace pitchcraft {

/// Each shot becomes a PNG file in the folder and an entry of the page. A picture that cannot be written ends
/// the program with a message: half a gallery is none.
class Gallery {
 public:
  explicit Gallery(const QString& folder);

  void Heading(const QString& text);
  /// A widget as it stands; it need not be on a screen.
  void Take(QWidget& widget, const QString& caption);
  /// Runs `open`, which waits in a dialog, and takes that as `take` says: by one shot unless it has more
  /// pages. The dialog is closed as Esc would close it.
  void TakeDialog(const QString& caption, const std::function<void()>& open,
                  const std::function<void(QDialog&)>& take = {});
  /// Runs `open`, after which a menu is open, and takes that.
  void TakeMenu(const QString& caption, const std::function<void()>& open);

  /// Writes `page`, which stands beside the folder, with every shot in order.
  void WritePage(const QString& page) const;
  int Count() const { return count_; }

 private:
  QDir folder_;
  QStringList lines_;
  int count_ = 0;
};

}  // namespace pitchcraft
