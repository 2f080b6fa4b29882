#include "textOutputSnapshots.h"

#include "SnapshotAlbum.h"
#include "window/main/MainWindow.h"
#include "window/textoutput/TextOutputDialog.h"

#include <QAction>

namespace workbench {

void addTextOutputSnapshots(SnapshotAlbum& album, const MainWindow& window, const QString& look)
{
    window.findChild<QAction*>(QStringLiteral("TextOutput"))->trigger();
    auto dialog = window.findChild<TextOutputDialog*>();
    album.add(QStringLiteral("window-text-proposed") + look, dialog);
    TextOutputState other = dialog->state();
    other.extent = QStringLiteral("checked:m_All");
    other.loadCases = QStringLiteral("checked:m_Manually");
    other.leftOutLoadCases = {2, 5};
    other.combinations = QStringLiteral("checked:m_All_PERM");
    dialog->setState(other);
    album.add(QStringLiteral("window-text-chosen") + look, dialog);
    dialog->reject();
}

} // namespace workbench
