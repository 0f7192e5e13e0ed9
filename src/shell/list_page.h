// A page of the options that edits one of the lists of the fields.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "document/options_form.h"

namespace pitchcraft {

/// The grid of a list for a table view.
class ListModel : public QAbstractTableModel {
 public:
  ListModel(ListGrid& grid, QStringList columns, QObject* parent);
  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  /// Gives the place of the new row.
  int Insert(int below);
  void Delete(int row);

 private:
  ListGrid& grid_;
  QStringList columns_;
};

/// The table with its two buttons. `number` stands in the names of the controls.
class ListPage : public QWidget {
 public:
  ListPage(ListGrid& grid, const QStringList& columns, int number, QWidget* parent);
};

}  // namespace pitchcraft
