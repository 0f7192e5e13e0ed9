// The drawing under wheel, mouse and keys, and on the clipboard.
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QWheelEvent>

#include "window_test.h"

namespace pitchcraft::testing {
namespace {

class View : public WindowTest {
 protected:
  PictureView& Picture(int picture = 1) {
    return static_cast<PictureView&>(Find("Picture" + std::to_string(picture)));
  }
  void Wheel(QPointF at, int turned) {
    QWheelEvent event(at, Picture().mapToGlobal(at), {}, {0, turned}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Picture(), &event);
  }
  QImage Shot() { return Picture().grab().toImage(); }
  /// The menu that is open.
  static QMenu& Popup() {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) throw std::runtime_error("no popup");
    return *menu;
  }
};

TEST_F(View, TheWheelMagnifiesAboutThePointer) {
  const QImage whole = Shot();
  Wheel({100, 80}, 480);
  EXPECT_DOUBLE_EQ(Picture().View().Factor(), 2);
  EXPECT_EQ(Picture().View().ToDrawing({100, 80}), QPointF(100, 80));
  EXPECT_NE(Shot(), whole);
  EXPECT_EQ(Picture().cursor().shape(), Qt::OpenHandCursor);
  Wheel({100, 80}, -480);
  EXPECT_TRUE(Picture().View().ShowsAll());
  EXPECT_EQ(Shot(), whole);
}

TEST_F(View, CopyTakesWhatIsBeingTyped) {
  Type("FtSpan(0)", "30'");
  Key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Document().design.Rafter1.Span, 360);
  EXPECT_TRUE(QApplication::clipboard()->mimeData()->data("image/svg+xml").contains("29"));
}

// The plumb end of the rafter, an upright line: it stands where it is, and as thin as it was.
TEST_F(View, AMagnifiedLineStaysThinAndInItsPlace) {
  const QImage whole = Shot();
  const QColor line = QColor(Qt::white);
  int row = -1;
  int column = -1;
  for (int y = 0; y + 8 < whole.height() && row < 0; ++y) {
    for (int x = whole.width() - 1; x > whole.width() / 2 && row < 0; --x) {
      bool upright = true;
      for (int k = 0; k < 8; ++k) upright = upright && whole.pixelColor(x, y + k) == line;
      if (upright) row = y + 4, column = x;
    }
  }
  ASSERT_GE(row, 0);
  Wheel(QPointF(column + 0.5, row + 0.5), 1440);
  ASSERT_DOUBLE_EQ(Picture().View().Factor(), 8);
  const QImage close = Shot();
  // It was drawn to the nearest pixel before, so it may stand half of eight pixels aside.
  int thick = 0;
  for (int x = column - 5; x <= column + 5; ++x) thick += close.pixelColor(x, row) == line ? 1 : 0;
  EXPECT_GE(thick, 1);
  EXPECT_LE(thick, 2) << "as thick as its pen, not eight pixels";
}

TEST_F(View, WhatIsMagnifiedIsWhatThePointerWasOn) {
  const QImage whole = Shot();
  QPoint mark;
  for (int y = 5; y < whole.height() - 5 && mark.isNull(); ++y) {
    for (int x = 5; x < whole.width() - 5 && mark.isNull(); ++x) {
      if (whole.pixelColor(x, y) != whole.pixelColor(0, 0)) mark = {x, y};
    }
  }
  ASSERT_FALSE(mark.isNull());
  Wheel(mark, 960);
  const QImage close = Shot().copy(QRect(mark - QPoint(6, 6), QSize(13, 13)));
  bool found = false;
  for (int y = 0; y < close.height(); ++y) {
    for (int x = 0; x < close.width(); ++x) found = found || close.pixelColor(x, y) != whole.pixelColor(0, 0);
  }
  EXPECT_TRUE(found);
}

TEST_F(View, ADragMovesTheDrawingAndATrembleDoesNot) {
  Wheel({300, 200}, 480);
  const QPointF before = Picture().View().Offset();
  QTest::mousePress(&Picture(), Qt::LeftButton, {}, {300, 200});
  QTest::mouseMove(&Picture(), {301, 201});
  EXPECT_EQ(Picture().View().Offset(), before);
  QTest::mouseMove(&Picture(), {340, 230});
  EXPECT_EQ(Picture().View().Offset(), before + QPointF(40, 30));
  EXPECT_EQ(Picture().cursor().shape(), Qt::ClosedHandCursor);
  QTest::mouseRelease(&Picture(), Qt::LeftButton, {}, {340, 230});
  EXPECT_EQ(Picture().cursor().shape(), Qt::OpenHandCursor);
  QTest::mouseMove(&Picture(), {400, 300});
  EXPECT_EQ(Picture().View().Offset(), before + QPointF(40, 30));
}

TEST_F(View, TheMiddleButtonDragsToo) {
  Wheel({300, 200}, 480);
  const QPointF before = Picture().View().Offset();
  QTest::mousePress(&Picture(), Qt::MiddleButton, {}, {300, 200});
  QTest::mouseMove(&Picture(), {280, 180});
  QTest::mouseRelease(&Picture(), Qt::MiddleButton, {}, {280, 180});
  EXPECT_EQ(Picture().View().Offset(), before - QPointF(20, 20));
}

TEST_F(View, ADoubleClickShowsAll) {
  Wheel({300, 200}, 480);
  QTest::mouseDClick(&Picture(), Qt::LeftButton, {}, {50, 50});
  EXPECT_TRUE(Picture().View().ShowsAll());
  EXPECT_EQ(Picture().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(View, ANewValueKeepsWhatIsLookedAt) {
  Wheel({300, 200}, 480);
  const QPointF offset = Picture().View().Offset();
  Type("FtSpan(0)", "30'");
  Key(Qt::Key_Tab);
  EXPECT_EQ(Document().design.Rafter1.Span, 360);
  EXPECT_EQ(Picture().View().Offset(), offset);
}

TEST_F(View, AnotherRoofStartsWithAllOfIt) {
  Wheel({300, 200}, 480);
  Press("Shed");
  EXPECT_TRUE(Picture().View().ShowsAll());
}

TEST_F(View, AnotherSizeOfTheWindowKeepsTheMagnification) {
  Wheel({0, 0}, 480);
  window_.resize(1200, 800);
  EXPECT_EQ(Picture().View().Factor(), 2);
  EXPECT_EQ(Picture().View().Offset(), QPointF(0, 0));
}

// Left of the joint is the front roof: of the drawing, not of the view.
TEST_F(View, AClickOnAMagnifiedDualSlopeMeansTheRoofUnderThePointer) {
  Press("Dual");
  if (!Picture().HasDrawing()) GTEST_SKIP() << "the design of a dual slope has no drawing yet";
  const int middle = Picture().width() / 2;
  const int row = Picture().height() / 2;
  Wheel(QPointF(0, row), 960);
  QTest::mouseClick(&Picture(), Qt::LeftButton, {}, {Picture().width() - 5, row});
  EXPECT_EQ(Document().design.sheet.Tabs[1].Page, 0) << "a quarter of the drawing shows, its left one";
  Key(Qt::Key_Escape);
  Picture().Fit();
  QTest::mouseClick(&Picture(), Qt::LeftButton, {}, {middle + 20, row});
  EXPECT_EQ(Document().design.sheet.Tabs[1].Page, 1);
}

TEST_F(View, ADragOnAMagnifiedDualSlopeTurnsNoPage) {
  Press("Dual");
  if (!Picture().HasDrawing()) GTEST_SKIP() << "the design of a dual slope has no drawing yet";
  const int row = Picture().height() / 2;
  Wheel(QPointF(Picture().width() - 1, row), 960);
  QTest::mousePress(&Picture(), Qt::LeftButton, {}, {300, row});
  QTest::mouseMove(&Picture(), {360, row});
  QTest::mouseRelease(&Picture(), Qt::LeftButton, {}, {360, row});
  EXPECT_EQ(Document().design.sheet.Tabs[1].Page, 0);
  QTest::mouseClick(&Picture(), Qt::LeftButton, {}, {300, row});
  EXPECT_EQ(Document().design.sheet.Tabs[1].Page, 1) << "a click means the rear roof, which shows";
}

TEST_F(View, APopupTakesTheDrawingOutOfTheHand) {
  Wheel({300, 200}, 480);
  QTest::mousePress(&Picture(), Qt::LeftButton, {}, {300, 200});
  QTest::mouseMove(&Picture(), {340, 230});
  QTest::mousePress(&Picture(), Qt::RightButton, {}, {340, 230});
  Popup().close();
  EXPECT_EQ(Picture().cursor().shape(), Qt::OpenHandCursor);
  QTest::mouseRelease(&Picture(), Qt::RightButton);
  QTest::mouseRelease(&Picture(), Qt::LeftButton);
}

TEST_F(View, WhereNothingIsDrawnNothingIsMagnified) {
  Press("Gambrel");
  if (Document().HasFigure()) GTEST_SKIP() << "every roof has its drawing now";
  Wheel({300, 200}, 480);
  EXPECT_TRUE(Picture().View().ShowsAll());
}

TEST_F(View, KeysOnTheDrawing) {
  Picture().setFocus();
  Key(Qt::Key_Plus);
  EXPECT_DOUBLE_EQ(Picture().View().Factor(), 1.25);
  Key(Qt::Key_Plus);
  const QPointF before = Picture().View().Offset();
  Key(Qt::Key_Left);
  EXPECT_GT(Picture().View().Offset().x(), before.x());
  Key(Qt::Key_Right);
  Key(Qt::Key_Down);
  EXPECT_LT(Picture().View().Offset().y(), before.y());
  Key(Qt::Key_Up);
  EXPECT_NEAR(Picture().View().Offset().x(), before.x(), 1e-9);
  EXPECT_NEAR(Picture().View().Offset().y(), before.y(), 1e-9);
  Key(Qt::Key_Minus);
  EXPECT_DOUBLE_EQ(Picture().View().Factor(), 1.25);
  Key(Qt::Key_0);
  EXPECT_TRUE(Picture().View().ShowsAll());
}

TEST_F(View, TabFramesTheDrawingAndAClickDoesNot) {
  const QImage plain = Shot();
  QTest::mouseClick(&Picture(), Qt::LeftButton, {}, {50, 50});
  ASSERT_TRUE(Picture().hasFocus());
  EXPECT_EQ(Shot(), plain);
  Box("FtSpan(0)").setFocus();
  Picture().setFocus(Qt::TabFocusReason);
  EXPECT_NE(Shot(), plain);
}

TEST_F(View, KeysOfTheWindowWhereverTheFocusIs) {
  Box("FtSpan(0)").setFocus();
  Key(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Picture().View().Factor(), 1.25);
  Key(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_TRUE(Picture().View().ShowsAll());
  Key(Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Picture().View().Factor(), 1.25);
  Key(Qt::Key_0, Qt::ControlModifier);
  EXPECT_TRUE(Picture().View().ShowsAll());
}

TEST_F(View, TheKeysServeThePageThatShows) {
  Press("Hip");
  ShowPage(Document(), 0, 1);
  window_.ShowState();
  ASSERT_TRUE(Picture(3).isVisible());
  Key(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Picture(3).View().Factor(), 1.25);
  EXPECT_TRUE(Picture(1).View().ShowsAll());
}

TEST_F(View, TheMenuKeyOpensThePopup) {
  Picture().setFocus();
  QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, {});
  QApplication::sendEvent(&Picture(), &asked);
  EXPECT_EQ(Popup().objectName(), "mnuPopUp1");
  Popup().close();
}

TEST_F(View, TheViewMenuAndThePopupHoldTheCommands) {
  QMenu& view = Find<QMenu>("mnuView");
  QTest::mouseClick(&Picture(), Qt::RightButton, {}, {50, 50});
  for (const char* name : {"CopyDrawing", "ZoomIn", "ZoomOut", "FitDrawing"}) {
    QAction& command = Find<QAction>(name);
    EXPECT_TRUE(view.actions().contains(&command)) << name;
    EXPECT_TRUE(Popup().actions().contains(&command)) << name;
  }
  QMenu& popup = Popup();
  QTest::mouseClick(&popup, Qt::LeftButton, {}, popup.actionGeometry(&Find<QAction>("ZoomIn")).center());
  EXPECT_DOUBLE_EQ(Picture().View().Factor(), 1.25);
}

TEST_F(View, ACommandTellsWhatItIs) {
  Find<QAction>("ZoomIn").hover();
  EXPECT_EQ(Find<QLabel>("StatusBar").text(), "Show a part of the drawing larger.");
}

TEST_F(View, CopyPutsPictureAndSvgOnTheClipboard) {
  QApplication::clipboard()->clear();
  Box("FtSpan(0)").setFocus();
  Key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  const QMimeData* data = QApplication::clipboard()->mimeData();
  ASSERT_TRUE(data->hasImage());
  EXPECT_EQ(qvariant_cast<QImage>(data->imageData()).width(), 1600);
  const QByteArray svg = data->data("image/svg+xml");
  EXPECT_TRUE(svg.contains("<svg")) << svg.left(80).toStdString();
  EXPECT_TRUE(svg.contains("11' 11 1/4&quot;")) << "the run";
  EXPECT_EQ(Find<QLabel>("StatusBar").text(), "The drawing is on the clipboard.");
}

// The shorter keys belong to the field that has the focus.
TEST_F(View, CopyInAFieldCopiesItsText) {
  EntryBox& span = Box("FtSpan(0)");
  span.setFocus();
  span.selectAll();
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), span.text());
  Picture().setFocus();
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasImage());
}

TEST_F(View, WithoutADrawingThereIsNothingToCopy) {
  Press("Gambrel");
  if (Document().HasFigure()) GTEST_SKIP() << "every roof has its drawing now";
  EXPECT_FALSE(Find<QAction>("CopyDrawing").isEnabled());
  Press("Gable");
  EXPECT_TRUE(Find<QAction>("CopyDrawing").isEnabled());
}

// --- The roof types' keys
// ------------------------------------------------------------------------------------------------------------

struct RoofKey {
  Qt::Key key;
  int listIndex;
};

class RoofKeys : public WindowTest, public ::testing::WithParamInterface<RoofKey> {};

TEST_P(RoofKeys, ChooseTheRoof) {
  const auto [key, index] = GetParam();
  Press(index == 0 ? "Hip" : "Gable");
  Trigger("mnuViewToolbar");  // also while the bar is hidden
  Box("FtSpan(0)").setFocus();
  Key(key, Qt::AltModifier);
  EXPECT_EQ(Document().design.sheet.RoofList.ListIndex(), index);
}

INSTANTIATE_TEST_SUITE_P(NumberRow, RoofKeys,
                         ::testing::Values(RoofKey{Qt::Key_1, 0}, RoofKey{Qt::Key_2, 1},
                                           RoofKey{Qt::Key_3, 2}, RoofKey{Qt::Key_4, 3},
                                           RoofKey{Qt::Key_5, 4}, RoofKey{Qt::Key_6, 5},
                                           RoofKey{Qt::Key_7, 6}, RoofKey{Qt::Key_8, 7},
                                           RoofKey{Qt::Key_9, 8}, RoofKey{Qt::Key_0, 9},
                                           RoofKey{Qt::Key_Minus, 10}),
                         [](const auto& row) { return "Alt" + std::to_string(row.param.listIndex); });

TEST_F(View, AValueThatIsBeingTypedIsTakenBeforeTheRoofChanges) {
  Type("FtSpan(0)", "30'");
  Key(Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(Document().design.sheet.RoofList.ListIndex(), 1);
  EXPECT_EQ(Document().design.Rafter1.Span, 360);
}

TEST_F(View, EachRoofsButtonNamesItsKeys) {
  int roofs = 0;
  std::set<QString> keys;
  for (const ToolButton& row : Document().design.toolBar.Buttons()) {
    if (row.RoofListIndex < 0) continue;
    ++roofs;
    const QString tip = Find<QToolButton>(std::string(row.Key)).toolTip();
    keys.insert(tip.section('(', 1));
    EXPECT_TRUE(tip.contains("(Alt+")) << tip.toStdString();
  }
  EXPECT_EQ(roofs, 11);
  EXPECT_EQ(keys.size(), 11U);
}

}  // namespace
}  // namespace pitchcraft::testing
