// The window with everything of the desktop that it works with.
#pragma once

#include "platform/qt_store.h"
#include "shell/calculator_starter.h"
#include "shell/help_viewer.h"
#include "shell/main_window.h"
#include "shell/qt_dialogs.h"
#include "shell/qt_printer.h"

namespace pitchcraft {

/// What is the same for the whole application: style, locale of numbers, names, drawing font. UseProgramStyle
/// was called before the application was made.
void SetUpApplication();

/// The window is made with it, but does not show yet.
class Program {
 public:
  Program();

  MainWindow& Window() { return window_; }

 private:
  Surroundings Around();

  QtDialogs dialogs_;
  QtStore store_;
  QtPrinter printer_;
  std::filesystem::path folder_;
  CalculatorStarter calculator_;
  HelpViewer help_;
  MainWindow window_;
};

}  // namespace pitchcraft
