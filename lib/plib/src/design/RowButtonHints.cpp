#include "design/RowButtonHints.h"

#include "design/DesignParameter.h"
#include "record/rowRefusals.h"
#include "table/DesignParameterTable.h"

#include <QPushButton>

namespace plib {

RowButtonHints::RowButtonHints(DesignParameter* page)
    : QObject(page)
    , m_page(page)
{
    const DesignParameterData& data = page->state();
    const auto move = [&data](int direction) {
        return
            [&data, direction] { return moveRefusal(data, data.table->currentRow(), direction); };
    };
    const auto deletion = [&data] { return deletionRefusal(data.table->getSelectetRows()); };
    explain("btnUp", move(-1));
    explain("btnDown", move(1));
    explain("btnDelete", deletion);
    connect(data.table, &DesignParameterTable::signal_delClicked, this, [page, deletion] {
        if (!deletion().isEmpty())
            page->showNotice(deletion());
    });
}

void RowButtonHints::explain(const char* name, const std::function<QString()>& refusal)
{
    auto button = m_page->findChild<QPushButton*>(QLatin1String(name));
    const auto update = [button, refusal] { button->setToolTip(refusal()); };
    connect(m_page->state().table->selectionModel(), &QItemSelectionModel::selectionChanged, button,
            update);
    connect(button, &QPushButton::pressed, this, [this, refusal] { m_refusal = refusal(); });
    connect(button, &QPushButton::clicked, this, [this, update] {
        if (!m_refusal.isEmpty())
            m_page->showNotice(m_refusal);
        update();
    });
}

} // namespace plib
