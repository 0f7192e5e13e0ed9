#include "shell/qt_dialogs.h"

#include <QMessageBox>

namespace pitchcraft {

void QtDialogs::MsgBox(const std::string& title, const std::string& text) {
  QMessageBox box(QMessageBox::Information, QString::fromStdString(title), QString::fromStdString(text),
                  QMessageBox::Ok, owner_);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace pitchcraft
