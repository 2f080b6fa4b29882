#include "sheet/PictureNumbers.h"

#include "sheet/SheetPlanReader.h"

namespace workbench {

int PictureNumbers::before(int line, const QString& script)
{
    if (script != m_script) {
        m_script = script;
        m_before.clear();
        SheetPlanReader reader;
        const QVector<QStringRef> lines = script.splitRef(QLatin1Char('\n'));
        for (const QStringRef& text : lines) {
            m_before << reader.plan().pictures.size();
            reader.readLine(text);
        }
    }
    return m_before.value(line);
}

} // namespace workbench
