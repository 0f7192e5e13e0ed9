// A drawing of the document, filling its place.
#pragma once

#include <QWidget>
#include <optional>

#include "shell/session.h"
#include "shell/zoom.h"

namespace pitchcraft {

/// The wheel magnifies about the pointer, a drag moves the drawing, a double click shows all of it again; so
/// do the keys +, -, the arrows and 0. What the person looks at stays while values change, and starts anew
/// with another page or another roof. A right click or the menu key opens the document's popup, with the
/// actions of this widget below.
class PictureView : public QWidget {
 public:
  /// `picture` 1: of the design page; 3: of all others.
  PictureView(Session& session, int picture, QWidget* window);

  /// Takes over that the document has drawn.
  void Sync();
  /// About the middle, by one step.
  void ZoomIn();
  void ZoomOut();
  void Fit();
  /// Without a drawing there is nothing to do to it.
  bool HasDrawing() const;
  const Zoom& View() const { return zoom_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  /// What is drawn: another one starts with all of it in view.
  struct Subject {
    int roofType = -1;  // none before the first figure
    int page = -1;
    bool drawn = false;
    bool operator==(const Subject&) const = default;
  };

  void PaintDrawing(QPainter& painter);
  void PressAt(int button, QPointF place, const QPoint& onScreen);
  void ZoomAbout(QPointF place, double share);
  void PanBy(QPointF by);
  void LetGo();
  void ShowZoom();

  Session& session_;
  int picture_;
  Subject subject_;
  Zoom zoom_;
  std::optional<QPointF> grip_;  ///< where the drawing is held
  bool dragging_ = false;
  bool cameByTab_ = false;
};

}  // namespace pitchcraft
