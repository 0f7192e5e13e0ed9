#include "shell/drop_list.h"

#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace pitchcraft {
namespace {

constexpr int kMostRows = 14;

}  // namespace

DropList::DropList(QWidget* field) : QListWidget(field) {
  setWindowFlags(Qt::Popup);
  setAttribute(Qt::WA_NoMouseReplay);  // a press on the arrow closes the list and does not open it again
  setUniformItemSizes(true);
  setMouseTracking(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(QFrame::Box);
  connect(this, &QListWidget::itemEntered, this, [this](QListWidgetItem* item) { setCurrentItem(item); });
}

void DropList::Open(const QStringList& rows, int row, const QPalette& palette, const QFont& font,
                    const QList<QIcon>& icons) {
  clear();
  setPalette(palette);
  setFont(font);
  addItems(rows);
  for (int i = 0; i < icons.size(); ++i) item(i)->setIcon(icons[i]);
  setCurrentRow(row);
  const QWidget* field = parentWidget();
  const int shownRows = std::min(static_cast<int>(rows.size()), kMostRows);
  const int height = shownRows * sizeHintForRow(0) + 2 * frameWidth();
  const int bar = shownRows < rows.size() ? verticalScrollBar()->sizeHint().width() : 0;
  const int width = std::max(field->width(), sizeHintForColumn(0) + bar + 2 * frameWidth());
  QPoint place = field->mapToGlobal(QPoint(0, field->height()));
  const QRect free = field->screen()->availableGeometry();
  place.setX(std::max(free.left(), std::min(place.x(), free.right() + 1 - width)));
  if (place.y() + height > free.bottom()) place.setY(field->mapToGlobal(QPoint(0, -height)).y());
  place.setY(std::max(place.y(), free.top()));
  setGeometry(QRect(place, QSize(width, height)));
  show();
  setFocus(Qt::PopupFocusReason);
  if (row >= 0) scrollToItem(item(row), QAbstractItemView::PositionAtCenter);
}

void DropList::Choose(int row) {
  hide();
  if (row >= 0) emit Picked(row);
}

void DropList::keyPressEvent(QKeyEvent* event) {
  const bool altUp = event->key() == Qt::Key_Up && event->modifiers().testFlag(Qt::AltModifier);
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Tab) {
    Choose(currentRow());
  } else if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F4 || altUp) {
    hide();
  } else {
    QListWidget::keyPressEvent(event);
  }
}

void DropList::mouseReleaseEvent(QMouseEvent* event) {
  const QListWidgetItem* item = itemAt(event->pos());
  if (item != nullptr) Choose(row(item));
}

}  // namespace pitchcraft
