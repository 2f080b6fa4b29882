#include "LanguageSupport.h"
#include "TemporaryProject.h"
#include "WidgetTestSupport.h"
#include "WidgetWalk.h"

#include <vkd_dbo_model.h>
#include <VKD_H_SecondaryGroupDialog.h>
#include <VKD_H_SelGRP_Dialog.h>
#include <VKD_QT_Ok.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>

using namespace testsupport;

using Groups = std::vector<int>;
using namespace vkd::dbo;

namespace {
constexpr int Cols = 0x534c4f43; // packed names
constexpr int Low = 0x20574f4c;
constexpr int Old = 0x20444c4f;

/// Groups 1 to 4 and 12. Group 1 has an area element and two beams, group 2 has one element of each
/// other type.
Model sample()
{
    Model model;
    model.groups = {{1, QStringLiteral("Raft")},
                    {2, QStringLiteral("Floor slab")},
                    {3, QStringLiteral("Roof <b>slab</b>")},
                    {4, QStringLiteral("Walls")},
                    {12, QString()}};
    model.quads += {{1, 1, {}, 0.2}};
    model.beams += {{1, 1, 1, {}}, {2, 1, 1, {}}};
    model.trusses += {{3, 2, 1, {}}, {4, 2, 1, {}}};
    model.cables += {{5, 2, 1, {}}, {6, 2, 1, {}}};
    model.springs += {{7, 2, {}, 1.0}};
    model.bricks += {{8, 2, {}}, {9, 2, {}}};
    model.secondaryGroups = {
        {QStringLiteral("LOW"), QStringLiteral("Ground floor"), {1}, {1, 2}},
        {QStringLiteral("COLS"), QStringLiteral("Strips at columns"), {1}, {}},
    };
    return model;
}

/// Operates the widgets of a dialog for a test.
class Driver
{
public:
    explicit Driver(const QWidget* dialog)
        : m_dialog(dialog)
    {
    }

    template <typename Widget>
    Widget* find(const char* name) const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    QAbstractItemView* view() const { return find<QAbstractItemView>("groups"); }
    QString labelText(const char* name) const { return find<QLabel>(name)->text(); }
    void press(const char* name) const
    {
        QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton);
    }
    void pressOk() const
    {
        QTest::mouseClick(find<VKD_QT_Ok>("okayandcancelbutton")->cmdOk(), Qt::LeftButton);
    }
    void type(const char* field, const char* text) const
    {
        find<QLineEdit>(field)->setFocus();
        find<QLineEdit>(field)->clear();
        QTest::keyClicks(find<QLineEdit>(field), QLatin1String(text));
    }
    void enter(const char* widget) const
    {
        find<QWidget>(widget)->setFocus();
        QTest::keyClick(find<QWidget>(widget), Qt::Key_Return);
    }

    QModelIndex cell(const QString& group, int column = 0) const
    {
        for (int row = 0; row < view()->model()->rowCount(); ++row)
            if (view()->model()->index(row, 0).data().toString() == group)
                return view()->model()->index(row, column);
        return {};
    }
    QString shown() const
    {
        QStringList groups;
        for (int row = 0; row < view()->model()->rowCount(); ++row)
            groups << view()->model()->index(row, 0).data().toString();
        return groups.join(QLatin1Char(' '));
    }
    void select(const QStringList& groups) const
    {
        view()->setFocus();
        view()->clearSelection();
        for (const QString& group : groups)
            view()->selectionModel()->setCurrentIndex(
                cell(group, 1), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

private:
    const QWidget* m_dialog;
};

/// Returns the result of the dialog after `act`, or -1 if the dialog is still open.
int execWith(QDialog& dialog, const std::function<void(const Driver&)>& act)
{
    whenModal([&](QWidget* modal) {
        QApplication::setActiveWindow(modal); // a visible window is not active yet
        act(Driver(modal));
        if (modal->isVisible())
            dialog.done(-1);
    });
    return dialog.exec();
}
} // namespace

/// Tests both dialogs through their interface, with user actions in between.
class TestGroupDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setLanguage(English);
        QVERIFY(storeModel(m_project.handle(), sample()).isOk());
    }

    /// Groups that were checked before are only the initial state for picking. No group has been
    /// picked yet.
    void leftWithoutOk()
    {
        const int index = m_project.index();
        for (bool picks : {true, false}) {
            Groups groups{3};
            QPoint position(30, 40);
            QVERIFY(VKD_H_SelGRP_Dialog::putAniSelectionToZob(index, {5}).isOk());
            VKD_H_SelGRP_Dialog dialog(true, 200, m_project.doc.get(), groups, {}, &position,
                                       nullptr);
            const int result = execWith(dialog, [&](const Driver& driver) {
                QCOMPARE(dialog.pos(), position);
                driver.press("all");
                if (picks)
                    driver.press("pick");
                else
                    QTest::keyClick(driver.view(), Qt::Key_Escape);
            });
            QCOMPARE(result, picks ? 6 : 0);
            QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(index, groups), picks ? -1 : 0);
            dialog.getChecked(groups);
            QCOMPARE(groups, Groups{3});
        }
        Groups start;
        VKD_H_SelGRP_Dialog::getAniSelectionFromZob(VKD_H_SelGRP_Dialog::StartOfPicking, start);
        QCOMPARE(start, (Groups{1, 2, 3, 4, 12}));
    }

    void positionOutsideOfTheScreen()
    {
        Groups none;
        QPoint position(100000, -100000);
        const VKD_H_SelGRP_Dialog dialog(true, 200, m_project.doc.get(), none, {}, &position,
                                         nullptr);
        QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(dialog.geometry()));
    }

    void rows()
    {
        Groups checked{77, 2};
        VKD_H_SelGRP_Dialog dialog(true, 200, m_project.doc.get(), checked, {2, 4, 5}, nullptr);
        const Driver driver(&dialog);
        const QString wanted =
            QStringLiteral("1|Raft|1 area, 2 beams|\n"
                           "2|Floor slab|2 trusses, 2 cables, 1 spring, 2 bricks|"
                           "no area elements, also in another row\n"
                           "3|Roof <b>slab</b>|no elements|no area elements\n"
                           "4|Walls|no elements|no area elements, used by another row\n"
                           "12||no elements|no area elements\n"
                           "77|||not in the model\n");
        QString cells;
        for (const QString& group : driver.shown().split(QLatin1Char(' ')))
            for (int column = 0; column < 4; ++column)
                cells += driver.cell(group, column).data().toString() +
                         QLatin1Char(column < 3 ? '|' : '\n');
        QCOMPARE(cells, wanted);
        auto view = driver.find<QTreeView>("groups");
        QVERIFY(!view->isColumnHidden(3));
        QVERIFY(view->sizeHint().height() > 6 * view->sizeHintForRow(0));
        QStringList headers, orders;
        for (int column = 0; column < 4; ++column) {
            headers << view->model()->headerData(column, Qt::Horizontal).toString();
            view->sortByColumn(column, column == 2 ? Qt::DescendingOrder : Qt::AscendingOrder);
            orders << driver.shown();
        }
        QCOMPARE(headers.join(QLatin1Char('|')), QStringLiteral("Group|Title|Contents|Remark"));
        QCOMPARE(orders.join(QLatin1Char('|')),
                 QStringLiteral("1 2 3 4 12 77|12 77 2 1 3 4|2 1 12 77 3 4|1 12 3 2 4 77"));
        Groups low{Low};
        const VKD_H_SecondaryGroupDialog withoutRemarks(m_project.doc.get(), low, {}, nullptr);
        QVERIFY(Driver(&withoutRemarks).find<QTreeView>("groups")->isColumnHidden(3));
        const QModelIndex title = driver.cell(QStringLiteral("3"), 1);
        QVERIFY(!title.data(Qt::ToolTipRole).toString().contains(QLatin1String("<b>")));
        QVERIFY(driver.cell(QStringLiteral("4"), 1).data(Qt::FontRole).value<QFont>().italic());
        QCOMPARE(driver.labelText("count"),
                 QStringLiteral("2 of 6 groups checked, 1 also in another row, "
                                "1 without area elements"));
    }

    void filterAndButtons()
    {
        const Groups groups = confirmed({1}, [](const Driver& driver) {
            driver.type("filter", " SLAB ");
            QCOMPARE(driver.shown(), QStringLiteral("2 3"));
            driver.enter("filter");
            driver.press("all");
            QCOMPARE(driver.labelText("count"),
                     QStringLiteral("3 of 5 groups checked, 2 without area elements, "
                                    "1 hidden by the filter"));
            driver.type("filter", "2");
            QCOMPARE(driver.shown(), QStringLiteral("2 12"));
            driver.press("none");
            driver.type("filter", "(");
            QCOMPARE(driver.shown(), QString());
            driver.press("all");
            driver.enter("groups");
        });
        QCOMPARE(groups, (Groups{1, 3}));
    }

    void typedNumbers()
    {
        const Groups groups = confirmed({77}, [](const Driver& driver) {
            driver.type("input", "2-1;x<b>,8");
            driver.enter("input");
            QCOMPARE(driver.labelText("message"),
                     QStringLiteral("Cannot read: x<b>. Type numbers and ranges such as 1-5 9.\n"
                                    "There is no group 8.\n"
                                    "Without area elements: 2"));
            QVERIFY(driver.find<QLabel>("message")->isVisible());
            QCOMPARE(driver.labelText("count"),
                     QStringLiteral("3 of 6 groups checked, 1 without area elements"));
            driver.select({QStringLiteral("2")});
            QTest::keyClick(driver.view(), Qt::Key_Space); // from now on only the list is used
            driver.press("check");                         // keeps the unreadable parts
            QCOMPARE(driver.find<QLineEdit>("input")->text(), QStringLiteral("x<b> 8"));
            driver.enter("groups");
            QVERIFY(driver.view()->isVisible()); // OK would lose the parts that it cannot read
            driver.type("input", "1");
            QVERIFY(!driver.find<QLabel>("message")->isVisible());
            driver.select({QStringLiteral("1")}); // unchecks the group
            QTest::keyClick(driver.view(), Qt::Key_Space);
            driver.type("input", "12");
            driver.pressOk();
            QVERIFY(driver.view()->isVisible()); // so that the user can read the message
            QCOMPARE(driver.labelText("message"), QStringLiteral("Without area elements: 12"));
            driver.pressOk();
        });
        QCOMPARE(groups, (Groups{12, 77}));
    }

    void secondaryGroups()
    {
        Groups groups{Old, 3};
        VKD_H_SecondaryGroupDialog dialog(m_project.doc.get(), groups, {Cols}, nullptr);
        const int result = execWith(dialog, [&](const Driver& driver) {
            QCOMPARE(driver.shown(), QStringLiteral("COLS LOW OLD"));
            const QModelIndex low = driver.cell(QStringLiteral("LOW"), 2);
            QCOMPARE(low.data().toString(), QStringLiteral("1 area, 2 beams"));
            QCOMPARE(driver.labelText("notShown"),
                     QStringLiteral("1 group of the row is not shown here: 3. OK keeps it if "
                                    "nothing is changed, and otherwise replaces it."));
            driver.type("input", "low;cols");
            driver.enter("input");
            QCOMPARE(driver.labelText("notShown"),
                     QStringLiteral("OK replaces 1 group of the row that is not shown here: 3"));
            driver.enter("groups");
        });
        QCOMPARE(result, 1);
        QCOMPARE(dialog.getChecked(groups), 0);
        QCOMPARE(groups, (Groups{Old, Low, Cols}));
    }

    /// A dialog that is open during a language change shows the same text as a new one.
    void languageChange()
    {
        VKD_H_SecondaryGroupDialog open(nullptr, {Low}, {});
        open.show();
        const Driver driver(&open);
        const int width = driver.find<QLineEdit>("input")->minimumWidth();
        int headersChanged = 0;
        connect(driver.view()->model(), &QAbstractItemModel::headerDataChanged, &open,
                [&headersChanged] { ++headersChanged; });
        const QSet<QString> before = texts(open);
        setLanguage(German);
        VKD_H_SecondaryGroupDialog opened(nullptr, {Low}, {});
        opened.show();
        QCOMPARE(texts(open), texts(opened));
        QVERIFY(texts(open) != before);
        QVERIFY(driver.find<QLineEdit>("input")->minimumWidth() != width);
        QCOMPARE(headersChanged, 1);
        setLanguage(English);
    }

    void emptyModel()
    {
        Groups groups{-1};
        for (VKD_H_ZOBDoc* doc : {m_empty.doc.get(), static_cast<VKD_H_ZOBDoc*>(nullptr)}) {
            VKD_H_SelGRP_Dialog dialog(true, 200, doc, groups, {1}, nullptr);
            const Driver driver(&dialog);
            QVERIFY(driver.find<QWidget>("empty") && !driver.view());
            QVERIFY(!driver.find<QPushButton>("pick")->isEnabled());
            dialog.show();
            dialog.accept();
            QCOMPARE(dialog.result(), 1);
        }
        groups = {4}; // a group of another model
        VKD_H_SelGRP_Dialog dialog(true, 200, m_empty.doc.get(), groups, {}, nullptr);
        QCOMPARE(Driver(&dialog).shown(), QStringLiteral("4"));
    }

private:
    /// Returns the groups of the project's dialog, which the user must confirm.
    Groups confirmed(Groups groups, const std::function<void(const Driver&)>& act)
    {
        VKD_H_SelGRP_Dialog dialog(true, 200, m_project.doc.get(), groups, {}, nullptr);
        if (execWith(dialog, act) != 1)
            QTest::qFail("not confirmed", __FILE__, __LINE__);
        dialog.getChecked(groups);
        return groups;
    }

    TemporaryProject m_project, m_empty;
};

PLIB_WIDGET_TEST_MAIN(TestGroupDialogs)
#include "tst_groupDialogs.moc"
