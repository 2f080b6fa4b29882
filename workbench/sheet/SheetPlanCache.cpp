#include "sheet/SheetPlanCache.h"

#include "sheet/commonText.h"

#include <algorithm>

namespace workbench {

SheetPlanCache::SheetPlanCache(int linesBetweenMarks)
    : m_linesBetweenMarks(linesBetweenMarks)
{
}

const SheetPlan& SheetPlanCache::planOf(const QString& script)
{
    if (script == m_script)
        return m_reader.plan();
    const int beginning = commonBeginning(m_script, script);
    const int end =
        commonEnd(QStringView(m_script).mid(beginning), QStringView(script).mid(beginning));
    Marks oldMarks = takeMarksAfter(beginning);
    const int firstUnchanged = m_script.size() - end;
    oldMarks.erase(oldMarks.begin(), std::find_if(oldMarks.begin(), oldMarks.end(),
                                                  [firstUnchanged](const Mark& mark) {
                                                      return mark.position >= firstUnchanged;
                                                  }));
    const int moved = script.size() - m_script.size();
    m_script = script;
    const SheetPlan oldPlan = m_reader.plan();
    m_reader.resume(m_marks.back().progress);
    read(oldMarks, oldPlan, moved);
    return m_reader.plan();
}

/// Removes the marks after a position, and returns them.
SheetPlanCache::Marks SheetPlanCache::takeMarksAfter(int position)
{
    const auto first = std::find_if(m_marks.begin(), m_marks.end(), [position](const Mark& mark) {
        return mark.position > position;
    });
    Marks taken(first, m_marks.end());
    m_marks.erase(first, m_marks.end());
    return taken;
}

/// Reads the lines after the last mark. `moved` is the number of characters by which the lines
/// after the changes have moved.
void SheetPlanCache::read(const Marks& oldMarks, const SheetPlan& oldPlan, int moved)
{
    auto old = oldMarks.begin();
    int lines = 0;
    for (int start = m_marks.back().position; start < m_script.size();) {
        while (old != oldMarks.end() && old->position + moved < start)
            ++old;
        if (old != oldMarks.end() && old->position + moved == start &&
            m_reader.continuesLike(old->progress))
            return finish(old, oldMarks.end(), oldPlan, moved);
        if (lines == m_linesBetweenMarks) {
            m_marks.push_back({start, m_reader.progress()});
            lines = 0;
        }
        const int newline = m_script.indexOf(QLatin1Char('\n'), start);
        const int end = newline < 0 ? m_script.size() : newline;
        m_reader.readLine(QStringView(m_script).mid(start, end - start));
        start = end + 1;
        ++lines;
    }
}

/// Copies the rest of the old plan, and moves the old marks to the same lines in the new script.
void SheetPlanCache::finish(Marks::const_iterator mark, Marks::const_iterator end,
                            const SheetPlan& oldPlan, int moved)
{
    const int views = m_reader.plan().views.size() - mark->progress.views;
    const int pictures = m_reader.plan().pictures.size() - mark->progress.pictures;
    m_reader.append(oldPlan, mark->progress);
    for (; mark != end; ++mark) {
        m_marks.push_back(*mark);
        m_marks.back().position += moved;
        m_marks.back().progress.views += views;
        m_marks.back().progress.pictures += pictures;
    }
}

} // namespace workbench
