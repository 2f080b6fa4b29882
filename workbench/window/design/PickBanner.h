#pragma once

#include <QFrame>

#include <vector>

class QLabel;
class QPushButton;

namespace workbench {

/// A banner that is shown above the view while the user picks the groups of a design row. It
/// contains the groups of the row and a button that ends picking.
class PickBanner : public QFrame
{
    Q_OBJECT

public:
    explicit PickBanner(QWidget* parent = nullptr);

    /// Sets the groups without area elements, in ascending order. The banner shows a warning if one
    /// of these groups is picked.
    void setGroupsWithoutAreas(const std::vector<int>& groups);
    /// Sets the row, counted from 0, and its groups. Row 0 and a negative row cannot be changed.
    void setPicked(int row, const std::vector<int>& groups);

Q_SIGNALS:
    void done();

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();

    std::vector<int> m_withoutAreas;
    std::vector<int> m_groups;
    int m_row = -1;
    QLabel* m_what;
    QLabel* m_picked;
    QPushButton* m_done;
};

} // namespace workbench
