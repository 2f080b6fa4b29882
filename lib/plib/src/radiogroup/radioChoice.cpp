#include "radiogroup/radioChoice.h"

#include <QStringList>

#include <algorithm>

namespace {
const QLatin1String Mark("checked");

/// The names of the buttons, in the order in which they are written.
constexpr struct
{
    int id;
    const char* name;
} Names[] = {{2, "m_All"},      {3, "m_All_A"},        {4, "m_All_F"},    {5, "m_All_E"},
             {1, "m_Manually"}, {0, "m_NoTextOutput"}, {6, "m_All_RARE"}, {7, "m_All_FREQ"},
             {8, "m_All_PERM"}, {9, "m_All_NONF"}};
} // namespace

QString plib::choiceText(const std::vector<int>& checkedIds)
{
    QString text = Mark + QLatin1Char(':');
    for (const auto& entry : Names)
        if (std::find(checkedIds.begin(), checkedIds.end(), entry.id) != checkedIds.end())
            text += QLatin1String(entry.name);
    return text;
}

std::optional<int> plib::chosenId(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(':'));
    if (parts.size() < 2 || parts[0] != Mark)
        return std::nullopt;
    for (const auto& entry : Names)
        if (parts[1] == QLatin1String(entry.name))
            return entry.id;
    return -1;
}
