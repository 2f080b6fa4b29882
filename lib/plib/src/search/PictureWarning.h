#pragma once

#include <QObject>

#include <functional>

class QTreeWidget;
class QTreeWidgetItem;

namespace plib {

/// Warns the user once before a click that would add many pictures to the script. The click takes
/// effect only if the user confirms it.
class PictureWarning : public QObject
{
    Q_OBJECT

public:
    using Check = std::function<void(QTreeWidgetItem* item)>;

    /// The tree owns the object. `check` checks an item if the user confirms the click.
    PictureWarning(QTreeWidget* tree, Check check);

    /// Returns whether a click on an item that adds this number of pictures must wait for
    /// confirmation. In this case, the user is asked after the event has been processed.
    bool holdsBack(QTreeWidgetItem* item, int pictures);

private:
    void ask(const QPersistentModelIndex& index, int pictures);

    QTreeWidget* m_tree;
    Check m_check;
    bool m_isConfirmed = false;
    bool m_isAsking = false;
};

/// Returns the number of pictures that are added if the item and all its descendants are checked.
int newPictures(QTreeWidgetItem* item);

} // namespace plib
