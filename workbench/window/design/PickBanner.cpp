#include "window/design/PickBanner.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {
QString listed(const std::vector<int>& groups)
{
    QStringList numbers;
    for (int group : groups)
        numbers << QString::number(group);
    return numbers.join(QLatin1String(", "));
}
} // namespace

PickBanner::PickBanner(QWidget* parent)
    : QFrame(parent)
    , m_what(new QLabel(this))
    , m_picked(new QLabel(this))
    , m_done(new QPushButton(this))
{
    setObjectName(QStringLiteral("PickBanner"));
    m_done->setObjectName(QStringLiteral("PickDone"));
    auto band = new QWidget(this); // not behind the button, whose focus frame has this colour
    band->setAutoFillBackground(true);
    band->setBackgroundRole(QPalette::Highlight);
    auto texts = new QVBoxLayout(band);
    for (QLabel* label : {m_what, m_picked}) {
        label->setForegroundRole(QPalette::HighlightedText);
        label->setWordWrap(true); // otherwise the banner would widen the view
        texts->addWidget(label);
    }
    QFont bold = font();
    bold.setBold(true);
    m_picked->setFont(bold);
    auto layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(band, 1);
    layout->addWidget(m_done);
    connect(m_done, &QPushButton::clicked, this, &PickBanner::done);
    auto escape = new QShortcut(Qt::Key_Escape, this); // also works after a click in the view
    connect(escape, &QShortcut::activated, this, &PickBanner::done);
    setTexts();
}

void PickBanner::setGroupsWithoutAreas(const std::vector<int>& groups)
{
    m_withoutAreas = groups;
    setTexts();
}

void PickBanner::setPicked(int row, const std::vector<int>& groups)
{
    m_row = row;
    m_groups = groups;
    setTexts();
}

void PickBanner::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void PickBanner::setTexts()
{
    std::vector<int> unfit;
    std::set_intersection(m_groups.begin(), m_groups.end(), m_withoutAreas.begin(),
                          m_withoutAreas.end(), std::back_inserter(unfit));
    const bool isFixed = m_row < 1;
    m_what->setText(isFixed ? tr("Select the row whose groups are to be picked.")
                            : tr("Row %1: click groups to add or remove them.").arg(m_row + 1));
    // Uses a single line, because showing and hiding a second line would move the view under the
    // mouse.
    if (isFixed)
        m_picked->setText(m_row == 0 ? tr("The groups of row 1 cannot be changed.")
                                     : tr("No row is selected."));
    else if (m_groups.empty())
        m_picked->setText(tr("The row has no groups yet."));
    else if (unfit.empty())
        m_picked->setText(tr("Groups: %1").arg(listed(m_groups)));
    else
        m_picked->setText(
            tr("Groups: %1. Without area elements: %2").arg(listed(m_groups), listed(unfit)));
    m_done->setText(tr("&Done"));
}

} // namespace workbench
