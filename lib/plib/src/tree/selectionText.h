#pragma once

#include "catalogue/GraphicalOutputRecord.h"
#include "tree/checkStates.h"
#include "tree/RowOrders.h"
#include "VKD_P_WidgetGraphicalOutput_Role.h"

#include <QHash>
#include <QStringList>
#include <QVector>

#include <unordered_map>
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
    const QString id = itemId(recordOf(item), item->level);
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
            Node*& known = m_items[itemId(recordOf(item), item->level)];
            if (!known)
                known = item;
            if (level < 2)
                add(item, level + 1);
        }
    }

    QHash<QString, Node*> m_items;
};

/// Returns the numbers between the commas. Each number is read as with QString::toInt(), which
/// returns 0 for text that is not a number. Short sequences of ASCII digits are converted directly,
/// because a selection text consists mostly of such numbers.
QVector<int> selectionNumbers(QStringView text);

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
/// after each line. However, the tree is traversed only once: the last line that affects an item or
/// one of its ancestors wins. Therefore, the time is linear in the number of items.
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

    /// A line that lists rows, and the time of its request.
    struct RowList
    {
        const SelectionLine* line;
        int time;
    };

    /// The state of a parent: the common state of its children, or partially checked if they
    /// differ.
    struct JointState
    {
        void add(Qt::CheckState state)
        {
            value = isEmpty || value == state ? state : Qt::PartiallyChecked;
            isEmpty = false;
        }

        Qt::CheckState value = Qt::Unchecked;
        bool isEmpty = true;
    };

    void add(Node* item, const SelectionLine& line)
    {
        const bool checks = line.kind == SelectionLine::Check;
        m_orders[item] = {++m_time, checks ? Qt::Checked : Qt::Unchecked};
        if (!line.numbers.isEmpty())
            m_rowLists[item].push_back({&line, m_time});
        m_time += line.numbers.size();
    }

    /// Returns the orders for the rows of an item. They are created only when the rows are set, so
    /// that they are still in the processor's caches.
    static RowOrders rowOrders(const std::vector<RowList>& lists)
    {
        RowOrders rows;
        for (const RowList& list : lists)
            rows.add(list.line->numbers, list.time + 1);
        rows.sort();
        return rows;
    }

    /// Sets the item and its descendants, and returns the state of the item.
    template <typename Any, typename SetLeaf>
    Qt::CheckState setStates(Any* node, Order order, const SetLeaf& setLeaf)
    {
        auto* item = outputItem(node);
        if (!item)
            return node->checkState(0);
        using vkd::plib::widgetgraphicaloutput::RowLevel;
        if (item->level < RowLevel) // lines never refer to rows by identifier
            order = order.orLater(m_orders.value(item));
        if (item->childCount() == 0) {
            setLeaf(item, order.state);
            return order.state;
        }
        const auto lists = m_rowLists.find(item);
        const Qt::CheckState state = lists == m_rowLists.end()
                                         ? setChildren(item, order, setLeaf)
                                         : setRows(item, order, rowOrders(lists->second), setLeaf);
        item->setCheckState(0, state);
        return state;
    }

    /// Returns the state that results from the states of the children.
    template <typename SetLeaf>
    Qt::CheckState setChildren(Node* item, Order order, const SetLeaf& setLeaf)
    {
        JointState state;
        for (int i = 0; i < item->childCount(); ++i) {
            prefetchAfter(item, i);
            state.add(setStates(item->child(i), order, setLeaf));
        }
        return state.value;
    }

    /// Does the same for the children of an item whose rows are listed by number. If several rows
    /// have the same number, the list refers to the last one; the others get the state of the item.
    template <typename SetLeaf>
    Qt::CheckState setRows(Node* item, Order order, RowOrders rows, const SetLeaf& setLeaf)
    {
        JointState state;
        bool hasNamesakes = false;
        for (int i = 0; i < item->childCount(); ++i) {
            prefetchAfter(item, i);
            auto* child = outputItem(item->child(i));
            RowOrders::Row* row = child ? rows.find(child->number) : nullptr;
            if (row && row->index >= 0) {
                setStates(item->child(row->index), order, setLeaf);
                hasNamesakes = true;
            }
            if (row)
                row->index = i;
            const Order own = row ? order.orLater({row->time, Qt::Checked}) : order;
            state.add(setStates(item->child(i), own, setLeaf));
        }
        return hasNamesakes ? stateOfChildren(item) : state.value;
    }

    /// Loads a later child into the processor's caches in advance. Otherwise, most of the time
    /// would be spent waiting for each child in turn.
    static void prefetchAfter(const Node* item, int index)
    {
        constexpr int Ahead = 16;
        constexpr int CacheLine = 64;
        if (index + Ahead >= item->childCount())
            return;
        const auto child = reinterpret_cast<const char*>(item->child(index + Ahead));
        __builtin_prefetch(child);
        __builtin_prefetch(child + CacheLine);
    }

    Node* m_root;
    ItemIndex<Node> m_index;
    QHash<Node*, Order> m_orders;
    std::unordered_map<Node*, std::vector<RowList>> m_rowLists;
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
