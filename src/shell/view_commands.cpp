#include "shell/view_commands.h"

#include "platform/clipboard.h"
#include "shell/entry_box.h"

namespace pitchcraft {

ViewCommands::ViewCommands(Session& session, std::function<PictureView&()> shown, QWidget* window)
    : QObject(window), session_(session), shown_(std::move(shown)) {
  // Where a text is being entered, the shorter keys copy from that.
  Add("CopyDrawing", tr("&Copy Drawing"), tr("Copy the current drawing to the clipboard."),
      {Qt::CTRL | Qt::SHIFT | Qt::Key_C, QKeySequence::Copy}, [this] {
        // What is being typed belongs to the drawing; it may also leave none.
        EntryBox::CommitFocused();
        if (!shown_().HasDrawing()) return;
        CopyToClipboard(ShownPicture(session_.Document()));
        emit Said(tr("The drawing is on the clipboard."));
      });
  Add("ZoomIn", tr("Zoom &In"), tr("Show a part of the drawing larger."),
      {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, [this] { shown_().ZoomIn(); });
  Add("ZoomOut", tr("Zoom &Out"), tr("Show more of the drawing."), {Qt::CTRL | Qt::Key_Minus},
      [this] { shown_().ZoomOut(); });
  Add("FitDrawing", tr("&Fit Drawing"), tr("Show the whole drawing."), {Qt::CTRL | Qt::Key_0},
      [this] { shown_().Fit(); });
}

void ViewCommands::Add(const char* name, const QString& caption, const QString& hint,
                       const QList<QKeySequence>& keys, const std::function<void()>& action) {
  auto* command = new QAction(caption, this);
  command->setObjectName(name);
  command->setShortcuts(keys);
  connect(command, &QAction::triggered, this, action);
  connect(command, &QAction::hovered, this, [this, hint] { emit Said(hint); });
  all_.push_back(command);
}

void ViewCommands::Sync() {
  const bool drawn = shown_().HasDrawing();
  for (QAction* command : all_) command->setEnabled(drawn);
}

}  // namespace pitchcraft
