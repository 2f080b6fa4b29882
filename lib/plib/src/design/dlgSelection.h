#pragma once

#include <QWidget>

class VKD_QT4_ComboBox;

namespace plib {
struct DesignParameterRow;
}

/// The editor of a row's groups. It lies over the first cell of the row while that is the current
/// one, offers "None" and "Remaining Groups", and has buttons for the two group dialogs. It changes
/// nothing by itself: the page listens to its signals.
class dlgSelection : public QWidget
{
    Q_OBJECT

public:
    /// For the project at this database index, which says what groups there are. Without entries.
    dlgSelection(int zobIndex, QWidget* parent);

    /// Makes the entries for this row, without a signal. "Remaining Groups" is left out where
    /// another row has them. A list of groups becomes an entry of its own. No entry has an id.
    void fillCombo(const plib::DesignParameterRow& row, bool remainingInUse);
    int getCurrentId() const;

    /// A sign beside the chosen entry, with a text that explains it; neither with an empty text.
    void setNote(const QString& text);

Q_SIGNALS:
    void signal_groupButtonClicked();
    void signal_sekGroupButtonClicked();
    void signal_selectionComboChanged(QString text);

private:
    VKD_QT4_ComboBox* comboGroups;
    int zobIndex;
};
