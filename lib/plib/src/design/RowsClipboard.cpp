#include "design/RowsClipboard.h"

#include "design/DesignParameter.h"
#include "design/patchSelectedRows.h"
#include "design/RowsHistory.h"
#include "exchange/patchRows.h"
#include "exchange/rowRecords.h"
#include "record/designStore.h"
#include "table/DesignParameterTable.h"

#include <VKD_QT_MessageBox.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>

namespace plib {

namespace {
constexpr int MostFaults = 12; // in the message

QString listOf(const QStringList& faults, const QString& more)
{
    const QStringList shown = faults.mid(0, MostFaults);
    return shown.join(QLatin1Char('\n')) +
           (faults.size() > MostFaults ? QLatin1Char('\n') + more.arg(faults.size() - MostFaults)
                                       : QString());
}
} // namespace

RowsClipboard::RowsClipboard(DesignParameter* page)
    : QObject(page)
    , m_page(page)
{
    QAction* copyRows =
        addAction("copyRows", tr("&Copy Rows"), int(Qt::CTRL) | Qt::Key_C, &RowsClipboard::copy);
    addAction("pasteRows", tr("&Paste"), int(Qt::CTRL) | Qt::Key_V, &RowsClipboard::paste);
    addAction("pasteNewRows", tr("Paste as &New Rows"), int(Qt::CTRL) | Qt::SHIFT | Qt::Key_V,
              &RowsClipboard::pasteAsNewRows);
    QAction* duplicateRows =
        addAction("duplicateRows", tr("&Duplicate Rows"), int(Qt::CTRL) | Qt::SHIFT | Qt::Key_D,
                  &RowsClipboard::duplicate);
    const auto enable = [this, copyRows, duplicateRows] {
        const bool hasSelection = m_page->state().table->selectionModel()->hasSelection();
        copyRows->setEnabled(hasSelection);
        duplicateRows->setEnabled(hasSelection);
    };
    connect(page->state().table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            enable);
    enable();
}

QAction* RowsClipboard::addAction(const char* name, const QString& text, const QKeySequence& key,
                                  void (RowsClipboard::*run)())
{
    auto action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, [this, run] {
        m_page->finishEditing(); // may be a separate undo step
        (this->*run)();
    });
    m_page->addAction(action);
    m_page->state().table->addAction(action); // for its menu
    return action;
}

DesignRowList RowsClipboard::selectedRows() const
{
    DesignRowList rows;
    for (int row : m_page->state().table->getSelectetRows())
        rows.push_back(m_page->state().rows[std::size_t(row)]);
    return rows;
}

/// The clipboard outlives this library, so it must not contain string literals from the library.
void RowsClipboard::copy()
{
    const DesignRowList rows = selectedRows();
    if (rows.empty())
        return;
    auto mime = new QMimeData;
    mime->setText(rowTableText(rows, QLatin1Char('\t')));
    mime->setHtml(rowTableHtml(rows));
    mime->setData(QString::fromLatin1(RowRecordsType), bytesOfRows(rows));
    QApplication::clipboard()->setMimeData(mime);
}

RowTable RowsClipboard::copiedRows() const
{
    const QMimeData* mime = QApplication::clipboard()->mimeData();
    RowTable table;
    if (!mime)
        return table;
    table.rows = rowsOfBytes(mime->data(QString::fromLatin1(RowRecordsType)));
    if (!table.rows.empty())
        return table;
    if (looksLikeRowTable(mime->text()))
        return readRowTable(mime->text());
    table.faults << tr("The clipboard contains no rows of design parameters. A table must have the "
                       "column headers of copied rows.");
    return table;
}

bool RowsClipboard::mayUse(const QStringList& faults)
{
    if (!faults.isEmpty())
        VKD_QT_MessageBox::warning(m_page, tr("Paste"),
                                   tr("Nothing was pasted.") + QLatin1String("\n\n") +
                                       listOf(faults, tr("%1 more")));
    return faults.isEmpty();
}

void RowsClipboard::paste()
{
    const std::set<int> selected = m_page->state().table->getSelectetRows();
    if (selected.empty())
        return pasteAsNewRows();
    const RowTable copied = copiedRows();
    if (mayUse(copied.faults))
        mayUse(patchSelectedRows(m_page, copied.rows, nameOf(RowsStep::Paste, selected)));
}

void RowsClipboard::pasteAsNewRows()
{
    const RowTable copied = copiedRows();
    if (!mayUse(copied.faults))
        return;
    const DesignParameterData& data = m_page->state();
    DesignRowList added(copied.rows.size(), defaultRow(data));
    if (!mayUse(patchRows(copied.rows, data.kindOfSystem, &added)))
        return;
    std::set<int> numbers;
    for (std::size_t row = 0; row < added.size(); ++row)
        numbers.insert(numbers.end(), int(data.rows.size() + row));
    append(RowsStep::New, numbers, added);
}

void RowsClipboard::duplicate()
{
    DesignRowList added = selectedRows();
    for (DesignParameterRow& row : added)
        row.groups.clear();
    append(RowsStep::Duplicate, m_page->state().table->getSelectetRows(), added);
}

/// Appends rows and selects them. Afterwards, the current cell is in the same column as after New.
void RowsClipboard::append(RowsStep name, const std::set<int>& rows, const DesignRowList& added)
{
    if (added.empty())
        return;
    const RecordedStep step(m_page, name, rows);
    const int first = int(m_page->state().rows.size());
    const int last = first + int(added.size()) - 1;
    const int column = m_page->state().table->getColumnNumber(DesignParameterTable::Type);
    m_page->replaceRows(first, 0, added, TableSelection::ofColumn(column, first, last));
    m_page->state().table->bringIntoView(first);
}

} // namespace plib
