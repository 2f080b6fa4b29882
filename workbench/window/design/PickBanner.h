#pragma once

#include <QFrame>

#include <vector>

class QLabel;
class QPushButton;

namespace workbench {

/// What stands above the view while groups are picked in it.
class PickBanner : public QFrame
{
    Q_OBJECT

public:
    explicit PickBanner(QWidget* parent = nullptr);

    /// Of the groups that are picked from now on, those that the design of area elements has no use
    /// for, ascending.
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
