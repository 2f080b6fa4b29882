#include "DesignDesk.h"
#include "LanguageSupport.h"
#include "Monkey.h"
#include "OutputDesk.h"
#include "WidgetTestSupport.h"

#include <AnimatorView.h>
#include <VKD_H_ProjectDialogPage.h>

using namespace testsupport;

namespace {
constexpr int Steps = 4000;

/// Returns the directions and distances of a cell in the stored form: if a layer has no distance,
/// the distances of the layers below it are removed, because they are relative to that layer.
QString storedDistances(const QString& cell)
{
    QStringList distances = cell.section(QLatin1Char('/'), 1).split(QLatin1Char(';'));
    for (int i = 2; i + 1 < distances.size(); ++i) // upper and lower side alternate
        if (!distances[i - 2].contains(QRegularExpression(QStringLiteral("[0-9]"))))
            distances[i] = QStringLiteral(" - ");
    return cell.section(QLatin1Char('/'), 0, 0) + distances.join(QLatin1Char(';'));
}

/// Returns the table texts for each group. The result is sorted, because a group may be in two
/// rows, and rows with equal parameters are merged when they are read. The entries of the page
/// contain the rows without groups, but not the limits of the reinforcement.
QStringList groupByGroup(const DesignDesk& desk)
{
    QStringList all;
    for (int number = 0; number < desk.table()->rowCount(); ++number) {
        const QString row = desk.row(number);
        const QStringList groups = row.section(QLatin1Char('|'), 0, 0).split(QLatin1Char(';'));
        const int columns = row.startsWith(QLatin1String("None")) ? 2 : -1;
        QStringList cells = row.split(QLatin1Char('|')).mid(1);
        cells[1] = storedDistances(cells[1]);
        for (const QString& group : groups)
            all << group + cells.mid(0, columns).join(QLatin1Char('|'));
    }
    all.sort();
    return all;
}
} // namespace

/// Uses pages at random. A new page must be able to restore their state.
class fuzz_pageMonkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLanguage(English); }

    void design_data() { Monkey::addRounds(Steps); }

    /// Compares the rows before saving with the rows that a new page reads from the stored records.
    void design()
    {
        QFETCH(int, seed);
        HostProject project(QStringLiteral("slab"));
        std::vector<tagZOB_QUAD_RIM> records(5, VKD_P_DesignParameter::getDefaultMerPara(true));
        for (int group = 1; group < 5; ++group)
            records[std::size_t(group)].group = records[std::size_t(group)].type = group;
        project.setRecords(records);
        VKD_H_ProjectDialogPage entries;
        QStringList before;
        {
            DesignDesk desk(project);
            desk.page->getEntrys(entries);
            Monkey monkey(seed);
            while (monkey.steps() < Monkey::StepsInARound) {
                monkey.step(&desk);
                const QString editors = desk.editors();
                QVERIFY2(!editors.contains(QLatin1Char(' ')), qPrintable(editors));
                if (desk.isVisible())
                    continue;
                QCOMPARE(desk.result(), 6); // only picking groups may hide the dialog
                desk.show();
            }
            desk.table()->setCurrentCell(0, 1); // closes the last editor
            before = groupByGroup(desk);
            desk.page->setEntrys(entries);
        }
        DesignDesk desk(project);
        desk.page->getEntrys(entries);
        QCOMPARE(groupByGroup(desk), before);
    }

    void output_data() { Monkey::addRounds(Steps); }

    void output()
    {
        QFETCH(int, seed);
        HostProject project(QStringLiteral("hall"));
        AnimatorView animator(project.doc()->handle());
        OutputDesk desk(project, VKD_P_GraphicalOutput_Standard, &animator);
        desk.page.resize(800, 600);
        Monkey monkey(seed);
        Rows rows = LoadCases;
        QString old;
        while (monkey.steps() < Monkey::StepsInARound) {
            monkey.step(&desk.page);
            switch (monkey.below(60)) { // as a host might do
            case 0:
                rows.resize(std::size_t(monkey.below(6)), {1, 7, QStringLiteral("7 : case")});
                desk.page.setUsedNumbersAndNames(rows);
                break;
            case 1: old = desk.page.writeXMLstring(); break;
            case 2: desk.page.readXMLstring(old.left(monkey.below(old.size() + 1))); break;
            }
        }
        const QString kept = desk.page.writeXMLstring();
        AnimatorView otherAnimator(project.doc()->handle());
        OutputDesk fresh(project, VKD_P_GraphicalOutput_Standard, &otherAnimator);
        fresh.page.setUsedNumbersAndNames(rows);
        fresh.page.readXMLstring(kept);
        QCOMPARE(fresh.page.writeXMLstring(), kept);
        QCOMPARE(fresh.page.getTORVAL(true), desk.page.getTORVAL(true));
    }
};

PLIB_WIDGET_TEST_MAIN(fuzz_pageMonkey)
#include "fuzz_pageMonkey.moc"
