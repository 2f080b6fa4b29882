#pragma once

#include <QWidget>

class QLineEdit;

namespace workbench {

class GroupList;

/// The list of groups with a filter field.
class GroupPane : public QWidget
{
    Q_OBJECT

public:
    explicit GroupPane(QWidget* parent);
    void setTexts();

private:
    QLineEdit* m_filter; // before the list in the tab order

public:
    GroupList* const groups;
};

} // namespace workbench
