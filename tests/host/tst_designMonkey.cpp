#include "DesignDesk.h"
#include "LanguageSupport.h"
#include "Monkey.h"
#include "WidgetTestSupport.h"

#include <VKD_H_ProjectDialogPage.h>

#include <QAbstractButton>
#include <QAbstractItemView>

using namespace testsupport;

namespace {
constexpr int Seed = 20261121;
constexpr int Rounds = 40;
constexpr int StepsInARound = 500;
constexpr int MostRows = 40; // more would only repeat the same

/// A modal dialog or a menu is worked on for a few steps while it blocks the caller, and is left
/// then.
class DesignMonkey : public Monkey
{
public:
    DesignMonkey(DesignDesk* desk, int seed)
        : Monkey(seed)
        , m_desk(desk)
    {
        workOnDialog();
    }

    void step()
    {
        switch (below(8)) {
        case 0: clickIn(m_desk->table()->viewport()); break;
        case 1:
        case 2: openSomeCell(); break;
        case 3: below(4) ? pressButton(m_desk) : keepRowsFew(); break;
        case 4: press(QApplication::focusWidget(), Qt::Key_Tab); break;
        case 5: openMenu(); break;
        default: press(QApplication::focusWidget(), randomKey()); break;
        }
        if (below(4) == 0)
            QApplication::processEvents();
    }

private:
    Qt::Key randomKey()
    {
        static const Qt::Key keys[] = {
            Qt::Key_Up,     Qt::Key_Down,  Qt::Key_Left, Qt::Key_Right, Qt::Key_F2,
            Qt::Key_Enter,  Qt::Key_Space, Qt::Key_Home, Qt::Key_End,   Qt::Key_Insert,
            Qt::Key_Delete, Qt::Key_D,     Qt::Key_Down, Qt::Key_Right, Qt::Key_PageDown,
            Qt::Key_Escape, Qt::Key_A,     Qt::Key_1,    Qt::Key_Minus, Qt::Key_Backspace,
        };
        return pick(keys);
    }

    void press(QWidget* widget, Qt::Key key)
    {
        // Escape with nothing to close in the table would rightly leave the dialog of the host.
        const bool staysOpen =
            key != Qt::Key_Escape ||
            (!m_desk->editors().isEmpty() &&
             (m_desk->table()->isAncestorOf(widget) || m_desk->table() == widget));
        if (widget && staysOpen)
            pressKey(widget, key);
    }

    void openMenu()
    {
        if (below(5) == 0)
            QCoreApplication::postEvent(m_desk->table()->viewport(),
                                        new QContextMenuEvent(QContextMenuEvent::Keyboard, {5, 5}));
    }

    void openSomeCell()
    {
        QTableWidget* table = m_desk->table();
        table->setCurrentCell(below(table->rowCount()), below(2));
        QTest::keyClick(table, Qt::Key_F2);
        if (m_desk->groupCombo())
            pressButton(m_desk->groupCombo()->parentWidget());
    }

    void pressButton(QWidget* parent)
    {
        QAbstractButton* button = pick(parent->findChildren<QAbstractButton*>());
        if (button->isVisible() &&
            (button->objectName() != QLatin1String("btnDelete") || !below(4)))
            QTest::mouseClick(button, Qt::LeftButton);
    }

    void keepRowsFew()
    {
        if (m_desk->table()->rowCount() < MostRows)
            return m_desk->press("btnNew");
        m_desk->table()->selectAll();
        m_desk->table()->setRangeSelected({0, 0, below(MostRows), 4}, false);
        m_desk->press("btnDelete");
    }

    void workOnDialog()
    {
        QTimer::singleShot(0, this, [this] { workOnDialog(); }); // first: a step may open another
        QWidget* popup = QApplication::activePopupWidget();
        QWidget* window = popup ? popup : QApplication::activeModalWidget();
        if (!window || window == m_desk)
            return;
        if (below(12) == 0)
            return QTest::keyClick(window, Qt::Key_Escape);
        if (popup) {
            QWidget* list = popup->findChild<QAbstractItemView*>();
            return QTest::keyClick(list ? list : popup, below(3) ? Qt::Key_Down : Qt::Key_Enter);
        }
        switch (below(3)) {
        case 0: return pressButton(window);
        case 1: return clickIn(window);
        default:
            QTest::keyClick(window->focusWidget() ? window->focusWidget() : window, randomKey());
        }
    }

    DesignDesk* m_desk;
};

/// Group by group, what the table says about it, in an order of its own: a group may stand in two
/// rows, and rows with equal parameters are one when they are read again. The page's entries, which
/// keep the rows without groups, have no place for the limits of the reinforcement.
QStringList groupByGroup(const DesignDesk& desk)
{
    QStringList all;
    for (int number = 0; number < desk.table()->rowCount(); ++number) {
        const QString row = desk.row(number);
        const QStringList groups = row.section(QLatin1Char('|'), 0, 0).split(QLatin1Char(';'));
        const int lastColumn = row.startsWith(QLatin1String("None")) ? 2 : -1;
        for (const QString& group : groups)
            all << group + QLatin1Char('|') + row.section(QLatin1Char('|'), 1, lastColumn);
    }
    all.sort();
    return all;
}
} // namespace

class tst_designMonkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLanguage(English); }

    void rowsAndTableAgree_data()
    {
        QTest::addColumn<int>("seed");
        for (int round = 0; round < Rounds; ++round)
            QTest::addRow("round %d", round) << Seed + round;
    }

    /// The rows are seen by what is written: a fresh page has to show the same.
    void rowsAndTableAgree()
    {
        QFETCH(int, seed);
        QStringList before;
        {
            DesignDesk desk(m_project);
            desk.page->getEntrys(m_entries);
            DesignMonkey monkey(&desk, seed);
            for (int step = 0; step < StepsInARound; ++step) {
                monkey.step();
                const QString editors = desk.editors();
                QVERIFY2(!editors.contains(QLatin1Char(' ')), qPrintable(editors));
                if (desk.isVisible())
                    continue;
                QCOMPARE(desk.result(), 6); // left to pick groups, and for nothing else
                desk.show();
            }
            desk.table()->setCurrentCell(0, 1); // closes the last editor
            before = groupByGroup(desk);
            desk.page->setEntrys(m_entries);
        }
        DesignDesk desk(m_project);
        desk.page->getEntrys(m_entries);
        QCOMPARE(groupByGroup(desk).join(QLatin1Char('\n')), before.join(QLatin1Char('\n')));
    }

private:
    HostProject m_project{QStringLiteral("slab")}; // goes on from round to round
    VKD_H_ProjectDialogPage m_entries;
};

PLIB_WIDGET_TEST_MAIN(tst_designMonkey)
#include "tst_designMonkey.moc"
