#pragma once

#include <QFrame>

#include <vector>

class QLabel;
class QPushButton;

namespace workbench {

/// A banner that is shown above the view while the user picks groups. It contains the picked groups
/// and buttons.
class PickBanner : public QFrame
{
    Q_OBJECT

public:
    explicit PickBanner(QWidget* parent = nullptr);

    /// Sets the groups without area elements, in ascending order. The banner shows a warning if one
    /// of these groups is picked.
    void setGroupsWithoutAreas(const std::vector<int>& groups);
    void setPicked(const std::vector<int>& groups);

Q_SIGNALS:
    void done();
    void cancelled();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void setTexts();

    std::vector<int> m_withoutAreas;
    std::vector<int> m_groups;
    QLabel* m_what;
    QLabel* m_picked;
    QPushButton* m_done;
    QPushButton* m_cancel;
};

} // namespace workbench
