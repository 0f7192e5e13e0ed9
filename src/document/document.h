// The document: a design, the figure of the page that is shown, and the one way to change them.
#pragma once

#include <functional>
#include <string>

#include "core/run_time_error.h"
#include "design/design.h"
#include "document/form_layout.h"
#include "document/surroundings.h"
#include "drawing/arial_meter.h"
#include "drawing/drafting_board.h"
#include "storage/recent_files.h"
#include "storage/settings.h"

namespace pitchcraft {

/// A step changes the design and calculates; it draws nothing and asks nobody. `index` is that of the control
/// or menu item.
using Step = void (*)(Design& design, Reply& reply, int index);

/// The project that the design belongs to.
struct ProjectIdentity {
  std::string Name = "Untitled";
  std::string File;  ///< empty before the first save
};

/// What the window shows beside the design.
struct WindowState {
  Area Place{1000, 1000, 6500, 6500};  ///< twips
  WordRoom Words;                      ///< what the font at hand needs
  bool ToolBar = true;
  bool StatusBar = true;
  std::string Title;
  std::string Status;           ///< first pane of the status bar
  std::string FocusRequest;     ///< control that gets the focus; whoever shows the document clears it
  bool DialogIsActive = false;  ///< another window has the focus and keeps it
  bool CloseRequested = false;  ///< the window is to close
};

/// The one window's document, without the window. An action runs one step on the design; the document then
/// brings menus and colours in line and makes one figure of the page that is shown. The actions are free
/// functions by topic (fields.h, slopes.h, choices.h, pages.h, files.h, forms.h ...), bound in the tables of
/// actions.cpp and menu_actions.cpp.
class Document {
 public:
  explicit Document(const Surroundings& around);
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  Design design;
  Preferences preferences;
  ProjectIdentity project;
  WindowState window;
  RecentFileList RecentFiles;  ///< the four files at the end of the File menu
  bool PrintAllBlack = false;
  bool degreesFailed = false;  ///< the list of degrees could not be read or made

  /// Runs the step, tells what it said, and shows the result. An error of the run time is told under the
  /// procedure's name, and the document goes on.
  void Act(const char* procedure, Step step, int index = 0);
  void Act(const char* procedure, const std::function<void(Design&, Reply&)>& step);
  /// Runs work that may fail and changes no design: files, forms, printing.
  template <typename Work>
  void Guard(const char* procedure, Work work) {
    try {
      work();
    } catch (const RunTimeError& error) {
      Tell(error.Message(), procedure);
    }
  }
  /// Shows the design as it is now: check marks, colours, and the figure of the page.
  void Refresh();
  /// The same without the figure.
  void ShowState();
  void TakeReply(const Reply& reply);

  void Tell(const std::string& text, const std::string& title = "Pitchcraft");
  void Focus(const Control& control);

  /// The figure of the page that is shown: recording, points and dimensions.
  const DraftingBoard& Board() const { return board_; }
  /// Whether the page has a figure: false where its family is not drawn yet.
  bool HasFigure() const { return hasFigure_; }
  FormLayout Layout() const;
  /// Where the figure is shown.
  Area FigureArea() const;
  const TextMeter& Meter() const { return meter_; }
  const Surroundings& Around() const { return around_; }
  /// Figures made since the start.
  long FigureCount() const { return figureCount_; }

 private:
  void MakeFigure();

  Surroundings around_;
  ArialMeter meter_;
  DraftingBoard board_;
  bool hasFigure_ = true;
  long figureCount_ = 0;
};

}  // namespace pitchcraft
