#pragma once

#include "checkStates.h"
#include "GraphicalOutputRecord.h"

#include <LoadcaseInformation.h>

#include <QHash>
#include <QPair>

#include <vector>

namespace plib {

/// Fills an output tree from the records of a catalogue: top captions, second captions, plots, and
/// under a plot that binds to load cases a row for each of them.
///
/// `Operations` is what the builder needs of a tree besides the members of a node:
/// `Node* create(Node* parent, const QString& text)` appends an unchecked output item,
/// `complete(Node*)` is told of a new plot once it has its rows, `remove(Node*)` takes an item
/// away, `check(Node*)`, `plotIcon(Node*)`, `rowIcon(Node*)` and `expand(Node*)` do what they say.
/// Captions are found by an index of the builder's own, and each parent is settled once, plots as
/// soon as they have their rows, so that the work is linear in records and rows.
template <typename Node, typename Operations>
class TreeBuilder
{
public:
    using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;

    /// `root` is empty as yet and, like `rows`, outlives the builder.
    TreeBuilder(Node* root, const Rows& rows, Operations& operations)
        : m_root(root)
        , m_rows(rows)
        , m_operations(operations)
    {
    }

    /// Adds a record that the tree offers.
    void add(const GraphicalOutputRecord& record)
    {
        Node* top = caption(m_root, record.title1, record, 0);
        Node* second = caption(top, record.title2, record, 1);
        // A plot is used again only if it bears the caption of the level above: the comparison is
        // with title2 on purpose. So each record makes a plot of its own, be the captions the same
        // or not, unless an earlier plot is named as its parent is.
        Node* namesake = m_namesakes.value(second);
        Node* plot = namesake ? namesake : newPlot(second, record);
        addLoadcaseRows(plot, record);
        if (!namesake) {
            settleBranch(plot);
            m_operations.complete(plot);
        }
        removeIfEmpty(plot, second, top);
    }

    /// Gives every parent the state of its children. To be called once, behind the last record.
    void finish()
    {
        for (Node* plot : qAsConst(m_namesakes))
            settleBranch(plot); // it may have got more rows
        settleCaptions(1);
        settleCaptions(0);
    }

private:
    Node* create(Node* parent, const QString& text, const GraphicalOutputRecord& record, int level)
    {
        Node* node = m_operations.create(parent, text);
        node->record = record;
        node->level = level;
        return node;
    }

    Node* caption(Node* parent, const QString& text, const GraphicalOutputRecord& record, int level)
    {
        Node*& known = m_captions[qMakePair(parent, text)];
        if (!known) {
            known = create(parent, text, record, level);
            m_operations.expand(known);
        }
        return known;
    }

    Node* newPlot(Node* second, const GraphicalOutputRecord& record)
    {
        Node* made = create(second, record.title3, record, 2);
        m_operations.plotIcon(made);
        if (record.title3 == record.title2)
            m_namesakes.insert(second, made);
        return made;
    }

    void settleCaptions(int level)
    {
        for (Node* caption : qAsConst(m_captions))
            if (caption->level == level && caption->childCount() > 0)
                caption->setCheckState(0, stateOfChildren(caption));
    }

    void addLoadcaseRows(Node* plot, const GraphicalOutputRecord& record)
    {
        if (record.ctrl == CtrlStandsAlone) {
            plot->isLC = 0;
            m_operations.plotIcon(plot);
            m_operations.check(plot);
            checkRows(plot);
            return;
        }
        for (const auto& row : m_rows)
            if (takesRow(record.rowClass, row.kind))
                addRow(plot, row.name, row.number);
        if (plot->childCount() == 0)
            return;
        if (record.preselect == 1)
            m_operations.check(static_cast<Node*>(plot->child(0)));
        else if (record.preselect == 2 || record.preselect == 3)
            checkRows(plot);
    }

    /// Classes 1 and 2 take load cases, class 3 combinations of the design, any other class
    /// nothing.
    static bool takesRow(int rowClass, int kind)
    {
        return rowClass == 3 ? kind == 2 : (rowClass == 1 || rowClass == 2) && kind == 1;
    }

    void addRow(Node* plot, const QString& name, int number)
    {
        // Under a plot that is used again too, a row holds the plot's record, and so its script.
        Node* row = create(plot, name, plot->record, 3);
        m_operations.rowIcon(row);
        row->isLC = row->record.rowMark;
        row->number = number;
    }

    /// Checks all rows of the plot; those that are checked already are not visited again.
    void checkRows(Node* plot)
    {
        int& next = m_checkedRows[plot];
        for (; next < plot->childCount(); ++next)
            m_operations.check(static_cast<Node*>(plot->child(next)));
    }

    /// Takes away what a record without any script left behind. The parser lets no such record
    /// through; records made by hand can be so.
    void removeIfEmpty(Node* plot, Node* second, Node* top)
    {
        const auto hasNoScript = [](const Node* node) {
            return node->record.scriptGerman.isEmpty() && node->record.scriptEnglish.isEmpty();
        };
        if (plot->childCount() == 0 && plot->isLC > -99999 && plot->record.ctrl < 0 &&
            hasNoScript(plot)) {
            m_checkedRows.remove(plot);
            if (m_namesakes.value(second) == plot)
                m_namesakes.remove(second);
            m_operations.remove(plot);
        }
        if (second->childCount() == 0 && second->record.title3.isEmpty() && hasNoScript(second)) {
            m_captions.remove(qMakePair(top, second->text(0)));
            m_operations.remove(second);
        }
        if (top->childCount() == 0 && top->record.title2.isEmpty() && hasNoScript(top)) {
            m_captions.remove(qMakePair(m_root, top->text(0)));
            m_operations.remove(top);
        }
    }

    Node* m_root;
    const Rows& m_rows;
    Operations& m_operations;
    QHash<QPair<Node*, QString>, Node*> m_captions;
    QHash<Node*, Node*> m_namesakes; // by second level item: the plot that bears its caption
    QHash<Node*, int> m_checkedRows; // by plot: so many of its first rows are checked
};

} // namespace plib
