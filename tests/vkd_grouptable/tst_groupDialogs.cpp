#include "LanguageSupport.h"
#include "TemporaryProject.h"
#include "WidgetTestSupport.h"

#include <vkd_dbo_model.h>
#include <VKD_H_SecondaryGroupDialog.h>
#include <VKD_H_SelGRP_Dialog.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

using namespace testsupport;

using Groups = std::vector<int>;
using namespace vkd::dbo;

namespace {
constexpr int Cols = 0x534c4f43; // the names packed
constexpr int Low = 0x20574f4c;
constexpr int Old = 0x20444c4f;

/// Groups 1 to 4 and 12; the first with an area and two beams, the second with each other sort.
Model sample()
{
    Model model;
    const char* titles[] = {"Raft", "Floor slab", "Roof <b>slab</b>", "Walls"};
    for (int i = 0; i < 4; ++i)
        model.groups.append({i + 1, QLatin1String(titles[i])});
    model.groups.append({12, QString()});
    model.quads.resize(1);
    model.quads[0].group = 1;
    for (QVector<LineElement>* list : {&model.beams, &model.trusses, &model.cables})
        list->resize(2);
    model.springs.resize(1);
    model.bricks.resize(2);
    for (LineElement& beam : model.beams)
        beam.group = 1;
    for (QVector<LineElement>* list : {&model.trusses, &model.cables})
        for (LineElement& element : *list)
            element.group = 2;
    model.springs[0].group = 2;
    model.bricks[0].group = model.bricks[1].group = 2;
    model.secondaryGroups = {
        {QStringLiteral("LOW"), QStringLiteral("Ground floor"), {1}, {1, 2}},
        {QStringLiteral("COLS"), QStringLiteral("Strips at columns"), {1}, {}},
    };
    return model;
}

/// A dialog as a test deals with it.
class Driver
{
public:
    explicit Driver(QWidget* dialog)
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
    void type(const char* field, const QString& text) const
    {
        auto edit = find<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
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
    QString text(const char* group, int column) const
    {
        return cell(QLatin1String(group), column).data().toString();
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
    QWidget* m_dialog;
};

/// The result of the dialog if the user does that; a dialog that is still open then answers -1.
int execWith(QDialog& dialog, const std::function<void(const Driver&)>& act)
{
    whenModal([&](QWidget* modal) {
        act(Driver(modal));
        if (modal->isVisible())
            dialog.done(-1);
    });
    return dialog.exec();
}
} // namespace

/// Both dialogs from the caller's side, with what the user does in between.
class TestGroupDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setLanguage(English);
        QVERIFY(storeModel(m_project.index(), sample()));
    }

    void confirmed_data()
    {
        const Columns<QList<int>, QList<int>> row("checked", "confirmed");
        row("none", {}, {});
        row("ascending, each once", {12, 2, 12}, {2, 12});
        row("remaining groups", {-1}, {});
        row("not in the model", {77, 3, 0}, {0, 3, 77});
        row("secondary ones", {Cols, 2, Old}, {2});
    }

    /// Opened and confirmed as it is, with Enter in the list.
    void confirmed()
    {
        QFETCH(const QList<int>, checked);
        QFETCH(const QList<int>, confirmed);
        Groups in(checked.begin(), checked.end()), out{8, 8};
        VKD_H_SelGRP_Dialog dialog(true, 200, m_project.doc.get(), in, {}, nullptr, nullptr);
        QCOMPARE(execWith(dialog, [](const Driver& driver) { driver.enter("groups"); }), 1);
        QCOMPARE(dialog.getChecked(out), 0);
        QCOMPARE(out, Groups(confirmed.begin(), confirmed.end()));
        QCOMPARE(in, Groups(checked.begin(), checked.end()));
    }

    void results_data()
    {
        const Columns<QByteArray, int> row("button", "result");
        row("pick", QByteArray("pick"), 6);
        row("escape", QByteArray(), 0);
    }

    /// Whatever was checked before counts for nothing then.
    void results()
    {
        QFETCH(const QByteArray, button);
        Groups groups{3};
        QPoint position(30, 40);
        VKD_H_SelGRP_Dialog dialog(true, 200, m_project.doc.get(), groups, {}, &position, nullptr,
                                   "name");
        QCOMPARE(dialog.objectName(), QStringLiteral("name"));
        const int result = execWith(dialog, [&](const Driver& driver) {
            QCOMPARE(dialog.pos(), position);
            driver.press("all");
            if (button.isEmpty())
                QTest::keyClick(driver.view(), Qt::Key_Escape);
            else
                driver.press(button);
        });
        QTEST(result, "result");
        dialog.getChecked(groups);
        QCOMPARE(groups, Groups{3});
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
        const VKD_H_SelGRP_Dialog dialog(true, 200, m_project.doc.get(), checked, {2, 4, 5},
                                         nullptr);
        const Driver driver(const_cast<VKD_H_SelGRP_Dialog*>(&dialog));
        QCOMPARE(driver.shown(), QStringLiteral("1 2 3 4 12 77"));
        QCOMPARE(driver.text("3", 1), QStringLiteral("Roof <b>slab</b>"));
        QVERIFY(!driver.cell(QStringLiteral("3"), 1)
                     .data(Qt::ToolTipRole)
                     .toString()
                     .contains(QLatin1String("<b>")));
        QCOMPARE(driver.text("1", 2), QStringLiteral("1 area, 2 beams"));
        QCOMPARE(driver.text("2", 2), QStringLiteral("2 trusses, 2 cables, 1 spring, 2 bricks"));
        QCOMPARE(driver.text("12", 2), QStringLiteral("no elements"));
        QCOMPARE(driver.text("77", 3), QStringLiteral("not in the model"));
        QCOMPARE(driver.text("2", 3), QStringLiteral("also in another row"));
        QCOMPARE(driver.text("4", 3), QStringLiteral("used by another row"));
        QVERIFY(driver.cell(QStringLiteral("4"), 1).data(Qt::FontRole).value<QFont>().italic());
        QCOMPARE(driver.labelText("count"),
                 QStringLiteral("2 of 6 groups checked, 1 also in another row"));
    }

    void filterAndButtons()
    {
        Groups groups{1};
        VKD_H_SelGRP_Dialog dialog(true, 200, m_project.doc.get(), groups, {}, nullptr);
        const int result = execWith(dialog, [&](const Driver& driver) {
            driver.type("filter", QStringLiteral(" SLAB "));
            QCOMPARE(driver.shown(), QStringLiteral("2 3"));
            driver.enter("filter");
            QVERIFY(dialog.isVisible());
            driver.press("all");
            QCOMPARE(driver.labelText("count"),
                     QStringLiteral("3 of 5 groups checked, 1 hidden by the filter"));
            driver.type("filter", QStringLiteral("2"));
            QCOMPARE(driver.shown(), QStringLiteral("2 12"));
            driver.press("none");
            driver.type("filter", QStringLiteral("("));
            QCOMPARE(driver.shown(), QString());
            driver.press("all");
            driver.enter("groups");
        });
        QCOMPARE(result, 1);
        dialog.getChecked(groups);
        QCOMPARE(groups, (Groups{1, 3}));
    }

    void typedNumbers()
    {
        Groups groups{77};
        VKD_H_SelGRP_Dialog dialog(true, 200, m_project.doc.get(), groups, {}, nullptr);
        const int result = execWith(dialog, [&](const Driver& driver) {
            driver.type("input", QStringLiteral("2-1;x<b>,8"));
            driver.enter("input");
            QVERIFY(dialog.isVisible());
            QCOMPARE(driver.labelText("message"),
                     QStringLiteral("Cannot read: x<b>. Type numbers and ranges such as 1-5 9.\n"
                                    "There is no group 8."));
            QCOMPARE(driver.labelText("count"), QStringLiteral("3 of 6 groups checked"));
            driver.press("check"); // still the same text
            driver.enter("groups");
            QVERIFY(dialog.isVisible()); // OK would lose what it cannot read
            driver.type("input", QStringLiteral("12"));
            QVERIFY(!driver.find<QLabel>("message")->isVisible());
            driver.enter("groups"); // takes what was typed along
        });
        QCOMPARE(result, 1);
        dialog.getChecked(groups);
        QCOMPARE(groups, (Groups{1, 2, 12, 77}));
    }

    void spaceTogglesSelectedRows()
    {
        Groups groups{2};
        VKD_H_SelGRP_Dialog dialog(true, 200, m_project.doc.get(), groups, {}, nullptr);
        const int result = execWith(dialog, [&](const Driver& driver) {
            const QString one = QStringLiteral("1"), two = QStringLiteral("2");
            driver.view()->model()->sort(1, Qt::DescendingOrder);
            QCOMPARE(driver.shown(), QStringLiteral("4 3 1 2 12"));
            driver.select({one, two, QStringLiteral("12")});
            QTest::keyClick(driver.view(), Qt::Key_Space); // mixed: all of them
            QCOMPARE(driver.labelText("count"), QStringLiteral("3 of 5 groups checked"));
            driver.select({one, two});
            QTest::keyClick(driver.view(), Qt::Key_Space);
            driver.enter("groups");
        });
        QCOMPARE(result, 1);
        dialog.getChecked(groups);
        QCOMPARE(groups, Groups{12});
    }

    void secondaryGroups()
    {
        Groups groups{Old, 3};
        VKD_H_SecondaryGroupDialog dialog(m_project.doc.get(), groups, {Cols}, nullptr);
        const int result = execWith(dialog, [&](const Driver& driver) {
            QCOMPARE(driver.shown(), QStringLiteral("COLS LOW OLD"));
            QCOMPARE(driver.text("LOW", 2), QStringLiteral("1 area, 2 beams"));
            QCOMPARE(driver.text("OLD", 3), QStringLiteral("not in the model"));
            QCOMPARE(driver.text("COLS", 3), QStringLiteral("used by another row"));
            driver.type("input", QStringLiteral("low;cols"));
            driver.enter("input");
            driver.enter("groups");
        });
        QCOMPARE(result, 1);
        QCOMPARE(dialog.getChecked(groups), 0);
        QCOMPARE(groups, (Groups{Old, Low, Cols}));
    }

    void emptyModel()
    {
        Groups groups{-1};
        for (VKD_H_ZOBDoc* doc : {m_empty.doc.get(), static_cast<VKD_H_ZOBDoc*>(nullptr)}) {
            VKD_H_SelGRP_Dialog dialog(true, 200, doc, groups, {1}, nullptr);
            const Driver driver(&dialog);
            QVERIFY(driver.find<QWidget>("empty") && !driver.view());
            QVERIFY(!driver.find<QPushButton>("pick")->isEnabled());
            QCOMPARE(
                execWith(dialog, [&](const Driver&) { QTest::keyClick(&dialog, Qt::Key_Return); }),
                1);
        }
        groups = {4}; // that of another model
        VKD_H_SelGRP_Dialog dialog(true, 200, m_empty.doc.get(), groups, {}, nullptr);
        QCOMPARE(Driver(&dialog).shown(), QStringLiteral("4"));
    }

private:
    TemporaryProject m_project, m_empty;
};

PLIB_WIDGET_TEST_MAIN(TestGroupDialogs)
#include "tst_groupDialogs.moc"
