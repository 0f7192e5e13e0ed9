// The commands on the drawing that shows: to the clipboard, and what of it is in view.
#pragma once

#include <QAction>
#include <functional>

#include "shell/picture_view.h"
#include "shell/session.h"

namespace pitchcraft {

/// They are the window's own: no script and no project knows of them, so the document's menus do not either.
class ViewCommands : public QObject {
  Q_OBJECT

 public:
  /// `shown` gives the view that shows at the moment. The commands' keys serve in `window`.
  ViewCommands(Session& session, std::function<PictureView&()> shown, QWidget* window);

  const QList<QAction*>& All() const { return all_; }
  /// A page without a drawing knows none of them.
  void Sync();

 signals:
  /// A sentence for the status bar.
  void Said(const QString& text);

 private:
  void Add(const char* name, const QString& caption, const QString& hint, const QList<QKeySequence>& keys,
           const std::function<void()>& action);

  Session& session_;
  std::function<PictureView&()> shown_;
  QList<QAction*> all_;
};

}  // namespace pitchcraft
