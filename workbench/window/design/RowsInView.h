#pragma once

#include <QHash>
#include <QObject>
#include <QVector>

#include <set>
#include <vector>

class AnimatorView;
class QPushButton;

namespace workbench {

class DesignDock;
class DesignPage;
class GroupList;
class PickBanner;
class RowColours;
class WindowMessages;

/// Links the rows of the design page with the view and the list of groups. The groups of the
/// selected rows are highlighted, a click on a group selects its row, and while picking is enabled,
/// a click adds the group to the current row or removes it.
class RowsInView : public QObject
{
    Q_OBJECT

public:
    /// The widgets that the object uses.
    struct Widgets
    {
        AnimatorView* view;
        GroupList* groups;
        PickBanner* banner;
        DesignDock* dock;
    };

    /// The widgets and the messages are not owned and must outlive the object.
    RowsInView(const Widgets& widgets, WindowMessages* messages);
    ~RowsInView() override;

    /// Must be called after the page in the dock has been replaced or removed.
    void pageChanged();
    /// Must be called after the groups in the list have changed.
    void groupsChanged();
    void setTexts();

    /// Returns the current row, or -1 if there is none or if its groups cannot be changed.
    int changeableRow() const;
    /// These functions add groups to a row or remove groups from it. Groups that are added are
    /// removed from other rows. The groups of the row must be changeable.
    void add(int row, const QVector<int>& groups);
    void remove(int row, const QVector<int>& groups);
    /// Returns the row of a group, which may be the row for the remaining groups, or -1.
    int rowOf(int group) const;
    /// Makes the row of a group the current row.
    void selectRowOf(int group);
    void selectRow(int row);

private:
    DesignPage* page() const;
    int currentRow() const;
    bool isPicking() const;
    void setPicking(bool isPicking);
    void togglePicked(int group);
    void takePicked();
    void readRows();
    void showRows();
    void showSelected();
    void mark(const std::set<int>& groups);
    void setGroups(int row, const QVector<int>& groups);
    QVector<int> selectedRows() const;

    Widgets m_widgets;
    WindowMessages* m_messages;
    QPushButton* m_pick;
    RowColours* m_colours;
    QHash<int, int> m_rowOf; // the first row of each group
    int m_remainingRow = -1;
    std::set<int> m_marked; // groups marked in the view and in the list
};

} // namespace workbench
