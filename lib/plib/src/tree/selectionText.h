#pragma once

#include "catalogue/GraphicalOutputRecord.h"
#include "tree/checkStates.h"

#include <QHash>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <utility>
#include <vector>

namespace plib {

/// Returns the identifier of an item in the selection text: the identifiers of its captions down to
/// its own level, joined and trimmed. A row has the identifier of its plot.
QString itemId(const GraphicalOutputRecord& record, int level);

/// Appends the choice of one item and its descendants as lines of the selection text.
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
        text += QLatin1String("ERROR CASE\n"); // a leaf is never partially checked
    } else if (count == 0 && item->number > 0) {
        // Never reached by a walk from the root, because plots write the choice of their rows. For
        // readers of old files, the number replaces "%1" in the identifier and leaves "%2" in the
        // line unchanged on purpose.
        text += word + QString(id).replace(QLatin1String("%1"), QString::number(item->number)) +
                QLatin1String(":%2\n");
    } else {
        text += word + id + QLatin1Char('\n');
    }
}

/// Returns the choice of the whole tree as text. The text begins with an empty line.
template <typename Node>
QString selectionText(Node* root)
{
    QString text(QLatin1Char('\n'));
    for (int i = 0; i < root->childCount(); ++i)
        appendSelection(root->child(i), text);
    return text;
}

/// Finds items by identifier. If several items have the same one, the last item of a level is
/// found, and a caption takes precedence over its descendants. Rows are not indexed.
template <typename Node>
class ItemIndex
{
public:
    explicit ItemIndex(Node* root) { add(root, 0); }

    /// Returns null if no item has the identifier.
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

/// Returns the same as QStringRef::toInt(), 0 for a text that is not a number. Short runs of ASCII
/// digits are converted directly, because most of a selection text consists of them.
int selectionNumber(const QStringRef& text);

/// One valid line of a selection text.
struct SelectionLine
{
    enum Kind { Check, Uncheck, Partial };
    Kind kind;
    QString id;
    QVector<int> numbers; ///< of the rows to check; only for Partial
};

/// Returns the valid lines and skips all others. `isEmpty` is set to whether the text has no lines
/// at all; such a text leaves a tree unchanged.
std::vector<SelectionLine> parseSelection(const QString& text, bool* isEmpty);

/// Sets the check states from a selection text and unchecks all items that it does not name. The
/// result equals setting the items line by line with an automatic update after each, but each item
/// is set only once: the last line that affects the item or one of its ancestors wins. This keeps
/// the time linear in the number of items.
template <typename Node>
class SelectionApplier
{
public:
    explicit SelectionApplier(Node* root)
        : m_root(root)
        , m_index(root)
    {
    }

    /// Applies the lines. `setLeaf(item, state)` sets an item without children to Checked or
    /// Unchecked.
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
    /// The state that a line requests for an item and its descendants. The latest order wins.
    struct Order
    {
        int time = 0;
        Qt::CheckState state = Qt::Unchecked;

        Order orLater(Order other) const { return other.time > time ? other : *this; }
    };

    /// The children of an item by number, and the orders for them by index.
    struct Children
    {
        std::vector<std::pair<int, int>> places; // number and index, ascending
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
            // The last child with this number, as a search from the end would find it.
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
        if (item->level < RowLevel) // lines never name rows by identifier
            order = order.orLater(m_orders.value(item));
        if (count == 0)
            return setLeaf(item, order.state);
        const auto own = m_children.find(item);
        const Order* orders = own == m_children.end() ? nullptr : own->second.orders.data();
        for (int i = 0; i < count; ++i)
            setStates(item->child(i), orders ? order.orLater(orders[i]) : order, setLeaf);
        item->setCheckState(0, stateOfChildren(item)); // while the children are still in the cache
    }

    static constexpr int RowLevel = 3;

    Node* m_root;
    ItemIndex<Node> m_index;
    QHash<Node*, Order> m_orders;
    std::unordered_map<Node*, Children> m_children; // only of items with rows named in a line
    int m_time = 0;
};

/// Applies a selection text to the tree. A text without lines leaves the tree unchanged. For
/// `setLeaf`, see SelectionApplier::apply().
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
