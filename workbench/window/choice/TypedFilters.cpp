#include "window/choice/TypedFilters.h"

#include "window/choice/ChoiceBar.h"

namespace workbench {

TypedFilters::TypedFilters(const QWidget* dialog)
{
    for (const ChoiceBar* bar : dialog->findChildren<ChoiceBar*>())
        m_texts.insert(bar->objectName(), bar->filterText());
}

void TypedFilters::restore(const QWidget* dialog) const
{
    for (ChoiceBar* bar : dialog->findChildren<ChoiceBar*>())
        bar->setFilterText(m_texts.value(bar->objectName()));
}

} // namespace workbench
