#include "commands.h"

#include "CommandLine.h"
#include "newProject.h"

namespace workbench {

int newCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("Makes a project file from a model. FILE must not exist yet."),
                     {QStringLiteral("FILE")},
                     {{QStringLiteral("model"), QStringLiteral("NAME|JSON"),
                       QStringLiteral("A sample (building, slab, hall) or a model file.")},
                      languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    if (!line.has("model"))
        throw CommandError{QStringLiteral("--model is missing")};
    print(newProject(line.argument(0), line.value("model")));
    return 0;
}

} // namespace workbench
