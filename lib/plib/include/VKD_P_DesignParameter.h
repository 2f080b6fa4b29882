#pragma once

#include "tagZOB_QUAD_RIM.h"
#include "vkd_p_fea_export.h"

#include <QWidget>

class DesignParameter;
class VKD_H_ProjectDialogPage;
class VKD_H_ZOBDoc;

/// The page on which an engineer states, group by group, how the reinforcement of area elements is
/// designed. For dialogs of hosts, on the GUI thread, in this order: the constructor, init(), one
/// of the readers, the user's work, checkVals(), and if that gives true, one of the writers. The
/// readers add to what the page shows, so each is to be called once. Nothing is written when the
/// page is destroyed, which must not happen while one of its dialogs is open.
class VKD_P_FEA_EXPORT VKD_P_DesignParameter : public QWidget
{
    Q_OBJECT

public:
    /// `doc` is the document of the groups and bars, `designDoc` that of the design records; they
    /// may be the same, are not owned, and live longer than the page. Makes sure that the project
    /// has design records. The flags are kept and change nothing.
    VKD_P_DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc, QWidget* parent, bool flagA,
                          bool flagB);
    ~VKD_P_DesignParameter() override;

    /// Builds the table; to be called before anything else. Always true.
    bool init();

    /// Shows the records of the project, and with `page` also the rows without groups that it
    /// keeps.
    void readZob();
    void getEntrys(VKD_H_ProjectDialogPage& page);

    /// Writes one record for each group into the project, and with `page` the rows without groups
    /// into it. What the store answers is not examined.
    void writeToZob();
    void setEntrys(VKD_H_ProjectDialogPage& page);

    /// Asks the user if rows would be lost because they name no group. False: the user wants to
    /// stay on the page. After getEntrys() always true, because setEntrys() keeps such rows.
    bool checkVals();

    /// The record that a new row starts from, with distances from the surface in metres, bars in
    /// millimetres and directions in radians. For the remaining groups it has the group -1 and the
    /// type 1, else the group 0 and the type 0.
    static tagZOB_QUAD_RIM getDefaultMerPara(bool forRemainingGroups);
    /// Puts the default record for the remaining groups into the project at this database index if
    /// it holds no design records at all.
    static void checkAndCreateZobDefault(int index);

Q_SIGNALS:
    /// The number of rows after each change of it, and after each filling.
    void signal_rowCountChanged(int rowCount);

public Q_SLOTS:
    void showHelp();

private:
    DesignParameter* m_page;
};
