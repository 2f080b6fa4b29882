#include "cli/CommandLine.h"
#include "cli/program.h"
#include "takeSnapshots.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_OutlineStyle.h>
#include <vkd_qt_qt6.h>
#include <vkd_qt_translateQt.h>

#include <QApplication>
#include <QFont>

#include <cstdio>
#include <stdexcept>

namespace {
using namespace workbench;

const QString PixelRatio = QStringLiteral("pixel-ratio");
constexpr int LargestRatio = 4;

bool isPixelRatio(int ratio)
{
    return ratio >= 1 && ratio <= LargestRatio;
}

/// Returns the pixel ratio of the screenshots, which must be set before the application object is
/// created. The command parses the arguments again, because help and error messages need the
/// application object.
int pixelRatio(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addOption({PixelRatio, QString(), QStringLiteral("N")});
    parser.parse(arguments);
    const int ratio = parser.value(PixelRatio).toInt();
    return isPixelRatio(ratio) ? ratio : 1;
}

void reportMissing(const SnapshotAlbum& album)
{
    if (!album.leftOut().isEmpty())
        std::fprintf(stderr, "plib_workbench: left out, because the model has no such groups: %s\n",
                     qUtf8Printable(album.leftOut().join(QLatin1String(", "))));
}

int snapshots(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral(
            "Saves screenshots of every page and dialog with this project in a folder, in "
            "light and dark colours, and prints the names of the files. The project is "
            "not changed."),
        {QStringLiteral("FILE"), QStringLiteral("DIR")},
        {languageOption(),
         {PixelRatio, QStringLiteral("N"),
          QStringLiteral("Pixels per point, as on high-resolution screens: 1 to 4.")}});
    line.parse(arguments);
    if (!isPixelRatio(line.number("pixel-ratio", 1)))
        throw CommandError{QStringLiteral("--pixel-ratio must be a number from 1 to 4, not \"%1\"")
                               .arg(line.value("pixel-ratio"))};
    applyLanguage(line);
    vkd_qt_translateQt();
    openProject(line.argument(0)); // throws an error if the file is not a project
    try {
        const SnapshotAlbum album = takeSnapshots(line.argument(0), line.argument(1));
        print(album.files().join(QLatin1Char('\n')) + QLatin1Char('\n'));
        reportMissing(album);
    } catch (const std::runtime_error& failure) {
        throw CommandError{QString::fromUtf8(failure.what())};
    }
    return 0;
}
} // namespace

/// The program draws the screenshots offscreen and needs no display.
int main(int argc, char* argv[])
{
    beginProgram();
    const QStringList command =
        QStringList(QStringLiteral("snapshots")) + programArguments(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(pixelRatio(command)));
    vkd_qt_enableHighDpi();
    const QApplication application(argc, argv);
    QApplication::setStyle(new VKD_QT_OutlineStyle(QStringLiteral("fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9)); // the usual desktop font
    return runCommand(snapshots, command);
}
