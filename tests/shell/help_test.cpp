// The pages of help: whole, found, and opened by menu and key.
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBrowser>

#include "document/null_surroundings.h"
#include "document/options_form.h"
#include "shell/help_viewer.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

const QString kFolder = QString(PITCHCRAFT_SOURCE_DIR) + "/docs/help";

QString TextOf(const QString& file) {
  QFile page(kFolder + '/' + file);
  return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

/// What the pages name behind `mark`, each with the page that names it.
std::vector<std::pair<QString, QString>> NamedBy(const QString& mark) {
  std::vector<std::pair<QString, QString>> names;
  const HelpPages pages(kFolder);
  for (const HelpPage& page : pages.Pages()) {
    QRegularExpressionMatchIterator found =
        QRegularExpression(mark + "=\"([^\"]*)\"").globalMatch(TextOf(page.file));
    while (found.hasNext()) names.emplace_back(page.file, found.next().captured(1));
  }
  return names;
}

TEST(HelpPages, EveryRoofTypeHasOne) {
  const HelpPages pages(kFolder);
  for (const RoofType* type : RoofTypes()) {
    const RoofType::Facts& row = type->About();
    const QString file = QString::number(row.HelpTopic) + ".html";
    EXPECT_TRUE(pages.Has(file)) << row.Item;
    EXPECT_TRUE(TextOf(file).contains(QString::fromStdString(std::string(row.Item)))) << row.Item;
  }
}

TEST(HelpPages, NameThePagesOfTheirRoof) {
  for (const RoofType* type : RoofTypes()) {
    const RoofType::Facts& row = type->About();
    const QString text = TextOf(QString::number(row.HelpTopic) + ".html");
    const QStringList captions = QString::fromStdString(CaptionsOf(row.Pages)).split('|');
    for (const QString& caption : captions.mid(1)) {
      EXPECT_TRUE(text.contains('"' + caption + '"')) << row.Item << ": " << caption.toStdString();
    }
  }
}

// What the box of the options is called in its own captions, a person searches for.
TEST(HelpPages, TellOfEveryPageOfTheOptions) {
  const QString options = TextOf("options.html") + TextOf("dxf.html") + TextOf("lists.html");
  for (const char* page : kOptionsPages) {
    EXPECT_TRUE(options.contains(page, Qt::CaseInsensitive)) << page;
  }
  for (const char* caption : {"Use System Colors", "Print All As Black", "Rotate TrueType Fonts",
                              "Printer Line Weight", "DXF Textsize", "Insert Row", "Delete Row"}) {
    EXPECT_TRUE(options.contains(caption)) << caption;
  }
}

TEST(HelpPages, LinksLeadToPagesThatAreThere) {
  const HelpPages pages(kFolder);
  const auto links = NamedBy("href");
  EXPECT_GT(links.size(), 20U);
  std::set<QString> linked;
  for (const auto& [page, link] : links) {
    EXPECT_TRUE(pages.Has(link)) << page.toStdString() << " -> " << link.toStdString();
    if (page == "index.html") linked.insert(link);
  }
  // The contents list every page but themselves.
  EXPECT_EQ(linked.size() + 1, pages.Pages().size());
}

TEST(HelpPages, FiguresAreThereAndDescribed) {
  const auto figures = NamedBy("img src");
  EXPECT_GT(figures.size(), 10U);
  EXPECT_EQ(NamedBy("alt").size(), figures.size());
  for (const auto& [page, figure] : figures) {
    EXPECT_FALSE(QImage(kFolder + '/' + figure).isNull()) << figure.toStdString();
  }
}

TEST(HelpPages, HaveTitlesOfTheirOwn) {
  std::set<QString> titles;
  const HelpPages pages(kFolder);
  for (const HelpPage& page : pages.Pages()) {
    EXPECT_FALSE(page.title.isEmpty()) << page.file.toStdString();
    EXPECT_TRUE(titles.insert(page.title).second) << page.title.toStdString();
  }
  EXPECT_EQ(pages.Pages().front().file, "index.html");
}

TEST(HelpPages, SearchFindsWords) {
  const HelpPages pages(kFolder);
  const auto found = [&](const char* words) {
    QStringList files;
    for (const HelpPage* page : pages.Find(words)) files << page->file;
    return files;
  };
  EXPECT_TRUE(found("purlin").contains("430.html"));
  EXPECT_TRUE(found("BIRDSMOUTH").contains("heel.html"));
  EXPECT_EQ(found("slopes").front(), "slopes.html");
  EXPECT_TRUE(found("valley plate").contains("390.html"));
  EXPECT_EQ(found("options").front(), "options.html");
  EXPECT_TRUE(found("line weight").contains("options.html"));
  EXPECT_TRUE(found("text size").contains("dxf.html"));
  EXPECT_TRUE(found("lumber list").contains("lists.html"));
  EXPECT_EQ(found("increment").front(), "increment.html");
  EXPECT_TRUE(found("zoom wheel").contains("keyboard.html"));
  EXPECT_TRUE(found("shift tab").contains("keyboard.html"));
  EXPECT_FALSE(found("valley purlin").contains("390.html"));
  EXPECT_TRUE(found("(.*").isEmpty());
  EXPECT_TRUE(found("   ").isEmpty());
  EXPECT_TRUE(found("href").isEmpty());
}

TEST(HelpPages, AreLookedForInOrder) {
  const QTemporaryDir place;
  const QDir root(place.path());
  EXPECT_EQ(HelpFolder(place.path() + "/usr/bin"), "");
  const auto make = [&](const QString& folder) {
    root.mkpath(folder);
    QFile file(root.filePath(folder + "/index.html"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return QDir::cleanPath(root.filePath(folder));
  };
  root.mkpath("usr/bin");
  EXPECT_EQ(HelpFolder(place.path() + "/usr/bin"), "");
  const QString source = make("docs/help");
  EXPECT_EQ(HelpFolder(place.path() + "/usr/bin"), source);
  const QString data = make("usr/share/pitchcraft/help");
  EXPECT_EQ(HelpFolder(place.path() + "/usr/bin"), data);
  const QString beside = make("usr/bin/help");
  EXPECT_EQ(HelpFolder(place.path() + "/usr/bin"), beside);
}

class Help : public ::testing::Test {
 protected:
  Help() {
    Surroundings around = surroundings_.Get();
    around.help = &viewer_;
    window_.emplace(around);
    OpenForTest(*window_);
  }
  void Trigger(const char* item) { window_->findChild<QAction*>(item)->trigger(); }
  void PressF1() {
    window_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&*window_));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
  }
  QString Shown() {
    if (viewer_.Window() == nullptr || !viewer_.Window()->isVisible()) return "nothing";
    return View().source().fileName();
  }
  QTextBrowser& View() { return *viewer_.Window()->findChild<QTextBrowser*>(); }
  QListWidget& List() { return *viewer_.Window()->findChild<QListWidget*>(); }
  QLineEdit& SearchBox() { return *viewer_.Window()->findChild<QLineEdit*>("HelpSearch"); }

  NullSurroundings surroundings_;
  HelpViewer viewer_{kFolder};
  std::optional<MainWindow> window_;
};

TEST_F(Help, MenuOpensItsPlaces) {
  Trigger("mnuHelpGlossary");
  EXPECT_EQ(Shown(), "glossary.html");
  Trigger("mnuHelpcontents");
  EXPECT_EQ(Shown(), "index.html");
  Trigger("mnuHelpSearch");
  EXPECT_TRUE(QTest::qWaitForWindowActive(viewer_.Window()));
  EXPECT_TRUE(SearchBox().hasFocus());
  EXPECT_TRUE(surroundings_.dialogs.messages.empty());
}

TEST_F(Help, F1OpensTheRoofAtHandAndEscapeCloses) {
  PressF1();
  EXPECT_EQ(Shown(), "60.html");
  EXPECT_TRUE(QTest::qWaitForWindowActive(viewer_.Window()));
  QTest::keyClick(&View(), Qt::Key_Escape);
  EXPECT_EQ(Shown(), "nothing");
  QTest::mouseClick(window_->findChild<QToolButton*>("Gambrel"), Qt::LeftButton);
  PressF1();
  EXPECT_EQ(Shown(), "430.html");
  for (QWidget* part : {static_cast<QWidget*>(&SearchBox()), static_cast<QWidget*>(&List())}) {
    viewer_.Window()->Raise();
    QTest::keyClick(part, Qt::Key_Escape);
    EXPECT_EQ(Shown(), "nothing") << part->objectName().toStdString();
  }
}

TEST_F(Help, SearchListsPagesAndShowsTheWord) {
  Trigger("mnuHelpSearch");
  const int all = List().count();
  QTest::keyClicks(&SearchBox(), "purlin");
  EXPECT_LT(List().count(), all);
  ASSERT_GT(List().count(), 0);
  QTest::keyClick(&SearchBox(), Qt::Key_Return);
  EXPECT_NE(Shown(), "index.html");
  EXPECT_EQ(View().textCursor().selectedText().toLower(), "purlin");
  QTest::keyClicks(&SearchBox(), "zzz");
  EXPECT_EQ(List().count(), 0);
  EXPECT_EQ(viewer_.Window()->findChild<QLabel*>("HelpCount")->text(), "Not found");
  SearchBox().clear();
  EXPECT_EQ(List().count(), all);
}

TEST_F(Help, LinksStayInTheFolder) {
  Trigger("mnuHelpcontents");
  emit View().anchorClicked(QUrl("heel.html"));
  EXPECT_EQ(Shown(), "heel.html");
  emit View().anchorClicked(QUrl("https://localhost/index.html"));
  emit View().anchorClicked(QUrl("../../README.md"));
  EXPECT_EQ(Shown(), "heel.html");
  QTest::mouseClick(viewer_.Window()->findChild<QPushButton*>("HelpBack"), Qt::LeftButton);
  EXPECT_EQ(Shown(), "index.html");
}

TEST_F(Help, ClosesWithTheProgram) {
  Trigger("mnuHelpcontents");
  EXPECT_FALSE(viewer_.Window()->testAttribute(Qt::WA_QuitOnClose));
}

TEST(NoHelp, IsAMessage) {
  const QTemporaryDir empty;
  for (const QString& folder : {QString(), empty.path()}) {
    HelpViewer viewer(folder);
    EXPECT_FALSE(viewer.Show(HelpPlace::kContents, 60));
    EXPECT_EQ(viewer.Window(), nullptr);
  }
}

}  // namespace
}  // namespace pitchcraft::testing
