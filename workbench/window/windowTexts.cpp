#include "windowTexts.h"

#include <VKD_QT_InitTranslator.h>

#include <QDir>

// Outside of the namespace, as the macro asks.
static void initResource()
{
    Q_INIT_RESOURCE(workbench_translations);
}

namespace workbench {

void installWindowTexts()
{
    initResource();
    static const VKD_QT_InitTranslator texts("workbench");
}

} // namespace workbench
