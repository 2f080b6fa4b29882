#include "sheet/PictureNumbers.h"

#include "sheet/SheetPlanReader.h"

#include <QList>
#include <QStringView>

namespace workbench {

int PictureNumbers::before(int line, const QString& script)
{
    if (script != m_script) {
        m_script = script;
        m_before.clear();
        SheetPlanReader reader;
        const auto lines = QStringView(script).split(QLatin1Char('\n'));
        for (const QStringView text : lines) {
            m_before << reader.plan().pictures.size();
            reader.readLine(text);
        }
    }
    return m_before.value(line);
}

} // namespace workbench
