#include "VisitedProject.h"
#include "WidgetTestSupport.h"
#include "WidgetWalk.h"

#include <AnimatorView.h>
#include <PlatformLog.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_TableItems.h>
#include <vkd_lib_value.h>
#include <VKD_P_WidgetGraphicalOutput>
#include <VKD_QT_TabDialog.h>

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QVBoxLayout>

using testsupport::whenModal;
using workbench::MainWindow;

namespace {
enum DesignColumn { Groups, Type, Directions, Reinforcement, Cracks };

/// The widths of the design page's columns are fixed.
const QSet<QString> FixedColumns{QStringLiteral("table")};

/// Plots keep the language of the first page in the process, also where a sheet names them.
const QSet<QString> FirstLanguage{QStringLiteral("m_list"), QStringLiteral("SheetView")};

/// Spelt alike in both languages.
const QSet<QString> SameSpelling{QStringLiteral("&Filter:"), QStringLiteral("Name"),
                                 QStringLiteral("rad"),      QStringLiteral("System"),
                                 QStringLiteral("Text"),     QStringLiteral("Zoom")};
} // namespace

/// Every window of the program and of the libraries, in both languages. A window is added by a row.
class tst_everyWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void everyWindow_data();
    void everyWindow();
    void faultsAreFound_data();
    void faultsAreFound();

private:
    void addWindow(const char* name, const Open& open);
    void addMainWindows();
    void addDesignWindows();
    void addDesignDialogs();
    void addOutputPages();
    void addBoxes();

    QTemporaryDir m_settings;
    std::unique_ptr<VisitedProject> m_project;
};

void tst_everyWidget::initTestCase()
{
    workbench::PlatformLog::install();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    m_project = std::make_unique<VisitedProject>();
}

void tst_everyWidget::init()
{
    QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("plib"),
              QStringLiteral("workbench"))
        .clear();
}

void tst_everyWidget::addWindow(const char* name, const Open& open)
{
    for (int language : {English, German})
        QTest::addRow("%s, %s", name, language ? "English" : "German") << language << open;
}

void tst_everyWidget::addMainWindows()
{
    addWindow("main window",
              m_project->mainWindow([](MainWindow& window, const Visit& visit) { visit(window); }));
    addWindow("main window without a project", [](const Visit& visit) {
        MainWindow window([](const QString&, const QString&) { return QString(); });
        window.show();
        visit(window);
    });
    addWindow("main window, language changed", [this](const Visit& visit) {
        const int language = m_project->language;
        setLanguage(1 - language);
        m_project->mainWindow([language](MainWindow& window, const Visit& see) {
            trigger(window, language ? "English" : "German");
            see(window);
        })(visit);
    });
    addWindow("output dialog", m_project->mainWindow([](MainWindow& window, const Visit& visit) {
        trigger(window, "Output");
        visit(*find<QDialog>(window, "OutputDialog"));
    }));
    addWindow("sheet", m_project->mainWindow([](MainWindow& window, const Visit& visit) {
        trigger(window, "SheetPreviewAction");
        visit(window);
    }));
    addWindow("text output", m_project->mainWindow([](MainWindow& window, const Visit& visit) {
        trigger(window, "TextOutput");
        visit(*find<QDialog>(window, "TextOutputDialog"));
    }));
    addWindow("menu of the plots",
              m_project->mainWindow([](MainWindow& window, const Visit& visit) {
                  trigger(window, "Output");
                  auto tree = find<QTreeWidget>(*find<QDialog>(window, "OutputDialog"), "m_list");
                  visitMenu(visit, tree->viewport());
              }));
    addWindow("design dialog", m_project->mainWindow([](MainWindow& window, const Visit& visit) {
        visitModal(visit, [&window] { trigger(window, "Design"); });
    }));
    addWindow("picking", m_project->mainWindow([](MainWindow& window, const Visit& visit) {
        constexpr int PickOutside = 6;
        whenModal([](QWidget* dialog) { qobject_cast<QDialog*>(dialog)->done(PickOutside); });
        trigger(window, "Design");
        visit(window);
        whenModal([](QWidget* dialog) { dialog->close(); });
        find<QPushButton>(window, "PickCancel")->click();
    }));
    addWindow("help", m_project->mainWindow([](MainWindow& window, const Visit& visit) {
        trigger(window, "DesignHelp");
        for (QWidget* help : QApplication::topLevelWidgets())
            if (help->objectName() == QLatin1String("VKD_T_Help")) {
                visit(*help);
                find<QLineEdit>(*help, "searchText")->setText(QStringLiteral("a"));
                visit(*help);
            }
    }));
}

void tst_everyWidget::addDesignWindows()
{
    for (int column : {Groups, Type, Directions, Reinforcement, Cracks})
        addWindow(
            qPrintable(QStringLiteral("editor of design column %1").arg(column)),
            m_project->design([column](QWidget& dialog, QTableWidget& table, const Visit& visit) {
                table.setCurrentCell(1, column);
                visit(dialog);
            }));
    for (const char* button : {"buttonGroups", "buttonSekGroups"})
        addWindow(button,
                  m_project->design([button](QWidget&, QTableWidget& table, const Visit& visit) {
                      table.setCurrentCell(1, Groups);
                      auto clicked = find<QPushButton>(table, button);
                      clicked->setEnabled(true); // also for a model without secondary groups
                      visitModal(visit, [clicked] { clicked->click(); });
                  }));
    addWindow("menu of the design table",
              m_project->design([](QWidget&, QTableWidget& table, const Visit& visit) {
                  table.setCurrentCell(1, Type);
                  visitMenu(visit, table.viewport());
              }));
    addWindow("group input refused",
              m_project->design([](QWidget&, QTableWidget& table, const Visit& visit) {
                  table.setCurrentCell(1, Groups);
                  whenModal([&visit](QWidget* dialog) {
                      find<QLineEdit>(*dialog, "input")->setText(QStringLiteral("999999 x"));
                      qobject_cast<QDialog*>(dialog)->accept();
                      visit(*dialog);
                      dialog->close();
                  });
                  find<QPushButton>(table, "buttonGroups")->click();
              }));
}

void tst_everyWidget::addDesignDialogs()
{
    const auto edit = [](int type, int column, const Visit& visit) {
        return [type, column, visit](QTableWidget& table) {
            auto item = dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(table.item(1, Type));
            for (const ComboList& entry : item->entries())
                if (entry.id == type)
                    item->setText(entry.text);
            table.setCurrentCell(1, column);
            visitModal(visit, [&table] { QTest::keyClick(&table, Qt::Key_F2); });
        };
    };
    for (int type = 1; type <= 4; ++type)
        for (int column : {Directions, Reinforcement, Cracks})
            addWindow(qPrintable(QStringLiteral("type %1, design column %2").arg(type).arg(column)),
                      m_project->design([=](QWidget&, QTableWidget& table, const Visit& visit) {
                          edit(type, column, visit)(table);
                      }));
    addWindow("calculator",
              m_project->design([=](QWidget&, QTableWidget& table, const Visit& visit) {
                  const auto visitTwice = [&visit](QWidget& calculator) {
                      visit(calculator);
                      find<QLineEdit>(calculator, "spacing")->setText(QStringLiteral("1"));
                      visit(calculator); // with a note on bars that overlap
                  };
                  edit(1, Reinforcement, [&visitTwice](QWidget& dialog) {
                      auto button = find<QPushButton>(dialog, "Calc");
                      visitModal(visitTwice, [button] { button->click(); });
                  })(table);
              }));
    addWindow("minimum above maximum",
              m_project->design([=](QWidget&, QTableWidget& table, const Visit& visit) {
                  edit(1, Reinforcement, [&visit](QWidget& dialog) {
                      find<QLineEdit>(dialog, "aso")->setText(QStringLiteral("5"));
                      find<QLineEdit>(dialog, "amo")->setText(QStringLiteral("4"));
                      visitModal(visit, [&] { qobject_cast<QDialog*>(&dialog)->accept(); });
                  })(table);
              }));
}

void tst_everyWidget::addOutputPages()
{
    const auto page = [this](int kind, bool withView) {
        return [=](const Visit& visit) {
            VKD_H_PluginParameter parameter(m_project->doc());
            VKD_QT_TabDialog dialog;
            auto view = withView ? new AnimatorView(m_project->doc()->index(), &dialog) : nullptr;
            // The catalogue offers each plot twice once it was read in two languages.
            vkd_lib_setvalue(VKD_SETTING_LANGUAGE, English);
            auto output = new VKD_P_WidgetGraphicalOutput(
                &dialog, VKD_P_WidgetGraphicalOutput_Progname(kind), &parameter, view);
            vkd_lib_setvalue(VKD_SETTING_LANGUAGE, m_project->language);
            output->setUsedNumbersAndNames({{1, 1, QStringLiteral("1 : g")}});
            dialog.addTab(output, QStringLiteral("1"));
            dialog.setWindowTitle(QString::number(kind));
            dialog.show();
            visit(dialog);
        };
    };
    addWindow("standard page", page(VKD_P_GraphicalOutput_Standard, true));
    addWindow("standard page without a view", page(VKD_P_GraphicalOutput_Standard, false));
    addWindow("split page", page(VKD_P_GraphicalOutput_Split, false));
    addWindow("prefix page", page(VKD_P_GraphicalOutput_Prefix, true));
}

void tst_everyWidget::addBoxes()
{
    addWindow("a project that cannot be opened",
              m_project->mainWindow([this](MainWindow& window, const Visit& visit) {
                  visitModal(visit, [&] {
                      window.openProject(m_settings.filePath(QStringLiteral("absent.zob")));
                  });
              }));
    addWindow(
        "choice not stored", m_project->mainWindow([](MainWindow& window, const Visit& visit) {
            trigger(window, "Output");
            auto dialog = find<QDialog>(window, "OutputDialog");
            dialog->findChild<QTreeWidget*>()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
            visitModal(visit, [&window] { window.close(); });
        }));
    addWindow("about", m_project->mainWindow([](MainWindow& window, const Visit& visit) {
        visitModal(visit, [&window] { trigger(window, "About"); });
    }));
}

void tst_everyWidget::everyWindow_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<Open>("open");
    addMainWindows();
    addDesignWindows();
    addDesignDialogs();
    addOutputPages();
    addBoxes();
}

void tst_everyWidget::everyWindow()
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
        visit(English,
              [&](QWidget& window) { english += testsupport::texts(window, FirstLanguage); });
    english -= m_project->texts();
    english -= SameSpelling;
    static const QRegularExpression Word(QStringLiteral("[A-Za-z]{3}"));
    QStringList faults;
    visit(language, [&](QWidget& window) {
        faults += testsupport::faults(window, FixedColumns);
        if (language == German)
            for (const QString& text : testsupport::texts(window, FirstLanguage) & english)
                if (text.contains(Word) && !text.contains(m_project->doc()->path()))
                    faults << QStringLiteral("not in German: %1").arg(text);
    });
    QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
}

void tst_everyWidget::faultsAreFound_data()
{
    using Spoil = std::function<void(QWidget&)>;
    QTest::addColumn<Visit>("spoil");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char* fault, const Spoil& spoil) {
        QTest::newRow(fault) << Visit(spoil) << QString::fromLatin1(fault);
    };
    row("has no accessible name",
        [](QWidget& window) { find<QLineEdit>(window, "last")->setAccessibleName(QString()); });
    row("has the accessible name \"First/\"", [](QWidget& window) {
        find<QLineEdit>(window, "last")->setAccessibleName(QStringLiteral("First"));
    });
    row("is cut", [](QWidget& window) { find<QCheckBox>(window, "check")->setFixedWidth(30); });
    row("cuts its text", [](QWidget& window) {
        find<QLineEdit>(window, "last")->setPlaceholderText(QString(200, QLatin1Char('w')));
    });
    row("by Tab", [](QWidget& window) {
        QWidget::setTabOrder(find<QLineEdit>(window, "last"), find<QLineEdit>(window, "first"));
    });
    row("is also that of", [](QWidget& window) {
        find<QCheckBox>(window, "check")->setText(QStringLiteral("&Fill"));
    });
}

void tst_everyWidget::faultsAreFound()
{
    QFETCH(const Visit, spoil);
    QFETCH(const QString, fault);
    QWidget window;
    auto layout = new QVBoxLayout(&window);
    for (const char* name : {"first", "last"}) {
        auto edit = new QLineEdit(&window);
        edit->setObjectName(QLatin1String(name));
        layout->addWidget(edit);
    }
    find<QLineEdit>(window, "first")->setAccessibleName(QStringLiteral("First"));
    find<QLineEdit>(window, "last")->setAccessibleName(QStringLiteral("Last"));
    auto check = new QCheckBox(QStringLiteral("Choose &all"), &window);
    check->setObjectName(QStringLiteral("check"));
    layout->addWidget(check);
    layout->addWidget(new QPushButton(QStringLiteral("&Find"), &window));
    window.show();
    QCOMPARE(testsupport::faults(window), QStringList());
    spoil(window);
    QVERIFY(testsupport::faults(window).join(QLatin1Char('\n')).contains(fault));
}

PLIB_WIDGET_TEST_MAIN(tst_everyWidget)
#include "tst_everyWidget.moc"
