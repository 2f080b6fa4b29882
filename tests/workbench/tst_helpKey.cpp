#include "VisitedProject.h"
#include "window/support/WindowSettings.h"

#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using workbench::MainWindow;

namespace {
enum DesignColumn { Groups, Directions = 2, Reinforcement, Cracks };

/// Closes the help and returns the title of its topic.
QString takeTopic()
{
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* window : all)
        if (window->objectName() == QLatin1String("VKD_T_Help") && window->isVisible()) {
            const QString title = window->windowTitle();
            window->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return title.section(QStringLiteral(" - "), 1);
        }
    return QStringLiteral("no help");
}
} // namespace

/// Tests the help key on every widget that has its own topic.
class tst_helpKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
        setLanguage(English);
        m_project = std::make_unique<VisitedProject>();
    }

    void init() { workbench::WindowSettings().clear(); }

    void topic_data()
    {
        const Columns<Open, QString> row("open", "topic");
        row("script", in(nullptr, "ScriptText"), "Script");
        row("sheet", in("SheetPreviewAction", "SheetView"), "Sheet Preview");
        row("elsewhere in the window", in(nullptr, "GroupList"), "Design Parameters");
        row("tabs of the output", in("Output", "tabs"), "Graphical Output");
        row("plots", in("Output", "m_list"), "Plots");
        row("sheet and view", in("Output", "PerspectiveGroup"), "Sheet and View");
        row("load cases", in("Output", "LoadCases"), "Offered Load Cases");
        row("contents", in("Output", "ContentGroup"), "Offered Plots");
        row("text output", in("TextOutput", "TextOutputDialog"), "Text Output");
        row("extent", in("TextOutput", "ForceList"), "Extent of the Text Output");
        row("printed load cases", in("TextOutput", "TextLoadCases"),
            "Load Cases in the Text Output");
        row("printed combinations", in("TextOutput", "TextCombinations"),
            "Combinations in the Text Output");
        row("box of the window", box(), "Design Parameters");
        row("cell of the groups", cell(Groups, nullptr), "Selection of Groups");
        row("groups", cell(Groups, "buttonGroups"), "Choosing Groups");
        row("secondary groups", cell(Groups, "buttonSekGroups"), "Choosing Groups");
        row("directions", cell(Directions, nullptr), "Directions and Distances");
        row("reinforcement", cell(Reinforcement, nullptr), "Reinforcement");
        row("cracks", cell(Cracks, nullptr), "Crack Control");
        row("calculator", cell(Reinforcement, "Calc"), "Reinforcement Calculation");
    }

    void topic()
    {
        QFETCH(const Open, open);
        QFETCH(const QString, topic);
        QStringList topics;
        open([&topics](QWidget& widget) {
            widget.activateWindow();
            QTRY_COMPARE(QApplication::activeWindow(), widget.window());
            widget.setFocus();
            QTest::keyClick(&widget, Qt::Key_F1);
            topics << takeTopic();
        });
        QCOMPARE(topics, QStringList{topic});
    }

    void menuHasAllBooks()
    {
        QStringList topics;
        m_project->mainWindow([&topics](MainWindow& window, const Visit&) {
            for (const char* book : {"DesignHelp", "OutputHelp", "TextOutputHelp"}) {
                trigger(window, book);
                topics << takeTopic();
            }
            find<QWidget>(window, "ScriptText")->setFocus();
            trigger(window, "Help");
            topics << takeTopic();
        })({});
        QCOMPARE(topics.join(QLatin1Char('|')),
                 QStringLiteral("Design Parameters|Graphical Output|Text Output|Script"));
    }

private:
    /// Visits a widget of the window after an action.
    Open in(const char* action, const char* widget)
    {
        return m_project->mainWindow([=](MainWindow& window, const Visit& visit) {
            if (action)
                trigger(window, action);
            visit(*find<QWidget>(window, widget));
        });
    }

    Open box()
    {
        return m_project->mainWindow([](MainWindow& window, const Visit& visit) {
            visitModal(visit, [&window] { trigger(window, "About"); });
        });
    }

    /// Visits the table or dialog that F2 or a button in the cell opens.
    Open cell(DesignColumn column, const char* button)
    {
        return m_project->design([=](QWidget&, QTableWidget& table, const Visit& visit) {
            const auto visitButton = [&](QWidget& parent) {
                if (!button)
                    return visit(parent);
                auto pressed = find<QPushButton>(parent, button);
                pressed->setEnabled(true); // even for a model without secondary groups
                visitModal(visit, [pressed] { pressed->click(); });
            };
            table.setCurrentCell(column == Groups ? 1 : 0, column);
            if (column == Groups)
                return visitButton(table);
            visitModal(visitButton, [&table] { QTest::keyClick(&table, Qt::Key_F2); });
        });
    }

    QTemporaryDir m_settings;
    std::unique_ptr<VisitedProject> m_project;
};

PLIB_WIDGET_TEST_MAIN(tst_helpKey)
#include "tst_helpKey.moc"
