#include "Monkey.h"
#include "project/presets/presetPlaces.h"
#include "ProjectTest.h"
#include "window/design/DesignPage.h"
#include "window/main/FileCommands.h"
#include "window/output/OutputDialog.h"
#include "window/textoutput/TextOutputDialog.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <VKD_QT_Ok.h>

#include <QComboBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSet>

using namespace windowtest;
using namespace workbench;
using testsupport::Monkey;

namespace {
constexpr int Steps = 1000;

/// Records the results of the dialogs that were closed since begin() was called, and whether a step
/// had a visible effect.
class Watch : public QObject
{
public:
    Watch() { qApp->installEventFilter(this); }

    void begin()
    {
        wasSeen = wasAsked = wasGivenUp = wasKept = wasSaved = wasSavedAs = wasStored = false;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        static const QSet<int> effects{QEvent::Show, QEvent::Hide, QEvent::WindowActivate,
                                       QEvent::WindowTitleChange};
        const auto widget = qobject_cast<QWidget*>(watched);
        const bool isPlace = widget && (widget->isWindow() || qobject_cast<QDockWidget*>(widget));
        const auto dialog = qobject_cast<QDialog*>(watched);
        wasSeen = wasSeen || (isPlace && effects.contains(event->type()));
        if (event->type() == QEvent::Show && dialog)
            connect(dialog, &QDialog::finished, this, &Watch::note, Qt::UniqueConnection);
        return false;
    }

    void note(int result)
    {
        const auto box = qobject_cast<QMessageBox*>(sender());
        const auto files = qobject_cast<QFileDialog*>(sender());
        const bool isQuestion = box && box->button(QMessageBox::Discard);
        wasAsked = wasAsked || isQuestion;
        wasSaved = wasSaved || (isQuestion && result == QMessageBox::Save);
        wasKept = wasKept || (isQuestion && result == QMessageBox::Cancel);
        const bool isSavedAs =
            files && result == QDialog::Accepted &&
            files->windowTitle() == workbench::FileCommands::tr("Save Project As");
        const bool isDone = !box && !files && result == QDialog::Accepted;
        wasSavedAs = wasSavedAs || isSavedAs;
        wasGivenUp = wasGivenUp || (!box && !files && result == QDialog::Rejected);
        wasStored = wasStored || wasSaved || isSavedAs || isDone;
    }

    bool wasSeen = false;    ///< a window was shown, hidden or activated, or its title changed
    bool wasAsked = false;   ///< a message box asked whether to save
    bool wasGivenUp = false; ///< a dialog was cancelled
    bool wasKept = false;    ///< the message box was cancelled, so the dialog stayed open
    bool wasSaved = false;   ///< Save was pressed in the message box
    bool wasSavedAs = false; ///< the project was saved under another name
    bool wasStored = false;  ///< OK or Save stored a change
};

/// Returns the visible windows in an order that is the same in each run.
QWidgetList windows()
{
    QWidgetList found;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible())
            found << widget;
    const auto name = [](const QWidget* widget) {
        return qMakePair(widget->objectName(), widget->windowTitle());
    };
    std::sort(found.begin(), found.end(),
              [name](const QWidget* a, const QWidget* b) { return name(a) < name(b); });
    return found;
}

/// Returns dialogs and menus that exist more than once because a previous instance was not
/// destroyed.
QStringList doubles()
{
    QSet<QString> known;
    QStringList found;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        const auto menu = qobject_cast<const QMenu*>(widget);
        const QString name =
            QStringLiteral("%1 %2 \"%3\" of %4")
                .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
                     menu ? menu->title() : widget->windowTitle())
                .arg(quintptr(widget->parent()));
        if (known.contains(name))
            found << name;
        known << name;
    }
    return found;
}
} // namespace

/// Uses the whole program at random.
class fuzz_windowMonkey : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void work_data() { Monkey::addRounds(Steps); }

    void work()
    {
        QFETCH(const int, seed);
        qApp->setQuitOnLastWindowClosed(false);
        Monkey monkey(seed, makeFiles());
        testsupport::setLanguage(monkey.below(2));
        while (monkey.steps() < Monkey::StepsInARound) {
            {
                MainWindow window;
                window.show();
                if (monkey.below(4))
                    window.openProject(path("mine.zob"));
                else
                    window.openAfterPainting(QString());
                while (window.isVisible() && m_faults.isEmpty() &&
                       monkey.steps() < Monkey::StepsInARound)
                    workOn(window, monkey);
                QVERIFY2(m_faults.isEmpty(), m_faults);
            }
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(QApplication::topLevelWidgets().isEmpty());
        }
    }

private:
    /// Creates the files that are entered in file dialogs or dropped.
    QStringList makeFiles()
    {
        m_faults.clear();
        VKD_H_ZOBDoc::create(path("empty.zob"));
        writeFile(path("noise.zob"), "noise");
        writeFile(path("noise.json"), "{\"nodes\": 1");
        exportPresets(PresetKind::Plots, path("plots.json"),
                      {{QStringLiteral("a"),
                        {},
                        {{QStringLiteral("@SYS   $G00   ^G01"), QStringList()},
                         {QStringLiteral("&X"), QStringList()}}}});
        QFile::copy(QStringLiteral(MODELS "/slab.json"), path("slab.json"));
        QFile::setPermissions(copy("protected.zob"), QFile::ReadOwner);
        return {copy("mine.zob"),   copy("theirs.zob"), path("empty.zob"),   path("noise.zob"),
                path("new.zob"),    path("slab.json"),  path("noise.json"),  path("protected.zob"),
                path("new.dat"),    path("new.pdf"),    path("missing.zob"), path("no/folder.zob"),
                path("plots.json"), m_folder->path()};
    }

    QString projectOf(const MainWindow& window) const
    {
        const QString title = window.windowTitle();
        return title.contains(QLatin1String("[*]"))
                   ? m_folder->filePath(title.section(QLatin1String("[*]"), 0, 0))
                   : QString();
    }

    static QByteArray contentOf(const QString& project)
    {
        return QFileInfo(project).isFile() ? readFile(project) : QByteArray();
    }

    /// Changes the open project as another program would.
    static void disturb(const QString& project, Monkey& monkey)
    {
        const int what = project.isEmpty() ? -1 : monkey.below(100);
        if (what == 0)
            QFile::remove(project);
        else if (what == 1)
            commandLine({QStringLiteral("rows"), project, QStringLiteral("--set-row"),
                         QStringLiteral("1"), QStringLiteral("hio=0.0%1").arg(monkey.below(9))});
    }

    /// Returns the number of parts of the project with unsaved changes. Does not use the
    /// modification marker in the window title, because only the event loop updates it. It also
    /// updates the list of outputs, so pending updates are made first.
    static int changes(const MainWindow& window)
    {
        const auto plots = window.findChild<OutputDialog*>();
        if (plots)
            plots->finishChanges();
        const auto text = window.findChild<TextOutputDialog*>();
        return ((plots && (plots->isChanged() || offersApply(*plots))) || hasNewOutputs(window)) +
               (text && text->isChanged()) + hasNewRows(window);
    }

    /// Returns whether the user can apply changes, for example the deletion of an output.
    static bool offersApply(const OutputDialog& plots)
    {
        return plots.findChild<VKD_QT_Ok*>()->cmdOk()->isEnabled();
    }

    /// Returns whether the list shows any output as changed.
    static bool hasNewOutputs(const MainWindow& window)
    {
        const auto list = find<QListWidget>(window, "OutputList");
        bool areNew = false;
        for (int i = 0; i < list->count(); ++i)
            areNew = areNew || list->item(i)->font().italic();
        return areNew;
    }

    static QByteArray namesOfOutputs(const MainWindow& window)
    {
        const auto list = find<QListWidget>(window, "OutputList");
        QByteArray names;
        for (int i = 0; i < list->count(); ++i)
            names += list->item(i)->text().toUtf8() + '\n';
        return names;
    }

    /// Returns whether outputs have been deleted or moved since the project was stored.
    static bool isOtherList(const MainWindow& window, const QString& project)
    {
        const QByteArray names = namesOfOutputs(window);
        const bool isGerman = vkd_lib_getvalue(VKD_SETTING_LANGUAGE) == testsupport::German;
        return !names.isEmpty() &&
               names !=
                   commandLine({QStringLiteral("outputs"), project, QStringLiteral("--language"),
                                isGerman ? QStringLiteral("german") : QStringLiteral("english")});
    }

    /// Returns whether the design dock contains rows that are not stored.
    static bool hasNewRows(const MainWindow& window)
    {
        const auto page = window.findChild<DesignPage*>();
        return page && page->isModified();
    }

    void workOn(MainWindow& window, Monkey& monkey)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QString project = projectOf(window);
        disturb(project, monkey);
        const QByteArray stored = contentOf(project);
        const int changesBefore = changes(window);
        const bool hadNewRows = hasNewRows(window);
        const QWidgetList all = windows();
        QWidget* place = monkey.below(3) ? &window : all[monkey.below(all.size())];
        QApplication::setActiveWindow(place);
        const bool isPopupOpen = QApplication::activePopupWidget(); // a popup receives all keys
        m_watch.begin();
        if (monkey.below(60) == 0)
            monkey.close(place);
        else if (monkey.below(8) == 0)
            monkey.stepIn(find<QWidget>(window, monkey.below(2) ? "ScriptDock" : "OutputDock"));
        else
            monkey.step(place);
        if (project.isEmpty() && !isPopupOpen && monkey.triggered() &&
            !monkey.triggered()->actionGroup()) {
            const QByteArray text = monkey.triggered()->text().toUtf8();
            const bool isInList = monkey.triggered()->objectName() == QLatin1String("RemoveRecent");
            QApplication::processEvents(); // delivers window activation events
            if (!m_watch.wasSeen && !isInList)
                m_faults += "\nnothing comes of " + text;
        }
        const bool isStored = contentOf(project) != stored;
        const bool isApplied = changes(window) < changesBefore;
        if (isStored && !m_watch.wasStored && !isApplied)
            m_faults += "\nstored without OK";
        const bool isLeft = !window.isVisible() || projectOf(window) != project;
        if (!isLeft && hadNewRows && !window.findChild<DesignPage*>() && !m_watch.wasAsked)
            m_faults += "\nrows closed without a question";
        if (isLeft && !m_watch.wasSavedAs)
            m_faults += faultOfLeaving(changesBefore > 0, isStored);
        if (QApplication::overrideCursor())
            m_faults += "\nthe wait cursor stays";
        if (monkey.below(40) == 0 && window.isVisible())
            lookAtAll(window);
    }

    QByteArray faultOfLeaving(bool wasModified, bool isStored) const
    {
        if (wasModified && !m_watch.wasAsked && !m_watch.wasGivenUp)
            return "\nleft without a question";
        if (m_watch.wasKept)
            return "\nleft in spite of Cancel";
        return m_watch.wasSaved && !isStored ? "\nleft by Save and not stored" : "";
    }

    void lookAtAll(MainWindow& window)
    {
        QApplication::processEvents();
        if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
            return;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (const QString& name : doubles())
            m_faults += "\nleft behind: " + name.toUtf8();
        if (window.isWindowModified() != (changes(window) > 0) &&
            !isOtherList(window, projectOf(window)))
            m_faults += "\nthe mark in the title is not right";
        if (contentOf(projectOf(window)).isEmpty())
            return;
        undoAndRedoOutputs(window);
        const auto output = window.findChild<OutputDialog*>();
        if (!output)
            return;
        const QString scriptNow = scriptOf(projectOf(window), output->state(), window);
        // The script of a new project is generated after the first paint event.
        (void)QTest::qWaitFor([&] { return script(window) == scriptNow; }, Patience);
        const QStringList shown = script(window).split(QLatin1Char('\n'));
        const QStringList expected = scriptNow.split(QLatin1Char('\n'));
        int line = 0;
        while (line < shown.size() && shown[line] == expected.value(line))
            ++line;
        if (shown != expected)
            m_faults += "\nscript: " + shown.value(line).toUtf8() +
                        "\nby the command line: " + expected.value(line).toUtf8();
    }

    /// Undoes changes to the list of outputs and redoes them. A refused text prevents this. A name
    /// that is being typed would be one more step.
    void undoAndRedoOutputs(MainWindow& window)
    {
        const auto list = find<QListWidget>(window, "OutputList");
        if (list->indexWidget(list->currentIndex()))
            return;
        const auto dock = find<QWidget>(window, "OutputsDock");
        const auto undo = find<QAction>(*dock, "undo");
        const auto redo = find<QAction>(*dock, "redo");
        const QByteArray before = namesOfOutputs(window);
        int steps = 0;
        for (QString text; steps < 5 && undo->isEnabled(); ++steps) {
            text = undo->text() + redo->text();
            undo->trigger();
            if (text == undo->text() + redo->text())
                break;
        }
        for (int i = 0; i < steps; ++i)
            redo->trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (namesOfOutputs(window) != before)
            m_faults += "\noutputs: " + namesOfOutputs(window) + "before undo and redo: " + before;
    }

    /// Returns the script that the command line prints for a copy of the project in which this
    /// state is saved.
    QString scriptOf(const QString& project, const OutputState& state, const QWidget& window) const
    {
        const QString copied = path("copied.zob");
        writeFile(copied, contentOf(project));
        const auto document = VKD_H_ZOBDoc::open(copied);
        if (!document || !state.put(document->handle()).isOk())
            return QStringLiteral("not stored");
        const auto name = [](int language) {
            return language == testsupport::English ? QStringLiteral("english")
                                                    : QStringLiteral("german");
        };
        return QString::fromUtf8(commandLine(
            {QStringLiteral("script"), copied, QStringLiteral("--keywords"),
             name(find<QComboBox>(window, "KeywordLanguage")->currentIndex()),
             QStringLiteral("--language"), name(vkd_lib_getvalue(VKD_SETTING_LANGUAGE))}));
    }

    Watch m_watch;
    QByteArray m_faults;
};

PLIB_WIDGET_TEST_MAIN(fuzz_windowMonkey)
#include "fuzz_windowMonkey.moc"
