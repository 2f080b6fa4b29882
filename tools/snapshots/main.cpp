#include "cli/CommandLine.h"
#include "cli/program.h"
#include "takeSnapshots.h"

#include <VKD_H_ZOBDoc.h>

#include <QApplication>
#include <QFont>

#include <stdexcept>

namespace {
using namespace workbench;

const QString PixelRatio = QStringLiteral("pixel-ratio");
constexpr int LargestRatio = 4;

bool isPixelRatio(int ratio)
{
    return ratio >= 1 && ratio <= LargestRatio;
}

/// How many pixels a point of the pictures is to have, which Qt has to know before it starts. Help
/// and messages need an application and are left to the command.
int pixelRatio(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addOption({PixelRatio, QString(), QStringLiteral("N")});
    parser.parse(arguments);
    const int ratio = parser.value(PixelRatio).toInt();
    return isPixelRatio(ratio) ? ratio : 1;
}

int snapshots(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral("Leaves a picture of every page and dialog on this project in a folder, "
                       "light and dark, and prints the names of the files. The project stays as it "
                       "is."),
        {QStringLiteral("FILE"), QStringLiteral("DIR")},
        {languageOption(),
         {PixelRatio, QStringLiteral("N"),
          QStringLiteral("Pixels for each point of the screen, as on fine screens: 1 to 4.")}});
    line.parse(arguments);
    if (!isPixelRatio(line.number("pixel-ratio", 1)))
        throw CommandError{QStringLiteral("--pixel-ratio is a number from 1 to 4, not \"%1\"")
                               .arg(line.value("pixel-ratio"))};
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
} // namespace

/// The pictures are drawn off the screen, so that none is needed.
int main(int argc, char* argv[])
{
    beginProgram();
    const QStringList command =
        QStringList(QStringLiteral("snapshots")) + programArguments(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(pixelRatio(command)));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9)); // as desktops have it
    return runCommand(snapshots, command);
}
