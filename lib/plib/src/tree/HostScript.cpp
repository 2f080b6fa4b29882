#include "tree/HostScript.h"

#include "catalogue/Catalogue.h"
#include "script/possibleLines.h"
#include "tree/GraphicalOutputTreeWidget.h"
#include "tree/GraphicalOutputTreeWidgetItem.h"
#include "VKD_P_WidgetGraphicalOutput_Script.h"

namespace plib {

HostScript::HostScript(GraphicalOutputTreeWidget* tree)
    : QObject(tree)
    , m_tree(tree)
{
    setObjectName(QLatin1String(vkd::plib::widgetgraphicaloutput::ScriptObject));
    connect(tree->model(), &QAbstractItemModel::modelReset, this, [this] { m_linesBefore = -1; });
}

QTreeWidgetItem* HostScript::itemOfLine(int line) const
{
    return m_linesBefore < 0
               ? nullptr
               : plib::itemOfLine(m_tree->invisibleRootItem(), m_origins, line - m_linesBefore);
}

QVector<int> HostScript::linesOfItem(QTreeWidgetItem* item) const
{
    if (m_linesBefore < 0)
        return {};
    const LineRange lines = plib::linesOfItem(m_tree->invisibleRootItem(), m_origins, item);
    return lines.count > 0 ? QVector<int>{m_linesBefore + lines.first, lines.count}
                           : QVector<int>();
}

QStringList HostScript::possibleLines(bool english) const
{
    return plib::possibleLines(sharedCatalogue().list, keywordsIf(english));
}

} // namespace plib
