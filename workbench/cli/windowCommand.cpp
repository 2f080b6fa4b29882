#include "commands.h"

#include "CommandLine.h"
#include "newProject.h"
#include "plotTitles.h"

#include <runWindow.h>
#include <vkd_lib_value.h>
#include <WindowSettings.h>

namespace workbench {

namespace {
QString makeProject(const QString& path, const QString& model, const VkdGoOn& goOn)
{
    try {
        newProject(path, model, goOn);
        return QString();
    } catch (const CommandError& error) {
        return error.text;
    }
}
} // namespace

int windowCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("Opens the desktop window, with FILE if one is given. Needs a "
                                    "display."),
                     {QStringLiteral("[FILE]")}, {languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    if (line.has("language")) // else the window's own one of the last time
        WindowSettings().setLanguage(vkd_lib_getvalue(VKD_SETTING_LANGUAGE));
    return runWindow(line.argument(0), {makeProject, plotTitles});
}

} // namespace workbench
