// The window's parts: places, drawings, menus, tabs, status, settings.
#include <QMenu>

#include "storage/settings.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

using Window = WindowTest;

int LitPixels(QWidget& view) {
  const QImage image = view.grab().toImage();
  int lit = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) lit += qGray(image.pixel(x, y)) > 60 ? 1 : 0;
  }
  return lit;
}

TEST_F(Window, PartsStandWhereTheLayoutSays) {
  const FormLayout layout = Document().Layout();
  EXPECT_EQ(Find("Picture1").x(), layout.picture1.Left / 15);
  EXPECT_EQ(Find("Picture1").width(), layout.picture1.Width / 15);
  EXPECT_EQ(Find("Picture1").height(), layout.picture1.Height / 15);
  EXPECT_EQ(Find("Sheet").y(), layout.sheet.Top / 15);
  EXPECT_FALSE(Find("Toolbar1").isVisible());
  EXPECT_FALSE(Find("Picture3").isVisible());
}

TEST_F(Window, LargerWindowShowsALargerDrawing) {
  const int before = Document().Layout().picture1.Width;
  window_.resize(1300, 900);
  QApplication::processEvents();
  EXPECT_EQ(Document().window.Place.Width, 1300 * 15);
  EXPECT_EQ(Document().Layout().picture1.Width, before + 300 * 15);
  EXPECT_EQ(Find("Picture1").width() * 15, Document().Layout().picture1.Width);
}

TEST_F(Window, CannotBeSmallerThanTheSheetNeeds) {
  window_.resize(100, 100);
  QApplication::processEvents();
  EXPECT_GE(window_.width() * 15, kMinimumWidth);
  EXPECT_GE(window_.height() * 15, kMinimumHeight);
}

TEST_F(Window, NoCaptionAndNoFieldIsCutOrCovered) {
  window_.resize(window_.minimumSize());
  QApplication::processEvents();
  for (const char* roof : {"Gable", "Shed", "Hip", "Valley", "Gambrel", "Blind Valley", "Dutch Hip"}) {
    Press(roof);
    for (const QLabel* label : Find("Sheet").findChildren<QLabel*>()) {
      if (!label->isVisible()) continue;
      const int needed = QFontMetrics(label->font()).horizontalAdvance(label->text());
      EXPECT_LE(needed, label->width()) << roof << " " << label->text().toStdString();
    }
    for (const EntryBox* box : Find("Sheet").findChildren<EntryBox*>()) {
      if (!box->isVisible()) continue;
      const QRect place(box->mapTo(&window_, QPoint(0, 0)), box->size());
      EXPECT_TRUE(Find("Sheet").geometry().contains(place)) << roof << " " << box->objectName().toStdString();
      EXPECT_LE(QFontMetrics(box->font()).height(), box->height() - 4);
      EXPECT_LE(QFontMetrics(box->font()).horizontalAdvance(box->text()), box->width() - 8)
          << roof << " " << box->text().toStdString();
    }
  }
}

TEST_F(Window, DrawingShowsAndFollowsAnEntry) {
  const int flat = LitPixels(Find("Picture1"));
  EXPECT_GT(flat, 1000);
  const QImage before = Find("Picture1").grab().toImage();
  Type("LWSlope(0).Left", "9");
  Key(Qt::Key_Return);
  EXPECT_NE(Find("Picture1").grab().toImage(), before);
}

TEST_F(Window, MissingDrawingSaysSoQuietly) {
  Press("Dual");
  EXPECT_FALSE(Document().HasFigure());
  const int lit = LitPixels(Find("Picture1"));
  EXPECT_GT(lit, 50);
  EXPECT_LT(lit, 3000);
}

TEST_F(Window, PagesSwitchViewsAndFocus) {
  auto& tabs = Find<QTabBar>("VSTab(0)");
  EXPECT_EQ(tabs.count(), 2);
  tabs.setCurrentIndex(1);
  EXPECT_EQ(PageShown(Document().design), 1);
  EXPECT_FALSE(Find("Sheet").isVisible());
  EXPECT_TRUE(Find("Picture3").isVisible());
  EXPECT_GT(LitPixels(Find("Picture3")), 1000);
  tabs.setCurrentIndex(0);
  EXPECT_TRUE(Find("Sheet").isVisible());
  EXPECT_EQ(FocusName(), "LWSlope(0).Left");
  Press("Hip");
  EXPECT_EQ(tabs.count(), 4);
  EXPECT_EQ(tabs.tabText(2), "Hip Rafter");
  EXPECT_EQ(Find("cboSpacing").isVisible(), false);
  tabs.setCurrentIndex(3);
  EXPECT_TRUE(Find("cboSpacing").isVisible());
}

TEST_F(Window, TwoRoofsHaveTheirOwnRows) {
  Press("Dual");
  EXPECT_TRUE(Find("VSTab(1)").isVisible());
  EXPECT_TRUE(Find("FtSpan(0)").isVisible());
  Find<QTabBar>("VSTab(1)").setCurrentIndex(1);
  EXPECT_FALSE(Find("FtSpan(0)").isVisible());
  EXPECT_TRUE(Find("FtSpan(1)").isVisible());
  // The left of the drawing is the front roof.
  QTest::mouseClick(&Find("Picture1"), Qt::LeftButton, {}, QPoint(5, 50));
  EXPECT_EQ(Document().design.sheet.Tabs[1].Page, 0);
  EXPECT_EQ(FocusName(), "LWSlope(0).Left");
  Press("Gable");
  EXPECT_FALSE(Find("VSTab(1)").isVisible());
}

TEST_F(Window, BayHasItsStrip) {
  Press("Bay");
  EXPECT_TRUE(Find("Toolbar1").isVisible());
  EXPECT_TRUE(Box("FtProjection").isVisible());
  Type("FtProjection", "24");
  Key(Qt::Key_Return);
  EXPECT_EQ(Document().design.sheet.Projection.Value(), 24);
}

TEST_F(Window, MenusWorkAndShowTheirChecks) {
  EXPECT_TRUE(Find<QAction>("mnuImperial").isChecked());
  Trigger("mnuMetric");
  EXPECT_EQ(UnitRun(Document().design), 1000);
  EXPECT_TRUE(Find<QAction>("mnuMetric").isChecked());
  EXPECT_FALSE(Find<QAction>("mnuImperial").isChecked());
  EXPECT_EQ(Box("FtSpan(0)").Entry(), "3600 mm");
  Trigger("mnuMetric");  // a toggle of two: the check stays where the document has it
  EXPECT_EQ(Find<QAction>("mnuMetric").isChecked(), Document().design.menus.Metric.Checked);
  Trigger("mnuViewToolbar");
  EXPECT_FALSE(Find("tbToolBar").isVisible());
  EXPECT_EQ(Find("Picture1").height() * 15, Document().Layout().picture1.Height);
  Trigger("mnuSettingsDegrees");
  EXPECT_TRUE(Find("cboDegrees(0)").isVisible());
  EXPECT_FALSE(Find("LWSlope(0)").isVisible());
}

TEST_F(Window, RightButtonOpensThePopup) {
  QTest::mouseClick(&Find("Picture1"), Qt::RightButton, {}, QPoint(50, 50));
  auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(popup->objectName(), "mnuPopUp1");
  for (QAction* action : popup->actions()) {
    if (action->objectName() == "mnuPopUp1SquareCut") action->trigger();
  }
  popup->close();
  EXPECT_TRUE(Document().design.menus.SettingsSquareCut.Checked);
}

TEST_F(Window, RightButtonOnALengthOpensTheStep) {
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), QPoint(3, 3));
  QApplication::sendEvent(&Box("FtSpan(0)"), &event);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "mnuSpin");
  QApplication::activePopupWidget()->close();
}

TEST_F(Window, StatusFollowsFocusAndPointer) {
  Box("FtOverhang(0)").setFocus();
  EXPECT_EQ(Find<QLabel>("StatusBar").text(),
            "Enter the COMMON rafter overhang (do not include the fascia thickness)");
  QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
  QApplication::sendEvent(&Find("Picture1"), &enter);
  EXPECT_EQ(Find<QLabel>("StatusBar").text(), "Right click on the drawing to display popup menu.");
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Find("Picture1"), &leave);
  EXPECT_EQ(Find<QLabel>("StatusBar").text(), "");
  Find<QAction>("mnuMetric").hover();
  EXPECT_EQ(Find<QLabel>("StatusBar").text(), "Use Metric measurements");
}

TEST_F(Window, TitleIsTheDocumentsAndNothingMore) {
  EXPECT_EQ(window_.windowTitle(), "Pitchcraft - [Untitled]");
  Document().window.Title = "Pitchcraft - [*]";
  Press("Shed");
  EXPECT_EQ(window_.windowTitle(), "Pitchcraft - [*][*]");  // the toolkit's way to write a star in brackets
}

TEST_F(Window, ClosingWritesTheSettings) {
  window_.resize(900, 650);
  QApplication::processEvents();
  Trigger("mnuMetric");
  Trigger("mnuFileExit");
  QApplication::processEvents();
  EXPECT_FALSE(window_.isVisible());
  const Settings settings = ReadSettings(surroundings_.store);
  EXPECT_EQ(settings.MainWidth, 900 * 15);
  EXPECT_EQ(settings.Units, 1);
}

TEST_F(Window, WindowThatWasPutAwayComesBackWhole) {
  NullSurroundings surroundings;
  Settings settings;
  settings.WindowState = 1;
  settings.MainWidth = 900 * 15;
  settings.MainHeight = 650 * 15;
  WriteSettings(settings, surroundings.store);
  MainWindow next(surroundings.Get());
  next.Open();
  QApplication::processEvents();
  EXPECT_TRUE(next.isVisible());
  EXPECT_FALSE(next.isMinimized());
  EXPECT_GT(LitPixels(*next.findChild<QWidget*>("Picture1")), 500);
}

TEST_F(Window, NextWindowStandsWhereTheLastOneStood) {
  window_.move(60, 40);
  window_.resize(780, 650);
  QApplication::processEvents();
  window_.close();
  MainWindow next(surroundings_.Get());
  next.Open();
  QApplication::processEvents();
  EXPECT_EQ(next.size(), QSize(780, 650));
  EXPECT_EQ(next.pos(), QPoint(60, 40));
}

}  // namespace
}  // namespace pitchcraft::testing
