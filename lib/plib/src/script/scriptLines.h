#pragma once

#include "catalogue/GraphicalOutputRecord.h"
#include "script/Keywords.h"
#include "script/rowLabel.h"

#include <VKD_P_WidgetGraphicalOutput_Progname.h>
#include <VKD_P_WidgetGraphicalOutput_Role.h>

#include <functional>
#include <utility>
#include <vector>

namespace plib {

/// The keywords of one language, and the view and load case that the lines written so far have
/// selected.
struct ScriptContext
{
    int lastCase = -1;
    QString lastView;
    QString viewWord;
    QString lcWord;
    QString designWord;
    QString andWord;
    QString firstColour;
    QString secondColour;
    QString colourEnd;
};

ScriptContext scriptContext(Keywords keywords);

/// Writes the script lines of one run. collectScriptLines() traverses the tree; this class
/// implements the rules for a single checked plot or row.
class ScriptLineWriter
{
public:
    using KindOfSystem = std::function<int()>;

    /// `kindOfSystem` is called at most once, and only if the view of a plot depends on it.
    ScriptLineWriter(std::vector<QString>& lines, Keywords keywords, int progname,
                     KindOfSystem kindOfSystem);

    /// Returns the script of a record in the keyword language of the run.
    const QString& script(const GraphicalOutputRecord& record) const;
    void writeView(int viewKind);
    /// Writes all lines of a load case, whose number must be greater than 0. `label` returns the
    /// label of the load case and is called only if needed. `above` returns the record of the
    /// second caption, or null; the script of this record determines the unit.
    template <typename Label, typename Above>
    void writeCase(int number, const QString& text, Label label, Above above)
    {
        if (m_progname == VKD_P_GraphicalOutput_Split)
            return writeSplit(number, text);
        writeCaseLine(number);
        const int second = secondNumber(label());
        if (second == NoSecondNumber)
            m_lines.push_back(text);
        else
            writeDouble(second, text, above());
    }
    void writeText(const QString& text) { m_lines.push_back(text); }

private:
    void writeSplit(int number, QString text);
    void writeCaseLine(int number);
    void writeDouble(int second, const QString& text, const GraphicalOutputRecord* above);
    QString caseLine(int number) const;
    QLatin1String viewName(int viewKind);

    std::vector<QString>& m_lines;
    const Keywords m_keywords;
    const int m_progname;
    KindOfSystem m_askKind;
    bool m_kindKnown = false;
    bool m_isSpatial = false;
    ScriptContext m_context;
};

/// Calls `visit(item, parent)` for each descendant that writes lines, in the order of the script:
/// children before their parents. Stops and returns false if `visit` returns false.
template <typename Node, typename Visit>
bool visitWriters(Node* parent, Visit&& visit)
{
    const int count = parent->childCount();
    for (int i = 0; i < count; ++i) {
        auto* item = outputItem(parent->child(i));
        if (!item)
            continue;
        if (!visitWriters<Node>(item, visit))
            return false;
        if (item->isLC >= 0 && item->checkState(0) != Qt::Unchecked && !visit(item, parent))
            return false;
    }
    return true;
}

/// Writes the lines of a checked plot or row.
template <typename Item, typename Node>
void writeItem(Item* item, Node* parent, ScriptLineWriter& writer)
{
    writer.writeView(recordOf(item).viewKind);
    const QString& text = writer.script(recordOf(item));
    if (item->number == 0)
        writer.writeText(text);
    else if (item->number > 0)
        // The parent of a row is its plot. The unit is intentionally determined by the item above
        // the plot, which has the record of its first plot, and not by the plot's own record.
        writer.writeCase(
            item->number, text, [item] { return item->text(0); },
            [parent] {
                return parent->parent() ? &recordOf(outputItem(parent->parent())) : nullptr;
            });
}

/// The items that wrote the lines of a script, in the order of the script, and the numbers of plots
/// and pictures.
struct LineOrigins
{
    std::vector<int> starts; ///< the index of the first line of each item
    int count = 0;           ///< the number of all lines that the items have written
    int plots = 0;
    int pictures = 0; ///< two load cases in one picture are counted once
};

/// Returns whether an item draws a picture if it is checked. A row with a negative number can only
/// set the view.
template <typename Item>
bool drawsPicture(const Item* item)
{
    return item->isLC >= 0 && item->number >= 0;
}

/// Replaces `lines` with the script lines of the checked plots and rows below the root, with German
/// or English keywords. The result is empty if the first item of the tree is not an output item.
/// Returns which item wrote which lines.
template <typename Node>
LineOrigins collectScriptLines(Node* root, std::vector<QString>& lines, Keywords keywords,
                               int progname, ScriptLineWriter::KindOfSystem kindOfSystem)
{
    lines.clear();
    LineOrigins origins;
    if (root->childCount() == 0 || !outputItem(root->child(0)))
        return origins;
    ScriptLineWriter writer(lines, keywords, progname, std::move(kindOfSystem));
    using vkd::plib::widgetgraphicaloutput::PlotLevel;
    const Node* lastPlot = nullptr;
    for (int i = 0; i < root->childCount(); ++i)
        visitWriters(root->child(i), [&](auto* item, Node* parent) {
            origins.starts.push_back(int(lines.size()));
            writeItem(item, parent, writer);
            if (!drawsPicture(item))
                return true;
            const Node* plot = item->level > PlotLevel ? parent : item;
            origins.plots += plot != std::exchange(lastPlot, plot);
            ++origins.pictures;
            return true;
        });
    origins.count = int(lines.size());
    return origins;
}

} // namespace plib
