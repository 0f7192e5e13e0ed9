#include "shell/page_tabs.h"

#include <QSignalBlocker>
#include <QStyleOption>
#include <QToolButton>

#include "shell/entry_box.h"

namespace pitchcraft {

PageTabs::PageTabs(Session& session, int index, QWidget* host)
    : QTabBar(host), session_(session), index_(index) {
  setObjectName(QString("VSTab(%1)").arg(index));
  setAccessibleName(index == 0 ? tr("Pages") : tr("Front or rear roof"));
  setExpanding(false);
  setDrawBase(false);
  setUsesScrollButtons(true);
  // The arrow keys go to every caption; Tab has nothing to do at the arrows that push captions along.
  for (auto* arrow : findChildren<QToolButton*>()) arrow->setFocusPolicy(Qt::NoFocus);
  connect(this, &QTabBar::currentChanged, this, [this](int page) {
    EntryBox::CommitFocused();
    session_.Do([&](Actions& actions) { actions.Page(objectName().toStdString(), page); });
  });
}

void PageTabs::Sync() {
  const QSignalBlocker quiet(this);
  const IndexTab& tab = session_.Document().design.sheet.Tabs[static_cast<std::size_t>(index_)];
  if (caption_ != tab.Caption()) {
    caption_ = tab.Caption();
    while (count() > tab.PageCount()) removeTab(count() - 1);
    for (int page = 0; page < tab.PageCount(); ++page) {
      const QString text = QString::fromStdString(tab.Pages()[static_cast<std::size_t>(page)]);
      if (page < count()) {
        setTabText(page, text);
      } else {
        addTab(text);
      }
    }
  }
  if (currentIndex() != tab.Page) setCurrentIndex(tab.Page);
}

int PageTabs::WidthFor(const std::vector<std::string>& captions) const {
  const QFontMetrics words = fontMetrics();
  QStyleOptionTab tab;
  tab.initFrom(this);
  const int beside = style()->pixelMetric(QStyle::PM_TabBarTabHSpace, &tab, this);
  int width = 0;
  for (const std::string& caption : captions) {
    const QString text = QString::fromStdString(caption);
    const QSize inside(words.size(Qt::TextShowMnemonic, text).width() + beside, words.height());
    width += style()->sizeFromContents(QStyle::CT_TabBarTab, &tab, inside, this).width();
  }
  return width;
}

// As high as the strip that it stands in.
QSize PageTabs::tabSizeHint(int tab) const {
  QSize size = QTabBar::tabSizeHint(tab);
  if (height() > 0) size.setHeight(height());
  return size;
}

}  // namespace pitchcraft
