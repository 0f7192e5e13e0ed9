// The boxes that speak to the person, and those that ask.
#pragma once

#include <QFileDialog>
#include <QWidget>
#include <functional>

#include "document/surroundings.h"

namespace pitchcraft {

class QtDialogs : public Dialogs {
 public:
  /// The window that the boxes stand over; none before it is there.
  void SetOwner(QWidget* owner) { owner_ = owner; }
  /// What runs when a form has changed the document and stays open.
  void OnApplied(std::function<void()> applied) { applied_ = std::move(applied); }
  void MsgBox(const std::string& title, const std::string& text) override;
  std::optional<std::string> OpenFile(const FileDialog& question) override;
  std::optional<std::string> SaveFile(const FileDialog& question) override;
  std::optional<std::string> Input(const InputBox& question) override;
  void ShowForm(const AnyForm& form) override;

 private:
  std::optional<std::string> AskForFile(const FileDialog& question, QFileDialog::AcceptMode mode);

  QWidget* owner_ = nullptr;
  std::function<void()> applied_;
};

}  // namespace pitchcraft
