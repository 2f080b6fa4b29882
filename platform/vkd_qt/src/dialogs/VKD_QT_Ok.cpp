#include "VKD_QT_Ok.h"

#include "standardButtons.h"
#include "VKD_QT_Layouts.h"

#include <QDialogButtonBox>
#include <QPushButton>

namespace {
constexpr int OkBit = 1;
constexpr int CancelBit = 2;
} // namespace

VKD_QT_Ok::VKD_QT_Ok(QWidget* parent, int buttons, const char* name)
    : QWidget(parent)
    , m_buttons(new QDialogButtonBox(this))
{
    setObjectName(QLatin1String(name));
    if (buttons & OkBit)
        m_buttons->addButton(QDialogButtonBox::Ok)->setDefault(true);
    if (buttons & CancelBit)
        vkd::qt::translateStandardButton(m_buttons->addButton(QDialogButtonBox::Cancel));
    auto layout = new VKD_QT_HBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_buttons);
}

QPushButton* VKD_QT_Ok::cmdOk() const
{
    return m_buttons->button(QDialogButtonBox::Ok);
}

QPushButton* VKD_QT_Ok::cmdCancel() const
{
    return m_buttons->button(QDialogButtonBox::Cancel);
}
