#include "design/GroupsEntry.h"

#include "design/DesignParameter.h"
#include "dialogs/dlgSelection.h"
#include "dialogs/GroupsLine.h"
#include "exchange/groupsText.h"
#include "record/designRows.h"
#include "table/DesignParameterTable.h"

#include <VKD_QT4_ComboBox.h>

#include <QKeyEvent>

namespace plib {

namespace {
/// Returns the open editor of a row's groups, or null.
dlgSelection* editorOf(const DesignParameterTable* table, int row)
{
    const int column = table->getColumnNumber(DesignParameterTable::Selection);
    return qobject_cast<dlgSelection*>(table->cellWidget(row, column));
}

VKD_QT4_ComboBox* comboOf(const dlgSelection* editor)
{
    return editor->findChild<VKD_QT4_ComboBox*>();
}
} // namespace

GroupsEntry::GroupsEntry(DesignParameter* page)
    : QObject(page)
    , m_page(page)
{
    page->state().table->installEventFilter(this);
}

void GroupsEntry::listenTo(const dlgSelection* editor)
{
    comboOf(editor)->installEventFilter(this);
}

bool GroupsEntry::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !isForGroups(*static_cast<QKeyEvent*>(event)))
        return QObject::eventFilter(watched, event);
    open(static_cast<QKeyEvent*>(event)->text());
    return true;
}

/// In a new row, the current cell is in the column Type, where digits have no other meaning.
bool GroupsEntry::isForGroups(const QKeyEvent& key) const
{
    const DesignParameterData& data = m_page->state();
    const int row = data.table->currentRow();
    if (row < 0 || row >= int(data.rows.size()) || key.modifiers() & ~Qt::KeypadModifier)
        return false;
    const bool isDigit = key.text().size() == 1 && key.text().at(0).isDigit();
    const int id = data.table->getColumnId(data.table->currentColumn());
    if (id == DesignParameterTable::Selection)
        return isDigit || key.key() == Qt::Key_F2;
    return id == DesignParameterTable::Type && isDigit &&
           data.rows[std::size_t(row)].groups.empty();
}

/// Opens the editor of the current row and returns it. Returns null for the first row. Pages
/// interpret itemSelectionChanged() as a request to open an editor that has been closed.
dlgSelection* GroupsEntry::openEditor()
{
    DesignParameterTable* table = m_page->state().table;
    const int row = table->currentRow();
    if (row == 0) {
        m_page->showNotice(tr("The groups of the first row cannot be changed."));
        return nullptr;
    }
    const int column = table->getColumnNumber(DesignParameterTable::Selection);
    if (table->currentColumn() != column)
        table->setCurrentCell(row, column);
    else if (!editorOf(table, row))
        Q_EMIT table->itemSelectionChanged();
    return editorOf(table, row);
}

/// Keys that an open line does not handle also reach the table. They must not open a second line.
void GroupsEntry::open(const QString& typed)
{
    if (m_line)
        return;
    const dlgSelection* editor = openEditor();
    m_row = m_page->state().table->currentRow();
    const DesignParameterRow* row = rowAt(m_page->state(), m_row);
    if (!editor || !row)
        return;
    m_line = new GroupsLine(comboOf(editor));
    m_before = editableGroupsText(*row);
    m_line->setText(typed.isEmpty() ? m_before : typed);
    m_line->show();
    m_line->setFocus();
    if (typed.isEmpty())
        m_line->selectAll();
    connect(m_line, &GroupsLine::entered, this, &GroupsEntry::enter);
    connect(m_line, &GroupsLine::left, this, &GroupsEntry::leave);
    connect(m_line, &GroupsLine::cancelled, this, &GroupsEntry::close);
}

/// Assigns the typed groups to the row. Returns the reason if they are not accepted.
QString GroupsEntry::apply()
{
    const DesignParameterRow* row = rowAt(m_page->state(), m_row);
    const QString text = m_line ? m_line->text().trimmed() : m_before;
    if (!row || text == m_before)
        return QString();
    const GroupsReading read = text.isEmpty() ? GroupsReading{true, {}, {}}
                                              : readGroupsText(text, KnownGroups(m_page->state()));
    if (!read.isAccepted)
        return tr("Unknown groups: %1.").arg(read.missing.join(QLatin1String(", ")));
    if (isRemainingGroups(read.groups) && !isRemainingGroups(row->groups) &&
        hasRemainingRow(m_page->state()))
        return tr("The remaining groups belong to another row.");
    m_page->takeGroups(m_row, read.groups);
    return QString();
}

bool GroupsEntry::finish()
{
    if (m_line)
        enter(0);
    if (m_line)
        m_line->setFocus();
    return !m_line;
}

void GroupsEntry::enter(int direction)
{
    const QString refusal = apply();
    if (m_line && !refusal.isEmpty()) {
        m_page->showNotice(refusal);
        return m_line->refuse(refusal);
    }
    close();
    DesignParameterTable* table = m_page->state().table;
    const int row = m_row + direction;
    if (direction != 0 && row < table->rowCount())
        table->setCurrentCell(row, table->currentColumn());
}

/// Text that is not accepted is lost, so the message says that the row keeps its groups.
void GroupsEntry::leave()
{
    const QString refusal = apply();
    close();
    if (!refusal.isEmpty())
        m_page->showNotice(
            tr("%1 Row %2 keeps its groups.").arg(refusal, QString::number(m_row + 1)));
}

/// Disconnects first, so that losing the focus does not apply the text. Another line can be opened
/// before this one is deleted.
void GroupsEntry::close()
{
    GroupsLine* line = m_line;
    m_line.clear();
    if (!line)
        return;
    line->disconnect(this);
    const bool hasFocus = line->hasFocus();
    line->hide();
    line->deleteLater();
    if (hasFocus)
        m_page->state().table->setFocus();
}

} // namespace plib
