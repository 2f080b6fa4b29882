#pragma once

#include <QObject>
#include <QSet>
#include <QVector>

class AnimatorView;
class QMenu;

namespace workbench {

class GroupList;
class RowsInView;

/// The context menu of groups in the list and in the view. It hides and isolates groups in the
/// view, and adds them to the current design row.
class GroupMenu : public QObject
{
    Q_OBJECT

public:
    /// The arguments are not owned and must outlive the object.
    GroupMenu(AnimatorView* view, GroupList* groups, RowsInView* rows);

    /// Shows all groups, for example those of another project.
    void showAll();

private:
    void open(const QVector<int>& groups, const QPoint& place);
    void addRowActions(QMenu* menu, const QVector<int>& groups);
    void setHidden(const QSet<int>& groups);

    AnimatorView* m_view;
    GroupList* m_groups;
    RowsInView* m_rows;
    QSet<int> m_hidden;
};

} // namespace workbench
