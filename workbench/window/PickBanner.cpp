#include "PickBanner.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace workbench {

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
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Highlight);
    for (QLabel* label : {m_what, m_picked}) {
        label->setForegroundRole(QPalette::HighlightedText);
        label->setWordWrap(true); // the banner is not to widen the view
    }
    QFont bold = font();
    bold.setBold(true);
    m_picked->setFont(bold);
    auto layout = new QHBoxLayout(this);
    auto texts = new QVBoxLayout;
    texts->addWidget(m_what);
    texts->addWidget(m_picked);
    layout->addLayout(texts, 1);
    layout->addWidget(m_done);
    layout->addWidget(m_cancel);
    connect(m_done, &QPushButton::clicked, this, &PickBanner::done);
    connect(m_cancel, &QPushButton::clicked, this, &PickBanner::cancelled);
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

void PickBanner::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT cancelled();
    else
        QFrame::keyPressEvent(event);
}

void PickBanner::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    m_done->setFocus();
}

void PickBanner::setTexts()
{
    QStringList numbers;
    for (int group : m_groups)
        numbers << QString::number(group);
    m_what->setText(tr("Pick groups in the view, then press Done."));
    m_picked->setText(numbers.isEmpty() ? tr("No group is picked yet.")
                                        : tr("Picked: %1").arg(numbers.join(QLatin1String(", "))));
    m_done->setText(tr("&Done"));
    m_cancel->setText(tr("Ca&ncel"));
}

} // namespace workbench
