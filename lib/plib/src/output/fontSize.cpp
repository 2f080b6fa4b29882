#include "output/fontSize.h"

#include <StructBoxedEdit.h>
#include <vkd_h_numberText.h>

namespace plib {

StructLineEdit fontSizeField()
{
    StructLineEdit field;
    field.value = 2.0;
    field.minimum = 1.0;
    field.maximum = 999.0;
    field.emptied = 2.0;
    field.flags = StructBoxedEdit::EmptyIsDefault;
    field.decimalSigns = QStringLiteral(",");
    return field;
}

QString fontSizeText(const QString& typed)
{
    const StructLineEdit field = fontSizeField();
    const bool isAccepted = vkd_h_readNumber(typed, field).state == VkdNumberState::Accepted;
    return isAccepted ? vkd_h_plainNumberText(typed.trimmed(), field) : QString();
}

} // namespace plib
