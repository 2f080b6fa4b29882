#include "window/groups/GroupPane.h"

#include "window/groups/GroupList.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace workbench {

GroupPane::GroupPane(QWidget* parent)
    : QWidget(parent)
    , m_filter(new QLineEdit(this))
    , groups(new GroupList(this))
{
    m_filter->setObjectName(QStringLiteral("GroupFilter"));
    m_filter->setClearButtonEnabled(true);
    auto layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_filter);
    layout->addWidget(groups, 1);
    connect(m_filter, &QLineEdit::textChanged, groups, &GroupList::setFilter);
}

void GroupPane::setTexts()
{
    m_filter->setPlaceholderText(tr("Filter: 12, 3-7, title"));
    m_filter->setAccessibleName(tr("Group filter"));
    m_filter->setToolTip(tr("Shows the groups with these numbers, in these ranges or with these "
                            "words in the title."));
}

} // namespace workbench
