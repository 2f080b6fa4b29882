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
    , m_cancel(new QPushButton(this))
{
    setObjectName(QStringLiteral("PickBanner"));
    m_done->setObjectName(QStringLiteral("PickDone"));
    m_cancel->setObjectName(QStringLiteral("PickCancel"));
    auto band = new QWidget(this); // without the buttons: their focus frame has its colour
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
    layout->addWidget(m_cancel);
    connect(m_done, &QPushButton::clicked, this, &PickBanner::done);
    connect(m_cancel, &QPushButton::clicked, this, &PickBanner::cancelled);
    auto escape = new QShortcut(Qt::Key_Escape, this); // also works after a click in the view
    connect(escape, &QShortcut::activated, this, &PickBanner::cancelled);
    setTexts();
}

void PickBanner::setGroupsWithoutAreas(const std::vector<int>& groups)
{
    m_withoutAreas = groups;
    setTexts();
}

void PickBanner::setPicked(const std::vector<int>& groups)
{
    m_groups = groups;
    setTexts();
}

void PickBanner::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void PickBanner::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    m_done->setFocus();
    window()->setAttribute(Qt::WA_KeyboardFocusChange); // so that the focus is visible
}

void PickBanner::setTexts()
{
    std::vector<int> unfit;
    std::set_intersection(m_groups.begin(), m_groups.end(), m_withoutAreas.begin(),
                          m_withoutAreas.end(), std::back_inserter(unfit));
    m_what->setText(tr("Pick groups in the view, then press Done."));
    // Uses a single line, because showing and hiding a second line would move the view under the
    // mouse.
    if (m_groups.empty())
        m_picked->setText(tr("No group is picked yet."));
    else if (unfit.empty())
        m_picked->setText(tr("Picked: %1").arg(listed(m_groups)));
    else
        m_picked->setText(
            tr("Picked: %1. Without area elements: %2").arg(listed(m_groups), listed(unfit)));
    m_done->setText(tr("&Done"));
    m_cancel->setText(tr("Ca&ncel"));
}

} // namespace workbench
