#include "HostProject.h"
#include "Monkey.h"
#include "WidgetTestSupport.h"

#include <AnimatorView.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_P_WidgetGraphicalOutput>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTreeWidget>

namespace {
constexpr int Seed = 611;
constexpr int Rounds = 40;
constexpr int StepsInARound = 500;

using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;

Rows rowsUpTo(int count)
{
    Rows rows;
    for (int number = 1; number <= count; ++number)
        rows.push_back({1 + number % 2, number, QStringLiteral("%1 : case").arg(number)});
    return rows;
}

/// Works on a page at random, as user and as host.
class OutputMonkey : public Monkey
{
public:
    OutputMonkey(VKD_P_WidgetGraphicalOutput* page, QWidget* animator, int seed)
        : Monkey(seed)
        , m_page(page)
        , m_animator(animator)
    {
    }

    void step()
    {
        switch (below(12)) {
        case 0:
        case 1:
        case 2: clickIn(tree()->viewport()); break;
        case 3:
        case 4: press(tree()); break;
        case 5:
            QTest::mouseClick(pick(m_page->findChildren<QAbstractButton*>()), Qt::LeftButton);
            break;
        case 6: press(pick(m_page->findChildren<QComboBox*>())); break;
        case 7: press(m_page->findChild<QLineEdit*>(QStringLiteral("m_boxedEdit_edit"))); break;
        case 8: clickIn(m_animator); break;
        case 9: press(m_animator); break;
        case 10: actAsHost(); break;
        default: openMenu();
        }
        if (below(4) == 0)
            QApplication::processEvents();
    }

    Rows rows;

private:
    QTreeWidget* tree() const { return m_page->findChild<QTreeWidget*>(); }

    void press(QWidget* widget)
    {
        static const Qt::Key keys[] = {Qt::Key_Up,    Qt::Key_Down,  Qt::Key_Left,    Qt::Key_Right,
                                       Qt::Key_Space, Qt::Key_Home,  Qt::Key_End,     Qt::Key_1,
                                       Qt::Key_Comma, Qt::Key_Minus, Qt::Key_Escape,  Qt::Key_A,
                                       Qt::Key_Plus,  Qt::Key_Enter, Qt::Key_Asterisk};
        pressKey(widget, pick(keys));
    }

    void openMenu()
    {
        QTimer answering; // again and again: the list of a combo may be open, too
        QObject::connect(&answering, &QTimer::timeout, m_page, [this] {
            if (QWidget* menu = QApplication::activePopupWidget()) {
                QTest::keyClick(menu, below(2) ? Qt::Key_Down : Qt::Key_Up);
                QTest::keyClick(menu, below(2) ? Qt::Key_Enter : Qt::Key_Escape);
                menu->close();
            }
        });
        answering.start(0);
        Q_EMIT tree()->customContextMenuRequested({5, 5});
    }

    void actAsHost()
    {
        switch (below(5)) {
        case 0: m_page->slotDefaultSettings(); break;
        case 1: m_page->setUsedNumbersAndNames(rows = rowsUpTo(below(6))); break;
        case 2: m_kept = m_page->writeXMLstring(); break;
        case 3: m_page->readXMLstring(m_kept); break;
        default: m_page->readXMLstring(m_kept.left(below(m_kept.size() + 1)));
        }
    }

    VKD_P_WidgetGraphicalOutput* m_page;
    QWidget* m_animator;
    QString m_kept;
};
} // namespace

class tst_outputMonkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshPageBecomesTheSame_data()
    {
        QTest::addColumn<int>("seed");
        for (int round = 0; round < Rounds; ++round)
            QTest::addRow("round %d", round) << Seed + round;
    }

    void aFreshPageBecomesTheSame()
    {
        QFETCH(int, seed);
        VKD_H_PluginParameter parameter(m_project.doc());
        AnimatorView animator(m_project.doc()->index());
        VKD_P_WidgetGraphicalOutput page(nullptr, VKD_P_GraphicalOutput_Standard, &parameter,
                                         &animator);
        page.resize(800, 600);
        page.show();
        OutputMonkey monkey(&page, &animator, seed);
        for (int step = 0; step < StepsInARound; ++step)
            monkey.step();
        const QString kept = page.writeXMLstring();
        const QString script = page.getTORVAL(QString(), true);
        AnimatorView otherAnimator(m_project.doc()->index());
        VKD_P_WidgetGraphicalOutput fresh(nullptr, VKD_P_GraphicalOutput_Standard, &parameter,
                                          &otherAnimator);
        fresh.setUsedNumbersAndNames(monkey.rows);
        fresh.readXMLstring(kept);
        QCOMPARE(fresh.writeXMLstring(), kept);
        QCOMPARE(fresh.getTORVAL(QString(), true), script);
    }

private:
    HostProject m_project{QStringLiteral("hall")};
};

PLIB_WIDGET_TEST_MAIN(tst_outputMonkey)
#include "tst_outputMonkey.moc"
