#pragma once

#include <QTreeView>

namespace vkd {
namespace h {

class GroupTableModel;

/// The list of a group dialog. It asks for the room that its content needs, within limits, and says
/// so in its middle if nothing is shown.
class GroupView : public QTreeView
{
    Q_OBJECT

public:
    explicit GroupView(QWidget* parent);

    /// Fits the columns to the table that the view shows by way of its own model.
    void fitColumns(const GroupTableModel& groups);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The space bar was pressed; `rows` are the first indexes of the selected rows, never none.
    void toggleRequested(const QModelIndexList& rows);
    /// The focus came, and the user may change the list next.
    void reached();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QStyleOptionViewItem viewOptions() const override;

private:
    int columnWidthFor(const GroupTableModel& groups, int column) const;

    int m_contentWidth = 0;
};

} // namespace h
} // namespace vkd
