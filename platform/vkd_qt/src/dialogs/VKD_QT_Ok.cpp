#include "VKD_QT_Ok.h"

#include "standardButtons.h"
#include "VKD_QT_Layouts.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QPushButton>

namespace {
constexpr int OkBit = 1;
constexpr int CancelBit = 2;

/// The base class restores Qt's own texts when the language changes.
class TranslatedButtonBox : public QDialogButtonBox
{
public:
    using QDialogButtonBox::QDialogButtonBox;

protected:
    bool event(QEvent* event) override
    {
        const bool isHandled = QDialogButtonBox::event(event);
        if (event->type() == QEvent::LanguageChange)
            for (QAbstractButton* button : buttons())
                vkd::qt::translateStandardButton(button);
        return isHandled;
    }
};
} // namespace

VKD_QT_Ok::VKD_QT_Ok(QWidget* parent, int buttons, const char* name)
    : QWidget(parent)
    , m_buttons(new TranslatedButtonBox(this))
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
