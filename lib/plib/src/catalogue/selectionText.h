#pragma once

#include "checkStates.h"
#include "GraphicalOutputRecord.h"

#include <QHash>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <utility>
#include <vector>

namespace plib {

/// The identifier of an item in the selection text: the identifiers of its captions down to its own
/// level, trimmed. A row has that of its plot.
QString itemId(const GraphicalOutputRecord& record, int level);

/// The choice of one item and what is below it, as lines of the selection text.
template <typename Node>
void appendSelection(Node* node, QString& text)
{
    auto* item = outputItem(node);
    if (!item)
        return;
    const QString id = itemId(item->record, item->level);
    const Qt::CheckState state = item->checkState(0);
    const QLatin1String word(state == Qt::Checked ? "Checked:" : "Unchecked:");
    const int count = item->childCount();
    if (count > 0 && state == Qt::PartiallyChecked) {
        if (item->level != 2) {
            for (int i = 0; i < count; ++i)
                appendSelection(item->child(i), text);
            return;
        }
        text += QLatin1String("Partially:") + id + QLatin1String(" : ");
        for (int i = 0; i < count; ++i)
            if (item->child(i)->checkState(0) == Qt::Checked)
                if (auto* row = outputItem(item->child(i)))
                    text += QString::number(row->number) + QLatin1Char(',');
        text += QLatin1Char('\n');
    } else if (state == Qt::PartiallyChecked) {
        text += QLatin1String("ERROR CASE\n"); // a leaf cannot be in between
    } else if (count == 0 && item->number > 0) {
        // Plots answer for their rows, so the walk does not come here. If it did, the number goes
        // into the identifier and not into its own place, on purpose: readers of old files know
        // that line.
        text += word + QString(id).replace(QLatin1String("%1"), QString::number(item->number)) +
                QLatin1String(":%2\n");
    } else {
        text += word + id + QLatin1Char('\n');
    }
}

/// The choice of the whole tree as text; begins with an empty line.
template <typename Node>
QString selectionText(Node* root)
{
    QString text(QLatin1Char('\n'));
    for (int i = 0; i < root->childCount(); ++i)
        appendSelection(root->child(i), text);
    return text;
}

/// Finds items by their identifier. Of several items with the same one, that which stands last in
/// its level is found, a caption before what is below it; rows are not looked at.
template <typename Node>
class ItemIndex
{
public:
    explicit ItemIndex(Node* root) { add(root, 0); }

    /// Null if no item has the identifier.
    Node* findItem(const QString& id) const { return m_items.value(id); }

private:
    void add(Node* parent, int level)
    {
        for (int i = parent->childCount() - 1; i >= 0; --i) {
            auto* item = outputItem(parent->child(i));
            if (!item)
                continue;
            Node*& known = m_items[itemId(item->record, item->level)];
            if (!known)
                known = item;
            if (level < 2)
                add(item, level + 1);
        }
    }

    QHash<QString, Node*> m_items;
};

/// What QStringRef::toInt() reads, 0 for what is no number; short runs of ASCII digits by
/// themselves, which is what nearly all of a selection text is made of.
int selectionNumber(const QStringRef& text);

/// One line of a selection text that can be applied.
struct SelectionLine
{
    enum Kind { Check, Uncheck, Partial };
    Kind kind;
    QString id;
    QVector<int> numbers; ///< of the rows to check, Partial only
};

/// The lines that say something; others are skipped. `isEmpty` tells that the text has no line at
/// all, which leaves a tree as it is.
std::vector<SelectionLine> parseSelection(const QString& text, bool* isEmpty);

/// Sets the check states from a selection text; what it does not name becomes unchecked. The result
/// is that of setting item after item with an automatic update in between, but each item is
/// touched once: the last line that reaches an item, by itself or from above, holds.
template <typename Node>
class SelectionApplier
{
public:
    explicit SelectionApplier(Node* root)
        : m_root(root)
        , m_index(root)
    {
    }

    /// `setLeaf(item, state)` sets an item without children to Checked or Unchecked.
    template <typename SetLeaf>
    void apply(const std::vector<SelectionLine>& lines, const SetLeaf& setLeaf)
    {
        for (const SelectionLine& line : lines)
            if (Node* item = m_index.findItem(line.id))
                add(item, line);
        for (int i = 0; i < m_root->childCount(); ++i)
            setStates(m_root->child(i), Order(), setLeaf);
    }

private:
    /// What a line orders for an item and all below it; a later order wins.
    struct Order
    {
        int time = 0;
        Qt::CheckState state = Qt::Unchecked;

        Order orLater(Order other) const { return other.time > time ? other : *this; }
    };

    /// The children of an item by number, and what lines order for them by their place.
    struct Children
    {
        std::vector<std::pair<int, int>> places; // number and place, in rising order
        std::vector<Order> orders;
    };

    void add(Node* item, const SelectionLine& line)
    {
        const bool checks = line.kind == SelectionLine::Check;
        m_orders[item] = {++m_time, checks ? Qt::Checked : Qt::Unchecked};
        if (line.numbers.isEmpty())
            return;
        Children& children = childrenOf(item);
        for (int number : line.numbers) {
            // The last of those with this number, as a search from the back would find.
            auto found = std::upper_bound(children.places.begin(), children.places.end(),
                                          std::make_pair(number, std::numeric_limits<int>::max()));
            if (found != children.places.begin() && (--found)->first == number)
                children.orders[size_t(found->second)] = {++m_time, Qt::Checked};
        }
    }

    Children& childrenOf(Node* item)
    {
        auto found = m_children.find(item);
        if (found != m_children.end())
            return found->second;
        Children& children = m_children[item];
        const int count = item->childCount();
        children.orders.resize(size_t(count));
        children.places.reserve(size_t(count));
        for (int i = 0; i < count; ++i)
            if (auto* child = outputItem(item->child(i)))
                children.places.emplace_back(child->number, i);
        if (!std::is_sorted(children.places.begin(), children.places.end()))
            std::sort(children.places.begin(), children.places.end());
        return children;
    }

    template <typename Any, typename SetLeaf>
    void setStates(Any* node, Order order, const SetLeaf& setLeaf)
    {
        auto* item = outputItem(node);
        if (!item)
            return;
        const int count = item->childCount();
        if (item->level < RowLevel) // rows are never named by themselves
            order = order.orLater(m_orders.value(item));
        if (count == 0)
            return setLeaf(item, order.state);
        const auto own = m_children.find(item);
        const Order* orders = own == m_children.end() ? nullptr : own->second.orders.data();
        for (int i = 0; i < count; ++i)
            setStates(item->child(i), orders ? order.orLater(orders[i]) : order, setLeaf);
        item->setCheckState(0, stateOfChildren(item)); // while the children are at hand
    }

    static constexpr int RowLevel = 3;

    Node* m_root;
    ItemIndex<Node> m_index;
    QHash<Node*, Order> m_orders;
    std::unordered_map<Node*, Children> m_children; // of items that a line names rows of
    int m_time = 0;
};

/// Applies a selection text to the tree; a text without any line leaves it as it is. For `setLeaf`
/// see SelectionApplier::apply().
template <typename Node, typename SetLeaf>
void applySelection(Node* root, const QString& text, const SetLeaf& setLeaf)
{
    bool isEmpty = false;
    const std::vector<SelectionLine> lines = parseSelection(text, &isEmpty);
    if (!isEmpty)
        SelectionApplier<Node>(root).apply(lines, setLeaf);
}

template <typename Node>
void applySelection(Node* root, const QString& text)
{
    applySelection(root, text,
                   [](auto* item, Qt::CheckState state) { item->setCheckState(0, state); });
}

} // namespace plib
