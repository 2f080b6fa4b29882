#include "standardButtons.h"

#include <QAbstractButton>
#include <QCoreApplication>

namespace {
/// The English texts of Qt and of its GNOME and GTK themes, which a button shows if the host has
/// installed no translation for Qt.
const char* const UntranslatedTexts[] = {
    QT_TRANSLATE_NOOP("standardButtons", "Cancel"),
    QT_TRANSLATE_NOOP("standardButtons", "Discard"),
    QT_TRANSLATE_NOOP("standardButtons", "Save"),
    QT_TRANSLATE_NOOP("standardButtons", "&No"),
    QT_TRANSLATE_NOOP("standardButtons", "&Yes"),
    QT_TRANSLATE_NOOP("standardButtons", "&Cancel"),
    QT_TRANSLATE_NOOP("standardButtons", "&Save"),
    QT_TRANSLATE_NOOP("standardButtons", "Close without Saving")};
} // namespace

void vkd::qt::translateStandardButton(QAbstractButton* button)
{
    for (const char* text : UntranslatedTexts)
        if (button->text() == QLatin1String(text))
            return button->setText(QCoreApplication::translate("standardButtons", text));
}
