// The one window: it gives every part its place and hands the document's state round.
#pragma once

#include <QLabel>
#include <QWidget>
#include <optional>

#include "shell/menu_strip.h"
#include "shell/picture_view.h"
#include "shell/session.h"
#include "shell/sheet_panel.h"
#include "shell/strips.h"
#include "shell/tool_strip.h"
#include "shell/view_commands.h"

namespace pitchcraft {

class MainWindow : public QWidget {
  Q_OBJECT

 public:
  explicit MainWindow(const Surroundings& surroundings);

  pitchcraft::Document& Document() { return session_.Document(); }
  /// Shows the window where and how it stood when it was last closed.
  void Open();
  /// Opens a project that came from outside: the command line, or dropped on the window.
  void OpenProject(const QString& path);
  /// Shows the document's state again, also while a form is open over the window.
  void ShowState() { Sync(); }
  /// The forms of a start.
  void ShowStartForms();

 signals:
  void CloseAsked();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Sync();
  void SyncOnce();
  void SyncStatus();
  PictureView& ShownView();
  void AddViewCommands();
  void AddCalculateCommand();
  void CalculateNow();
  void PlaceParts();
  void FitToScreens();
  void FitWords();
  WordRoom RoomForWords() const;
  void ChainTabOrder();
  void TakeDroppedProjects();
  void GiveFocus();
  void FollowSize();
  void LayOut();
  void FinishAction();
  template <typename Action>
  void ForEachView(Action action);

  Session session_;
  MenuStrip* menus_;
  ToolStrip* tools_;
  BayStrip* bay_;
  TabStrip* tabs_;
  SheetPanel* sheet_;
  PictureView* picture1_;
  PictureView* picture3_;
  ViewCommands* commands_;
  QLabel* status_;
  bool syncing_ = false;
  bool again_ = false;
  bool closed_ = false;
  bool fitsWords_ = false;    ///< the font is being set
  bool layoutIsDue_ = false;  ///< the size changed while a form was open
};

}  // namespace pitchcraft
