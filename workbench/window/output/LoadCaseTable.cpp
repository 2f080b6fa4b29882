#include "window/output/LoadCaseTable.h"

#include "window/choice/loadCaseKinds.h"
#include "window/support/FullTextTip.h"
#include "window/support/rowHeight.h"

#include <vkd_dbo_model.h>
#include <VKD_H_TwHeaderLineEditItem.h>

#include <QHeaderView>
#include <QSignalBlocker>

namespace workbench {

namespace {
constexpr int NoDimension = -1;
} // namespace

LoadCaseTable::LoadCaseTable(ZobHandle project, QWidget* parent)
    : VKD_H_TableWidget(0, 3, parent, "LoadCases")
{
    setAccessibleName(tr("Load cases"));
    setContextmenueEnabled_new_del(false);
    addColumns();
    setRowsOneLineHigh(this);
    const auto loadCases = vkd::dbo::readLoadCases(project);
    for (const vkd::dbo::LoadCase& loadCase : loadCases)
        if (loadCase.kind == vkd::dbo::PlainLoadCase)
            addLoadCase(loadCase.number, loadCase.title);
    verticalHeader()->hide();
    resizeColumnsToContents();
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    new FullTextTip(this);
    connect(this, &QTableWidget::itemChanged, this, &LoadCaseTable::changed);
}

void LoadCaseTable::addColumns()
{
    const auto description = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(NoDimension);
    setHorizontalHeaderItem(NumberColumn,
                            new VKD_H_TwHeaderLineEditItem(NumberColumn, description, tr("No."),
                                                           tr("Number of the load case"), true,
                                                           Qt::AlignRight | Qt::AlignVCenter));
    setHorizontalHeaderItem(CheckColumn, new VKD_H_TwHeaderCheckBoxItem(
                                             CheckColumn, tr("Offer"),
                                             tr("Whether the load case is offered for the plots"),
                                             true, Qt::AlignCenter));
    setHorizontalHeaderItem(TitleColumn, new VKD_H_TwHeaderItem(TitleColumn, tr("Title"),
                                                                tr("Title of the load case"), true,
                                                                Qt::AlignLeft | Qt::AlignVCenter));
}

void LoadCaseTable::addLoadCase(int number, const QString& title)
{
    const int row = rowCount();
    addNewRow(true);
    dynamic_cast<VKD_H_TwSimpleLineEditItem*>(item(row, NumberColumn))->setVal(number);
    checkInRow(row)->setCheckState(Qt::Checked);
    item(row, TitleColumn)->setText(title);
    for (int column : {NumberColumn, TitleColumn})
        item(row, column)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
}

int LoadCaseTable::numberInRow(int row) const
{
    return int(dynamic_cast<VKD_H_TwSimpleLineEditItem*>(item(row, NumberColumn))->getVal(nullptr));
}

QString LoadCaseTable::titleInRow(int row) const
{
    return item(row, TitleColumn)->text();
}

QString LoadCaseTable::kindInRow(int row) const
{
    return loadCaseKind(titleInRow(row));
}

QSet<int> LoadCaseTable::leftOutNumbers() const
{
    QSet<int> numbers;
    for (int row = 0; row < rowCount(); ++row)
        if (checkInRow(row)->checkState() != Qt::Checked)
            numbers << numberInRow(row);
    return numbers;
}

void LoadCaseTable::chooseAllBut(const QSet<int>& numbers)
{
    setLeftOutNumbers(numbers);
    Q_EMIT changed();
}

void LoadCaseTable::setLeftOutNumbers(const QSet<int>& numbers)
{
    const QSignalBlocker quiet(this);
    for (int row = 0; row < rowCount(); ++row)
        checkInRow(row)->setCheckState(numbers.contains(numberInRow(row)) ? Qt::Unchecked
                                                                          : Qt::Checked);
}

} // namespace workbench
