#include "design/RowsNotice.h"

#include "dialogs/ElidedLabel.h"

#include <VKD_QT_Layouts.h>

#include <QLabel>
#include <QStyle>

namespace plib {

RowsNotice::RowsNotice(QWidget* parent)
    : QWidget(parent)
    , m_sign(new QLabel(this))
    , m_label(new ElidedLabel(this))
{
    setObjectName(QStringLiteral("rowsNotice"));
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHorizontalStretch(1);
    setSizePolicy(policy);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(side));
    auto layout = new VKD_QT_HBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_sign);
    layout->addWidget(m_label, 1);
    setText(QString());
}

void RowsNotice::setText(const QString& text)
{
    m_sign->setVisible(!text.isEmpty());
    m_label->setFullText(text);
}

} // namespace plib
