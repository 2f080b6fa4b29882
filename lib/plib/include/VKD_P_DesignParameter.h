#pragma once

#include "tagZOB_QUAD_RIM.h"
#include "vkd_p_fea_export.h"

#include <QWidget>

class DesignParameter;
class VKD_H_ProjectDialogPage;
class VKD_H_ZOBDoc;

/// The page on which an engineer defines, group by group, how the reinforcement of area elements is
/// designed. A host adds the page to a dialog and calls its functions in the GUI thread in this
/// order: the constructor, init(), one of the readers, checkVals() when the user has finished, and
/// one of the writers if checkVals() returned true. A reader appends rows to the page, so call it
/// only once. The destructor does not store anything. Do not destroy the page while one of its
/// dialogs is open.
class VKD_P_FEA_EXPORT VKD_P_DesignParameter : public QWidget
{
    Q_OBJECT

public:
    /// `doc` provides the groups and bars, and `designDoc` provides the design records. Both may be
    /// the same document. The documents are not owned and must outlive the page. The constructor
    /// stores default design records if the project has none. The flags are stored but have no
    /// effect.
    VKD_P_DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc, QWidget* parent, bool flagA,
                          bool flagB);
    ~VKD_P_DesignParameter() override;

    /// Builds the table; must be called first. Always returns true.
    bool init();

    /// Shows the records of the project. If `page` is given, also shows the rows without groups
    /// that are saved there.
    void readZob();
    void getEntrys(VKD_H_ProjectDialogPage& page);

    /// Writes one record per group to the project. If `page` is given, also saves the rows without
    /// groups there. Does not check the status codes of the store.
    void writeToZob();
    void setEntrys(VKD_H_ProjectDialogPage& page);

    /// Asks the user for confirmation if rows would be lost because they have no groups. Returns
    /// false if the user wants to stay on the page. After a call to getEntrys(), always returns
    /// true, because setEntrys() saves such rows.
    bool checkVals();

    /// Returns the default record of a new row, with distances from the surface in metres, bars in
    /// millimetres and directions in radians. The record for the remaining groups has group -1 and
    /// type 1; any other record has group 0 and type 0.
    static tagZOB_QUAD_RIM getDefaultMerPara(bool forRemainingGroups);
    /// Stores the default record for the remaining groups in the project with this database index
    /// if the project has no design records.
    static void checkAndCreateZobDefault(int index);

Q_SIGNALS:
    /// Emitted with the number of rows whenever this number has changed, and after the table has
    /// been filled.
    void signal_rowCountChanged(int rowCount);

public Q_SLOTS:
    void showHelp();

private:
    DesignParameter* m_page;
};
