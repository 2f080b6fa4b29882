#pragma once

#include <QWidget>

class VKD_QT4_ComboBox;

namespace plib {
struct DesignParameterRow;
}

/// The editor for the groups of a row. It covers the first cell of the row while this cell is the
/// current cell. It offers "None" and "Remaining Groups" and has buttons for the two group dialogs.
/// It only emits signals; the page changes the row.
class dlgSelection : public QWidget
{
    Q_OBJECT

public:
    /// Creates an editor without entries. The project with this database index provides the groups.
    dlgSelection(int zobIndex, QWidget* parent);

    /// Fills the combo box for this row without emitting a signal. "Remaining Groups" is omitted if
    /// it is assigned to another row. A list of groups gets its own entry. Entries have no ids.
    void fillCombo(const plib::DesignParameterRow& row, bool remainingInUse);
    int getCurrentId() const;

    /// Shows a warning icon in the current entry and explains it in a tool tip. An empty string
    /// removes both.
    void setNote(const QString& text);

Q_SIGNALS:
    void signal_groupButtonClicked();
    void signal_sekGroupButtonClicked();
    void signal_selectionComboChanged(QString text);

private:
    VKD_QT4_ComboBox* comboGroups;
    int zobIndex;
};
