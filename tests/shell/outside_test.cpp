// What comes to the window from outside, and what it starts.
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>

#include "shell/calculator_starter.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

class Outside : public WindowTest {
 protected:
  QString Write(const QString& name, const QByteArray& text) {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return file.fileName();
  }
  QString ShedProject(const QString& name) {
    return Write(name, "[Settings]\r\nRafterType=3\r\nSlope=5\r\nSpan=150\r\n");
  }
  /// Drops it on the widget as the system does; gives whether it was taken.
  static bool Drop(QWidget& on, const QList<QUrl>& urls) {
    QMimeData dragged;
    dragged.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&on, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&on, &drop);
    QCoreApplication::processEvents();
    return true;
  }

  QTemporaryDir folder_;
};

TEST_F(Outside, ProjectOfTheCommandLineOpens) {
  window_.OpenProject(ShedProject("Sch\u00fcppen.pcf"));
  EXPECT_EQ(Document().design.RoofType, Roof::kShed);
  EXPECT_EQ(Document().project.Name, "Sch\xC3\xBCppen");
  EXPECT_EQ(Box("FtSpan(0)").text(), "12' 6\"");
  EXPECT_TRUE(window_.windowTitle().contains("Sch\u00fcppen.pcf"));
  EXPECT_TRUE(surroundings_.dialogs.messages.empty());
}

TEST_F(Outside, FileThatIsNoneIsAMessage) {
  window_.OpenProject(folder_.filePath("nowhere.pcf"));
  window_.OpenProject(Write("Text.pcf", "no project"));
  EXPECT_EQ(surroundings_.dialogs.messages.size(), 2U);
  EXPECT_EQ(Document().design.RoofType, Roof::kGable);
}

TEST_F(Outside, DroppedProjectOpens) {
  EXPECT_TRUE(Drop(window_, {QUrl::fromLocalFile(ShedProject("Shed.PCF"))}));
  EXPECT_EQ(Document().design.RoofType, Roof::kShed);
}

TEST_F(Outside, OtherDropsAreNotTaken) {
  const QUrl shed = QUrl::fromLocalFile(ShedProject("Shed.pcf"));
  EXPECT_FALSE(Drop(window_, {QUrl::fromLocalFile(Write("Shed.txt", ""))}));
  EXPECT_FALSE(Drop(window_, {shed, shed}));
  EXPECT_FALSE(Drop(window_, {QUrl("https://localhost/Shed.pcf")}));
  EXPECT_FALSE(Drop(window_, {}));
  EXPECT_EQ(Document().design.RoofType, Roof::kGable);
}

TEST_F(Outside, FieldLeavesDropsToTheWindow) {
  EXPECT_FALSE(Box("FtSpan(0)").acceptDrops());
  EXPECT_TRUE(window_.acceptDrops());
}

TEST_F(Outside, CalculatorStartsFromTheFirstFolderThatHasIt) {
  EXPECT_FALSE(CalculatorStarter({folder_.path()}).Open(false));
  const QString said = folder_.filePath("said");
  const QString script =
      Write("ftcalc", "#!/bin/sh\nprintf 'begun %s' \"$1\" > '" + said.toUtf8() + ".new'\nmv '" +
                          said.toUtf8() + ".new' '" + said.toUtf8() + "'\n");
  QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  EXPECT_TRUE(CalculatorStarter({folder_.filePath("none"), folder_.path()}).Open(true));
  QFile file(said);
  EXPECT_TRUE(QTest::qWaitFor([&] { return file.exists(); }, 30000));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().toStdString(), "begun --metric");
}

}  // namespace
}  // namespace pitchcraft::testing
