#include "search/PlotSearch.h"

#include "search/BranchState.h"
#include "search/treeItems.h"

#include <VKD_QT_TreeWidget.h>

#include <QEvent>

#include <algorithm>

namespace plib {

namespace {
constexpr int PlotItself = -1;
constexpr int AboveThePlot = -2;
constexpr int MaximumRows = 5000; ///< rows of the plots that a search expands
} // namespace

PlotSearch::PlotSearch(VKD_QT_TreeWidget* tree)
    : QObject(tree)
    , m_tree(tree)
{
    connect(tree->model(), &QAbstractItemModel::modelReset, this, &PlotSearch::forget);
    connect(tree, &VKD_QT_TreeWidget::checkStatesChanged, this, [this] {
        if (m_isOutdated) // emitted after a rebuild, when the tree is complete
            findAgain();
    });
    connect(tree, &QTreeWidget::itemExpanded, this, &PlotSearch::hideRows);
    connect(tree, &QTreeWidget::currentItemChanged, this, &PlotSearch::changed);
    tree->installEventFilter(this);
}

PlotSearch::~PlotSearch() = default;

/// The items no longer exist.
void PlotSearch::forget()
{
    m_isOutdated = true;
    m_index.reset();
    m_before.reset();
    m_hits.clear();
    m_hitsOfPlots.clear();
    m_places.clear();
    m_plotsWithHiddenRows.clear();
}

/// The captions are translated after this filter.
bool PlotSearch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_index.reset();
        QMetaObject::invokeMethod(this, &PlotSearch::findAgain, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void PlotSearch::find(const QString& text, bool checkedOnly)
{
    m_text = text;
    m_checkedOnly = checkedOnly;
    findAgain();
}

void PlotSearch::findAgain()
{
    m_isOutdated = false;
    const QStringList words = searchWords(m_text);
    const bool isWanted = m_checkedOnly || !words.isEmpty();
    if (isWanted || isActive()) {
        m_tree->setUpdatesEnabled(false);
        if (!isActive())
            m_before = std::make_unique<BranchState>(*m_tree);
        showHiddenRows();
        if (isWanted) {
            collect(words);
            show();
        } else {
            restore();
        }
        m_tree->setUpdatesEnabled(true);
    }
    Q_EMIT changed();
}

void PlotSearch::collect(const QStringList& words)
{
    if (!m_index)
        m_index = std::make_unique<SearchIndex<QTreeWidgetItem>>(m_tree->invisibleRootItem());
    m_hits = m_index->find(words, m_checkedOnly);
    m_hitsOfPlots.clear();
    m_places.clear();
    for (const Hits& hits : m_hits) {
        const int index = m_hitsOfPlots.size();
        m_hitsOfPlots.insert(hits.plot, index);
        if (hits.isWhole)
            m_places.emplace_back(index, PlotItself);
        for (int row : hits.rows)
            m_places.emplace_back(index, row);
    }
}

/// Hides and expands items in one pass. The tree lays out its items only once, because hiding an
/// item postpones the layout.
void PlotSearch::show()
{
    m_rowsToExpand = MaximumRows;
    QTreeWidgetItem* root = m_tree->invisibleRootItem();
    for (int i = 0; i < root->childCount(); ++i) {
        QTreeWidgetItem* top = root->child(i);
        bool hasHits = false;
        for (int j = 0; j < top->childCount(); ++j) {
            showPlots(top->child(j));
            hasHits |= !top->child(j)->isHidden();
        }
        top->setHidden(!hasHits);
        top->setExpanded(true);
    }
    if (m_places.empty())
        m_tree->setCurrentItem(nullptr); // keys must not change a hidden item
    else if (position() < 0)
        setCurrent(m_places.front());
    else
        m_tree->scrollToItem(m_tree->currentItem());
}

void PlotSearch::showPlots(QTreeWidgetItem* caption)
{
    bool hasHits = false;
    for (int i = 0; i < caption->childCount(); ++i) {
        QTreeWidgetItem* plot = caption->child(i);
        const Hits* hits = hitsOf(plot);
        plot->setHidden(!hits);
        if (!hits)
            continue;
        hasHits = true;
        plot->setExpanded(hits->isWhole ? m_before->isExpanded(plot) : m_rowsToExpand > 0);
        if (!hits->isWhole)
            m_rowsToExpand -= plot->childCount();
        if (plot->isExpanded())
            hideRows(plot);
    }
    caption->setHidden(!hasHits);
    caption->setExpanded(true);
}

/// Hides the rows of a plot that were not found. Does nothing for captions.
void PlotSearch::hideRows(QTreeWidgetItem* plot)
{
    const Hits* hits = hitsOf(plot);
    if (!hits || hits->isWhole || m_plotsWithHiddenRows.contains(plot))
        return;
    m_plotsWithHiddenRows.insert(plot);
    const QModelIndex index = indexOf(*m_tree, plot);
    auto found = hits->rows.begin();
    for (int row = 0; row < plot->childCount(); ++row) {
        const bool isFound = found != hits->rows.end() && *found == row;
        if (isFound)
            ++found;
        else
            m_tree->setRowHidden(row, index, true);
    }
}

void PlotSearch::showHiddenRows()
{
    for (QTreeWidgetItem* plot : qAsConst(m_plotsWithHiddenRows)) {
        const QModelIndex index = indexOf(*m_tree, plot);
        for (int row = 0; row < plot->childCount(); ++row)
            m_tree->setRowHidden(row, index, false);
    }
    m_plotsWithHiddenRows.clear();
}

void PlotSearch::restore()
{
    m_hits.clear();
    m_hitsOfPlots.clear();
    m_places.clear();
    for (QTreeWidgetItem* branch : branchesOf(*m_tree))
        branch->setHidden(false);
    const auto before = std::move(m_before);
    before->restore(m_tree);
}

/// Returns null if no part of the plot was found.
const PlotSearch::Hits* PlotSearch::hitsOf(const QTreeWidgetItem* plot) const
{
    const auto found = m_hitsOfPlots.constFind(plot);
    return found == m_hitsOfPlots.constEnd() ? nullptr : &m_hits[size_t(*found)];
}

/// Returns the place of a plot or row, even if it was not found, or the place before the first plot
/// below a caption.
PlotSearch::Place PlotSearch::placeOf(const QTreeWidgetItem* item) const
{
    if (!item)
        return {AboveThePlot, 0};
    const auto own = m_hitsOfPlots.constFind(item);
    if (own != m_hitsOfPlots.constEnd())
        return {*own, PlotItself};
    const auto plot = m_hitsOfPlots.constFind(item->parent());
    if (plot != m_hitsOfPlots.constEnd())
        return {*plot, item->parent()->indexOfChild(const_cast<QTreeWidgetItem*>(item))};
    for (size_t i = 0; i < m_hits.size(); ++i) {
        const QTreeWidgetItem* caption = m_hits[i].plot->parent();
        if (caption == item || caption->parent() == item)
            return {int(i), AboveThePlot};
    }
    return {AboveThePlot, 0};
}

int PlotSearch::position() const
{
    const Place current = placeOf(m_tree->currentItem());
    const auto found = std::lower_bound(m_places.begin(), m_places.end(), current);
    return found != m_places.end() && *found == current ? int(found - m_places.begin()) : -1;
}

void PlotSearch::step(bool forward)
{
    if (m_places.empty())
        return;
    const Place current = placeOf(m_tree->currentItem());
    if (forward) {
        const auto next = std::upper_bound(m_places.begin(), m_places.end(), current);
        setCurrent(next == m_places.end() ? m_places.front() : *next);
    } else {
        const auto next = std::lower_bound(m_places.begin(), m_places.end(), current);
        setCurrent(next == m_places.begin() ? m_places.back() : *std::prev(next));
    }
}

void PlotSearch::setCurrent(const Place& place)
{
    QTreeWidgetItem* plot = m_hits[size_t(place.first)].plot;
    QTreeWidgetItem* item = place.second == PlotItself ? plot : plot->child(place.second);
    m_tree->setCurrentItem(item);
    m_tree->scrollToItem(item);
}

} // namespace plib
