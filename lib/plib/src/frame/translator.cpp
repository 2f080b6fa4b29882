#include <VKD_QT_InitTranslator.h>

#include <QDir>

// A library loaded into a running application translates at once, so its texts have to be
// registered first; without this, the order of static initialisers is up to the linker.
static const char* moduleWithTexts()
{
    Q_INIT_RESOURCE(translations);
    return "vkd_p_dll";
}

static const VKD_QT_InitTranslator translator(moduleWithTexts());
