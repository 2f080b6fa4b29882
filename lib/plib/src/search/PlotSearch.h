#pragma once

#include "search/searchHits.h"

#include <QObject>
#include <QSet>

#include <memory>
#include <utility>

class QTreeWidgetItem;
class VKD_QT_TreeWidget;

namespace plib {

class BranchState;

/// Shows only those plots and rows of an output tree that a search has found, with the captions
/// above them, and steps through them. After the search, the tree looks as it did before. If only
/// some rows of a plot were found, the other rows are hidden as soon as the plot is expanded. So
/// that each typed letter takes effect at once, the search itself expands these plots only up to a
/// number of rows that a user can look through. A rebuilt tree is searched again. SearchBar
/// controls the search.
class PlotSearch : public QObject
{
    Q_OBJECT

public:
    using Hits = PlotHits<QTreeWidgetItem>;

    /// The tree owns the object.
    explicit PlotSearch(VKD_QT_TreeWidget* tree);
    ~PlotSearch() override;

    /// Shows the plots and rows in which all words occur; only checked ones if `checkedOnly` is
    /// true. An empty text without this condition ends the search.
    void find(const QString& text, bool checkedOnly);
    bool isActive() const { return bool(m_before); }

    /// Returns the number of items found: plots that match as a whole, and rows of other plots.
    int count() const { return int(m_places.size()); }
    /// Returns the index of the current item among the items found, or -1.
    int position() const;
    /// Makes the next or previous item found the current item. The first item follows the last.
    void step(bool forward);

    /// Returns the parts of plots that were found, in the order of the tree.
    const std::vector<Hits>& hits() const { return m_hits; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted when isActive(), count() or position() may have changed.
    void changed();

private:
    /// The index of a plot in m_hits, and a row of the plot or PlotItself.
    using Place = std::pair<int, int>;

    void forget();
    void findAgain();
    void collect(const QStringList& words);
    void show();
    void showPlots(QTreeWidgetItem* caption);
    void hideRows(QTreeWidgetItem* plot);
    void showHiddenRows();
    void restore();
    const Hits* hitsOf(const QTreeWidgetItem* plot) const;
    Place placeOf(const QTreeWidgetItem* item) const;
    void setCurrent(const Place& place);

    VKD_QT_TreeWidget* m_tree;
    QString m_text;
    bool m_checkedOnly = false;
    bool m_isOutdated = false;             // the tree is being rebuilt
    std::unique_ptr<BranchState> m_before; // null if there is no search
    std::unique_ptr<SearchIndex<QTreeWidgetItem>> m_index;
    std::vector<Hits> m_hits;
    QHash<const QTreeWidgetItem*, int> m_hitsOfPlots; // indices in m_hits
    std::vector<Place> m_places;                      // all items found, in the order of the tree
    QSet<QTreeWidgetItem*> m_plotsWithHiddenRows;
    int m_rowsToExpand = 0;
};

} // namespace plib
