#pragma once

#include "catalogue/GraphicalOutputRecord.h"
#include "tree/checkStates.h"

#include <LoadcaseInformation.h>

#include <QHash>
#include <QPair>

#include <vector>

namespace plib {

/// Builds an output tree from the records of a catalogue: captions of the top level, captions of
/// the second level, and plots. A plot that is bound to load cases has one row per load case.
///
/// `Operations` provides the tree operations that nodes do not provide:
/// `Node* create(Node* parent, const QString& text, int number, bool checked)` appends an output
/// item, where `number` is the load case of a row or 0; `complete(Node*)` is called for a new plot
/// after its rows have been created; `remove(Node*)` deletes an item; `check(Node*)` checks it;
/// `plotIcon(Node*)` and `rowIcon(Node*)` set its icon; `expand(Node*)` expands it. The builder
/// looks up captions in its own hash table. It computes the state of each parent once, and the
/// state of a plot as soon as its rows are complete. Therefore, the time is linear in the number of
/// records and rows.
template <typename Node, typename Operations>
class TreeBuilder
{
public:
    using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;

    /// `root` must be empty. `root` and `rows` must outlive the builder.
    TreeBuilder(Node* root, const Rows& rows, Operations& operations)
        : m_root(root)
        , m_rows(rows)
        , m_operations(operations)
    {
    }

    /// Adds the plot of a record. The page must offer this plot.
    void add(const GraphicalOutputRecord& record)
    {
        Node* top = caption(m_root, record.title1, record, 0);
        Node* second = caption(top, record.title2, record, 1);
        // Intentionally, only a plot with the same caption as its parent is reused. Any other
        // record gets its own plot, even if another plot has the same caption.
        Node* namesake = m_namesakes.value(second);
        Node* plot = namesake ? namesake : newPlot(second, record);
        addLoadcaseRows(plot, record);
        if (!namesake) {
            settleNew(plot, record);
            m_operations.complete(plot);
        }
        removeIfEmpty(plot, second, top);
    }

    /// Computes the state of each parent from its children. Must be called once, after the last
    /// record.
    void finish()
    {
        for (Node* plot : qAsConst(m_namesakes))
            settleBranch(plot); // later records may have added rows
        settleCaptions(1);
        settleCaptions(0);
    }

private:
    Node* create(Node* parent, const QString& text, const GraphicalOutputRecord& record, int level,
                 int number = 0, bool checked = false)
    {
        Node* node = m_operations.create(parent, text, number, checked);
        setRecord(node, record);
        node->level = level;
        node->number = number;
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
        if (checksAll(record))
            checkRows(plot); // also checks the rows of earlier records
        for (const auto& row : m_rows)
            if (takesRow(record.rowClass, row.kind))
                addRow(plot, row.name, row.number, checksAll(record));
        if (checksAll(record))
            m_checkedRows[plot] = plot->childCount();
        else if (record.preselect == 1 && plot->childCount() > 0)
            m_operations.check(static_cast<Node*>(plot->child(0)));
    }

    /// Computes the state of a plot from the rule that determined which rows are checked. Reading
    /// the states of the rows instead would take a third of the time of a rebuild.
    static void settleNew(Node* plot, const GraphicalOutputRecord& record)
    {
        const int count = plot->childCount();
        if (count == 0)
            return;
        const bool checksFirst = record.preselect == 1;
        if (checksAll(record) || (checksFirst && count == 1))
            plot->setCheckState(0, Qt::Checked);
        else if (checksFirst)
            plot->setCheckState(0, Qt::PartiallyChecked);
    }

    static bool checksAll(const GraphicalOutputRecord& record)
    {
        return record.preselect == 2 || record.preselect == 3;
    }

    /// Classes 1 and 2 have rows for load cases, class 3 has rows for design combinations, and
    /// other classes have no rows.
    static bool takesRow(int rowClass, int kind)
    {
        return rowClass == 3 ? kind == 2 : (rowClass == 1 || rowClass == 2) && kind == 1;
    }

    void addRow(Node* plot, const QString& name, int number, bool checked)
    {
        // Rows always have the record of the plot, including the script, even if the plot is
        // reused.
        Node* row = create(plot, name, recordOf(plot), 3, number, checked);
        m_operations.rowIcon(row);
        row->isLC = recordOf(row).rowMark;
    }

    /// Checks all rows of the plot. Rows checked by an earlier call are not visited again.
    void checkRows(Node* plot)
    {
        int& next = m_checkedRows[plot];
        for (; next < plot->childCount(); ++next)
            m_operations.check(static_cast<Node*>(plot->child(next)));
    }

    /// Removes the items of a plot if its record has no script. The parser rejects such records,
    /// but records created in code may have no script.
    void removeIfEmpty(Node* plot, Node* second, Node* top)
    {
        const auto hasNoScript = [](const Node* node) {
            return recordOf(node).scriptGerman.isEmpty() && recordOf(node).scriptEnglish.isEmpty();
        };
        if (plot->childCount() == 0 && plot->isLC > -99999 && recordOf(plot).ctrl < 0 &&
            hasNoScript(plot)) {
            m_checkedRows.remove(plot);
            if (m_namesakes.value(second) == plot)
                m_namesakes.remove(second);
            m_operations.remove(plot);
        }
        if (second->childCount() == 0 && recordOf(second).title3.isEmpty() && hasNoScript(second)) {
            m_captions.remove(qMakePair(top, second->text(0)));
            m_operations.remove(second);
        }
        if (top->childCount() == 0 && recordOf(top).title2.isEmpty() && hasNoScript(top)) {
            m_captions.remove(qMakePair(m_root, top->text(0)));
            m_operations.remove(top);
        }
    }

    Node* m_root;
    const Rows& m_rows;
    Operations& m_operations;
    QHash<QPair<Node*, QString>, Node*> m_captions;
    QHash<Node*, Node*> m_namesakes; // by second-level item: the plot with the same caption
    QHash<Node*, int> m_checkedRows; // by plot: number of leading rows that are checked
};

} // namespace plib
