// The options as a dialog with tabs. It changes the copies of its form; Apply and OK hand them over.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QTabWidget>
#include <functional>

#include "document/options_form.h"
#include "shell/color_grid.h"

namespace pitchcraft {

class ColorPreview;

class OptionsDialog : public QDialog {
 public:
  /// `applied` runs after the copies were handed over, so that the window behind shows them.
  OptionsDialog(OptionsForm& form, std::function<void()> applied, QWidget* parent);

 private:
  QWidget* MakeColorPage();
  QWidget* MakePrintPage();
  QWidget* MakeDxfPage();
  QCheckBox* MakeBox(const char* name, const char* caption, const char* hint, bool& value);
  QLayout* MakeButtons();
  void ShowColors();
  void ShowTextsize();
  void TakeTextsize();
  void Apply();

  OptionsForm& form_;
  std::function<void()> applied_;
  QTabWidget* tabs_;
  ColorGrid* colors_ = nullptr;
  ColorGrid* dxfColors_ = nullptr;
  ColorPreview* preview_ = nullptr;
  QLineEdit* textsize_ = nullptr;
};

}  // namespace pitchcraft
