#include "tree/itemRoles.h"

#include "tree/GraphicalOutputTreeWidgetItem.h"
#include "tree/selectionText.h"
#include "VKD_P_WidgetGraphicalOutput_Role.h"

#include <VKD_QT_SignalBlocker.h>

#include <QTreeWidget>

namespace plib {

namespace {
using namespace vkd::plib::widgetgraphicaloutput;

void publish(QTreeWidgetItem* parent, const QStringList& captionsAbove)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        GraphicalOutputTreeWidgetItem* item = outputItem(parent->child(i));
        if (!item)
            continue;
        const QStringList captions = captionsAbove + QStringList(item->text(0));
        item->setData(0, LevelRole, item->level);
        item->setData(0, IdentifierRole, itemId(item->record, item->level));
        if (item->level < PlotLevel) {
            publish(item, captions);
            continue;
        }
        item->setData(0, CaptionsRole, captions);
        item->setData(0, WaitsForLoadCasesRole, item->isLC < 0 && item->childCount() == 0);
    }
}
} // namespace

void publishRoles(QTreeWidget* tree)
{
    const VKD_QT_SignalBlocker silence(tree->model());
    publish(tree->invisibleRootItem(), {});
}

} // namespace plib
