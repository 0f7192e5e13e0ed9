#include "shell/help_window.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

#include "shell/icons.h"

namespace pitchcraft {
namespace {

constexpr int kFileRole = Qt::UserRole;
constexpr int kLettersInLine = 100;
constexpr int kLines = 45;
constexpr int kAroundParts = 30;

QListWidgetItem* RowOf(const HelpPage& page) {
  auto* row = new QListWidgetItem(page.title);
  row->setData(kFileRole, page.file);
  return row;
}

}  // namespace

HelpWindow::HelpWindow(const QString& folder) : pages_(folder) {
  setObjectName("HelpWindow");
  setWindowTitle(tr("Pitchcraft Help"));
  setWindowIcon(ProgramIcon());

  search_ = new QLineEdit(this);
  search_->setObjectName("HelpSearch");
  search_->setAccessibleName(tr("Search the pages"));
  search_->setPlaceholderText(tr("Search"));
  search_->setClearButtonEnabled(true);
  count_ = new QLabel(this);
  count_->setObjectName("HelpCount");
  list_ = new QListWidget(this);
  list_->setObjectName("HelpPages");
  list_->setAccessibleName(tr("Pages"));
  view_ = new QTextBrowser(this);
  view_->setObjectName("HelpText");
  view_->setAccessibleName(tr("Page"));
  view_->setSearchPaths({folder});
  // Nothing is ever fetched: a link out of the folder leads nowhere.
  view_->setOpenLinks(false);

  auto* back = new QPushButton(tr("&Back"), this);
  back->setObjectName("HelpBack");
  back->setEnabled(false);
  auto* contents = new QPushButton(tr("&Contents"), this);
  contents->setObjectName("HelpContents");

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(back);
  buttons->addWidget(contents);
  auto* side = new QWidget(this);
  auto* left = new QVBoxLayout(side);
  left->setContentsMargins(0, 0, 0, 0);
  left->addLayout(buttons);
  left->addWidget(search_);
  left->addWidget(count_);
  left->addWidget(list_, 1);
  parts_ = new QSplitter(this);
  parts_->addWidget(side);
  parts_->addWidget(view_);
  parts_->setStretchFactor(1, 1);
  auto* whole = new QHBoxLayout(this);
  whole->addWidget(parts_);

  connect(search_, &QLineEdit::textChanged, this, &HelpWindow::Search);
  connect(search_, &QLineEdit::returnPressed, this, [this] {
    if (list_->count() > 0) list_->setCurrentRow(0);
  });
  connect(list_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
    if (item != nullptr) Choose(*item);
  });
  connect(view_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    if (link.isRelative()) ShowPage(link.toString());
  });
  connect(view_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(back, &QPushButton::clicked, view_, &QTextBrowser::backward);
  connect(contents, &QPushButton::clicked, this, [this] {
    search_->clear();
    ShowPage("index.html");
  });
  ListPages();
  FitWords();
}

// Every title can be read, and a page has lines as long as a book's.
void HelpWindow::FitWords() {
  const int bar = list_->verticalScrollBar()->sizeHint().width();
  const int titles = list_->sizeHintForColumn(0) + bar + 2 * list_->frameWidth();
  const int text = kLettersInLine * fontMetrics().averageCharWidth();
  const QSize wanted(titles + text + kAroundParts, kLines * fontMetrics().lineSpacing());
  resize(wanted.boundedTo(screen()->availableSize()));
  parts_->setSizes({titles, text});
}

void HelpWindow::ListPages() {
  const QSignalBlocker quiet(list_);
  list_->clear();
  count_->clear();
  for (const HelpPage& page : pages_.Pages()) list_->addItem(RowOf(page));
}

void HelpWindow::Search(const QString& words) {
  if (words.trimmed().isEmpty()) return ListPages();
  const QSignalBlocker quiet(list_);
  list_->clear();
  for (const HelpPage* page : pages_.Find(words)) list_->addItem(RowOf(*page));
  count_->setText(list_->count() == 0 ? tr("Not found") : tr("Found on %n page(s)", "", list_->count()));
}

// The first of the words found is shown at once.
void HelpWindow::Choose(const QListWidgetItem& item) {
  ShowPage(item.data(kFileRole).toString());
  const QString word = search_->text().trimmed().section(' ', 0, 0);
  if (!word.isEmpty()) view_->find(word);
}

bool HelpWindow::ShowPage(const QString& file) {
  const QString page = file.section('#', 0, 0);
  // A link within the page has no name before it.
  if (!page.isEmpty() && !pages_.Has(page)) return false;
  QUrl url = page.isEmpty() ? view_->source() : QUrl::fromLocalFile(pages_.Folder() + '/' + page);
  if (file.contains('#')) url.setFragment(file.section('#', 1));
  view_->setSource(url);
  return true;
}

void HelpWindow::ShowSearch() {
  search_->setFocus();
  search_->selectAll();
}

void HelpWindow::Raise() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else if (event->matches(QKeySequence::Find)) {
    ShowSearch();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace pitchcraft
