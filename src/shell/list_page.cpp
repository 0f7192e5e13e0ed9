#include "shell/list_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

namespace pitchcraft {
namespace {

/// Edits a cell in its place.
class CellEditing : public QStyledItemDelegate {
 public:
  CellEditing(QString name, QObject* parent) : QStyledItemDelegate(parent), name_(std::move(name)) {}
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name_);
    box->setFrame(false);
    return box;
  }

 private:
  QString name_;
};

}  // namespace

ListModel::ListModel(ListGrid& grid, QStringList columns, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), columns_(std::move(columns)) {}

int ListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : grid_.RowCount(); }

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ListGrid::kColumns;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  return QString::fromStdString(grid_.Cell(index.row(), index.column()));
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool column = orientation == Qt::Horizontal && role == Qt::DisplayRole && section < columns_.size();
  return column ? QVariant(columns_[section]) : QVariant();
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

bool ListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::EditRole) return false;
  grid_.SetCell(index.row(), index.column(), value.toString().toStdString());
  emit dataChanged(index, index);
  return true;
}

int ListModel::Insert(int below) {
  const int place = std::clamp(below + 1, 0, grid_.RowCount());
  beginInsertRows({}, place, place);
  grid_.InsertRow(below);
  endInsertRows();
  return place;
}

void ListModel::Delete(int row) {
  if (row < 0 || row >= grid_.RowCount()) return;
  beginRemoveRows({}, row, row);
  grid_.DeleteRow(row);
  endRemoveRows();
}

ListPage::ListPage(ListGrid& grid, const QStringList& columns, int number, QWidget* parent)
    : QWidget(parent) {
  auto* model = new ListModel(grid, columns, this);
  auto* table = new QTableView(this);
  table->setObjectName(QString("grdList(%1)").arg(number));
  table->setAccessibleName(number == 0 ? "Slope list" : "Lumber list");
  table->setModel(model);
  table->setItemDelegate(new CellEditing(QString("txtEdit(%1)").arg(number), this));
  table->setTabKeyNavigation(false);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                         QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
  table->verticalHeader()->hide();
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  if (grid.RowCount() > 0) table->setCurrentIndex(model->index(0, 0));

  auto* insert = new QPushButton("&Insert Row", this);
  insert->setObjectName(QString("Command1(%1)").arg(2 * number));
  connect(insert, &QPushButton::clicked, this, [model, table] {
    const QModelIndex cell = model->index(model->Insert(table->currentIndex().row()), 0);
    table->setFocus();
    table->setCurrentIndex(cell);
    table->edit(cell);
  });
  auto* remove = new QPushButton("&Delete Row", this);
  remove->setObjectName(QString("Command1(%1)").arg(2 * number + 1));
  connect(remove, &QPushButton::clicked, this,
          [model, table] { model->Delete(table->currentIndex().row()); });
  for (QPushButton* button : {insert, remove}) button->setAutoDefault(false);

  auto* buttons = new QVBoxLayout;
  buttons->addWidget(insert);
  buttons->addWidget(remove);
  buttons->addStretch();
  auto* row = new QHBoxLayout(this);
  row->addWidget(table, 1);
  row->addLayout(buttons);
}

}  // namespace pitchcraft
