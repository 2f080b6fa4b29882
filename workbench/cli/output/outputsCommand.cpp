#include "cli/commands.h"

#include "cli/CommandLine.h"
#include "cli/output/savedChoice.h"

#include <VKD_H_ZOBDoc.h>

namespace workbench {

int outputsCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("Prints the names of a project's outputs, one on each line. "
                                    "The first output is the one that `script` prints without "
                                    "--output."),
                     {QStringLiteral("FILE")}, {languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    const auto document = openProject(line.argument(0));
    print(savedOutputs(document->handle()).names().join(QLatin1Char('\n')) + QLatin1Char('\n'));
    return 0;
}

} // namespace workbench
