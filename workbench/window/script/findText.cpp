#include "window/script/findText.h"

namespace workbench {

QVector<int> findText(const QString& text, const QString& words)
{
    QVector<int> positions;
    if (words.isEmpty())
        return positions;
    for (int at = text.indexOf(words, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(words, at + words.size(), Qt::CaseInsensitive))
        positions.append(at);
    return positions;
}

} // namespace workbench
