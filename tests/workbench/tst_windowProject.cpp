#include "ProjectTest.h"

#include <vkd_lib_value.h>

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableWidget>

using namespace windowtest;
using testsupport::whenModal;
using workbench::MainWindow;

namespace {
QStringList cellTexts(const QWidget& dialog)
{
    const auto table = find<QTableWidget>(dialog, "table");
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row)
        for (int column = 0; column < table->columnCount(); ++column)
            texts << (table->item(row, column) ? table->item(row, column)->text() : QString());
    return texts;
}
} // namespace

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

class tst_windowProject : public windowtest::ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void unusableFiles_data();
    void unusableFiles();
    void projectInUse_data();
    void projectInUse();
    void designIsNotLost_data();
    void designIsNotLost();
    void choiceIsNotLost();
    void leaving_data();
    void leaving();
};

void tst_windowProject::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("content"); // "-" for nothing there, "/" for a folder
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("german");
    const auto row = [](const char* name, const QByteArray& content, const char* english,
                        const char* german) {
        QTest::newRow(name) << content << QString::fromUtf8(english) << QString::fromUtf8(german);
    };
    const QByteArray noise("\x93\x07\xFE\x5A\xC1\x88\x33\xD6");
    const auto patched = [this](int offset, const QByteArray& bytes) {
        return QByteArray(m_building).replace(offset, bytes.size(), bytes);
    };
    const char *noProject = "It is no project file.", *damaged = "It is damaged.";
    const char *keine = "Sie ist keine Projektdatei.", *kaputt = "Sie ist beschädigt.";
    row("missing", "-", "It is not there.", "Sie ist nicht vorhanden.");
    row("folder", "/", "It is a folder.", "Sie ist ein Ordner.");
    row("empty", "", noProject, keine);
    row("text", "Not a project.\n", noProject, keine);
    row("noise", noise.repeated(1000), noProject, keine);
    row("of another program", patched(68, QByteArray(4, '\0')), noProject, keine);
    row("newer", patched(63, "\2"), "It was written by a newer version of the programs.",
        "Sie wurde von einer neueren Version der Programme geschrieben.");
    row("truncated", m_building.left(m_building.size() / 2), damaged, kaputt);
    row("a bad page", patched(5 * 4096, noise), damaged, kaputt);
}

/// Told once and in a sentence, and the project before goes on.
void tst_windowProject::unusableFiles()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, english);
    QFETCH(const QString, german);
    const QString bad = path("bad.zob");
    if (content == "/")
        QDir().mkdir(bad);
    else if (content != "-")
        testsupport::writeFile(bad, content);
    const auto window = open("good.zob");
    QTRY_VERIFY(!script(*window).isEmpty());
    const QString before = script(*window);
    QStringList messages;
    readMessage(messages);
    QVERIFY(!window->openProject(bad));
    setLanguage(0);
    readMessage(messages);
    QVERIFY(!window->openProject(bad));
    QCOMPARE(messages.join(QLatin1Char('|')),
             QStringLiteral("The file %1 cannot be opened.\n%2|"
                            "Die Datei %1 kann nicht geöffnet werden.\n%3")
                 .arg(bad, english, german));
    QCOMPARE(script(*window), before);
    QVERIFY(window->windowTitle().startsWith(QLatin1String("good.zob")));
    QVERIFY(!QFileInfo::exists(bad + QLatin1String("-journal")));
}

void tst_windowProject::projectInUse_data()
{
    QTest::addColumn<int>("deadline");
    QTest::addColumn<QString>("end");
    QTest::newRow("until the deadline") << 700 << QStringLiteral("message");
    QTest::newRow("until Cancel") << 60000 << QStringLiteral("cancel");
    QTest::newRow("until it is free") << 60000 << QStringLiteral("free");
}

/// While another program stores, the window waits where one sees it.
void tst_windowProject::projectInUse()
{
    QFETCH(const int, deadline);
    QFETCH(const QString, end);
    const auto window = open("mine.zob");
    testsupport::writeFile(path("theirs.zob"), m_building);
    auto other = std::make_unique<OtherProgram>(path("theirs.zob"), OtherProgram::Storing);
    vkd_lib_setvalue(VKD_SETTING_LOCK_DEADLINE, deadline);
    QStringList messages;
    whenModal([&](QWidget* box) {
        const auto waiting = qobject_cast<QProgressDialog*>(box);
        messages << waiting->labelText();
        if (end == QLatin1String("free"))
            other.reset();
        else if (end == QLatin1String("cancel"))
            waiting->findChild<QPushButton*>()->click();
        else
            readMessage(messages);
    });
    QElapsedTimer clock;
    clock.start();
    const bool isOpen = window->openProject(path("theirs.zob"));
    QVERIFY(clock.elapsed() < 10000);
    QVERIFY(messages.value(0).contains(QLatin1String("theirs.zob")));
    QCOMPARE(messages.size(), end == QLatin1String("message") ? 2 : 1);
    QVERIFY(messages.size() < 2 ||
            messages[1].endsWith(QLatin1String("\nAnother program is writing to it.")));
    QCOMPARE(isOpen, end == QLatin1String("free"));
    QCOMPARE(window->windowTitle().section(QLatin1Char('.'), 0, 0),
             isOpen ? QStringLiteral("theirs") : QStringLiteral("mine"));
    QCOMPARE(vkd_lib_getvalue(VKD_SETTING_LOCK_DEADLINE), deadline);
    QVERIFY(!QApplication::overrideCursor());
}

void tst_windowProject::designIsNotLost_data()
{
    QTest::addColumn<QString>("reason");
    QTest::newRow("locked") << QStringLiteral("Another program is writing to it.");
    QTest::newRow("no journal") << QStringLiteral("The system cannot read or write it.");
    QTest::newRow("disk full") << QStringLiteral("There is no room left on the disk.");
}

void tst_windowProject::designIsNotLost()
{
    QFETCH(const QString, reason);
    const auto window = open("design.zob");
    std::unique_ptr<Obstacle> obstacle;
    QStringList messages, entered, back, again;
    whenModal([&](QWidget* dialog) {
        find<QPushButton>(*dialog, "btnNew")->click();
        find<QTableWidget>(*dialog, "table")->selectRow(3);
        find<QPushButton>(*dialog, "btnDelete")->click();
        entered = cellTexts(*dialog);
        obstacle = std::make_unique<Obstacle>(QTest::currentDataTag(), path("design.zob"));
        whenModal([&](QWidget* box) {
            messages << qobject_cast<QMessageBox*>(box)->text();
            obstacle.reset();
            whenModal([&](QWidget* shown) {
                back = cellTexts(*shown);
                qobject_cast<QDialog*>(shown)->accept();
            });
            press(box, QMessageBox::Ok);
        });
        qobject_cast<QDialog*>(dialog)->accept();
    });
    trigger(*window, "Design");
    QCOMPARE(messages.join(QLatin1Char('|')).section(QLatin1Char('\n'), 1), reason);
    QCOMPARE(back, entered);
    whenModal([&](QWidget* dialog) {
        again = cellTexts(*dialog);
        qobject_cast<QDialog*>(dialog)->reject();
    });
    trigger(*window, "Design");
    QCOMPARE(again, entered);
}

/// OK in the output dialog while another program holds the project: the choice stays on the screen
/// and is asked for.
void tst_windowProject::choiceIsNotLost()
{
    const auto window = open("choice.zob");
    changeChoice(*window);
    const QString chosen = script(*window);
    QStringList messages;
    {
        const OtherProgram other(path("choice.zob"), OtherProgram::Taking);
        readMessage(messages);
        find<QDialog>(*window, "OutputDialog")->accept();
        QVERIFY(find<QDialog>(*window, "OutputDialog")->isVisible());
        QVERIFY(window->isWindowModified());
        whenModal([&messages](QWidget* box) {
            readMessage(messages);
            press(box, QMessageBox::Save);
        });
        QVERIFY(!window->close());
    }
    QCOMPARE(messages.size(), 2);
    for (const QString& message : qAsConst(messages))
        QVERIFY(message.endsWith(QLatin1String("\nAnother program is writing to it.")));
    QCOMPARE(script(*window), chosen);
    find<QDialog>(*window, "OutputDialog")->accept();
    QVERIFY(!window->isWindowModified());
}

void tst_windowProject::leaving_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<bool>("isStored");
    QTest::newRow("save") << QMessageBox::Save << true << true;
    QTest::newRow("discard") << QMessageBox::Discard << true << false;
    QTest::newRow("cancel") << QMessageBox::Cancel << false << false;
    QTest::newRow("escape") << QMessageBox::NoButton << false << false;
}

void tst_windowProject::leaving()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    QFETCH(const bool, isClosed);
    QFETCH(const bool, isStored);
    const auto window = open("leaving.zob");
    changeChoice(*window);
    const QString chosen = script(*window);
    whenModal([answer](QWidget* box) {
        answer ? press(box, answer) : QTest::keyClick(box, Qt::Key_Escape);
    });
    QCOMPARE(window->close(), isClosed);
    QCOMPARE(window->isVisible(), !isClosed);
    MainWindow other(makeProject);
    QVERIFY(other.openProject(path("leaving.zob")));
    QTRY_VERIFY(!script(other).isEmpty());
    QCOMPARE(script(other) == chosen, isStored);
}

PLIB_WIDGET_TEST_MAIN(tst_windowProject)
#include "tst_windowProject.moc"
