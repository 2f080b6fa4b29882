#include "windowSnapshots.h"

#include "looks.h"
#include "SnapshotAlbum.h"
#include "textOutputSnapshots.h"
#include "window/main/MainWindow.h"

#include <VKD_H_SelGRP_Dialog.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

namespace workbench {

namespace {
void trigger(const MainWindow& window, const char* action)
{
    window.findChild<QAction*>(QLatin1String(action))->trigger();
}

void addPicking(SnapshotAlbum& album, MainWindow& window, const QString& look)
{
    QTimer::singleShot(0, qApp, [] {
        auto dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        dialog->done(VKD_H_SelGRP_Dialog::PickOutside);
    });
    trigger(window, "Design");
    album.add(QStringLiteral("window-picking") + look, &window);
    album.addModal(QStringLiteral("window-design") + look, [&window] {
        window.findChild<QPushButton*>(QStringLiteral("PickCancel"))->click();
    });
}

void addOutput(SnapshotAlbum& album, const MainWindow& window, const QString& look)
{
    trigger(window, "Output");
    auto dialog = window.findChild<QDialog*>(QStringLiteral("OutputDialog"));
    auto tabs = dialog->findChild<QTabWidget*>();
    const char* names[] = {"plots", "loadcases", "contents"};
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        album.add(QStringLiteral("window-output-") + QLatin1String(names[tab]) + look, dialog);
    }
    dialog->reject();
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
        addPicking(album, window, look);
    }
    QApplication::setPalette(light);
}

} // namespace workbench
