// Takes pictures of everything that the window can show.
#include <QApplication>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPalette>
#include <QTabWidget>
#include <QWheelEvent>
#include <cstdio>

#include "document/actions.h"
#include "document/forms.h"
#include "document/null_surroundings.h"
#include "gallery/calculator.h"
#include "gallery/gallery.h"
#include "platform/program_folder.h"
#include "roofs/roof_types.h"
#include "shell/help_window.h"
#include "shell/main_window.h"
#include "shell/program.h"
#include "shell/program_style.h"
#include "shell/qt_dialogs.h"
#include "shell/qt_printer.h"
#include "shell/splash.h"
#include "shell/view_commands.h"

namespace pitchcraft {
namespace {

constexpr QSize kScreen(1280, 720);  // the smallest screen that is still common

QString Text(std::string_view text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }

/// The colours of a dark desktop.
QPalette DarkPalette() {
  const QColor window(0x2B, 0x2D, 0x30);
  const QColor text(0xE6, 0xE6, 0xE6);
  QPalette palette(text, window, QColor(0x4A, 0x4D, 0x52), QColor(0x1A, 0x1B, 0x1D), QColor(0x3A, 0x3D, 0x41),
                   text, Qt::white, QColor(0x1E, 0x1F, 0x22), window);
  palette.setColor(QPalette::Button, QColor(0x3A, 0x3D, 0x41));
  palette.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xE4));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(0x78, 0xAE, 0xED));
  palette.setColor(QPalette::ToolTipBase, window);
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::PlaceholderText, QColor(0x9A, 0x9A, 0x9A));
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(0x8C, 0x8C, 0x8C));
  }
  return palette;
}

class Photographer {
 public:
  explicit Photographer(const QString& folder)
      : gallery_(folder), printer_(dialogs_), window_(Around()), actions_(window_.Document()) {
    dialogs_.SetOwner(&window_);
    printer_.SetOwner(&window_);
    window_.Open();
    window_.resize(kScreen);
  }

  void Everything() {
    Roofs();
    Views();
    Dialogs();
    MenusAndPopups();
    OtherWindows();
    Dark();
  }

  const Gallery& Shots() const { return gallery_; }

 private:
  Surroundings Around() {
    Surroundings around{dialogs_, store_, {}, &printer_};
    around.dataFolder = DataFolder();
    return around;
  }

  /// After an action on the document, updates the window.
  void Do(const Refusal& refusal) {
    if (refusal) {
      std::fprintf(stderr, "gallery: %s\n", refusal->c_str());
      std::_Exit(1);
    }
    window_.ShowState();
    QApplication::processEvents();
  }

  /// Every roof looks best at a common slope; some roofs have no slope field.
  void SlopeOfSixInTwelve() {
    for (const char* field : {"LWSlope(0)", "LWSlope(1)", "LWSlope(2)"})
      static_cast<void>(actions_.Type(field, "6 | 12"));
    Do(actions_.Page("VSTab(0)", 0));
  }

  void Pages(const QString& roof) {
    const IndexTab& tab = window_.Document().design.sheet.Tabs[0];
    for (int page = 0; page < tab.PageCount(); ++page) {
      Do(actions_.Page("VSTab(0)", page));
      // A page whose drawing is still to come shows only that it is.
      if (!window_.Document().HasFigure()) continue;
      gallery_.Take(window_, roof + ": " + Text(tab.Pages()[static_cast<std::size_t>(page)]));
    }
    Do(actions_.Page("VSTab(0)", 0));
  }

  void Roofs() {
    gallery_.Heading("Roofs");
    for (const RoofType* type : RoofTypes()) {
      const RoofType::Facts& row = type->About();
      Do(actions_.Press(row.ToolButton));
      SlopeOfSixInTwelve();
      Pages(Text(row.Item));
    }
    Do(actions_.Press("Hip"));
    Do(actions_.Type("LWSlope(2)", "10 | 12"));
    Pages("Hip with unequal slopes");
  }

  void Views() {
    gallery_.Heading("The window");
    Do(actions_.Press("Gable"));
    SlopeOfSixInTwelve();
    auto* view = window_.findChild<QWidget*>("Picture1");
    auto& picture = static_cast<PictureView&>(*view);
    const QPointF seat(picture.width() * 0.12, picture.height() * 0.85);
    QWheelEvent turn(seat, picture.mapToGlobal(seat), {}, {0, 960}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&picture, &turn);
    gallery_.Take(window_, "Part of the drawing");
    picture.Fit();
    Do(actions_.Click("mnuMetric"));
    gallery_.Take(window_, "Millimetres");
    Do(actions_.Click("mnuImperial"));
    window_.resize(window_.minimumSize());
    gallery_.Take(window_, "The smallest window");
    window_.resize(kScreen);
  }

  void TakeForm(const QString& caption, const char* item, const std::function<void(QDialog&)>& take = {}) {
    gallery_.TakeDialog(
        caption, [&] { window_.findChild<QAction*>(item)->trigger(); }, take);
  }

  void Options(const QString& caption) {
    TakeForm(caption, "mnuViewOptions", [&](QDialog& dialog) {
      auto* tabs = dialog.findChild<QTabWidget*>();
      for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        gallery_.Take(dialog, caption + ": " + tabs->tabText(page).remove('&'));
      }
    });
  }

  void Dialogs() {
    gallery_.Heading("Dialogs");
    Options("Options");
    TakeForm("Tip of the Day", "mnuHelpTips");
    TakeForm("About", "mnuHelpAbout");
    TakeForm("Page Setup", "mnuFilePageSetup");
    TakeForm("Project Name", "mnuFileProjectName");
    gallery_.TakeDialog("Increment", [&] { Do(actions_.Click("mnuSpinIncrement")); });
    gallery_.TakeDialog("Disclaimer", [&] {
      DisclaimerForm form(store_);
      dialogs_.ShowForm(&form);
    });
    gallery_.TakeDialog("A message", [&] { Do(actions_.Type("FtSpan(0)", "1e30")); });
    Do(actions_.Type("FtSpan(0)", "24'"));
  }

  void MenusAndPopups() {
    gallery_.Heading("Menus");
    QStringList taken;
    for (const char* key : {"Gable", "Hip", "Dutch Hip", "Gambrel"}) {
      Do(actions_.Press(key));
      Do(actions_.Page("VSTab(0)", 0));
      for (const QAction* row : window_.findChild<QMenuBar*>()->actions()) {
        QMenu* menu = row->menu();
        if (menu == nullptr || !row->isVisible() || taken.contains(row->text())) continue;
        taken << row->text();
        gallery_.TakeMenu("Menu: " + row->text().remove('&'),
                          [&] { menu->popup(window_.mapToGlobal(QPoint(0, 24))); });
      }
      gallery_.TakeMenu(QString("Right click on the drawing: %1").arg(key), [&] {
        auto* view = window_.findChild<QWidget*>("Picture1");
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(40, 40), view->mapToGlobal(QPointF(40, 40)),
                          Qt::RightButton, Qt::RightButton, Qt::NoModifier);
        QApplication::sendEvent(view, &press);
      });
    }
  }

  void OtherWindows() {
    gallery_.Heading("Other windows");
    Splash splash(PITCHCRAFT_VERSION);
    splash.show();
    gallery_.Take(splash, "Splash");
    splash.close();
    HelpWindow help(QString(PITCHCRAFT_SOURCE_DIR) + "/docs/help");
    help.show();
    help.ShowPage("index.html");
    gallery_.Take(help, "Help: Contents");
    help.ShowPage("80.html");
    gallery_.Take(help, "Help: a roof type");
    help.ShowPage("glossary.html");
    gallery_.Take(help, "Help: Glossary");
    const auto calculator = CalculatorWithSum();
    gallery_.Take(*calculator, "FtInch Calculator");
  }

  void Dark() {
    gallery_.Heading("On a dark desktop");
    const QPalette before = QApplication::palette();
    QApplication::setPalette(DarkPalette());
    Do(actions_.Press("Gable"));
    gallery_.Take(window_, "Dark: Common");
    Do(actions_.Press("Hip"));
    gallery_.Take(window_, "Dark: Hip");
    Options("Dark options");
    HelpWindow help(QString(PITCHCRAFT_SOURCE_DIR) + "/docs/help");
    help.show();
    help.ShowPage("80.html");
    gallery_.Take(help, "Dark help");
    const auto calculator = CalculatorWithSum();
    gallery_.Take(*calculator, "Dark calculator");
    QApplication::setPalette(before);
  }

  Gallery gallery_;
  QtDialogs dialogs_;
  MemoryStore store_;
  QtPrinter printer_;
  MainWindow window_;
  Actions actions_;
};

}  // namespace
}  // namespace pitchcraft

int main(int argc, char** argv) {
  pitchcraft::UseProgramStyle();
  const QApplication application(argc, argv);
  pitchcraft::SetUpApplication();
  const QStringList arguments = QCoreApplication::arguments().mid(1);
  if (arguments.isEmpty() || arguments.size() > 2) {
    std::fputs("Usage: pitchcraft_gallery FOLDER [PAGE.md]\n", stderr);
    return 2;
  }
  pitchcraft::Photographer photographer(arguments[0]);
  photographer.Everything();
  if (arguments.size() == 2) photographer.Shots().WritePage(arguments[1]);
  std::printf("%d pictures\n", photographer.Shots().Count());
  return 0;
}
