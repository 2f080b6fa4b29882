#include "table/TypeEditor.h"

#include "design/DesignParameter.h"
#include "record/designRows.h"
#include "table/DesignParameterTable.h"

#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_SignalBlocker.h>

#include <QAbstractItemDelegate>
#include <QChildEvent>

namespace plib {

TypeEditor::TypeEditor(DesignParameter* page)
    : QObject(page)
    , m_page(page)
{
    DesignParameterTable* table = page->state().table;
    table->viewport()->installEventFilter(this);
    connect(table->itemDelegate(), &QAbstractItemDelegate::commitData, this, &TypeEditor::commit);
    connect(table->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            [this] { m_list.clear(); });
}

std::set<int> TypeEditor::rowsOf(int row) const
{
    return m_list ? rowsWith(row, m_rows) : std::set<int>{row};
}

/// Handles ChildPolished, because this event is sent after the list is filled and before it is
/// shown.
bool TypeEditor::eventFilter(QObject* viewport, QEvent* event)
{
    if (event->type() == QEvent::ChildPolished) {
        QObject* child = static_cast<QChildEvent*>(event)->child();
        if (child->objectName() == QLatin1String("cellCombo"))
            open(qobject_cast<VKD_QT4_ComboBox*>(child));
    }
    return QObject::eventFilter(viewport, event);
}

void TypeEditor::open(VKD_QT4_ComboBox* list)
{
    const DesignParameterData& data = m_page->state();
    m_list = list;
    m_rows = rowsWith(data.table->currentRow(), data.table->getSelectetRows());
    if (!list || commonType(data, m_rows))
        return;
    const VKD_QT_SignalBlocker blocker(list);
    list->setPlaceholderText(tr("several"));
    list->setCurrentIndex(-1);
}

/// The cell commits only an entry that differs from its text, but the other rows may have other
/// types.
void TypeEditor::commit(const QWidget* editor)
{
    if (editor && editor == m_list && m_list->currentIndex() >= 0)
        m_page->setType(m_rows, m_list->getCurrentId());
}

} // namespace plib
