#pragma once

#include "HostProject.h"

#include <VKD_P_DesignParameter>
#include <VKD_QT_Dialog.h>

#include <QComboBox>
#include <QTableWidget>

/// The design page in a host's dialog, with functions that operate its widgets as a user would.
class DesignDesk : public VKD_QT_Dialog
{
public:
    explicit DesignDesk(HostProject& project);
    /// Stores these records in the project and loads them into the page.
    DesignDesk(HostProject& project, const std::vector<tagZOB_QUAD_RIM>& records);

    QTableWidget* table() const { return findChild<QTableWidget*>(QStringLiteral("table")); }
    /// Returns the combo box of the group editor, or null if no editor is open.
    QComboBox* groupCombo() const;
    /// Returns the cell contents of a row, joined by "|", with "/" for a newline.
    QString row(int number) const;
    /// Returns the contents of the groups column, joined by "|".
    QString groups() const;
    /// Returns the rows with their tool tips, and the selected and current cells.
    QString state() const;
    /// Returns the text of the command that undoes the last step.
    QString undoText() const;
    /// Returns the cells that contain widgets, as "row,column" joined by spaces.
    QString editors() const;
    /// Returns the message beside the buttons.
    QString notice() const;
    void press(const char* button);
    /// Sends arrow keys and shortcut keys to the table.
    void keys(const std::vector<Qt::Key>& keys);

    VKD_P_DesignParameter* const page;
};

/// Returns a record with the default parameters except for the type and the minimum reinforcement
/// of the upper side, in cm²/m.
tagZOB_QUAD_RIM record(int group, int type, float minimum);

/// Enters groups in the next group dialog and presses OK.
void confirmGroups(const QString& typed);
