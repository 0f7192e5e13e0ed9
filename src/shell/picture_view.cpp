#include "shell/picture_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "design/questions.h"
#include "document/pages.h"
#include "platform/picture_files.h"
#include "shell/entry_box.h"
#include "shell/field_look.h"
#include "shell/hint_watcher.h"
#include "shell/popup_menu.h"
#include "shell/twips.h"

namespace pitchcraft {
namespace {

constexpr double kStep = 1.25;
constexpr double kWheelDoubles = 480;  // four notches of a wheel
constexpr double kArrowShare = 0.1;    // of the view

}  // namespace

PictureView::PictureView(Session& session, int picture, QWidget* window)
    : QWidget(window), session_(session), picture_(picture) {
  setObjectName(QString("Picture%1").arg(picture));
  setAccessibleName(picture == 1 ? tr("Drawing of the design") : tr("Drawing of the page"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  installEventFilter(new HintWatcher(session, objectName().toStdString(), this));
}

void PictureView::Sync() {
  const Document& document = session_.Document();
  const Subject now{static_cast<int>(document.design.RoofType), PageShown(document.design), HasDrawing()};
  if (now != subject_) {
    subject_ = now;
    zoom_.Fit();
  }
  ShowZoom();
}

bool PictureView::HasDrawing() const {
  const Document& document = session_.Document();
  return document.HasFigure() && document.Board().Recorder.IsClosed();
}

// --- Painting
// ---------------------------------------------------------------------------------------------------------

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ColorOf(session_.Document().preferences.BackColor, palette()));
  PaintDrawing(painter);
  if (!hasFocus() || !cameByTab_) return;
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

// Whoever clicks on the drawing knows where the focus is; a frame would only disturb the picture.
void PictureView::focusInEvent(QFocusEvent* event) {
  const Qt::FocusReason reason = event->reason();
  // A menu or another window only borrowed it.
  const bool cameBack = reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason ||
                        reason == Qt::ActiveWindowFocusReason;
  if (!cameBack) cameByTab_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
  QWidget::focusInEvent(event);
}

void PictureView::PaintDrawing(QPainter& painter) {
  const Document& document = session_.Document();
  if (!document.HasFigure()) {
    QColor dim = ColorOf(document.preferences.LineColor, palette());
    dim.setAlpha(130);
    painter.setPen(dim);
    painter.drawText(rect(), Qt::AlignCenter, tr("This drawing is not available yet."));
    return;
  }
  if (!document.Board().Recorder.IsClosed()) return;
  Picture picture = ShownPicture(document);
  picture.Size = {static_cast<double>(width()) * kTwipsPerPixel,
                  static_cast<double>(height()) * kTwipsPerPixel, false};
  painter.save();
  // Lines are sharp where the drawing begins on a whole pixel of the screen.
  const double ratio = devicePixelRatioF();
  const QPointF corner = zoom_.Offset() * ratio;
  painter.translate(std::round(corner.x()) / ratio, std::round(corner.y()) / ratio);
  PaintPicture(painter, picture, zoom_.Factor() / kTwipsPerPixel, zoom_.Factor());
  painter.restore();
}

// --- What of it shows
// -------------------------------------------------------------------------------------------------

void PictureView::ShowZoom() {
  const Qt::CursorShape hand = dragging_ ? Qt::ClosedHandCursor : Qt::OpenHandCursor;
  setCursor(zoom_.ShowsAll() ? Qt::ArrowCursor : hand);
  update();
}

void PictureView::ZoomIn() { ZoomAbout(QRectF(rect()).center(), kStep); }

void PictureView::ZoomOut() { ZoomAbout(QRectF(rect()).center(), 1 / kStep); }

// Where nothing is drawn there is nothing to look closer at.
void PictureView::ZoomAbout(QPointF place, double share) {
  if (!HasDrawing()) return;
  zoom_.About(place, share, size());
  ShowZoom();
}

void PictureView::Fit() {
  zoom_.Fit();
  ShowZoom();
}

void PictureView::PanBy(QPointF by) {
  zoom_.Pan(by, size());
  ShowZoom();
}

void PictureView::resizeEvent(QResizeEvent* event) {
  zoom_.Resize(event->oldSize(), event->size());
  ShowZoom();
}

void PictureView::wheelEvent(QWheelEvent* event) {
  ZoomAbout(event->position(), std::exp2(event->angleDelta().y() / kWheelDoubles));
  event->accept();
}

// --- The mouse
// --------------------------------------------------------------------------------------------------------

// On a magnified drawing a press may begin a drag: what it means is known when the button is let go.
void PictureView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) grip_ = event->position();
  if (event->button() == Qt::LeftButton && zoom_.ShowsAll()) {
    PressAt(kLeftButton, event->position(), event->globalPosition().toPoint());
  } else if (event->button() == Qt::RightButton) {
    LetGo();
    PressAt(kRightButton, event->position(), event->globalPosition().toPoint());
  }
}

void PictureView::LetGo() {
  grip_.reset();
  dragging_ = false;
  ShowZoom();
}

// A hand that only trembles does not drag, and one that let go over a message or a menu holds nothing any
// more.
void PictureView::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & (Qt::LeftButton | Qt::MiddleButton))) return LetGo();
  if (!grip_ || zoom_.ShowsAll()) return;
  const QPointF moved = event->position() - *grip_;
  if (!dragging_ && moved.manhattanLength() < QApplication::startDragDistance()) return;
  dragging_ = true;
  grip_ = event->position();
  PanBy(moved);
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
  const bool clicked = event->button() == Qt::LeftButton && grip_ && !dragging_ && !zoom_.ShowsAll();
  if (!(event->buttons() & (Qt::LeftButton | Qt::MiddleButton))) LetGo();
  if (clicked) PressAt(kLeftButton, event->position(), event->globalPosition().toPoint());
}

void PictureView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Fit();
}

void PictureView::PressAt(int button, QPointF place, const QPoint& onScreen) {
  EntryBox::CommitFocused();
  // The document knows the whole drawing, whatever part of it shows.
  const QPointF at = zoom_.ToDrawing(place) * kTwipsPerPixel;
  const MenuItem* popup = nullptr;
  session_.Do([&](Actions&) { popup = PressOnFigure(session_.Document(), button, qRound(at.x())); });
  if (popup != nullptr) ShowPopup(session_, *popup, onScreen, actions());
}

// --- The keyboard
// -----------------------------------------------------------------------------------------------------

void PictureView::keyPressEvent(QKeyEvent* event) {
  const double across = width() * kArrowShare;
  const double down = height() * kArrowShare;
  switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: return ZoomIn();
    case Qt::Key_Minus: return ZoomOut();
    case Qt::Key_0:
    case Qt::Key_Home: return Fit();
    case Qt::Key_Left: return PanBy({across, 0});
    case Qt::Key_Right: return PanBy({-across, 0});
    case Qt::Key_Up: return PanBy({0, down});
    case Qt::Key_Down: return PanBy({0, -down});
    default: QWidget::keyPressEvent(event);
  }
}

// The mouse has opened it on its press.
void PictureView::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Mouse) return;
  const QPoint middle = rect().center();
  PressAt(kRightButton, middle, mapToGlobal(middle));
}

}  // namespace pitchcraft
