// Every item of the menu bar under mouse and keyboard.
#include <QMenu>
#include <QMenuBar>

#include "item_rows.h"

namespace pitchcraft::testing {
namespace {

enum class Way { kMouse, kKeys };

/// A person who opens menus and picks from them.
class MenuHand {
 public:
  explicit MenuHand(WholeProgram& program) : program_(program), bar_(program.Find<QMenuBar>("MenuBar")) {}

  void Take(const ItemRow& row, Way way) {
    program_.ComeBack();
    const Menus& menus = program_.Document().design.menus;
    ASSERT_NE(menus.Find(row.item), nullptr);
    const MenuItem& item = *menus.Find(row.item);
    const MenuItem* holder = menus.HolderOf(item);
    QAction& barAction = holder == nullptr ? program_.Find<QAction>(item.Name)
                                           : *program_.Find<QMenu>(holder->Name).menuAction();
    program_.Find<QLabel>("StatusBar").setText("before");
    way == Way::kMouse ? OpenByMouse(barAction) : OpenByKeys(barAction);
    if (holder == nullptr) return TakeFromBar(row, barAction, way);
    QMenu& menu = *barAction.menu();
    ASSERT_EQ(QApplication::activePopupWidget(), &menu);
    QAction& action = program_.Find<QAction>(row.item);
    ASSERT_TRUE(action.isVisible() && action.isEnabled());
    if (way == Way::kMouse) {
      QTest::mouseMove(&menu, menu.actionGeometry(&action).center());
    } else {
      for (qsizetype i = 0; i <= menu.actions().size() && menu.activeAction() != &action; ++i) {
        QTest::keyClick(&menu, Qt::Key_Down);
      }
    }
    ASSERT_EQ(menu.activeAction(), &action);
    EXPECT_EQ(program_.Status(), row.hint);
    if (way == Way::kMouse) {
      QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
    } else {
      QTest::keyClick(&menu, Qt::Key_Return);
    }
    EXPECT_FALSE(menu.isVisible());
  }

 private:
  void OpenByMouse(QAction& action) {
    const QPoint place = bar_.actionGeometry(&action).center();
    QTest::mouseMove(&bar_, place);
    QTest::mousePress(&bar_, Qt::LeftButton, {}, place);
    if (action.menu() != nullptr) QTest::mouseRelease(&bar_, Qt::LeftButton, {}, place);
  }
  /// The first menu by its letter, the next ones by the arrow.
  void OpenByKeys(QAction& action) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::AltModifier);
    for (qsizetype i = 0; i <= bar_.actions().size() && bar_.activeAction() != &action; ++i) {
      QWidget* popup = QApplication::activePopupWidget();
      QTest::keyClick(popup != nullptr ? popup : &bar_, Qt::Key_Right);
    }
  }
  void TakeFromBar(const ItemRow& row, QAction& action, Way way) {
    ASSERT_EQ(bar_.activeAction(), &action);
    EXPECT_EQ(program_.Status(), row.hint);
    if (way == Way::kMouse) {
      QTest::mouseRelease(&bar_, Qt::LeftButton, {}, bar_.actionGeometry(&action).center());
    } else {
      QTest::keyClick(&bar_, Qt::Key_Return);
    }
  }

  WholeProgram& program_;
  QMenuBar& bar_;
};

class MenuItems : public ::testing::TestWithParam<ItemRow> {
 protected:
  void Do(Way way) {
    const ItemRow& row = GetParam();
    program_.Press(row.roof);
    row.deed(program_, [&] { MenuHand(program_).Take(row, way); });
  }
  WholeProgram program_;
};

TEST_P(MenuItems, WorkByMouse) { Do(Way::kMouse); }
TEST_P(MenuItems, WorkByKeys) { Do(Way::kKeys); }

INSTANTIATE_TEST_SUITE_P(Bar, MenuItems, ::testing::ValuesIn(ItemRowsOf(false)),
                         [](const auto& row) { return TestName(row.param.item); });

TEST(Menus, EveryItemIsPickedInATest) {
  const Menus menus;
  std::vector<std::string> items;
  for (const MenuItem* item : menus.Items()) {
    const bool opens = item->Level == 0 && !menus.ItemsUnder(*item).empty();
    if (!opens && !item->IsSeparator()) items.push_back(item->Name);
  }
  std::vector<std::string> rows;
  for (const ItemRow& row : ItemRows()) rows.emplace_back(row.item);
  EXPECT_EQ(rows, items);
  EXPECT_EQ(ItemRowsOf(false).size() + ItemRowsOf(true).size(), items.size());
}

}  // namespace
}  // namespace pitchcraft::testing
