#include "window/output/RefusedTexts.h"

#include <VKD_QT_InputField.h>

#include <QLineEdit>

namespace workbench {

RefusedTexts::RefusedTexts(const QWidget* page)
{
    for (QLineEdit* edit : page->findChildren<QLineEdit*>()) {
        const auto field = qobject_cast<VKD_QT_InputField*>(edit);
        if (field && edit->isEnabled() && !field->refusal().isEmpty())
            m_texts.insert(edit->objectName(), edit->text());
    }
}

void RefusedTexts::restore(const QWidget* page) const
{
    for (auto text = m_texts.begin(); text != m_texts.end(); ++text)
        if (auto edit = page->findChild<QLineEdit*>(text.key()))
            edit->setText(text.value());
}

} // namespace workbench
