#pragma once

#include "HostProject.h"

#include <VKD_P_DesignParameter>
#include <VKD_QT_Dialog.h>

#include <QComboBox>
#include <QTableWidget>

/// The design page in a dialog of a host, with the ways of a user to its parts.
class DesignDesk : public VKD_QT_Dialog
{
public:
    explicit DesignDesk(HostProject& project);
    /// With these records in the project, and read.
    DesignDesk(HostProject& project, const std::vector<tagZOB_QUAD_RIM>& records);

    QTableWidget* table() const { return findChild<QTableWidget*>(QStringLiteral("table")); }
    /// The combo of the group editor; null if none is open.
    QComboBox* groupCombo() const;
    /// The texts of a row, joined by "|", with "/" for a new line.
    QString row(int number) const;
    /// The groups column, joined by "|".
    QString groups() const;
    /// Where widgets lie over cells, as "row,column" joined by blanks.
    QString editors() const;
    void press(const char* button);
    /// Keys for the table: arrows and commands.
    void keys(const std::vector<Qt::Key>& keys);

    VKD_P_DesignParameter* const page;
};
