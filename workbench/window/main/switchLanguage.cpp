#include "window/main/switchLanguage.h"

#include "window/design/DesignEditor.h"
#include "window/output/EditedOutputs.h"
#include "window/output/OutputEditor.h"
#include "window/support/WindowSettings.h"
#include "window/textoutput/TextOutputDialog.h"
#include "window/textoutput/TextOutputEditor.h"

#include <VKD_QT_InitTranslator.h>

namespace workbench {

void switchLanguage(vkd::Language language, const Editors& editors)
{
    const auto rows = editors.design->state();
    const auto before = editors.output->present();
    editors.output->close();
    vkd::setDesktopLanguage(language);
    VKD_QT_InitTranslator::languageChanged();
    WindowSettings().setLanguage(language);
    editors.textOutput->recreate();
    if (rows)
        editors.design->restore(*rows);
    if (before)
        editors.output->recreate(*before);
}

} // namespace workbench
