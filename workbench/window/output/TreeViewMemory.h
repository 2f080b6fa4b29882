#pragma once

#include <QObject>

class QTreeWidget;

namespace workbench {

/// Saves the state of the view of a dialog's tree in the program settings when the dialog is
/// hidden, and restores it when a dialog of the same project is first shown. The settings contain
/// the states of the recent projects. The dialog owns the object.
class TreeViewMemory : public QObject
{
    Q_OBJECT

public:
    /// `path` is the path of the project.
    TreeViewMemory(const QString& path, QTreeWidget* tree, QWidget* dialog);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void save() const;

    QString m_path;
    QTreeWidget* m_tree;
    bool m_isRestored = false;
};

} // namespace workbench
