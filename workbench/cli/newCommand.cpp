#include "cli/commands.h"

#include "cli/CommandLine.h"
#include "cli/newProject.h"

namespace workbench {

namespace {
/// Returns a callback that prints a line for each percent completed.
VkdGoOn printed()
{
    return [last = -1](int percent) mutable {
        if (percent != last)
            print(QString::number(percent) + QLatin1Char('\n'));
        last = percent;
        return true;
    };
}
} // namespace

int newCommand(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral("Creates a project file from a model. FILE must not exist yet."),
        {QStringLiteral("FILE")},
        {{QStringLiteral("model"), QStringLiteral("NAME|JSON"),
          QStringLiteral("A sample (building, slab, hall) or a model file.")},
         {QStringLiteral("progress"), QString(), QStringLiteral("Prints the progress in percent.")},
         languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    if (!line.has("model"))
        throw CommandError{QStringLiteral("--model is missing")};
    const VkdGoOn goOn = line.has("progress") ? printed() : VkdGoOn();
    print(newProject(line.argument(0), line.value("model"), goOn));
    return 0;
}

} // namespace workbench
