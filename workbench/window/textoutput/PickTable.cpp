#include "window/textoutput/PickTable.h"

#include "window/choice/loadCaseKinds.h"
#include "window/support/FullTextTip.h"
#include "window/support/rowHeight.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStandardItemModel>

#include <utility>

namespace workbench {

namespace {
constexpr int FewRows = 2; // lets the dialog fit on a small screen
constexpr int UsualRows = 4;

QStandardItem* newItem(const QVariant& shown)
{
    auto item = new QStandardItem;
    item->setData(shown, Qt::DisplayRole);
    item->setEditable(false);
    return item;
}
} // namespace

PickTable::PickTable(const QVector<vkd::dbo::LoadCase>& rows, QWidget* parent, const char* name)
    : QtTableView(parent)
    , m_model(new QStandardItemModel(this))
{
    setObjectName(QLatin1String(name));
    m_model->setHorizontalHeaderLabels({tr("No."), tr("Title")});
    for (const vkd::dbo::LoadCase& row : rows) {
        auto number = newItem(row.number);
        number->setCheckable(true);
        number->setCheckState(Qt::Checked);
        m_model->appendRow({number, newItem(row.title)});
    }
    setModel(m_model);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    setRowsOneLineHigh(this);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter); // like the cells
    horizontalHeader()->setSectionResizeMode(NumberColumn, QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(TitleColumn, QHeaderView::Stretch);
    // The space key needs a current row, but this row must not look selected.
    selectionModel()->setCurrentIndex(m_model->index(0, NumberColumn),
                                      QItemSelectionModel::NoUpdate);
    new FullTextTip(this);
    connect(m_model, &QStandardItemModel::itemChanged, this, &PickTable::changed);
}

int PickTable::rowCount() const
{
    return m_model->rowCount();
}

int PickTable::numberInRow(int row) const
{
    return m_model->item(row, NumberColumn)->data(Qt::DisplayRole).toInt();
}

QString PickTable::titleInRow(int row) const
{
    return m_model->item(row, TitleColumn)->text();
}

QString PickTable::kindInRow(int row) const
{
    return loadCaseKind(titleInRow(row));
}

void PickTable::chooseAllBut(const QSet<int>& numbers)
{
    setLeftOut(numbers);
    Q_EMIT changed();
}

QVector<int> PickTable::numbers() const
{
    QVector<int> all;
    for (int row = 0; row < rowCount(); ++row)
        all << numberInRow(row);
    return all;
}

QVector<vkd::dbo::LoadCase> PickTable::rowsOf(const QVector<int>& chosen) const
{
    const QSet<int> wanted(chosen.begin(), chosen.end());
    QVector<vkd::dbo::LoadCase> rows;
    for (int row = 0; row < rowCount(); ++row)
        if (wanted.contains(numberInRow(row)))
            rows.append({numberInRow(row), titleInRow(row)});
    return rows;
}

QVector<int> PickTable::picked() const
{
    const QSet<int> left = leftOut();
    QVector<int> checked;
    for (int row = 0; row < rowCount(); ++row)
        if (!left.contains(numberInRow(row)))
            checked << numberInRow(row);
    return checked;
}

void PickTable::setLeftOut(const QSet<int>& numbers)
{
    const QSignalBlocker quiet(this);
    if (m_showsRule)
        m_leftOut = numbers;
    else
        showAsLeftOut(numbers);
}

void PickTable::showPicked()
{
    const QSignalBlocker quiet(this);
    if (std::exchange(m_showsRule, false))
        showAsLeftOut(m_leftOut);
}

void PickTable::showRule(const QVector<int>& rule)
{
    const QSignalBlocker quiet(this);
    m_leftOut = leftOut();
    m_showsRule = true;
    const QVector<int> all = numbers();
    showAsLeftOut(QSet<int>(all.begin(), all.end()) - QSet<int>(rule.begin(), rule.end()));
}

QSet<int> PickTable::shownAsLeftOut() const
{
    QSet<int> left;
    for (int row = 0; row < rowCount(); ++row)
        if (m_model->item(row, NumberColumn)->checkState() != Qt::Checked)
            left << numberInRow(row);
    return left;
}

void PickTable::showAsLeftOut(const QSet<int>& numbers)
{
    for (int row = 0; row < rowCount(); ++row)
        m_model->item(row, NumberColumn)
            ->setCheckState(numbers.contains(numberInRow(row)) ? Qt::Unchecked : Qt::Checked);
}

QSize PickTable::sizeHint() const
{
    return {QtTableView::sizeHint().width(), heightOf(qBound(FewRows, rowCount(), UsualRows))};
}

QSize PickTable::minimumSizeHint() const
{
    return {QtTableView::minimumSizeHint().width(), heightOf(FewRows)};
}

int PickTable::heightOf(int rows) const
{
    return 2 * frameWidth() + horizontalHeader()->sizeHint().height() +
           rows * verticalHeader()->defaultSectionSize();
}

void PickTable::addWidgetColumn(const QString& title, const QVector<QWidget*>& widgets)
{
    const int column = m_model->columnCount();
    m_model->setColumnCount(column + 1);
    m_model->setHorizontalHeaderItem(column, new QStandardItem(title));
    int width = 0;
    for (int row = 0; row < rowCount(); ++row) {
        m_model->setItem(row, column, newItem(QVariant()));
        setIndexWidget(m_model->index(row, column), widgets[row]);
        width = qMax(width, widgets[row]->sizeHint().width());
        verticalHeader()->setDefaultSectionSize(
            qMax(verticalHeader()->defaultSectionSize(), widgets[row]->sizeHint().height()));
    }
    horizontalHeader()->setSectionResizeMode(column, QHeaderView::Fixed);
    setColumnWidth(column, qMax(width, horizontalHeader()->sectionSizeHint(column)));
}

} // namespace workbench
