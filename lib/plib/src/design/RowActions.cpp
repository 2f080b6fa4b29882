#include "design/RowActions.h"

#include "design/DesignParameter.h"
#include "record/designRows.h"
#include "record/rowText.h"
#include "table/DesignParameterTable.h"

#include <QMenu>

#include <iterator>

namespace plib {

RowActions::RowActions(DesignParameter* page)
    : QObject(page)
    , m_page(page)
{
    addSeparator();
    add("rowType", tr("&Type"))->setMenu(typeMenu());
    const struct
    {
        const char* name;
        QString text;
        void (DesignParameter::*edit)();
    } dialogs[] = {
        {"editDirections", tr("Direction and Di&stance..."), &DesignParameter::editDirections},
        {"editReinforcement", tr("Rein&forcement..."), &DesignParameter::editReinforcement},
        {"editCrackControl", tr("Crack C&ontrol..."), &DesignParameter::editCrackControl},
    };
    for (const auto& dialog : dialogs)
        connect(add(dialog.name, dialog.text), &QAction::triggered, page, dialog.edit);
    addSeparator();
    connect(page->state().table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RowActions::enable);
    enable();
}

QAction* RowActions::add(const char* name, const QString& text)
{
    auto action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    m_page->addAction(action);
    m_page->state().table->addAction(action); // for its menu
    m_actions << action;
    return action;
}

void RowActions::addSeparator()
{
    auto separator = new QAction(this);
    separator->setSeparator(true);
    m_page->state().table->addAction(separator);
}

QMenu* RowActions::typeMenu()
{
    auto menu = new QMenu(m_page);
    for (int type = 0; type < int(std::size(DesignTypeNames)); ++type) {
        QAction* entry = menu->addAction(DesignParameter::tr(DesignTypeNames[type]));
        entry->setData(type);
        entry->setCheckable(true);
    }
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { checkType(menu); });
    connect(menu, &QMenu::triggered, this, [this](const QAction* entry) {
        const DesignParameterTable* table = m_page->state().table;
        m_page->setType(rowsWith(table->currentRow(), table->getSelectetRows()),
                        entry->data().toInt());
    });
    return menu;
}

/// Checks the type of the rows. If they have different types, no entry is checked.
void RowActions::checkType(const QMenu* menu) const
{
    const DesignParameterData& data = m_page->state();
    const std::optional<int> type =
        commonType(data, rowsWith(data.table->currentRow(), data.table->getSelectetRows()));
    for (QAction* entry : menu->actions())
        entry->setChecked(type && entry->data().toInt() == *type);
}

void RowActions::enable()
{
    const bool hasSelection = m_page->state().table->selectionModel()->hasSelection();
    for (QAction* action : qAsConst(m_actions))
        action->setEnabled(hasSelection);
}

} // namespace plib
