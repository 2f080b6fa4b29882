#include "cli/PlatformLog.h"
#include "VisitedProject.h"
#include "WidgetWalk.h"
#include "window/files/askAboutNewer.h"
#include "window/files/SlowWork.h"
#include "window/support/WindowSettings.h"

#include <AnimatorView.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_TableItems.h>
#include <VKD_P_WidgetGraphicalOutput>
#include <VKD_QT_TabDialog.h>
#include <vkd_qt_translateQt.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTreeWidget>

using workbench::MainWindow;

namespace {
enum DesignColumn { Groups, Type, Directions, Reinforcement, Cracks };

/// The columns of the design page have fixed widths.
const QSet<QString> FixedColumns{QStringLiteral("table")};

/// In these dialogs, each column belongs to one direction of the reinforcement.
const QSet<QString> TabByColumns{QStringLiteral("dlgCrackControl"),
                                 QStringLiteral("dlgReinforcement")};

/// Texts with the same spelling in both languages.
const QSet<QString> SameSpelling{QStringLiteral("&Filter:"),
                                 QStringLiteral("1 System"),
                                 QStringLiteral("Name"),
                                 QStringLiteral("System"),
                                 QStringLiteral("Text"),
                                 QStringLiteral("Workbench"),
                                 QStringLiteral("Zoom"),
                                 QStringLiteral("phi-Y"),
                                 QStringLiteral("project.zob[*] - Workbench")};
} // namespace

/// Checks every window of the program and of the libraries in both languages. Each row adds a
/// window.
class tst_everyWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        workbench::PlatformLog::install();
        vkd_qt_translateQt();
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
        m_project = std::make_unique<VisitedProject>();
    }

    void init() { workbench::WindowSettings().clear(); }

    void everyWindow_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<Open>("open");
        addMainWindows();
        addBesideMainWindow();
        addDesignWindows();
        addDesignDialogs();
        addRefusals();
        addOutputPages();
    }

    void everyWindow()
    {
        QFETCH(const int, language);
        QFETCH(const Open, open);
        const auto visit = [&](int shown, const Visit& see) {
            int count = 0;
            m_project->language = shown;
            setLanguage(shown);
            open([&](QWidget& window) {
                ++count;
                see(window);
            });
            QVERIFY(count > 0);
        };
        QSet<QString> english;
        if (language == German)
            visit(English, [&](QWidget& window) { english += testsupport::texts(window); });
        const QSet<QString> fromProject = m_project->texts(); // may follow a number and a colon
        english -= fromProject;
        english -= SameSpelling;
        static const QRegularExpression Word(QStringLiteral("[A-Za-z]{3}"));
        QStringList faults;
        visit(language, [&](QWidget& window) {
            faults += testsupport::faults(window, FixedColumns, TabByColumns);
            if (language == German)
                for (const QString& text : testsupport::texts(window) & english)
                    if (text.contains(Word) && !text.contains(m_project->doc()->path()) &&
                        !fromProject.contains(text.mid(text.indexOf(QLatin1String(": ")) + 2)))
                        faults << QStringLiteral("not in German: %1").arg(text);
        });
        QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
    }

private:
    void add(const char* name, const Open& open)
    {
        for (int language : {English, German})
            QTest::addRow("%s, %s", name, language ? "English" : "German") << language << open;
    }
    void addMain(const char* name, const VisitedProject::WindowAct& act)
    {
        add(name, m_project->mainWindow(act));
    }
    void addDesign(const char* name, const VisitedProject::DesignAct& act)
    {
        add(name, m_project->design(act));
    }

    void addMainWindows()
    {
        addMain("main window", [](MainWindow& window, const Visit& visit) { visit(window); });
        add("main window without a project", [](const Visit& visit) {
            MainWindow window;
            window.openAfterPainting(QString());
            window.show();
            visit(window);
        });
        add("main window, language changed", [this](const Visit& visit) {
            const int language = m_project->language;
            setLanguage(1 - language);
            m_project->mainWindow([language](MainWindow& window, const Visit& see) {
                trigger(window, language ? "English" : "German");
                see(window);
            })(visit);
        });
        addMain("sheet", [](MainWindow& window, const Visit& visit) {
            trigger(window, "SheetPreviewAction");
            visit(window);
        });
        addMain("changed by another program", [this](MainWindow& window, const Visit& visit) {
            const int length = 1;
            vkd_zob_put(m_project->doc()->index(), 9000, 1, "x", &length, 0);
            QTRY_VERIFY(find<QWidget>(window, "ChangeBar")->isVisible());
            visit(window);
            visitModal(visit, [&window] { workbench::askAboutNewer(&window); });
        });
        addMain("picking", [](MainWindow& window, const Visit& visit) {
            trigger(window, "Design");
            find<QPushButton>(window, "PickGroups")->click();
            for (int row : {0, 1}) {
                find<QTableWidget>(*find<QWidget>(window, "DesignDock"), "table")
                    ->setCurrentCell(row, Groups);
                visit(window);
            }
        });
    }

    void addBesideMainWindow()
    {
        addMain("output dialog and its menu", [](MainWindow& window, const Visit& visit) {
            trigger(window, "Output");
            auto dialog = find<QDialog>(window, "OutputDialog");
            visit(*dialog);
            find<QTabWidget>(*dialog, "tabs")->setCurrentIndex(0);
            visitMenu(visit, find<QTreeWidget>(*dialog, "m_list")->viewport());
        });
        addMain("text output", [](MainWindow& window, const Visit& visit) {
            trigger(window, "TextOutput");
            auto dialog = find<QDialog>(window, "TextOutputDialog");
            visit(*dialog);
            // Selecting another kind rebuilds the row of kinds.
            find<QComboBox>(*dialog, "CombinationKind")->setCurrentIndex(3);
            visit(*dialog);
        });
        for (const QByteArray page : {"Design", "Output"})
            addMain("presets of " + page, [page](MainWindow& window, const Visit& visit) {
                trigger(window, page);
                const auto open = find<QAction>(*find<QWidget>(window, page + "Dock"), "presets");
                visitModal(visit, [open] { open->trigger(); });
                whenModal([&visit](QWidget* presets) {
                    const auto form = find<QPushButton>(*presets, "presetNew");
                    visitModal(visit, [form] { form->click(); });
                    presets->close();
                });
                open->trigger();
            });
        addMain("about", [](MainWindow& window, const Visit& visit) {
            visitModal(visit, [&] { trigger(window, "About"); });
        });
        addMain("help", [](MainWindow& window, const Visit& visit) {
            trigger(window, "DesignHelp");
            for (QWidget* help : QApplication::topLevelWidgets())
                if (help->objectName() == QLatin1String("VKD_T_Help")) {
                    visit(*help);
                    find<QLineEdit>(*help, "searchText")->setText(QStringLiteral("a"));
                    visit(*help);
                }
        });
    }

    void addDesignWindows()
    {
        addDesign("editors and menu of the design table",
                  [](QWidget& dialog, QTableWidget& table, const Visit& visit) {
                      for (int column : {Groups, Type, Directions, Reinforcement, Cracks}) {
                          table.setCurrentCell(1, column);
                          visit(dialog);
                      }
                      table.setCurrentCell(1, Type);
                      visitMenu(visit, table.viewport());
                  });
        for (const char* button : {"buttonGroups", "buttonSekGroups"})
            addDesign(button, [button](QWidget&, QTableWidget& table, const Visit& visit) {
                table.setCurrentCell(1, Groups);
                auto clicked = find<QPushButton>(table, button);
                clicked->setEnabled(true); // even for a model without secondary groups
                visitModal(visit, [clicked] { clicked->click(); });
            });
    }

    /// Visits the dialog of a cell in the new row after selecting this design type.
    static void edit(QTableWidget& table, int type, int column, const Visit& visit)
    {
        auto item = dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(table.item(1, Type));
        for (const ComboList& entry : item->entries())
            if (entry.id == type)
                item->setText(entry.text);
        table.setCurrentCell(1, column);
        visitModal(visit, [&table] { QTest::keyClick(&table, Qt::Key_F2); });
    }

    void addDesignDialogs()
    {
        for (int type = 1; type <= 4; ++type)
            addDesign(qPrintable(QStringLiteral("dialogs of type %1").arg(type)),
                      [type](QWidget&, QTableWidget& table, const Visit& visit) {
                          for (int column : {Directions, Reinforcement, Cracks})
                              edit(table, type, column, visit);
                      });
        addDesign("calculator", [](QWidget&, QTableWidget& table, const Visit& visit) {
            const auto visitTwice = [&visit](QWidget& calculator) {
                visit(calculator);
                find<QLineEdit>(calculator, "spacing")->setText(QStringLiteral("1"));
                visit(calculator); // shows a note on overlapping bars
            };
            edit(table, 1, Reinforcement, [&visitTwice](QWidget& dialog) {
                auto button = find<QPushButton>(dialog, "Calc");
                visitModal(visitTwice, [button] { button->click(); });
            });
        });
    }

    void addRefusals()
    {
        addDesign("group input refused", [](QWidget&, QTableWidget& table, const Visit& visit) {
            table.setCurrentCell(1, Groups);
            whenModal([&visit](QWidget* dialog) {
                find<QLineEdit>(*dialog, "input")->setText(QStringLiteral("999999 x"));
                qobject_cast<QDialog*>(dialog)->accept();
                visit(*dialog);
                dialog->close();
            });
            find<QPushButton>(table, "buttonGroups")->click();
        });
        addDesign("minimum above maximum", [](QWidget&, QTableWidget& table, const Visit& visit) {
            edit(table, 1, Reinforcement, [&visit](QWidget& dialog) {
                find<QLineEdit>(dialog, "aso")->setText(QStringLiteral("5"));
                find<QLineEdit>(dialog, "amo")->setText(QStringLiteral("4"));
                visitModal(visit, [&] { qobject_cast<QDialog*>(&dialog)->accept(); });
            });
        });
        addMain("a project that cannot be opened", [this](MainWindow& window, const Visit& visit) {
            const QString absent = m_settings.filePath(QStringLiteral("absent.zob"));
            visitModal(visit, [&] { window.openProject(absent); });
        });
        addMain("choice not stored", [](MainWindow& window, const Visit& visit) {
            trigger(window, "Output");
            auto tree = find<QDialog>(window, "OutputDialog")->findChild<QTreeWidget*>();
            tree->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
            visitModal(visit, [&window] { window.close(); });
        });
        addMain("text output not stored", [](MainWindow& window, const Visit& visit) {
            trigger(window, "TextOutput");
            find<QCheckBox>(*find<QDialog>(window, "TextOutputDialog"), "ForceList")->toggle();
            visitModal(visit, [&window] { window.close(); });
        });
        addDesign("rows not stored", [](QWidget& window, QTableWidget&, const Visit& visit) {
            visitModal(visit, [&window] { window.close(); });
        });
        addMain("slow work", [](MainWindow& window, const Visit& visit) {
            workbench::SlowWork work(&window, QString(), 10);
            while (!window.findChild<QProgressDialog*>()) // the dialog appears after half a second
                work.goOn(1);
            visit(*window.findChild<QProgressDialog*>());
        });
    }

    void addPage(const char* name, VKD_P_WidgetGraphicalOutput_Progname kind, bool withView)
    {
        add(name, [this, kind, withView](const Visit& visit) {
            VKD_H_PluginParameter parameter(m_project->doc());
            VKD_QT_TabDialog dialog;
            auto view = withView ? new AnimatorView(m_project->doc()->handle(), &dialog) : nullptr;
            // After the catalogue has been read in two languages, it offers each plot twice.
            vkd_lib_setvalue(VKD_SETTING_LANGUAGE, English);
            auto output = new VKD_P_WidgetGraphicalOutput(&dialog, kind, &parameter, view);
            vkd_lib_setvalue(VKD_SETTING_LANGUAGE, m_project->language);
            QEvent change(QEvent::LanguageChange);
            QCoreApplication::sendEvent(output, &change);
            output->setUsedNumbersAndNames({{1, 1, QStringLiteral("1 : g")}});
            dialog.addTab(output, QStringLiteral("1"));
            dialog.setWindowTitle(QString::number(kind));
            dialog.show();
            visit(dialog);
        });
    }

    void addOutputPages()
    {
        addPage("standard page", VKD_P_GraphicalOutput_Standard, true);
        addPage("standard page without a view", VKD_P_GraphicalOutput_Standard, false);
        addPage("split page", VKD_P_GraphicalOutput_Split, false);
        addPage("prefix page", VKD_P_GraphicalOutput_Prefix, true);
    }

    QTemporaryDir m_settings;
    std::unique_ptr<VisitedProject> m_project;
};

PLIB_WIDGET_TEST_MAIN(tst_everyWidget)
#include "tst_everyWidget.moc"
