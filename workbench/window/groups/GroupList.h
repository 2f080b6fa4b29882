#pragma once

#include <vkd_status.h>
#include <ZobHandle.h>

#include <QHash>
#include <QSet>
#include <QTreeWidget>

#include <vector>

namespace workbench {

/// The primary groups of a project with number, title and contents, and with their design rows
/// while these are edited. It emits a signal for the group that the user points at, with the mouse
/// or the keyboard, and marks the group that the user points at in the model.
class GroupList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit GroupList(QWidget* parent = nullptr);

    /// Lists the groups of the project, or no groups if the handle is null. Returns the status of
    /// vkd::dbo::readGroups().
    VkdStatus setProject(ZobHandle project);
    /// Marks the group that the user points at in the model, or no group (AnimatorView::NoGroup).
    /// The current row does not change, and no signal is emitted.
    void setMarkedGroup(int group);
    /// Marks the groups of the current design rows.
    void setRowGroups(const QSet<int>& groups);
    /// Shows the numbers of the design rows of groups, or hides their column if the pointer is
    /// null.
    void setRows(const QHash<int, QString>* rows);
    /// Shows that these groups are hidden in the view.
    void setHiddenGroups(const QSet<int>& groups);
    /// Lists only the groups that match the text of a RowFilter. A number also matches titles that
    /// contain it.
    void setFilter(const QString& filter);
    /// Returns the selected groups in the order of the list.
    QVector<int> selectedGroups() const;
    /// Returns all groups in the order of the list.
    std::vector<int> groups() const;
    /// Returns the groups without area elements, in ascending order. These groups cannot be
    /// designed.
    const std::vector<int>& groupsWithoutAreas() const { return m_withoutAreas; }

Q_SIGNALS:
    /// Emitted when the user points at another group. The parameter is the group under the mouse.
    /// If there is none, it is the current group if the list has the focus, otherwise
    /// AnimatorView::NoGroup.
    void groupPointed(int group);
    /// Emitted after a plain click on a group, and on Enter for the current group.
    void groupChosen(int group);
    /// Emitted when the user makes another group the current group with a plain click or key. Not
    /// emitted if the user opens the menu or extends the selection.
    void groupSelected(int group);

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void setTexts();
    VkdStatus fill();
    void show(QTreeWidgetItem* item);
    void fitColumns();
    void fitTitles();
    void pointAtCurrent();
    void pointAt(const QTreeWidgetItem* item);

    ZobHandle m_project;
    QHash<int, QTreeWidgetItem*> m_items;
    int m_marked;
    QSet<int> m_rowGroups;
    QSet<int> m_hidden;
    QHash<int, QString> m_rows;
    QString m_filter;
    bool m_isQuiet = false; ///< whether groupSelected() is not emitted
    std::vector<int> m_withoutAreas;
};

} // namespace workbench
