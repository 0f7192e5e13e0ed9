// Whether all words of a window can be read: none is cut off by the widget that holds it.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>
#include <string>

namespace pitchcraft::testing {

/// Looks at every widget that shows words, each by its own rules.
class WordReader {
 public:
  explicit WordReader(std::string where) : where_(std::move(where)) {}

  /// `whole` and all that shows in it.
  void Read(const QWidget& whole) {
    ReadOne(whole);
    for (const QWidget* part : whole.findChildren<QWidget*>()) {
      if (part->isVisible()) ReadOne(*part);
    }
  }
  /// How many texts it has seen.
  int Texts() const { return texts_; }

 private:
  void ReadOne(const QWidget& part) {
    if (const auto* label = qobject_cast<const QLabel*>(&part)) return ReadLabel(*label);
    if (const auto* button = qobject_cast<const QAbstractButton*>(&part)) return ReadButton(*button);
    if (const auto* choice = qobject_cast<const QComboBox*>(&part)) return ReadChoice(*choice);
    if (const auto* box = qobject_cast<const QLineEdit*>(&part)) return ReadBox(*box);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&part)) return ReadTabs(*tabs);
    if (const auto* menus = qobject_cast<const QMenuBar*>(&part)) return ReadMenus(*menus);
    if (const auto* table = qobject_cast<const QTableView*>(&part)) return ReadTable(*table);
    if (const auto* list = qobject_cast<const QListView*>(&part)) return ReadList(*list);
  }

  void Fits(const QString& text, const QSize& needed, const QSize& room) {
    ++texts_;
    EXPECT_LE(needed.width(), room.width()) << where_ << ": \"" << text.toStdString() << "\" is cut off";
    EXPECT_LE(needed.height(), room.height())
        << where_ << ": \"" << text.toStdString() << "\" is cut in height";
  }
  static QSize SizeOf(const QWidget& part, const QString& text) {
    const QFontMetrics words = part.fontMetrics();
    return {words.size(Qt::TextShowMnemonic, text).width(), words.height()};
  }

  void ReadLabel(const QLabel& label) {
    if (label.text().isEmpty()) return;
    const QSize room = label.contentsRect().size() - QSize(2 * label.margin(), 2 * label.margin());
    if (!label.wordWrap()) return Fits(label.text(), SizeOf(label, label.text()), room);
    for (const QString& word : label.text().split(' ')) Fits(word, SizeOf(label, word), room);
    EXPECT_LE(label.heightForWidth(label.width()), label.height()) << where_ << ": lines are cut off";
  }

  void ReadButton(const QAbstractButton& button) {
    const auto* tool = qobject_cast<const QToolButton*>(&button);
    if (button.text().isEmpty() || (tool != nullptr && !tool->icon().isNull())) return;
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    const bool isBox = qobject_cast<const QCheckBox*>(&button) != nullptr;
    const QRect room = button.style()->subElementRect(
        isBox ? QStyle::SE_CheckBoxContents : QStyle::SE_PushButtonContents, &option, &button);
    Fits(button.text(), SizeOf(button, button.text()), room.size());
  }

  void ReadChoice(const QComboBox& choice) {
    QStyleOptionComboBox option;
    option.initFrom(&choice);
    const QRect room =
        choice.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &choice);
    for (int row = 0; row < choice.count(); ++row) {
      const QSize words(choice.fontMetrics().horizontalAdvance(choice.itemText(row)),
                        choice.fontMetrics().height());
      Fits(choice.itemText(row), words, {room.width(), choice.height() - kFrames});
    }
  }

  void ReadBox(const QLineEdit& box) {
    if (qobject_cast<const QComboBox*>(box.parent()) != nullptr) return;
    QStyleOptionFrame option;
    option.initFrom(&box);
    option.lineWidth = box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box);
    const QRect room = box.style()->subElementRect(QStyle::SE_LineEditContents, &option, &box);
    const QMargins margins = box.textMargins();
    Fits(box.text().isEmpty() ? "0" : box.text(), SizeOf(box, box.text().replace('&', '+')),
         {room.width() - margins.left() - margins.right() - kFrames, room.height()});
  }

  void ReadTabs(const QTabBar& tabs) {
    for (int tab = 0; tab < tabs.count(); ++tab) {
      const QRect room = tabs.tabRect(tab);
      EXPECT_TRUE(tabs.rect().contains(room))
          << where_ << ": the page " << tabs.tabText(tab).toStdString() << " is pushed aside";
      Fits(tabs.tabText(tab), SizeOf(tabs, tabs.tabText(tab)), room.size() - QSize(2 * kFrames, kFrames));
    }
  }

  void ReadMenus(const QMenuBar& menus) {
    for (QAction* action : menus.actions()) {
      if (!action->isVisible()) continue;
      const QRect room = menus.actionGeometry(action);
      EXPECT_TRUE(menus.rect().contains(room))
          << where_ << ": the menu " << action->text().toStdString() << " is pushed aside";
      Fits(action->text(), SizeOf(menus, action->text()), room.size());
    }
  }

  void ReadTable(const QTableView& table) {
    const QHeaderView& head = *table.horizontalHeader();
    const int rows = std::min(table.model()->rowCount(), kRowsToRead);
    for (int column = 0; column < table.model()->columnCount(); ++column) {
      if (head.isVisible()) {
        const QString caption = table.model()->headerData(column, Qt::Horizontal).toString();
        Fits(caption, SizeOf(head, caption), {head.sectionSize(column), head.height()});
      }
      for (int row = 0; row < rows; ++row) {
        const QModelIndex cell = table.model()->index(row, column);
        Fits(cell.data().toString(), table.sizeHintForIndex(cell),
             table.visualRect(cell).size() + QSize(1, 1));
      }
    }
  }

  void ReadList(const QListView& list) {
    const int rows = std::min(list.model()->rowCount(), kRowsToRead);
    for (int row = 0; row < rows; ++row) {
      const QModelIndex cell = list.model()->index(row, 0);
      const QSize needed = list.sizeHintForIndex(cell);
      Fits(cell.data().toString(), needed, {list.viewport()->width(), needed.height()});
    }
  }

  static constexpr int kFrames = 4;
  static constexpr int kRowsToRead = 300;

  std::string where_;
  int texts_ = 0;
};

/// Every word of a window or of a part of one; there is at least one.
inline void ExpectWordsFit(const QWidget& whole, const std::string& where) {
  WordReader reader(where);
  reader.Read(whole);
  EXPECT_GE(reader.Texts(), 1) << where;
  const QSize least = whole.minimumSizeHint();
  if (!whole.isWindow() || !least.isValid()) return;
  EXPECT_LE(least.width(), whole.width()) << where;
  EXPECT_LE(least.height(), whole.height()) << where;
}

}  // namespace pitchcraft::testing
