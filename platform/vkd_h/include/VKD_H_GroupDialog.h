#pragma once

#include "vkd_h_export.h"

#include "VKD_H_GroupKind.h"

#include <VKD_QT_Dialog.h>

#include <QModelIndexList>

#include <vector>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;
class VKD_H_ZOBDoc;
class VKD_QT_Ok;

namespace vkd {
namespace h {
class GroupFilterModel;
class GroupTableModel;
class GroupView;
} // namespace h
} // namespace vkd

/// The base class of modal dialogs in which the user selects groups of a model for one row of the
/// caller's table. It contains a list with check boxes, a filter field and an input field for
/// numbers or names. exec() returns 1 if the user clicked OK. Users of this class must link against
/// vkd_qt.
class VKD_H_EXPORT VKD_H_GroupDialog : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    /// Replaces `groups` with the confirmed groups in ascending order. The checked groups replace
    /// the whole initial list, including groups of the other kind and the value -1, which means the
    /// remaining groups. If the user has not clicked OK or has changed nothing, the result is the
    /// initial list. Returns 0.
    int getChecked(std::vector<int>& groups) const;

    void accept() override;

protected:
    /// Reads the document, which may be null, and does not keep a pointer to it. Entries of
    /// `checked` that are not groups of this kind are not shown. A checked group that does not
    /// exist in the model also gets a row. `usedElsewhere` contains the groups of the caller's
    /// other rows, which the user may reassign to this row.
    VKD_H_GroupDialog(VKD_H_GroupKind kind, const VKD_H_ZOBDoc* doc,
                      const std::vector<int>& checked, const std::vector<int>& usedElsewhere,
                      QWidget* parent, const char* name);

    bool hasGroups() const;
    /// Returns the checked groups and the typed groups that are not yet checked in the list.
    /// Invalid input is ignored.
    std::vector<int> presentChoice();
    /// Adds a button on the left of the bottom row, before OK in the tab order. Takes ownership.
    void addFootButton(QPushButton* button);

    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void addFilterLine(QVBoxLayout* layout);
    void addList(QVBoxLayout* layout);
    void addInputLine(QVBoxLayout* layout);
    void addFoot(QVBoxLayout* layout);
    QPushButton* addButton(QHBoxLayout* line, const char* name);
    void setTexts();

    void checkShown(bool checked);
    void toggle(const QModelIndexList& rows);
    /// Checks the groups listed in the input field. Parts that are invalid or do not match a group
    /// remain in the field. If any part remains, shows a message and returns false. The message may
    /// also list checked groups without area elements.
    bool applyInput();
    bool hasInput() const;
    void showMessage(const QString& text);
    void updateCount();

    const VKD_H_GroupKind m_kind;
    vkd::h::GroupTableModel* m_groups;
    vkd::h::GroupFilterModel* m_shown;
    vkd::h::GroupView* m_view = nullptr;
    QLabel* m_filterLabel = nullptr;
    QLineEdit* m_filter = nullptr;
    QPushButton* m_all = nullptr;
    QPushButton* m_none = nullptr;
    QLabel* m_inputLabel = nullptr;
    QLineEdit* m_input = nullptr;
    QPushButton* m_check = nullptr;
    QLabel* m_message = nullptr;
    QLabel* m_count = nullptr;
    QLabel* m_notShown = nullptr;
    QHBoxLayout* m_foot = nullptr;
    VKD_QT_Ok* m_ok = nullptr;
    const std::vector<int> m_opened; ///< the caller's list, with groups of both kinds
    std::vector<int> m_confirmed;
};
