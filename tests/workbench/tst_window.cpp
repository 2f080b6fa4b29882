#include "WindowTestSupport.h"

#include <changedLines.h>
#include <MainWindow.h>
#include <PlatformLog.h>
#include <vkd_lib_value.h>
#include <VKD_QT_InitTranslator.h>

#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTreeWidget>

using testsupport::whenModal;
using workbench::MainWindow;

using namespace windowtest;

class tst_window : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void fromModelToSavedScript_data();
    void fromModelToSavedScript();
    void scriptFollowsAndIsKept();
    void pickingInTheView();
    void troubles_data();
    void troubles();
    void writeProtectedProject();
    void everyControlHasAName();
    void linesThatChanged_data();
    void linesThatChanged();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    /// A new project of the building, opened in the window.
    void open(MainWindow& window, const QString& name);

    QTemporaryDir m_folder;
};

void tst_window::initTestCase()
{
    workbench::PlatformLog::install();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, path(QStringLiteral("ini")));
}

void tst_window::init()
{
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1);
    VKD_QT_InitTranslator::languageChanged();
    QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("plib"),
              QStringLiteral("workbench"))
        .clear();
}

void tst_window::open(MainWindow& window, const QString& name)
{
    QCOMPARE(makeProject(path(name), QStringLiteral("building")), QString());
    window.show();
    QVERIFY(window.openProject(path(name)));
    QTRY_VERIFY(!script(window).isEmpty());
}

void tst_window::fromModelToSavedScript_data()
{
    QTest::addColumn<QString>("desktop");
    QTest::addColumn<QString>("keywords");
    for (const char* desktop : {"German", "English"})
        for (const char* keywords : {"german", "english"})
            QTest::addRow("%s, %s keywords", desktop, keywords)
                << QString::fromLatin1(desktop) << QString::fromLatin1(keywords);
}

void tst_window::fromModelToSavedScript()
{
    QFETCH(const QString, desktop);
    QFETCH(const QString, keywords);
    const QString project = path(desktop + keywords + QLatin1String(".zob"));
    const QString saved = path(desktop + keywords + QLatin1String(".dat"));
    MainWindow window(makeProject);
    window.show();
    trigger(window, qPrintable(desktop));
    QTRY_COMPARE(window.findChild<QAction*>(QStringLiteral("Open"))->text(),
                 desktop == QLatin1String("German") ? QStringLiteral("Ö&ffnen ...")
                                                    : QStringLiteral("&Open..."));
    answerFileDialog(project);
    trigger(window, "NewFromSample");
    QTRY_VERIFY(!script(window).isEmpty());
    find<QComboBox>(window, "KeywordLanguage")
        ->setCurrentIndex(keywords == QLatin1String("english") ? 1 : 0);
    answerFileDialog(saved);
    trigger(window, "SaveScriptAction");
    const QByteArray expected =
        commandLine({QStringLiteral("script"), project, QStringLiteral("--keywords"), keywords,
                     QStringLiteral("--language"), desktop.toLower()});
    QVERIFY(expected.size() > 1000);
    QCOMPARE(testsupport::readFile(saved), expected);
    QCOMPARE(window.windowTitle().section(QLatin1Char('['), 0, 0), QFileInfo(project).fileName());
}

/// A click shows in the script; a switch of the language keeps the choice; Cancel takes it back and
/// OK leaves it in the project.
void tst_window::scriptFollowsAndIsKept()
{
    MainWindow window(makeProject);
    open(window, QStringLiteral("kept.zob"));
    const QString proposed = script(window);
    for (const bool isKept : {false, true}) {
        trigger(window, "Output");
        auto dialog = find<QDialog>(window, "OutputDialog");
        dialog->findChild<QTreeWidget*>()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        QTRY_VERIFY(script(window) != proposed);
        QVERIFY(window.isWindowModified());
        const QString chosen = script(window);
        trigger(window, "German");
        QVERIFY(window.isWindowModified());
        trigger(window, "English");
        QCOMPARE(script(window), chosen);
        dialog = find<QDialog>(window, "OutputDialog"); // made anew with the language
        isKept ? dialog->accept() : dialog->reject();
        QTRY_COMPARE(window.findChildren<QDialog*>(QStringLiteral("OutputDialog")).size(), 1);
        QVERIFY(!window.isWindowModified());
        QCOMPARE(script(window), isKept ? chosen : proposed);
    }
    const QString chosen = script(window);
    MainWindow again(makeProject);
    QVERIFY(again.openProject(path(QStringLiteral("kept.zob"))));
    QTRY_COMPARE(script(again), chosen);
}

void tst_window::pickingInTheView()
{
    MainWindow window(makeProject);
    open(window, QStringLiteral("pick.zob"));
    auto records = find<QTableWidget>(window, "Records");
    QCOMPARE(records->rowCount(), 53);
    whenModal([](QWidget* dialog) {
        find<QPushButton>(*dialog, "btnNew")->click();
        auto table = find<QTableWidget>(*dialog, "table");
        table->setCurrentCell(table->rowCount() - 1, 0);
        whenModal([](QWidget* groups) { find<QPushButton>(*groups, "pick")->click(); });
        find<QPushButton>(*table, "buttonGroups")->click();
    });
    trigger(window, "Design");
    auto banner = find<QWidget>(window, "PickBanner");
    QVERIFY(banner->isVisible());
    QVERIFY(!window.close()); // the dialog is not done
    auto groups = find<QTreeWidget>(window, "GroupList");
    // What is below the mouse in the view is marked in the list.
    for (int group : {3, -1}) {
        QMetaObject::invokeMethod(find<QWidget>(window, "AnimatorView"), "groupHovered",
                                  Q_ARG(int, group));
        QStringList marked;
        for (int row = 0; row < groups->topLevelItemCount(); ++row)
            if (groups->topLevelItem(row)->background(0).style() != Qt::NoBrush)
                marked << groups->topLevelItem(row)->text(0);
        QCOMPARE(marked.join(QLatin1Char(' ')), group < 0 ? QString() : QString::number(group));
    }
    for (int row : {5, 6}) {
        groups->setCurrentItem(groups->topLevelItem(row));
        QTest::keyClick(groups, Qt::Key_Return);
    }
    QString text;
    whenModal([&text](QWidget* dialog) {
        auto table = find<QTableWidget>(*dialog, "table");
        text = find<QComboBox>(*table, "comboGroups")->currentText();
        qobject_cast<QDialog*>(dialog)->accept();
    });
    const int before = records->columnCount();
    find<QPushButton>(window, "PickDone")->click();
    QVERIFY(!banner->isVisible());
    QCOMPARE(text, QStringLiteral("6;7"));
    QCOMPARE(records->columnCount(), before + 2);
}

void tst_window::troubles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("absent") << QByteArray() << QStringLiteral("not there");
    QTest::newRow("no project") << QByteArray(5000, 'x') << QStringLiteral("no project file");
    const QString good = path(QStringLiteral("good.zob"));
    makeProject(good, QStringLiteral("slab"));
    const QByteArray bytes = testsupport::readFile(good);
    QTest::newRow("damaged") << bytes.left(200) + QByteArray(bytes.size() - 200, '\1')
                             << QStringLiteral("is damaged");
}

void tst_window::troubles()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, reason);
    MainWindow window(makeProject);
    open(window, QStringLiteral("good%1.zob").arg(qlonglong(content.size())));
    const QString before = script(window);
    const QString bad = path(QStringLiteral("bad.zob"));
    QFile::remove(bad);
    if (!content.isEmpty())
        testsupport::writeFile(bad, content);
    QStringList messages;
    whenModal([&messages](QWidget* box) {
        messages << qobject_cast<QMessageBox*>(box)->text();
        qobject_cast<QMessageBox*>(box)->accept();
    });
    QVERIFY(!window.openProject(bad));
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages[0].contains(reason) && messages[0].contains(bad), qPrintable(messages[0]));
    QCOMPARE(script(window), before);
}

void tst_window::writeProtectedProject()
{
    const QString project = path(QStringLiteral("protected.zob"));
    makeProject(project, QStringLiteral("slab"));
    const QByteArray before = testsupport::readFile(project);
    QFile::setPermissions(project, QFile::ReadOwner);
    MainWindow window(makeProject);
    window.show();
    QVERIFY(window.openProject(project));
    QTRY_VERIFY(!script(window).isEmpty());
    QStringList messages;
    const auto acceptAndRead = [&messages](QWidget* dialog) {
        whenModal([&messages](QWidget* box) {
            messages << qobject_cast<QMessageBox*>(box)->text();
            whenModal([](QWidget* again) { qobject_cast<QDialog*>(again)->reject(); });
            qobject_cast<QDialog*>(box)->accept();
        });
        qobject_cast<QDialog*>(dialog)->accept();
    };
    whenModal(acceptAndRead);
    trigger(window, "Design");
    trigger(window, "Output");
    acceptAndRead(find<QDialog>(window, "OutputDialog"));
    QCOMPARE(messages.size(), 2);
    for (const QString& message : qAsConst(messages))
        QVERIFY2(message.contains(QLatin1String("cannot be stored")), qPrintable(message));
    QVERIFY(testsupport::readFile(project) == before);
}

void tst_window::everyControlHasAName()
{
    MainWindow window(makeProject);
    open(window, QStringLiteral("names.zob"));
    trigger(window, "Output");
    QStringList nameless;
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const auto button = qobject_cast<const QAbstractButton*>(widget);
        const bool isInner = widget->objectName().startsWith(QLatin1String("qt_")) ||
                             widget->focusProxy() || !widget->isVisible();
        if (widget->focusPolicy() != Qt::NoFocus && !isInner &&
            widget->accessibleName().isEmpty() && !(button && !button->text().isEmpty()))
            nameless << QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') +
                            widget->objectName();
    }
    QCOMPARE(nameless.join(QLatin1String(", ")), QString());
}

void tst_window::linesThatChanged_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QVector<int>>("changed");
    const auto row = [](const char* before, const char* after, const QVector<int>& changed) {
        QTest::addRow("%s to %s", before, after)
            << QString::fromLatin1(before) << QString::fromLatin1(after) << changed;
    };
    row("a b c", "a b c", {});
    row("a b c", "a c", {});
    row("a c", "a b c", {1});
    row("a b c d", "a x c y d", {1, 3});
    row("a a", "a a a", {2});
    row("", "a b", {0, 1});
}

void tst_window::linesThatChanged()
{
    QFETCH(const QString, before);
    QFETCH(const QString, after);
    QFETCH(const QVector<int>, changed);
    QCOMPARE(workbench::changedLines(before.split(QLatin1Char(' ')), after.split(QLatin1Char(' '))),
             changed);
}

PLIB_WIDGET_TEST_MAIN(tst_window)
#include "tst_window.moc"
