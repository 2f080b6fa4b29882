#include "tree/GraphicalOutputTreeWidget.h"

#include "catalogue/Catalogue.h"
#include "catalogue/ZobModelQueries.h"
#include "tree/CaptionTranslator.h"
#include "tree/GraphicalOutputTreeWidgetItem.h"
#include "tree/HostScript.h"
#include "tree/itemRoles.h"
#include "tree/outputTreeIcons.h"
#include "tree/RowLooks.h"
#include "tree/selectionText.h"
#include "tree/TreeBuilder.h"
#include "VKD_P_WidgetGraphicalOutput_Role.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_language.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_QT_SignalBlocker.h>
#include <ZobSnapshot.h>

#include <QHeaderView>
#include <QScopedValueRollback>

namespace {
using Item = GraphicalOutputTreeWidgetItem;
using vkd::plib::widgetgraphicaloutput::PlotLevel;

/// Implements the operations of the builder for the tree widget. A plot is added to the tree only
/// after the plot has all of its rows, so that the tree processes only one change.
class ItemOperations
{
public:
    /// Top-level items are added to `parentOfTops` in place of `root`.
    ItemOperations(const Item* root, QTreeWidgetItem* parentOfTops)
        : m_root(root)
        , m_parentOfTops(parentOfTops)
        , m_plotIcon(plib::plotIcon())
        , m_looks(vkd::desktopLanguage())
    {
    }

    /// Creates a row, which may be checked, or an unchecked item of another level.
    Item* create(Item* parent, const QString& text, int number, bool checked)
    {
        const bool isRow = parent->level == PlotLevel;
        Item* item = isRow ? new Item(m_looks.of(text, number, checked)) : new Item(text);
        if (parent == m_root)
            m_parentOfTops->addChild(item);
        else if (parent->level + 1 == PlotLevel)
            m_parentOfPlot = parent;
        else
            parent->addChild(item);
        return item;
    }
    void complete(Item* plot) { m_parentOfPlot->addChild(plot); }
    void remove(Item* item) { delete item; }
    void check(Item* item)
    {
        if (item->level > PlotLevel)
            item->takeLook(m_looks.of(item->text(0), item->number, true));
        else
            item->setCheckState(0, Qt::Checked);
    }
    void plotIcon(Item* item) { item->setIcon(0, m_plotIcon); }
    void rowIcon(Item*) {} // the look already contains the icon
    void expand(Item*) {}  // done later by expandPlots()

private:
    const Item* m_root;
    QTreeWidgetItem* m_parentOfTops;
    const QIcon m_plotIcon;
    plib::RowLooks m_looks;
    Item* m_parentOfPlot = nullptr; // parent of the plot that is still incomplete
};

/// Returns the plots of the catalogue that the page offers. Without the snapshot, each query would
/// lock the project file.
std::vector<const plib::GraphicalOutputRecord*> offeredPlots(const VKD_H_PluginParameter* parameter,
                                                             int progname,
                                                             const std::list<QString>& additional)
{
    const ZobSnapshot snapshot(ZobHandle(parameter->modelDoc()->index()));
    const plib::ZobModelQueries project(parameter);
    const plib::RememberedAnswers model(project);
    std::vector<const plib::GraphicalOutputRecord*> offered;
    for (const plib::GraphicalOutputRecord& record : plib::sharedCatalogue().list)
        if (plib::isRecordOffered(record, progname, model, additional))
            offered.push_back(&record);
    return offered;
}

QString dumpLine(Item* item, int indent)
{
    const plib::GraphicalOutputRecord& record = item->record;
    return QStringLiteral("%1 item %2 (%6) ids %3 %4 %5   isLC %7 ctrl %8")
        .arg(QString(indent, QLatin1Char(' ')), item->text(0), record.id1, record.id2, record.id3,
             plib::itemId(record, item->level), QString::number(item->isLC),
             QString::number(record.ctrl));
}
} // namespace

GraphicalOutputTreeWidget::GraphicalOutputTreeWidget(QWidget* parent, int kind,
                                                     VKD_H_PluginParameter* pluginParameter,
                                                     const char* name)
    : VKD_QT_TreeWidget(parent, name)
    , progname(kind)
    , parameter(pluginParameter)
{
    setAutomaticCheckStateUpdate(true);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setColumnFitsTexts();
    setAccessibleName(tr("Plots and loadcases"));
    new plib::HostScript(this);
    const auto showError = [this](const QString& title, const QString& text) {
        VKD_QT_MessageBox::critical(this, title, text);
    };
    if (!plib::loadCatalogue(plib::sharedCatalogue(), vkd::desktopLanguage(), showError))
        return;
    new plib::CaptionTranslator(this);
    refill(true);
    popup.build(this, false);
}

GraphicalOutputTreeWidget::~GraphicalOutputTreeWidget() = default;

void GraphicalOutputTreeWidget::rebuild(bool defaults)
{
    const bool hasCatalogue = popup.isBuilt();
    if (hasCatalogue)
        refill(defaults);
}

void GraphicalOutputTreeWidget::additionalData(const QString& tag, bool add)
{
    if (add)
        additional.push_back(tag);
    else
        additional.remove(QString(tag)); // copy: `tag` may refer to an element of the list
    rebuild(false);
}

void GraphicalOutputTreeWidget::setUsedNumbersAndNames(const Rows& newRows)
{
    if (newRows == rows)
        return;
    rows = newRows;
    rebuild(true);
}

int GraphicalOutputTreeWidget::collectScriptLines(std::vector<QString>& lines, bool english) const
{
    const plib::ZobModelQueries model(parameter);
    plib::LineOrigins& origins = findChild<plib::HostScript*>()->origins();
    origins = plib::collectScriptLines(invisibleRootItem(), lines, plib::keywordsIf(english),
                                       progname, [&model] { return model.kindOfSystem(); });
    return origins.count;
}

QString GraphicalOutputTreeWidget::selectionText() const
{
    return plib::selectionText(invisibleRootItem());
}

void GraphicalOutputTreeWidget::applySelection(const QString& text)
{
    const QScopedValueRollback<bool> busy(rebuilding, true);
    selectionLoaded = true;
    setChoice(text);
    Q_EMIT checkStatesChanged();
}

void GraphicalOutputTreeWidget::expandPlots()
{
    scheduleDelayedItemsLayout(); // must be first; otherwise, each expand() would lay out the tree
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QModelIndex top = model()->index(i, 0);
        expand(top);
        for (int j = 0; j < model()->rowCount(top); ++j)
            expand(model()->index(j, 0, top));
    }
}

void GraphicalOutputTreeWidget::closeLoads()
{
    QTreeWidgetItem* current = currentItem();
    if (current && outputItem(current) && outputItem(current)->level > PlotLevel)
        // Without a current item, the arrow keys would start at the first row.
        setCurrentItem(current->parent(), currentColumn(), QItemSelectionModel::NoUpdate);
    scheduleDelayedItemsLayout();
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QModelIndex top = model()->index(i, 0);
        for (int j = 0; j < model()->rowCount(top); ++j) {
            const QModelIndex second = model()->index(j, 0, top);
            for (int plot = 0; plot < model()->rowCount(second); ++plot)
                collapse(model()->index(plot, 0, second));
        }
    }
}

void GraphicalOutputTreeWidget::dump() const
{
    for (int i = 0; i < topLevelItemCount(); ++i)
        dump(topLevelItem(i), 0);
}

void GraphicalOutputTreeWidget::dump(QTreeWidgetItem* item, int indent) const
{
    Item* output = item ? outputItem(item) : nullptr;
    if (!output)
        return;
    dumpLine(output, indent);
    // Intentionally dumps only the first row of a plot, because the other rows differ only in the
    // load case.
    const int count = output->level == PlotLevel ? qMin(1, item->childCount()) : item->childCount();
    for (int i = 0; i < count; ++i)
        dump(item->child(i), indent + 1);
}

void GraphicalOutputTreeWidget::refill(bool defaults)
{
    const QScopedValueRollback<bool> busy(rebuilding, true);
    const bool keepsChoice = selectionLoaded && !defaults;
    const QString choice = keepsChoice ? selectionText() : QString();
    clear();
    fillTree();
    findChild<plib::CaptionTranslator*>()->translate();
    plib::publishRoles(this);
    if (topLevelItemCount() == 0)
        addTopLevelItem(new QTreeWidgetItem({tr("No Entries in database!")}));
    else if (keepsChoice)
        setChoice(choice);
    Q_EMIT checkStatesChanged();
}

void GraphicalOutputTreeWidget::fillTree()
{
    Item root; // replaces the tree's invisible root, which is not an output item
    root.level = -1;
    // With rows, each plot is added to the tree while its rows are still in the processor's caches.
    ItemOperations operations(&root, rows.empty() ? &root : invisibleRootItem());
    plib::TreeBuilder<Item, ItemOperations> builder(&root, rows, operations);
    setAutomaticCheckStateUpdate(false);
    for (const plib::GraphicalOutputRecord* record : offeredPlots(parameter, progname, additional))
        builder.add(*record);
    builder.finish();
    addTopLevelItems(root.takeChildren());
    setAutomaticCheckStateUpdate(true);
    expandPlots();
}

/// Blocks signals, because the automatic update would recompute the parents after each item.
/// plib::applySelection() computes each parent only once.
void GraphicalOutputTreeWidget::setChoice(const QString& text)
{
    const VKD_QT_SignalBlocker silence(model());
    plib::RowLooks looks(vkd::desktopLanguage());
    plib::applySelection(invisibleRootItem(), text, [&looks](Item* item, Qt::CheckState state) {
        if (item->checkState(0) == state)
            return;
        if (item->level > PlotLevel)
            item->takeLook(looks.like(*item, item->number, state == Qt::Checked));
        else
            item->setCheckState(0, state);
    });
    viewport()->update();
}
