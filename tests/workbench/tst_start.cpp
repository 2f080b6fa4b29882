#include "WidgetTestSupport.h"

#include <HostProject.h>
#include <MainWindow.h>

#include <QSettings>
#include <QTableWidget>
#include <QTreeWidget>

using workbench::MainWindow;

/// What a start does at once and what it leaves for later.
class tst_start : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void projectIsReadBehindThePainting_data();
    void projectIsReadBehindThePainting();
    void settingsAreWrittenForNewFilesOnly();

private:
    int groupCount(const MainWindow& window) const;

    QTemporaryDir m_settings;
    HostProject m_project{QStringLiteral("slab")};
};

void tst_start::init()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
}

int tst_start::groupCount(const MainWindow& window) const
{
    return window.findChild<QTreeWidget*>(QStringLiteral("GroupList"))->topLevelItemCount();
}

void tst_start::projectIsReadBehindThePainting_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::newRow("shown: the window is not held up") << true;
    QTest::newRow("hidden: nobody waits") << false;
}

void tst_start::projectIsReadBehindThePainting()
{
    QFETCH(const bool, isShown);
    MainWindow window({});
    window.setVisible(isShown);
    QVERIFY(window.openProject(m_project.doc()->path()));
    QCOMPARE(groupCount(window) == 0, isShown);
    QTRY_VERIFY(groupCount(window) > 0);
    QTRY_VERIFY(window.findChild<QTableWidget*>(QStringLiteral("Records")));
    const int groups = groupCount(window);
    // A second project takes the place of the first at once: its file is closed.
    HostProject other(QStringLiteral("building"));
    QVERIFY(window.openProject(other.doc()->path()));
    QVERIFY(groupCount(window) != groups);
}

/// Writing waits for the disk, and leaves out what was added by hand.
void tst_start::settingsAreWrittenForNewFilesOnly()
{
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    const QString file = folder.filePath(QStringLiteral("plib/workbench.ini"));
    MainWindow first({});
    QVERIFY(!QFile::exists(file));
    QVERIFY(first.openProject(m_project.doc()->path()));
    QVERIFY(QFile::exists(file));
    testsupport::writeFile(file, testsupport::readFile(file) + "; by hand\n");
    const QByteArray before = testsupport::readFile(file);
    MainWindow second({});
    QVERIFY(second.openProject(m_project.doc()->path()));
    QCOMPARE(testsupport::readFile(file), before);
}

PLIB_WIDGET_TEST_MAIN(tst_start)
#include "tst_start.moc"
