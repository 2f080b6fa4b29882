#include "window/design/RowColours.h"

#include "window/design/DesignDock.h"
#include "window/design/DesignPage.h"
#include "window/design/RowLegend.h"

#include <AnimatorView.h>
#include <vkd_dbo_groupTexts.h>
#include <vkd_dbo_packedNames.h>

#include <QPushButton>
#include <QTableWidget>

#include <algorithm>

namespace workbench {

RowColours::RowColours(AnimatorView* view, DesignDock* dock)
    : m_view(view)
    , m_button(new QPushButton)
    , m_legend(new RowLegend(view))
{
    m_button->setObjectName(QStringLiteral("ColourRows"));
    m_button->setCheckable(true);
    dock->addTool(m_button);
    connect(m_button, &QPushButton::toggled, this, &RowColours::toggled);
    connect(m_legend, &RowLegend::rowClicked, this, &RowColours::rowClicked);
}

void RowColours::setTexts()
{
    m_button->setText(tr("&Colour Rows"));
    m_button->setToolTip(tr("Colours the groups in the view by their row. Groups without a row of "
                            "their own are pale."));
}

/// The view shows all groups without a colour as pale, but only if at least one colour is set.
/// Therefore, a colour is always set for NoGroup.
void RowColours::show(const DesignPage* page, const QHash<int, int>& rowOf, int remainingRow)
{
    m_button->setEnabled(page);
    std::map<int, QColor> colours;
    QVector<RowLegend::Entry> entries;
    const QColor none = m_view->palette().color(QPalette::Base); // also for secondary groups
    if (page && m_button->isChecked()) {
        colours[AnimatorView::NoGroup] = Qt::gray;
        for (auto it = rowOf.cbegin(); it != rowOf.cend(); ++it)
            if (it.value() != remainingRow && !vkd::dbo::isSecondaryGroup(it.key()))
                colours[it.key()] = AnimatorView::distinctColour(it.value());
        for (int row = 0; row < page->table()->rowCount(); ++row) {
            const QVector<int> groups = page->groups(row);
            const bool isColoured = std::any_of(groups.begin(), groups.end(), [&](int group) {
                return rowOf.value(group) == row && colours.count(group) > 0;
            });
            if (row == remainingRow)
                entries.append({row, none, tr("Remaining")});
            else if (!groups.isEmpty())
                entries.append({row, isColoured ? AnimatorView::distinctColour(row) : none,
                                vkd::dbo::groupRanges({groups.begin(), groups.end()})});
        }
    }
    m_view->setGroupColours(colours);
    m_legend->setEntries(entries);
}

} // namespace workbench
