#include "commands.h"

#include "CommandLine.h"

#include <takeSnapshots.h>
#include <VKD_H_ZOBDoc.h>

#include <stdexcept>

namespace workbench {

int snapshotsCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("Leaves a picture of every page and dialog on this project in "
                                    "a folder and prints the names of the files. The project stays "
                                    "as it is."),
                     {QStringLiteral("FILE"), QStringLiteral("DIR")}, {languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    openProject(line.argument(0)); // says what is wrong with a file that is none
    try {
        const QStringList files = takeSnapshots(line.argument(0), line.argument(1));
        print(files.join(QLatin1Char('\n')) + QLatin1Char('\n'));
    } catch (const std::runtime_error& failure) {
        throw CommandError{QString::fromUtf8(failure.what())};
    }
    return 0;
}

} // namespace workbench
