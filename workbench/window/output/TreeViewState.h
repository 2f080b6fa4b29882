#pragma once

#include <QStringList>

class QTreeWidget;

namespace workbench {

/// The state of the view of an output page's tree: expanded branches, current row, scroll position
/// and search. It refers to items by identifier, so that it can be restored in another tree, or
/// after the offered plots, the load cases or the language have changed. Items that no longer exist
/// are skipped.
class TreeViewState
{
public:
    TreeViewState() = default;
    /// Reads the state of a tree that belongs to a page. An ongoing search is interrupted, in order
    /// to read the branches that are expanded without the search.
    explicit TreeViewState(QTreeWidget* tree);

    /// Restores the state. The focus does not change.
    void restore(QTreeWidget* tree) const;

    /// Removes the search, so that it is not restored.
    void endSearch();
    /// Returns the state as strings for the program settings, and reads these strings.
    QStringList toStrings() const;
    static TreeViewState fromStrings(const QStringList& texts);

private:
    class ItemKeys;

    void restoreBranches(QTreeWidget* tree, const ItemKeys& keys) const;

    QStringList m_toggled; ///< collapsed captions and expanded plots
    QString m_current;
    QString m_top;
    QString m_words; ///< words of the search
    bool m_checkedOnly = false;
    QString m_found; ///< the current row of the search
};

} // namespace workbench
