#include "gallery/gallery.h"

#include <QApplication>
#include <QFile>
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>

namespace pitchcraft {
namespace {

constexpr int kLook = 20;  // milliseconds between looks for a dialog

[[noreturn]] void GiveUp(const QString& why) {
  std::fprintf(stderr, "gallery: %s\n", qPrintable(why));
  std::_Exit(1);
}

/// "Hip: Layout" becomes hip-layout.png.
QString FileOf(const QString& caption) {
  QString name;
  for (const QChar sign : caption.toLower()) {
    if (sign.isLetterOrNumber()) {
      name += sign;
    } else if (!name.isEmpty() && !name.endsWith('-')) {
      name += '-';
    }
  }
  while (name.endsWith('-')) name.chop(1);
  return name + ".png";
}

}  // namespace

Gallery::Gallery(const QString& folder) : folder_(folder) {
  if (!folder_.mkpath(".")) GiveUp("the folder " + folder + " cannot be created");
}

void Gallery::Heading(const QString& text) { lines_ << "## " + text << ""; }

void Gallery::Take(QWidget& widget, const QString& caption) {
  QApplication::processEvents();
  const QString name = FileOf(caption);
  if (!widget.grab().save(folder_.filePath(name), "PNG", 0)) GiveUp(name + " cannot be written");
  lines_ << QString("![%1](%2/%3)").arg(caption, folder_.dirName(), name) << "" << caption << "";
  ++count_;
}

void Gallery::TakeDialog(const QString& caption, const std::function<void()>& open,
                         const std::function<void(QDialog&)>& take) {
  bool came = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    look.stop();
    came = true;
    if (take) {
      take(*dialog);
    } else {
      Take(*dialog, caption);
    }
    dialog->reject();
  });
  look.start(kLook);
  open();
  if (!came) GiveUp("no dialog opened for " + caption);
}

void Gallery::TakeMenu(const QString& caption, const std::function<void()>& open) {
  open();
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (menu == nullptr) GiveUp("no menu opened for " + caption);
  Take(*menu, caption);
  menu->close();
}

void Gallery::WritePage(const QString& page) const {
  QFile file(page);
  const QByteArray text =
      "# Gallery\n\n"
      "Every page that has a drawing, for every roof type, and every dialog. `./gallery` takes these\n"
      "pictures again. The dialogs for files and printing belong to the desktop and are not shown.\n\n" +
      lines_.join('\n').trimmed().toUtf8() + "\n";
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
    GiveUp(page + " cannot be written");
  }
}

}  // namespace pitchcraft
