#include "window/script/TextLines.h"

#include <algorithm>

namespace workbench {

TextLines::TextLines(const QString& text)
    : m_text(text)
    , m_starts(1, 0)
{
    m_starts.reserve(text.count(QLatin1Char('\n')) + 1);
    int length = 0;
    for (int end = text.indexOf(QLatin1Char('\n')); end >= 0;
         end = text.indexOf(QLatin1Char('\n'), end + 1)) {
        if (end - m_starts.last() > length) {
            length = end - m_starts.last();
            m_longest = m_starts.size() - 1;
        }
        m_starts.append(end + 1);
    }
    if (text.size() - m_starts.last() > length)
        m_longest = m_starts.size() - 1;
}

QStringView TextLines::line(int number) const
{
    return QStringView(m_text).mid(start(number), end(number) - start(number));
}

int TextLines::end(int number) const
{
    return number + 1 < count() ? m_starts[number + 1] - 1 : m_text.size();
}

int TextLines::lineAt(int position) const
{
    return int(std::upper_bound(m_starts.begin(), m_starts.end(), position) - m_starts.begin()) - 1;
}

} // namespace workbench
