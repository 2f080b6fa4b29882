#pragma once

#include <QWidget>

class VKD_QT4_ComboBox;

namespace plib {
struct DesignParameterRow;
}

/// The editor for the groups of a row. It covers the first cell of the row while this is the
/// current cell, offers "None" and "Remaining Groups", and has buttons for the two group dialogs.
/// It only emits signals; the page changes the row.
class dlgSelection : public QWidget
{
    Q_OBJECT

public:
    /// Creates an editor without entries. The project at this database index provides the groups.
    dlgSelection(int zobIndex, QWidget* parent);

    /// Fills the combo for this row without emitting a signal. "Remaining Groups" is left out if
    /// another row has them. A list of groups gets an entry of its own. Entries have no ids.
    void fillCombo(const plib::DesignParameterRow& row, bool remainingInUse);
    int getCurrentId() const;

    /// Shows a warning icon at the current entry and explains it by a tool tip. An empty text
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
