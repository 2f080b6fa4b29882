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

/// The base of the modal dialogs that choose groups of a model for one row of a table that belongs
/// to the caller: a list with check boxes, a filter, and a field to type numbers or names. exec()
/// answers 1 if the user confirmed. Users of this class link vkd_qt.
class VKD_H_EXPORT VKD_H_GroupDialog : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    /// Delivers the confirmed groups in ascending order in place of what the list held. Those
    /// checked replace all that the dialog was opened with, groups of the other kind and -1 for the
    /// remaining ones too. If nothing was changed, and before OK, that is still the whole list.
    /// Returns 0.
    int getChecked(std::vector<int>& groups) const;

    void accept() override;

protected:
    /// The document, which may be null, is read here and not kept. What `checked` holds besides
    /// groups of this kind is not shown; of those that the model lacks each gets a row.
    /// `usedElsewhere` are the groups of the caller's other rows, which may be taken over.
    VKD_H_GroupDialog(VKD_H_GroupKind kind, const VKD_H_ZOBDoc* doc,
                      const std::vector<int>& checked, const std::vector<int>& usedElsewhere,
                      QWidget* parent, const char* name);

    bool hasGroups() const;
    /// The groups that stand checked, with those that are typed and not yet in the list. Typed text
    /// that cannot be read counts for nothing.
    std::vector<int> presentChoice();
    /// Puts a button at the left of the foot, ahead of OK in the order of tabs. Becomes its owner.
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
    /// Checks what the field names and leaves in it the parts that cannot be read or name nothing.
    /// False, with a message, if there are any. The message may also say something about groups
    /// that are checked.
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
    const std::vector<int> m_opened; ///< as the caller has them, of both kinds
    std::vector<int> m_confirmed;
};
