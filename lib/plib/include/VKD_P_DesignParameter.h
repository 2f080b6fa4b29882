#pragma once

#include "tagZOB_QUAD_RIM.h"
#include "vkd_p_fea_export.h"

#include <QWidget>

class DesignParameter;
class VKD_H_ProjectDialogPage;
class VKD_H_ZOBDoc;

/// The page on which an engineer sets, group by group, how the reinforcement of area elements is
/// designed. A host puts it into a dialog and calls it on the GUI thread in this order: the
/// constructor, init(), one of the readers, then checkVals() when the user has finished, and one of
/// the writers if the result is true. A reader appends rows to the page, so call it once only.
/// Destroying the page writes nothing; do not destroy it while one of its dialogs is open.
class VKD_P_FEA_EXPORT VKD_P_DesignParameter : public QWidget
{
    Q_OBJECT

public:
    /// `doc` provides the groups and bars, `designDoc` the design records. They may be the same
    /// document; neither is owned, and both outlive the page. The constructor stores default design
    /// records if the project has none. The flags are stored and have no effect.
    VKD_P_DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc, QWidget* parent, bool flagA,
                          bool flagB);
    ~VKD_P_DesignParameter() override;

    /// Builds the table; must be called first. Always returns true.
    bool init();

    /// Shows the records of the project. With `page`, it also shows the rows without groups that
    /// are saved there.
    void readZob();
    void getEntrys(VKD_H_ProjectDialogPage& page);

    /// Writes one record for each group into the project. With `page`, it also saves the rows
    /// without groups there. The results of the store are not examined.
    void writeToZob();
    void setEntrys(VKD_H_ProjectDialogPage& page);

    /// Asks the user for confirmation if rows would be lost because they name no group. Returns
    /// false if the user wants to stay on the page. After getEntrys() the result is always true,
    /// because setEntrys() saves such rows.
    bool checkVals();

    /// Returns the default record of a new row, with distances from the surface in metres, bars in
    /// millimetres and directions in radians. For the remaining groups it has group -1 and type 1,
    /// otherwise group 0 and type 0.
    static tagZOB_QUAD_RIM getDefaultMerPara(bool forRemainingGroups);
    /// Stores the default record for the remaining groups in the project at this database index if
    /// the project has no design records at all.
    static void checkAndCreateZobDefault(int index);

Q_SIGNALS:
    /// Emitted with the new number of rows whenever it changes, and after the table is filled.
    void signal_rowCountChanged(int rowCount);

public Q_SLOTS:
    void showHelp();

private:
    DesignParameter* m_page;
};
