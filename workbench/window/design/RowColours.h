#pragma once

#include <QHash>
#include <QObject>

class AnimatorView;
class QPushButton;

namespace workbench {

class DesignDock;
class DesignPage;
class RowLegend;

/// Colours the groups in the view by their design row while its button is pressed, and shows the
/// legend. Groups without a row of their own are pale.
class RowColours : public QObject
{
    Q_OBJECT

public:
    /// The view and the dock are not owned and must outlive the object.
    RowColours(AnimatorView* view, DesignDock* dock);

    void setTexts();
    /// Shows the rows of the page, which may be null. `rowOf` contains the first row of each group;
    /// `remainingRow` is the row for all other groups or -1.
    void show(const DesignPage* page, const QHash<int, int>& rowOf, int remainingRow);

Q_SIGNALS:
    /// Emitted when show() must be called again.
    void toggled();
    /// Emitted when the user clicks a row in the legend.
    void rowClicked(int row);

private:
    AnimatorView* m_view;
    QPushButton* m_button;
    RowLegend* m_legend;
};

} // namespace workbench
