#include "design/RowEditing.h"

#include "design/DesignParameter.h"
#include "design/RowsHistory.h"
#include "dialogs/RowStrip.h"
#include "fields/CommonFields.h"
#include "fields/SameValue.h"
#include "record/commonRecord.h"
#include "record/designRecord.h"
#include "record/designRows.h"
#include "record/rowRefusals.h"
#include "record/rowTitle.h"
#include "table/DesignParameterTable.h"

#include <QComboBox>
#include <QLineEdit>

namespace plib {

namespace {
/// Selects the value, so that the user can overwrite it.
void enterField(QWidget* field)
{
    field->setFocus();
    const auto combo = qobject_cast<QComboBox*>(field);
    if (QLineEdit* edit = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(field))
        edit->selectAll();
}
} // namespace

RowEditing::RowEditing(DesignParameter* page, RowsStep name)
    : m_page(page)
    , m_name(name)
{
    DesignParameterData& data = page->state();
    const int current = data.table->currentRow();
    if (!rowAt(data, current)) // also sorts the groups
        return;
    m_rows = rowsWith(current, data.table->getSelectetRows());
    for (auto row = m_rows.begin(); row != m_rows.end();) {
        const bool hasDesign = data.rows[std::size_t(*row)].record.type != NoDesign;
        row = hasDesign ? std::next(row) : m_rows.erase(row);
    }
    page->showNotice(m_rows.empty() ? tr("A row without design has no parameters.") : QString());
}

tagZOB_QUAD_RIM* RowEditing::record()
{
    DesignRowList& rows = m_page->state().rows;
    if (m_rows.empty())
        return nullptr;
    if (m_rows.size() == 1)
        return &rows[std::size_t(*m_rows.begin())].record;
    m_common = commonRecord(rows, m_rows).record;
    return &m_common;
}

void RowEditing::run(const RecordDialog& dialog)
{
    m_dialog = dialog;
    m_strip = new RowStrip(dialog.window);
    new SameValue(dialog, m_strip, m_rows.size() > 1);
    connect(m_strip, &RowStrip::stepRequested, this, &RowEditing::step);
    showRow();
    if (m_rows.size() > 1)
        m_commonFields =
            new CommonFields(dialog.window, dialog.fields(), m_page->state().rows, m_rows);
    const int result = dialog.window->exec();
    if (!m_page)
        return;
    m_page->focusTable();
    if (result == QDialog::Accepted)
        write();
}

/// Updates the parts of the dialog that depend on the row, and stores the values that its fields
/// show.
void RowEditing::showRow()
{
    const DesignParameterData& data = m_page->state();
    const int row = *m_rows.begin();
    m_strip->setTitle(rowTitle(data.rows, m_rows));
    const std::optional<int> type = commonType(data, m_rows);
    if (m_dialog.note && type)
        m_strip->setNote(m_dialog.note(*type));
    if (m_rows.size() == 1)
        m_strip->setSteps(stepRefusal(data, row, -1), stepRefusal(data, row, 1));
    if (m_dialog.recordShown)
        m_dialog.recordShown();
    m_shown = valuesOf(m_dialog.fields());
}

/// A row whose fields have not been edited keeps its record: OK also clears fields that the type
/// does not have, which must not happen to rows that the user only views.
void RowEditing::step(int direction)
{
    if (!m_dialog.mayAccept() || !m_page)
        return; // a message may have been open while the page was destroyed
    const DesignParameterData& data = m_page->state();
    const int next = designRowBeside(data, *m_rows.begin(), direction);
    if (next < 0)
        return;
    if (valuesOf(m_dialog.fields()) != m_shown)
        write();
    m_rows = {next};
    data.table->setCurrentCell(next, data.table->currentColumn());
    data.table->setFocus(); // when the dialog closes; the button that had the focus is deleted
    const QWidget* focused = m_dialog.window->focusWidget();
    const QString name = focused ? focused->objectName() : QString();
    m_dialog.showRecord(*record());
    showRow();
    if (auto field = m_dialog.window->findChild<QWidget*>(name))
        enterField(field);
}

void RowEditing::write()
{
    if (m_commonFields)
        writeChanges();
    else
        writeRow();
}

/// The rows may have been reloaded while the dialog was open.
void RowEditing::writeRow()
{
    const int row = *m_rows.begin();
    DesignParameterRow* edited = rowAt(m_page->state(), row);
    if (!edited)
        return;
    const RecordedStep step(m_page, m_name, m_rows);
    m_dialog.writeToRecord(&edited->record);
    m_page->refresh(m_rows);
}

void RowEditing::writeChanges()
{
    const RowPatch patch = m_commonFields->changes();
    const RecordedStep step(m_page, m_name, m_rows);
    for (int row : m_rows)
        if (DesignParameterRow* edited = rowAt(m_page->state(), row))
            patch.applyTo(edited->record);
    m_page->refresh(m_rows);
}

} // namespace plib
