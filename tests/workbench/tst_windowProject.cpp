#include "ProjectTest.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <vkd_zob.h>

#include <QComboBox>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTableWidget>

using namespace windowtest;
using workbench::MainWindow;

namespace {
const QString InUse = QStringLiteral("Another program is writing to it.");

QString reasonOf(const QString& message)
{
    return message.section(QLatin1Char('\n'), 1);
}
} // namespace

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

class tst_windowProject : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void unusableFiles_data()
    {
        // "-" means no file, "/" means a folder
        const Columns<QByteArray, QString, QString> row("content", "english", "german");
        const QByteArray noise("\x93\x07\xFE\x5A\xC1\x88\x33\xD6");
        const auto patched = [this](int offset, const QByteArray& bytes) {
            return QByteArray(m_building).replace(offset, bytes.size(), bytes);
        };
        const char *noProject = "It is not a project file.", *damaged = "It is damaged.";
        const char *keine = "Sie ist keine Projektdatei.", *kaputt = "Sie ist beschädigt.";
        row("missing", "-", "It does not exist.", "Sie ist nicht vorhanden.");
        row("folder", "/", "It is a folder.", "Sie ist ein Ordner.");
        row("empty", "", noProject, keine);
        row("noise", noise.repeated(1000), noProject, keine);
        row("of another program", patched(68, QByteArray(4, '\0')), noProject, keine);
        row("newer", patched(63, "\3"), "It was written by a newer version of the programs.",
            "Sie wurde von einer neueren Version der Programme geschrieben.");
        row("truncated", m_building.left(m_building.size() / 2), damaged, kaputt);
        row("a bad page", patched(5 * 16384, noise), damaged, kaputt);
    }

    /// The error is reported once, in one sentence, and the previous project stays open.
    void unusableFiles()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QString, english);
        QFETCH(const QString, german);
        const QString bad = path("bad.zob");
        if (content == "/")
            QDir().mkdir(bad);
        else if (content != "-")
            writeFile(bad, content);
        const auto window = open("good.zob");
        const QString before = script(*window);
        QStringList messages;
        readMessage(messages);
        QVERIFY(!window->openProject(bad));
        testsupport::setLanguage(testsupport::German);
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

    /// A record that is too short is omitted from the model. A design record that is too long does
    /// not end the list. Other programs can write while the message is shown.
    void incompleteModel()
    {
        constexpr int LoadCases = 12;
        const QString bad = copy("bad.zob");
        int index = 0;
        QVERIFY(vkd_zob_open(qUtf8Printable(bad), &index).isOk());
        const int length = 1;
        QCOMPARE(vkd_zob_put(index, LoadCases, 0, "x", &length, 1), VKD_ZOB_OK);
        const QByteArray longer(500, '\0');
        const int longerLength = longer.size();
        QCOMPARE(vkd_zob_put(index, 200, 6, longer.constData(), &longerLength, 0), VKD_ZOB_OK);
        MainWindow window;
        QStringList messages;
        cd_error_t putMeanwhile = -1;
        whenModal([&](QWidget* box) {
            putMeanwhile = vkd_zob_put(index, 9000, 1, "x", &length, 0);
            messages << qobject_cast<QMessageBox*>(box)->text();
            press(box, QMessageBox::Ok);
        });
        QVERIFY(window.openProject(bad));
        QCOMPARE(messages, {QStringLiteral("The file %1 could not be read completely.\n"
                                           "Some data may be missing from the display.")
                                .arg(bad)});
        QCOMPARE(putMeanwhile, VKD_ZOB_OK);
        QVERIFY(vkd_zob_close(index).isOk());
        QVERIFY(window.windowTitle().startsWith(QLatin1String("bad.zob")));
        QVERIFY(find<QAbstractItemView>(window, "Records")->model()->columnCount() > 1);
    }

    void projectInUse_data()
    {
        const Columns<int, QByteArray> row("deadline", "end");
        row("until the deadline", 700, "message");
        row("until Cancel", 2 * Patience, "cancel");
        row("until it is free", 2 * Patience, "free");
    }

    /// While another program is writing, the window shows that it is waiting.
    void projectInUse()
    {
        QFETCH(const int, deadline);
        QFETCH(const QByteArray, end);
        const auto window = open("mine.zob");
        auto other = std::make_unique<OtherProgram>(copy("theirs.zob"), OtherProgram::Storing);
        vkd_lib_setvalue(VKD_SETTING_LOCK_DEADLINE, deadline);
        QString label;
        QStringList messages;
        whenProgress([&](QProgressDialog* waiting) {
            label = waiting->labelText();
            if (end == "free")
                other.reset();
            else if (end == "cancel")
                waiting->findChild<QPushButton*>()->click();
            else
                readMessage(messages);
        });
        QElapsedTimer clock;
        clock.start();
        const bool isOpen = window->openProject(path("theirs.zob"));
        QVERIFY(clock.elapsed() < Patience);
        QVERIFY(label.contains(QLatin1String("theirs.zob")));
        QCOMPARE(reasonOf(messages.join(QString())), end == "message" ? InUse : QString());
        QCOMPARE(isOpen, end == "free");
        QCOMPARE(window->windowTitle().section(QLatin1Char('.'), 0, 0),
                 isOpen ? QStringLiteral("theirs") : QStringLiteral("mine"));
        QCOMPARE(vkd_lib_getvalue(VKD_SETTING_LOCK_DEADLINE), deadline);
        QVERIFY(!QApplication::overrideCursor());
    }

    /// The page works on a copy of the records. The copy also needs the kind of system.
    void planeSystemHasNoDistances()
    {
        {
            const auto document = VKD_H_ZOBDoc::open(copy("plane.zob"));
            vkd::dbo::Model model = vkd::dbo::readModel(document->handle());
            model.system.kindOfSystem = 10;
            QVERIFY(vkd::dbo::storeModel(document->handle(), model).isOk());
        }
        const auto window = reopen("plane.zob");
        openDesign(*window);
        QCOMPARE(designCells(*window).value(2),
                 QStringLiteral("0.0\u00B0 ;0.0\u00B0\n -  ; -  ; -  ; -  ;"));
    }

    void designIsNotLost_data()
    {
        const Columns<QString> row("reason");
        row("locked", InUse);
        row("no journal", "The system cannot read or write it.");
        row("disk full", "There is no space left on the disk.");
    }

    void designIsNotLost()
    {
        QFETCH(const QString, reason);
        const auto window = open("design.zob");
        QWidget* dock = openDesign(*window);
        find<QPushButton>(*dock, "btnNew")->click();
        find<QTableWidget>(*dock, "table")->setCurrentCell(0, 1);
        deleteDesignRow(*dock);
        const QStringList entered = designCells(*window);
        QStringList messages;
        {
            const Obstacle obstacle(QTest::currentDataTag(), path("design.zob"));
            readMessage(messages);
            applyDesign(*window);
        }
        QCOMPARE(reasonOf(messages.join(QString())), reason);
        QCOMPARE(designCells(*window), entered);
        QVERIFY(window->isWindowModified());
        QApplication::setActiveWindow(window.get()); // the message box was active
        QTest::keyClick(find<QTableWidget>(*dock, "table"), Qt::Key_S, Qt::ControlModifier);
        QTest::keyRelease(dock, Qt::Key_Control); // otherwise, Qt adds to the next selection
        QVERIFY(!window->isWindowModified());
        QVERIFY(dock->close());
        openDesign(*window);
        QCOMPARE(designCells(*window), entered);
    }

    void leavingDesign_data()
    {
        const Columns<QByteArray, QMessageBox::StandardButton> row("way", "answer");
        for (const char* way : {"dock", "Reload", "window", "menu"}) {
            row(way + QByteArray(", Save"), way, QMessageBox::Save);
            row(way + QByteArray(", Discard"), way, QMessageBox::Discard);
            row(way + QByteArray(", Cancel"), way, QMessageBox::Cancel);
        }
    }

    /// Closing the dock or the window asks for confirmation; Reload preserves the rows without
    /// asking.
    void leavingDesign()
    {
        QFETCH(const QByteArray, way);
        QFETCH(const QMessageBox::StandardButton, answer);
        const auto window = open("left.zob");
        auto dock = find<QDockWidget>(*window, "DesignDock");
        openDesign(*window);
        const QStringList stored = designCells(*window);
        deleteDesignRow(*dock);
        const QStringList entered = designCells(*window);
        bool isAsked = false;
        if (way != "Reload")
            whenModal([&](QWidget* box) {
                isAsked = true;
                press(box, answer);
            });
        if (way == "dock")
            dock->close();
        else if (way == "menu")
            dock->toggleViewAction()->trigger();
        else if (way == "window")
            window->close();
        else
            trigger(*window, "Reload");
        QCOMPARE(isAsked, way != "Reload");
        const bool isOpen = answer == QMessageBox::Cancel || way == "Reload";
        QCOMPARE(dock->isVisible() && window->isVisible(), isOpen);
        QCOMPARE(dock->toggleViewAction()->isChecked(), dock->isVisible());
        QCOMPARE(window->isWindowModified() && window->isVisible(), isOpen);
        if (isOpen)
            QCOMPARE(designCells(*window), entered);
        const auto again = reopen("left.zob");
        openDesign(*again);
        QCOMPARE(designCells(*again), answer == QMessageBox::Save && !isOpen ? entered : stored);
    }

    /// If another program locks the project when OK is pressed in the output dialog, the choice
    /// stays in the dialog and counts as unsaved.
    void choiceIsNotLost()
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
            QCOMPARE(reasonOf(message), InUse);
        QCOMPARE(script(*window), chosen);
        find<QDialog>(*window, "OutputDialog")->accept();
        QVERIFY(!window->isWindowModified());
    }

    /// While another program is writing, the changed choice cannot be discarded, and the window
    /// does not open a dialog that contains only part of the project.
    void unreadable()
    {
        const auto window = open("unreadable.zob");
        vkd_lib_setvalue(VKD_SETTING_LOCK_DEADLINE, 100);
        const QString proposed = script(*window);
        changeChoice(*window);
        const QString changed = script(*window);
        auto other = std::make_unique<OtherProgram>(path("unreadable.zob"), OtherProgram::Storing);
        QStringList messages;
        readMessage(messages);
        QMetaObject::invokeMethod(find<QDialog>(*window, "OutputDialog"), "reject",
                                  Qt::QueuedConnection); // called by the event loop
        QTRY_COMPARE(messages.size(), 1);
        readMessage(messages);
        trigger(*window, "TextOutput");
        QVERIFY(!window->findChild<QDialog*>(QStringLiteral("TextOutputDialog")));
        QCOMPARE(messages.size(), 2);
        for (const QString& message : qAsConst(messages))
            QCOMPARE(reasonOf(message), InUse);
        QVERIFY(script(*window) == changed && window->isWindowModified());
        other.reset();
        find<QDialog>(*window, "OutputDialog")->reject();
        QTRY_COMPARE(script(*window), proposed);
        QVERIFY(window->openProject(path("unreadable.zob"))); // the script is generated afterwards
        other = std::make_unique<OtherProgram>(path("unreadable.zob"), OtherProgram::Storing);
        readMessage(messages);
        QTRY_COMPARE(messages.size(), 3);
        readMessage(messages);
        const auto keywords = find<QComboBox>(*window, "KeywordLanguage");
        const int before = keywords->currentIndex();
        keywords->setCurrentIndex(1 - before);
        QCOMPARE(messages.size(), 4);
        QCOMPARE(keywords->currentIndex(), before);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_windowProject)
#include "tst_windowProject.moc"
