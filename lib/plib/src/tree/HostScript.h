#pragma once

#include "script/lineOrigins.h"

#include <QObject>
#include <QStringList>
#include <QVector>

class GraphicalOutputTreeWidget;
class QTreeWidgetItem;

namespace plib {

/// The script of an output page as hosts see it: the items that wrote its lines. Hosts cannot link
/// this class; they use its meta-object, which VKD_P_WidgetGraphicalOutput_Script.h documents. The
/// object is a child of the tree, which records the origins of the lines when it writes them.
class HostScript : public QObject
{
    Q_OBJECT

public:
    explicit HostScript(GraphicalOutputTreeWidget* tree);

    LineOrigins& origins() { return m_origins; }
    /// Sets the number of lines before the plots; -1 if the page has no script.
    void setLinesBefore(int count) { m_linesBefore = count; }

    Q_INVOKABLE QTreeWidgetItem* itemOfLine(int line) const;
    Q_INVOKABLE QVector<int> linesOfItem(QTreeWidgetItem* item) const;
    Q_INVOKABLE QStringList possibleLines(bool english) const;

private:
    GraphicalOutputTreeWidget* m_tree;
    LineOrigins m_origins;
    int m_linesBefore = -1;
};

} // namespace plib
