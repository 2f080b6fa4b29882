#pragma once

#include <vkd_qt_qt6.h>

#include <QTreeView>

namespace vkd {
namespace h {

class GroupTableModel;

/// The list of a group dialog. Its size hint fits the contents within limits. An empty list shows a
/// centred message.
class GroupView : public QTreeView
{
    Q_OBJECT

public:
    explicit GroupView(QWidget* parent);

    /// Fits the column widths to the contents of the source model.
    void fitColumns(const GroupTableModel& groups);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted when the space bar is pressed. `rows` contains the first index of each selected row
    /// and is never empty.
    void toggleRequested(const QModelIndexList& rows);
    /// Emitted when the view receives focus, before the user can change the list.
    void reached();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    VKD_QT_DECLARE_VIEW_OPTIONS;

private:
    int columnWidthFor(const GroupTableModel& groups, int column) const;

    int m_contentWidth = 0;
};

} // namespace h
} // namespace vkd
