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

/// Returns the identifier of an item in the selection text: the identifiers of its captions from
/// the top level down to its own level, concatenated and trimmed. A row has the identifier of its
/// plot.
QString itemId(const GraphicalOutputRecord& record, int level);

/// Appends the check states of one item and its descendants as lines of the selection text.
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
        // Not reached if the traversal starts at the root, because plots write the states of their
        // rows. For compatibility with old files, the number replaces "%1" in the identifier, and
        // "%2" is intentionally written to the line unchanged.
        text += word + QString(id).replace(QLatin1String("%1"), QString::number(item->number)) +
                QLatin1String(":%2\n");
    } else {
        text += word + id + QLatin1Char('\n');
    }
}

/// Returns the check states of the whole tree as a selection text, which begins with an empty line.
template <typename Node>
QString selectionText(Node* root)
{
    QString text(QLatin1Char('\n'));
    for (int i = 0; i < root->childCount(); ++i)
        appendSelection(root->child(i), text);
    return text;
}

/// Finds items by identifier. If several items on a level have the same identifier, the last item
/// is found. A caption takes precedence over its descendants. Rows are not indexed.
template <typename Node>
class ItemIndex
{
public:
    explicit ItemIndex(Node* root) { add(root, 0); }

    /// Returns the item, or null if no item has the identifier.
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

/// Returns the same result as QStringRef::toInt(), which is 0 if the text is not a number. Short
/// sequences of ASCII digits are converted directly, because a selection text consists mostly of
/// such numbers.
int selectionNumber(const QStringRef& text);

/// One valid line of a selection text.
struct SelectionLine
{
    enum Kind { Check, Uncheck, Partial };
    Kind kind;
    QString id;
    QVector<int> numbers; ///< numbers of the rows to check; only for Partial
};

/// Returns the valid lines and skips all other lines. Sets `isEmpty` to whether the text has no
/// lines at all; such a text does not change a tree.
std::vector<SelectionLine> parseSelection(const QString& text, bool* isEmpty);

/// Sets the check states from a selection text and unchecks all items that the text does not
/// contain. The result is the same as if the items were set line by line with an automatic update
/// after each line. However, each item is set only once: the last line that affects the item or one
/// of its ancestors wins. Therefore, the time is linear in the number of items.
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
    /// The state that a line requests for an item and its descendants. The most recent request
    /// takes precedence.
    struct Order
    {
        int time = 0;
        Qt::CheckState state = Qt::Unchecked;

        Order orLater(Order other) const { return other.time > time ? other : *this; }
    };

    /// The children of an item by number, and the requests for them by index.
    struct Children
    {
        std::vector<std::pair<int, int>> places; // pairs of number and index, ascending
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
            // If several children have this number, finds the last one.
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
        if (item->level < RowLevel) // lines never refer to rows by identifier
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
    std::unordered_map<Node*, Children> m_children; // items whose rows are listed in a line
    int m_time = 0;
};

/// Applies a selection text to the tree. A text without lines does not change the tree. For
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
