#pragma once

#include <QTreeWidget>

#include <vector>

namespace workbench {

/// The primary groups of a project with number, title and contents. It tells which group the user
/// points at, with the mouse or the keyboard, and shows the one that is pointed at elsewhere.
class GroupList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit GroupList(QWidget* parent = nullptr);

    /// Lists the groups of the project at this database index; below 1 there are none.
    void setProject(int index);
    /// Marks a group that is pointed at elsewhere, without a signal; AnimatorView::NoGroup for
    /// none. The current row stays.
    void setMarkedGroup(int group);
    /// Those that the design of area elements has no use for, ascending.
    const std::vector<int>& groupsWithoutAreas() const { return m_withoutAreas; }

Q_SIGNALS:
    /// The group below the mouse or, without one, the current group while the list has the focus;
    /// or AnimatorView::NoGroup.
    void groupPointed(int group);
    /// The user activated a group, by Enter or a double click.
    void groupChosen(int group);

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void setTexts();
    void fill();
    void fitColumns();
    void pointAtCurrent();
    void pointAt(const QTreeWidgetItem* item);

    int m_index = -1;
    std::vector<int> m_withoutAreas;
};

} // namespace workbench
