#include "design/RowsNotice.h"

#include <VKD_QT_Layouts.h>

#include <QLabel>
#include <QStyle>

namespace plib {

RowsNotice::RowsNotice(QWidget* parent)
    : QWidget(parent)
    , m_sign(new QLabel(this))
    , m_label(new QLabel(this))
{
    setObjectName(QStringLiteral("rowsNotice"));
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHorizontalStretch(1);
    setSizePolicy(policy);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(side));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto layout = new VKD_QT_HBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_sign);
    layout->addWidget(m_label, 1);
    setText(QString());
}

void RowsNotice::setText(const QString& text)
{
    m_text = text;
    m_sign->setVisible(!text.isEmpty());
    setToolTip(text);
    m_label->setAccessibleName(text);
    elide();
}

void RowsNotice::elide()
{
    layout()->activate(); // sets the width of the label
    m_label->setText(m_label->fontMetrics().elidedText(m_text, Qt::ElideRight, m_label->width()));
}

void RowsNotice::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    elide();
}

} // namespace plib
