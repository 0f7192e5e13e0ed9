#include "shell/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QFontInfo>
#include <QLineEdit>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "design/questions.h"
#include "document/files.h"
#include "document/menu_forms.h"
#include "document/session_ends.h"
#include "document/side_programs.h"
#include "shell/entry_box.h"
#include "shell/icons.h"
#include "shell/twips.h"

namespace pitchcraft {
namespace {

constexpr int kNormal = 0;
constexpr int kMinimized = 1;
constexpr int kMaximized = 2;

// Pixels.
constexpr int kBesideStatus = 4;
constexpr int kAboveAndBelowStatus = 4;
constexpr int kLeastFont = 7;

// Twips inside a screen: a window whose corner stands nearer to the edge leaves nothing to take hold of.
constexpr int kReach = 500;

/// The one project that is dragged; empty where it is anything else.
QString DraggedProject(const QMimeData& dragged) {
  const QList<QUrl> urls = dragged.urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
  const QString path = urls.front().toLocalFile();
  return QFileInfo(path).suffix().compare("pcf", Qt::CaseInsensitive) == 0 ? path : QString();
}

}  // namespace

MainWindow::MainWindow(const Surroundings& surroundings) : session_(surroundings) {
  setObjectName("frmDocument");
  pitchcraft::Start(Document());
  FitToScreens();
  menus_ = new MenuStrip(session_, this);
  tools_ = new ToolStrip(session_, this);
  bay_ = new BayStrip(session_, this);
  tabs_ = new TabStrip(session_, this);
  sheet_ = new SheetPanel(session_, this);
  picture1_ = new PictureView(session_, 1, this);
  picture3_ = new PictureView(session_, 3, this);
  status_ = new QLabel(this);
  status_->setObjectName("StatusBar");
  status_->setAccessibleName(tr("Status"));
  status_->setTextFormat(Qt::PlainText);
  status_->setContentsMargins(kBesideStatus, 0, kBesideStatus, 0);
  AddViewCommands();
  AddCalculateCommand();
  setWindowIcon(ProgramIcon());
  FitWords();
  resize(ToPixels(Document().window.Place.Width), ToPixels(Document().window.Place.Height));
  ChainTabOrder();
  TakeDroppedProjects();
  auto* help = new QShortcut(QKeySequence::HelpContents, this);
  connect(help, &QShortcut::activated, this,
          [this] { session_.Do([this](Actions&) { ShowHelp(Document(), HelpPlace::kTopic); }); });
  connect(&session_, &Session::Changed, this, &MainWindow::FinishAction);
  // The action that asks for it comes to its end first.
  connect(this, &MainWindow::CloseAsked, this, &QWidget::close, Qt::QueuedConnection);
  connect(&session_, &Session::StatusChanged, this, &MainWindow::SyncStatus);
  Sync();
}

// The screens of the last time may have been larger.
void MainWindow::FitToScreens() {
  const QSize room = QGuiApplication::primaryScreen()->virtualSize() * kTwipsPerPixel;
  Area& place = Document().window.Place;
  if (place.Width <= room.width() && place.Height <= room.height()) return;
  place.Width = std::min(place.Width, room.width());
  place.Height = std::min(place.Height, room.height());
  pitchcraft::FollowSize(Document());
}

// --- The font at hand
// -------------------------------------------------------------------------------------------------

WordRoom MainWindow::RoomForWords() const {
  WordRoom words = sheet_->Words();
  const FormLayout usual = LayOutForm(0, 0, {});
  const auto holdIn = [&words](int needed, const Area& strip) {
    words.down = std::max(words.down, static_cast<double>(needed) / ToPixels(strip.Height));
  };
  holdIn(menus_->sizeHint().height(), usual.menuBar);
  holdIn(tabs_->LeastHeight(), usual.tabStrip);
  holdIn(status_->fontMetrics().height() + kAboveAndBelowStatus, usual.statusBar);
  const int widest = std::max({menus_->LeastWidth(), bay_->LeastWidth(), tabs_->LeastWidth()});
  words.widestStrip = std::max(words.widestStrip, widest * kTwipsPerPixel);
  return words;
}

// The font is the desktop's, made smaller only where not even the least window would fit on the screen.
void MainWindow::FitWords() {
  if (std::exchange(fitsWords_, true)) return;
  setFont(QFont());
  const QSize screen = this->screen()->availableSize();
  WordRoom words = RoomForWords();
  const auto shareOfScreen = [&] {
    const QSizeF least = ToRect(LeastForm(words)).size();
    return std::min(screen.width() / least.width(), screen.height() / least.height());
  };
  // Not all of the window grows with its letters, so the share of them that fits is smaller yet.
  int pixels = static_cast<int>(QFontInfo(font()).pixelSize() * shareOfScreen());
  for (; shareOfScreen() < 1 && pixels >= kLeastFont; --pixels) {
    QFont smaller = font();
    smaller.setPixelSize(pixels);
    setFont(smaller);
    words = RoomForWords();
  }
  fitsWords_ = false;
  const bool changed = words != Document().window.Words;
  Document().window.Words = words;
  setMinimumSize(ToRect(LeastForm(words)).size());
  if (changed) LayOut();
}

template <typename Action>
void MainWindow::ForEachView(Action action) {
  for (const auto* views : {&sheet_->Views(), &tabs_->Views(), &bay_->Views()}) {
    for (const auto& view : *views) action(*view);
  }
}

PictureView& MainWindow::ShownView() { return PageShown(Document().design) == 0 ? *picture1_ : *picture3_; }

void MainWindow::AddViewCommands() {
  commands_ = new ViewCommands(
      session_, [this]() -> PictureView& { return ShownView(); }, this);
  menus_->Append("mnuView", commands_->All());
  for (PictureView* view : {picture1_, picture3_}) view->addActions(commands_->All());
  connect(commands_, &ViewCommands::Said, status_, &QLabel::setText);
}

// Every entry calculates; the few that wait need a way that changes nothing else. The key serves also where
// the menu does not show.
void MainWindow::AddCalculateCommand() {
  auto* calculate = new QAction(tr("Calculate &Now"), this);
  calculate->setObjectName("CalculateNow");
  calculate->setShortcut(Qt::Key_F9);
  connect(calculate, &QAction::triggered, this, &MainWindow::CalculateNow);
  connect(calculate, &QAction::hovered, this,
          [this] { status_->setText(tr("Calculate the roof with every entry that waits.")); });
  menus_->Append("mnuSettings", {calculate});
  addAction(calculate);
}

// What the status bar said of an entry that waited is over.
void MainWindow::CalculateNow() {
  EntryBox::CommitFocused();
  session_.Do([](Actions& actions) { actions.Calculate(); });
  std::string focused;
  ForEachView([&](ControlView& view) {
    const std::vector<QWidget*> stops = view.TabStops();
    const bool here = std::find(stops.begin(), stops.end(), QApplication::focusWidget()) != stops.end();
    if (here) focused = view.Of().Name;
  });
  session_.Hint(focused);
}

// Tab goes as the eye does, from the top to the sheet and on to the drawing. The sheet orders its rows
// itself.
void MainWindow::ChainTabOrder() {
  std::vector<QWidget*> stops;
  const auto add = [&](const auto& views) {
    for (const auto& view : views) {
      for (QWidget* stop : view->TabStops()) stops.push_back(stop);
    }
  };
  add(bay_->Views());
  stops.push_back(&tabs_->Pages());
  add(tabs_->Views());
  add(sheet_->Views());
  stops.push_back(&sheet_->RoofTabs());
  stops.push_back(picture1_);
  stops.push_back(picture3_);
  for (std::size_t i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void MainWindow::Open() {
  pitchcraft::Document& document = Document();
  QPoint place(ToPixels(document.window.Place.Left), ToPixels(document.window.Place.Top));
  // The screen of the last time may be gone.
  if (QGuiApplication::screenAt(place + QPoint(ToPixels(kReach), ToPixels(kReach))) == nullptr) {
    place = QGuiApplication::primaryScreen()->availableGeometry().topLeft();
    document.window.Place.Left = place.x() * kTwipsPerPixel;
    document.window.Place.Top = place.y() * kTwipsPerPixel;
  }
  move(place);
  if (document.preferences.WindowState == kMaximized) {
    showMaximized();
  } else {
    // A window that was put away is laid out only now.
    if (document.preferences.WindowState == kMinimized) {
      Document().preferences.WindowState = kNormal;
      session_.Do([this](Actions&) { pitchcraft::FollowSize(Document()); });
    }
    show();
  }
}

// --- Projects from outside
// ------------------------------------------------------------------------------------------

void MainWindow::TakeDroppedProjects() {
  setAcceptDrops(true);
  // A field would take the file's name for a text.
  for (QLineEdit* box : findChildren<QLineEdit*>()) box->setAcceptDrops(false);
}

void MainWindow::OpenProject(const QString& path) {
  EntryBox::CommitFocused();
  const std::string file = QFileInfo(path).absoluteFilePath().toStdString();
  session_.Do([&](Actions&) { pitchcraft::OpenProject(Document(), file); });
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedProject(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

// The program that it was dragged from waits until the drop is taken, so what opening has to say comes after.
void MainWindow::dropEvent(QDropEvent* event) {
  const QString path = DraggedProject(*event->mimeData());
  if (path.isEmpty()) return;
  event->acceptProposedAction();
  QMetaObject::invokeMethod(
      this, [this, path] { OpenProject(path); }, Qt::QueuedConnection);
}

void MainWindow::ShowStartForms() {
  session_.Do([this](Actions&) { pitchcraft::ShowStartForms(Document()); });
}

// --- The document's state into the widgets
// --------------------------------------------------------------------------

// A widget that takes its state may end another one's entry; that is shown afterwards.
void MainWindow::Sync() {
  again_ = true;
  if (syncing_) return;
  syncing_ = true;
  while (again_) {
    again_ = false;
    SyncOnce();
  }
  syncing_ = false;
}

void MainWindow::FinishAction() {
  Sync();
  if (std::exchange(layoutIsDue_, false)) LayOut();
}

void MainWindow::SyncOnce() {
  menus_->Sync();
  tools_->Sync();
  PlaceParts();
  picture1_->Sync();
  picture3_->Sync();
  commands_->Sync();
  SyncStatus();
  // A title's own brackets with a star are no mark of the toolkit.
  const QString title = QString::fromStdString(Document().window.Title).replace("[*]", "[*][*]");
  if (title != windowTitle()) setWindowTitle(title);
  GiveFocus();
  if (Document().window.CloseRequested && !closed_) emit CloseAsked();
}

void MainWindow::SyncStatus() {
  const QString text = QString::fromStdString(Document().window.Status);
  if (text != status_->text()) status_->setText(text);
}

void MainWindow::PlaceParts() {
  const FormLayout layout = Document().Layout();
  const auto put = [](QWidget& part, const Area& area, bool shown) {
    if (shown) part.setGeometry(ToRect(area));
    if (part.isHidden() == shown) part.setVisible(shown);
  };
  const bool design = Document().design.sheet.Tabs[0].Page == 0;
  put(*menus_, layout.menuBar, true);
  menus_->move(0, std::max(0, (ToPixels(layout.menuBar.Height) - menus_->sizeHint().height()) / 2));
  put(*tools_, layout.toolBar, layout.toolBar.Height > 0);
  put(*bay_, layout.bayStrip, layout.bayStrip.Height > 0);
  put(*tabs_, layout.tabStrip, true);
  put(*sheet_, layout.sheet, design);
  put(*picture1_, layout.picture1, design);
  put(*picture3_, layout.picture3, !design);
  put(*status_, layout.statusBar, layout.statusBar.Height > 0);
  bay_->Sync();
  tabs_->Sync();
  if (design) sheet_->Sync(layout);
}

// A dialog keeps the focus, and a control that does not show cannot take it.
void MainWindow::GiveFocus() {
  std::string wanted;
  std::swap(wanted, Document().window.FocusRequest);
  if (wanted.empty() || Document().window.DialogIsActive || QApplication::activeModalWidget() != nullptr)
    return;
  ForEachView([&](ControlView& view) {
    if (view.Of().Name != wanted || view.TabStops().empty()) return;
    QWidget* stop = view.TabStops().front();
    if (!stop->isVisibleTo(this) || !stop->isEnabled()) return;
    stop->setFocus(Qt::OtherFocusReason);
    if (auto* box = qobject_cast<QLineEdit*>(stop)) box->selectAll();
  });
}

// --- The window's own events
// ----------------------------------------------------------------------------------------

void MainWindow::FollowSize() {
  Area& place = Document().window.Place;
  const Area now{place.Left, place.Top, width() * kTwipsPerPixel, height() * kTwipsPerPixel};
  // A size in twips that is no whole number of pixels is the same window.
  const bool same = ToRect(now).size() == ToRect(place).size();
  if (same) return;
  place = now;
  LayOut();
}

// Under an open form the parts follow at once; what is drawn is drawn for the new size when the form is
// closed.
void MainWindow::LayOut() {
  if (session_.Do([this](Actions&) { pitchcraft::FollowSize(Document()); })) return;
  layoutIsDue_ = true;
  Sync();
}

void MainWindow::resizeEvent(QResizeEvent*) { FollowSize(); }

void MainWindow::moveEvent(QMoveEvent*) {
  if (isMaximized() || isMinimized() || !isVisible()) return;
  Document().window.Place.Left = x() * kTwipsPerPixel;
  Document().window.Place.Top = y() * kTwipsPerPixel;
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) {
    Document().preferences.WindowState = isMinimized() ? kMinimized : isMaximized() ? kMaximized : kNormal;
  }
  // The fields mix the desktop's colours with their own. The parts learn of the new ones after the window.
  if (event->type() == QEvent::PaletteChange) {
    QMetaObject::invokeMethod(this, &MainWindow::Sync, Qt::QueuedConnection);
  }
  QWidget::changeEvent(event);
}

// The parts take the desktop's new letters over after the window.
bool MainWindow::event(QEvent* event) {
  const bool letters = event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange;
  if (letters && !fitsWords_) {
    QMetaObject::invokeMethod(
        this, [this] { FitWords(), Sync(); }, Qt::QueuedConnection);
  }
  return QWidget::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!closed_) {
    closed_ = true;
    pitchcraft::Close(Document());
  }
  event->accept();
}

}  // namespace pitchcraft
