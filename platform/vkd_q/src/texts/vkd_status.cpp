#include "vkd_status.h"

#include <algorithm>

namespace {
bool breaksLine(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return true;
    default: return false;
    }
}
} // namespace

QString vkd_oneLine(QString text)
{
    std::replace_if(text.begin(), text.end(), breaksLine, QLatin1Char(' '));
    return text;
}

VkdStatus VkdStatus::failure(int code, const QString& reason)
{
    return {code, vkd_oneLine(reason)};
}
