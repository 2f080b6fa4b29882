#pragma once

#include "sheet/PictureNumbers.h"

#include <QObject>
#include <QPointer>
#include <QVector>

class QTreeWidget;
class QTreeWidgetItem;

namespace workbench {

class OpenProject;
class ScriptPane;
class SheetPreview;
class WindowMessages;

/// Links the lines in the script pane to the plots of the output page. A click on a line makes its
/// plot the current item of the tree and shows its sheet; the lines of the current plot are marked.
/// The class also provides the data against which the script is checked.
class PlotLines : public QObject
{
    Q_OBJECT

public:
    /// The arguments are not owned and must outlive the object.
    PlotLines(OpenProject* project, WindowMessages* messages, ScriptPane* pane,
              SheetPreview* sheets);

    /// Marks the lines of the current plot in a new script. `dialog` contains the page that has
    /// generated the script.
    void follow(const QWidget* dialog);

private:
    QVector<int> linesOf(QTreeWidgetItem* item) const;
    void showPlotOf(int line);
    void markCurrent(bool reveals);

    WindowMessages* m_messages;
    ScriptPane* m_pane;
    SheetPreview* m_sheets;
    PictureNumbers m_pictures;
    QPointer<QTreeWidget> m_tree;
    QPointer<QObject> m_script;
    bool m_isChoosing = false; // whether a click in the pane is changing the current item
};

} // namespace workbench
