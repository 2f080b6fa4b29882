#include "window/output/TreeViewState.h"

#include <VKD_P_WidgetGraphicalOutput_Role.h>

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QHash>
#include <QLineEdit>
#include <QSet>
#include <QTreeWidget>

namespace workbench {

namespace {
using namespace vkd::plib::widgetgraphicaloutput;

constexpr QChar RowMark = u'\t'; ///< precedes the load case in the key of a row
constexpr int FixedStrings = 5;  ///< strings before the list of branches
} // namespace

/// The keys of the captions and plots of a tree. Items with the same identifier are numbered.
class TreeViewState::ItemKeys
{
public:
    explicit ItemKeys(const QTreeWidget& tree) { add(tree.invisibleRootItem()); }

    QString keyOf(const QTreeWidgetItem* item) const
    {
        if (!item)
            return QString();
        const QVariant loadCase = item->data(0, LoadCaseRole);
        return loadCase.isValid() ? m_keys.value(item->parent()) + RowMark + loadCase.toString()
                                  : m_keys.value(item);
    }

    QTreeWidgetItem* itemOf(const QString& key) const
    {
        const QStringList parts = key.split(RowMark);
        QTreeWidgetItem* item = m_items.value(parts.first());
        for (int i = 0; item && parts.size() > 1 && i < item->childCount(); ++i)
            if (item->child(i)->data(0, LoadCaseRole).toString() == parts.last())
                return item->child(i);
        return item;
    }

    const QVector<QTreeWidgetItem*>& branches() const { return m_branches; }

private:
    void add(QTreeWidgetItem* parent)
    {
        for (int i = 0; i < parent->childCount(); ++i) {
            QTreeWidgetItem* item = parent->child(i);
            const int level = item->data(0, LevelRole).toInt();
            const QString id = item->data(0, IdentifierRole).toString();
            const QString key = id + QLatin1Char('/') + QString::number(m_counts[id]++);
            m_keys.insert(item, key);
            m_items.insert(key, item);
            m_branches << item;
            if (level < PlotLevel)
                add(item);
        }
    }

    QVector<QTreeWidgetItem*> m_branches;
    QHash<const QTreeWidgetItem*, QString> m_keys;
    QHash<QString, QTreeWidgetItem*> m_items;
    QHash<QString, int> m_counts; // by identifier
};

namespace {
bool isExpandedAtFirst(const QTreeWidgetItem* item)
{
    return item->data(0, LevelRole).toInt() < PlotLevel;
}

/// The page's search line, which does not exist before the first search.
struct Search
{
    explicit Search(const QTreeWidget* tree)
        : words(tree->parentWidget()->findChild<QLineEdit*>(QStringLiteral("searchWords")))
        , checkedOnly(
              tree->parentWidget()->findChild<QCheckBox*>(QStringLiteral("searchCheckedOnly")))
    {
    }

    void set(const QString& text, bool isCheckedOnly)
    {
        if (!words)
            return;
        words->setText(text);
        checkedOnly->setChecked(isCheckedOnly);
    }

    QLineEdit* words;
    QCheckBox* checkedOnly;
};

/// Opens or closes the search line without changing the focus.
void showSearch(const QTreeWidget* tree, bool isShown)
{
    QWidget* focus = tree->window()->focusWidget();
    const QWidget* page = tree->parentWidget();
    if (isShown)
        tree->window()->findChild<QAction*>(QStringLiteral("findPlots"))->trigger();
    else if (const auto close = page->findChild<QAbstractButton*>(QStringLiteral("searchClose")))
        close->click();
    if (focus)
        focus->setFocus();
}
} // namespace

TreeViewState::TreeViewState(QTreeWidget* tree)
{
    const ItemKeys keys(*tree);
    Search search(tree);
    QTreeWidgetItem* found = tree->currentItem();
    if (search.words) {
        m_words = search.words->text();
        m_checkedOnly = search.checkedOnly->isChecked();
        m_found = keys.keyOf(found);
        search.set(QString(), false);
    }
    for (const QTreeWidgetItem* branch : keys.branches())
        if (branch->isExpanded() != isExpandedAtFirst(branch))
            m_toggled << keys.keyOf(branch);
    m_current = keys.keyOf(tree->currentItem());
    m_top = keys.keyOf(tree->itemAt(0, 0));
    search.set(m_words, m_checkedOnly);
    if (tree->currentItem() != found)
        tree->setCurrentItem(found);
}

void TreeViewState::restore(QTreeWidget* tree) const
{
    showSearch(tree, false);
    const ItemKeys keys(*tree);
    restoreBranches(tree, keys);
    if (!m_checkedOnly && m_words.isEmpty())
        return;
    showSearch(tree, true);
    Search(tree).set(m_words, m_checkedOnly);
    if (QTreeWidgetItem* found = keys.itemOf(m_found))
        tree->setCurrentItem(found);
}

/// Does not scroll to the current row, which would expand the branches above it.
void TreeViewState::restoreBranches(QTreeWidget* tree, const ItemKeys& keys) const
{
    const QSet<QString> toggled(m_toggled.begin(), m_toggled.end());
    for (QTreeWidgetItem* branch : keys.branches())
        branch->setExpanded(isExpandedAtFirst(branch) != toggled.contains(keys.keyOf(branch)));
    const bool scrolls = tree->hasAutoScroll();
    tree->setAutoScroll(false);
    if (QTreeWidgetItem* current = keys.itemOf(m_current))
        tree->setCurrentItem(current);
    tree->setAutoScroll(scrolls);
    if (QTreeWidgetItem* top = keys.itemOf(m_top))
        tree->scrollToItem(top, QAbstractItemView::PositionAtTop);
}

void TreeViewState::endSearch()
{
    m_words.clear();
    m_checkedOnly = false;
    m_found.clear();
}

QStringList TreeViewState::toStrings() const
{
    return QStringList{m_current, m_top, m_words, QString::number(m_checkedOnly), m_found} +
           m_toggled;
}

TreeViewState TreeViewState::fromStrings(const QStringList& texts)
{
    TreeViewState state;
    if (texts.size() < FixedStrings)
        return state;
    state.m_current = texts[0];
    state.m_top = texts[1];
    state.m_words = texts[2];
    state.m_checkedOnly = texts[3] == QLatin1String("1");
    state.m_found = texts[4];
    state.m_toggled = texts.mid(FixedStrings);
    return state;
}

} // namespace workbench
