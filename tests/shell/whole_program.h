// The window with everything real behind it: boxes, printer, pages of help, a folder for its files.
#pragma once

#include "../support/scratch_folder.h"
#include "shell/help_viewer.h"
#include "shell/qt_dialogs.h"
#include "shell/qt_printer.h"
#include "window_test.h"

namespace pitchcraft::testing {

/// Keeps the order to start the calculator instead of starting it.
class CalculatorOnCall final : public CalculatorService {
 public:
  bool Open(bool metric) override {
    asked.push_back(metric ? "metric" : "imperial");
    return true;
  }
  std::vector<std::string> asked;
};

struct WholeProgram : WindowHand {
  WholeProgram() : WindowHand(window) {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    dialogs.SetOwner(&window);
    dialogs.OnApplied([this] { window.ShowState(); });
    printer.SetOwner(&window);
    printer.SetSetup({});  // a PDF file, whatever queues the machine has
    OpenForTest(window);
  }

  std::string PathOf(const std::string& name) const { return folder.PathOf(name); }
  std::string Status() { return Find<QLabel>("StatusBar").text().toStdString(); }
  /// The picture that shows, as it is painted.
  QImage Shown() {
    return Find(PageShown(Document().design) == 0 ? "Picture1" : "Picture3").grab().toImage();
  }
  void TurnTo(int page) {
    auto& tabs = Find<QTabBar>("VSTab(0)");
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(page).center());
    EXPECT_EQ(PageShown(Document().design), page);
  }
  /// Brings the window to the front again after a dialog, as the desktop does by itself.
  void ComeBack() {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  void Enter(const std::string& box, const QString& text) {
    ComeBack();
    Type(box, text);
    Key(Qt::Key_Return);
  }
  /// Brings a picture's popup up by the right button.
  QMenu* OpenDrawingPopup() {
    QWidget& picture = Find(PageShown(Document().design) == 0 ? "Picture1" : "Picture3");
    QTest::mouseMove(&picture, QPoint(60, 40));
    QTest::mouseClick(&picture, Qt::RightButton, {}, QPoint(60, 40));
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  }
  /// Brings the popup of a field up as the desktop does: by a press anywhere in the window.
  QMenu* OpenFieldPopup(const std::string& name) {
    EntryBox& box = Box(name);
    const QPoint middle(box.width() / 2, box.height() / 2);
    QTest::mouseMove(&box, middle);
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, box.mapTo(&window, middle));
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  }

  ScratchFolder folder;
  QtDialogs dialogs;
  QtPrinter printer{dialogs};
  HelpViewer help{QString(PITCHCRAFT_SOURCE_DIR) + "/docs/help"};
  CalculatorOnCall calculator;
  MemoryStore store;
  MainWindow window{{dialogs, store, folder.Path(), &printer, {}, &calculator, &help}};
};

}  // namespace pitchcraft::testing
