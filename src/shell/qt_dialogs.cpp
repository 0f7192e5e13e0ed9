#include "shell/qt_dialogs.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

#include "shell/options_dialog.h"
#include "shell/small_dialogs.h"

namespace pitchcraft {
namespace {

/// "Rafter (*.pcf)|*.pcf|all files (*.*)|*.*" as the toolkit writes it. A pattern of any name with any
/// extension means any name here, too.
QStringList NameFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString caption = parts[i].section('(', 0, 0).trimmed();
    const QString pattern = parts[i + 1] == "*.*" ? QString("*") : parts[i + 1];
    filters << QString("%1 (%2)").arg(caption, pattern);
  }
  return filters;
}

struct FormDialogs {
  QWidget* owner;
  const std::function<void()>& applied;

  void operator()(IncrementForm* form) const { IncrementDialog(*form, owner).exec(); }
  void operator()(AboutForm* form) const { AboutDialog(*form, owner).exec(); }
  void operator()(DisclaimerForm* form) const { DisclaimerDialog(*form, owner).exec(); }
  void operator()(TipForm* form) const { TipDialog(*form, owner).exec(); }
  void operator()(OptionsForm* form) const { OptionsDialog(*form, applied, owner).exec(); }
};

}  // namespace

void QtDialogs::ShowForm(const AnyForm& form) { std::visit(FormDialogs{owner_, applied_}, form); }

void QtDialogs::MsgBox(const std::string& title, const std::string& text) {
  QWidget* const form = QApplication::activeModalWidget();  // the message may be about what stands there
  QMessageBox box(QMessageBox::Information, QString::fromStdString(title), QString::fromStdString(text),
                  QMessageBox::Ok, form != nullptr ? form : owner_);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

std::optional<std::string> QtDialogs::OpenFile(const FileDialog& question) {
  return AskForFile(question, QFileDialog::AcceptOpen);
}

std::optional<std::string> QtDialogs::SaveFile(const FileDialog& question) {
  return AskForFile(question, QFileDialog::AcceptSave);
}

std::optional<std::string> QtDialogs::AskForFile(const FileDialog& question, QFileDialog::AcceptMode mode) {
  QFileDialog dialog(owner_, QString::fromStdString(question.Title),
                     QString::fromStdString(question.Folder.string()));
  dialog.setAcceptMode(mode);
  dialog.setFileMode(question.MustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setNameFilters(NameFilters(question.Filter));
  dialog.setDefaultSuffix(QString::fromStdString(question.DefaultExtension));
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !question.AsksBeforeReplacing);
  if (!question.Name.empty()) dialog.selectFile(QString::fromStdString(question.Name));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().constFirst().toStdString();
}

std::optional<std::string> QtDialogs::Input(const InputBox& question) {
  bool accepted = false;
  const QString text = QInputDialog::getText(owner_, QString::fromStdString(question.Title),
                                             QString::fromStdString(question.Prompt), QLineEdit::Normal,
                                             QString::fromStdString(question.Name), &accepted);
  if (!accepted) return std::nullopt;
  return text.toStdString();
}

}  // namespace pitchcraft
