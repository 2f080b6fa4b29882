#include "window/output/TreeViewMemory.h"

#include "window/output/TreeViewState.h"
#include "window/support/WindowSettings.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QTreeWidget>
#include <QVariant>

namespace workbench {

namespace {
const QString Key = QStringLiteral("plotTrees");
}

TreeViewMemory::TreeViewMemory(const QString& path, QTreeWidget* tree, QWidget* dialog)
    : QObject(dialog)
    , m_path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
    , m_tree(tree)
{
    dialog->installEventFilter(this);
}

bool TreeViewMemory::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && !m_isRestored) {
        m_isRestored = true;
        const QVariantMap saved = WindowSettings().value(Key).toMap();
        if (saved.contains(m_path))
            TreeViewState::fromStrings(saved.value(m_path).toStringList()).restore(m_tree);
    } else if (event->type() == QEvent::Hide && m_tree->topLevelItemCount() > 0) {
        save(); // unless the plots have been removed already
    }
    return QObject::eventFilter(watched, event);
}

void TreeViewMemory::save() const
{
    WindowSettings settings;
    const QStringList recent = settings.recentFiles();
    const QVariantMap before = settings.value(Key).toMap();
    QVariantMap states;
    for (const QString& path : before.keys())
        if (recent.contains(path))
            states.insert(path, before.value(path));
    states.insert(m_path, TreeViewState(m_tree).toStrings());
    settings.setValue(Key, states);
}

} // namespace workbench
