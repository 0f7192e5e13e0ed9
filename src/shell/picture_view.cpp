#include "shell/picture_view.h"

#include <QMouseEvent>
#include <QPainter>

#include "platform/picture_files.h"
#include "shell/entry_box.h"
#include "shell/field_look.h"
#include "shell/hint_watcher.h"
#include "shell/popup_menu.h"
#include "shell/twips.h"

namespace pitchcraft {

PictureView::PictureView(Session& session, int picture, QWidget* window)
    : QWidget(window), session_(session), picture_(picture) {
  setObjectName(QString("Picture%1").arg(picture));
  setAccessibleName(picture == 1 ? tr("Drawing of the design") : tr("Drawing of the page"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  installEventFilter(new HintWatcher(session, objectName().toStdString(), this));
}

void PictureView::paintEvent(QPaintEvent*) {
  const frmDocument& document = session_.Document();
  QPainter painter(this);
  const QColor ground = ColorOf(document.BackColor, palette());
  painter.fillRect(rect(), ground);
  if (!document.DrawingExists) {
    QColor dim = ColorOf(document.LineColor, palette());
    dim.setAlpha(110);
    painter.setPen(dim);
    painter.drawText(rect(), Qt::AlignCenter, tr("This drawing is not available yet."));
    return;
  }
  if (!document.board.MetaCanvas.IsClosed()) return;
  Picture picture = ShownPicture(document);
  picture.Size = {static_cast<double>(width()) * kTwipsPerPixel,
                  static_cast<double>(height()) * kTwipsPerPixel, false};
  PaintPicture(painter, picture, 1.0 / kTwipsPerPixel);
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  const int button = event->button() == Qt::LeftButton    ? kLeftButton
                     : event->button() == Qt::RightButton ? kRightButton
                                                          : 0;
  if (button == 0) return;
  EntryBox::CommitFocused();
  const QPointF at = event->position() * kTwipsPerPixel;
  const MenuItem* popup = nullptr;
  session_.Do([&](Actions&) {
    popup = session_.Document().Picture_MouseDown(picture_, button, qRound(at.x()), qRound(at.y()));
  });
  if (popup != nullptr) ShowPopup(session_, *popup, event->globalPosition().toPoint());
}

}  // namespace pitchcraft
