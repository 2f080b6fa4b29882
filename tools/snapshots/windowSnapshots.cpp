#include "windowSnapshots.h"

#include "looks.h"
#include "SnapshotAlbum.h"
#include "textOutputSnapshots.h"
#include "window/main/MainWindow.h"
#include "window/support/WindowSettings.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QFile>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTableWidget>
#include <QTabWidget>
#include <QTemporaryDir>

namespace workbench {

namespace {
void trigger(const MainWindow& window, const char* action)
{
    window.findChild<QAction*>(QLatin1String(action))->trigger();
}

/// Adds two screenshots of the design dock: with the groups of a row highlighted, and while groups
/// are picked.
void addDesign(SnapshotAlbum& album, MainWindow& window, const QString& look)
{
    trigger(window, "Design");
    auto dock = window.findChild<QWidget*>(QStringLiteral("DesignDock"));
    auto table = dock->findChild<QTableWidget*>(QStringLiteral("table"));
    table->setCurrentCell(2, 0);
    album.add(QStringLiteral("window-design") + look, &window);
    auto pick = window.findChild<QPushButton*>(QStringLiteral("PickGroups"));
    pick->click();
    album.add(QStringLiteral("window-picking") + look, &window);
    pick->click();
    dock->close();
}

/// Adds screenshots of the output page in the window and of each of its tabs.
void addOutput(SnapshotAlbum& album, MainWindow& window, const QString& look)
{
    trigger(window, "Output");
    auto dock = window.findChild<QDockWidget*>(QStringLiteral("OutputDock"));
    auto tabs = dock->findChild<QTabWidget*>();
    album.add(QStringLiteral("window-output") + look, &window);
    dock->setFloating(true);
    dock->resize(910, 680);
    const char* names[] = {"plots", "loadcases", "contents"};
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        album.add(QStringLiteral("window-output-") + QLatin1String(names[tab]) + look, dock);
    }
    dock->setFloating(false);
    dock->close();
}

/// Adds screenshots of the preview in the window, and of the preview alone.
void addSheet(SnapshotAlbum& album, MainWindow& window, const QString& look)
{
    auto dock = window.findChild<QDockWidget*>(QStringLiteral("SheetDock"));
    trigger(window, "SheetPreviewAction");
    album.add(QStringLiteral("window-sheet") + look, &window);
    dock->setFloating(true);
    dock->resize(720, 960);
    auto page = dock->findChild<QSpinBox*>(QStringLiteral("SheetPage"));
    page->setValue(12);
    album.add(QStringLiteral("sheet-page") + look, dock);
    dock->findChild<QComboBox*>(QStringLiteral("SheetZoom"))->setCurrentIndex(1);
    album.add(QStringLiteral("sheet-width") + look, dock);
    dock->setFloating(false);
}

/// Adds a screenshot of the window without a project. The list of recent projects does not contain
/// paths of this computer: the project is copied into a home folder, which the list shows as "~".
void addStart(SnapshotAlbum& album, const QString& project, const QString& look)
{
    const QTemporaryDir home;
    const QByteArray userHome = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(home.path()));
    const QString copy = home.filePath(QStringLiteral("Office building.zob"));
    QFile::copy(project, copy);
    WindowSettings settings;
    const QStringList before = settings.savedRecentFiles();
    for (const QString& path : before)
        settings.removeRecentFile(path);
    for (const QString& path : {QStringLiteral("/projects/Warehouse.zob"), copy})
        settings.addRecentFile(path);
    MainWindow window;
    window.openAfterPainting(QString());
    window.show();
    album.add(QStringLiteral("window-start") + look, &window);
    qputenv("HOME", userHome);
}
} // namespace

void addWindowSnapshots(SnapshotAlbum& album, const QString& project)
{
    const QTemporaryDir settings; // protects the user's settings
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    const QPalette light = QApplication::palette();
    for (const bool isDark : {false, true}) {
        QApplication::setPalette(isDark ? darkPalette() : light);
        const QString look = isDark ? QStringLiteral("-dark") : QString();
        MainWindow window;
        window.show();
        window.openProject(project);
        album.add(QStringLiteral("window") + look, &window);
        addSheet(album, window, look);
        addOutput(album, window, look);
        addTextOutputSnapshots(album, window, look);
        addDesign(album, window, look);
        addStart(album, project, look);
    }
    QApplication::setPalette(light);
}

} // namespace workbench
