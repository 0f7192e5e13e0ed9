#include "shell/color_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

namespace pitchcraft {
namespace {

constexpr int kSwatch = 16;
constexpr int kArrowWidth = 20;
constexpr int kAfterName = 12;

QIcon Swatch(const QColor& color) {
  QPixmap pixmap(kSwatch, kSwatch);
  pixmap.fill(color);
  QPainter painter(&pixmap);
  painter.setPen(Qt::gray);
  painter.drawRect(0, 0, kSwatch - 1, kSwatch - 1);
  return pixmap;
}

}  // namespace

ColorGrid::ColorGrid(const QStringList& rows, std::vector<Offer> offers, QWidget* parent)
    : QTableWidget(static_cast<int>(rows.size()), 2, parent),
      offers_(std::move(offers)),
      cell_(new QWidget(viewport())),
      arrow_(new ArrowButton(viewport())),
      list_(new DropList(cell_)) {
  horizontalHeader()->hide();
  verticalHeader()->hide();
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setToolTip(
      "Select the component you wish to change, click on the dropdown arrow, and select a new color "
      "from the dropdown list");
  for (int row = 0; row < rowCount(); ++row) {
    setItem(row, 0, new QTableWidgetItem(rows[row]));
    setItem(row, 1, new QTableWidgetItem);
  }
  FitColumns();
  setFixedSize(columnWidth(0) + columnWidth(1) + 2 * frameWidth(),
               rowCount() * rowHeight(0) + 2 * frameWidth());
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  cell_->setAttribute(Qt::WA_TransparentForMouseEvents);
  arrow_->setObjectName("cmdArrow");
  arrow_->setAccessibleName("Choose a color");
  arrow_->setFocusPolicy(Qt::NoFocus);
  list_->setObjectName("grdColors(1)");
  list_->setAccessibleName("Colors");
  connect(arrow_, &QAbstractButton::clicked, this, &ColorGrid::OpenList);
  connect(list_, &DropList::Picked, this, [this](int offer) { emit Picked(currentRow(), offer); });
  connect(this, &QTableWidget::currentCellChanged, this, &ColorGrid::PlaceArrow);
  connect(this, &QTableWidget::cellDoubleClicked, this, &ColorGrid::OpenList);
  setCurrentCell(0, 1);
  PlaceArrow();
}

// Any of the colours may come to stand in any row.
void ColorGrid::FitColumns() {
  const QFontMetrics words = fontMetrics();
  const auto wider = [&](const Offer& a, const Offer& b) {
    return words.horizontalAdvance(a.name) < words.horizontalAdvance(b.name);
  };
  const auto widest = std::max_element(offers_.begin(), offers_.end(), wider);
  if (widest != offers_.end()) ShowColor(0, widest->name, widest->color);
  setColumnWidth(0, sizeHintForColumn(0) + kAfterName);
  setColumnWidth(1, sizeHintForColumn(1) + kArrowWidth + 1);  // with the line of the grid
}

void ColorGrid::ShowColor(int row, const QString& name, const QColor& color) {
  item(row, 1)->setIcon(Swatch(color));
  item(row, 1)->setText(name);
  item(row, 1)->setData(Qt::AccessibleTextRole, item(row, 0)->text() + ": " + name);
}

void ColorGrid::OpenList() {
  QStringList names;
  QList<QIcon> swatches;
  for (const Offer& offer : offers_) {
    names << offer.name;
    swatches << Swatch(offer.color);
  }
  const QTableWidgetItem* shown = currentRow() < 0 ? nullptr : item(currentRow(), 1);
  if (shown == nullptr) return;
  list_->Open(names, static_cast<int>(names.indexOf(shown->text())), palette(), font(), swatches);
}

void ColorGrid::PlaceArrow() {
  const QRect place = visualRect(model()->index(std::max(0, currentRow()), 1));
  cell_->setGeometry(place);
  arrow_->setGeometry(place.right() - kArrowWidth, place.top(), kArrowWidth, place.height());
}

void ColorGrid::keyPressEvent(QKeyEvent* event) {
  const bool altDown = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
  if (event->key() == Qt::Key_Space || event->key() == Qt::Key_F4 || altDown) return OpenList();
  QTableWidget::keyPressEvent(event);
}

void ColorGrid::resizeEvent(QResizeEvent* event) {
  QTableWidget::resizeEvent(event);
  PlaceArrow();
}

void ColorGrid::updateGeometries() {
  QTableWidget::updateGeometries();
  PlaceArrow();
}

}  // namespace pitchcraft
