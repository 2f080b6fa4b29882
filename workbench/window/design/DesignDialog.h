#pragma once

#include "project/SeenPart.h"

#include <VKD_H_Dialog.h>
#include <VKD_H_ProjectDialogPage.h>

#include <memory>

class QMenu;
class VKD_H_ZOBDoc;
class VKD_P_DesignParameter;
class VKD_QT_Ok;

namespace workbench {

class OpenProject;

/// The design parameters of a project, with OK and Cancel. exec() may also return
/// VKD_H_SelGRP_Dialog::PickOutside: then the caller must let the user pick groups in the view and
/// show the same dialog again.
///
/// The page works on a scratch store, because a page that writes converts its rows to the stored
/// form and cannot undo this. If the project refuses the records, a new page reads them from the
/// scratch store.
class DesignDialog : public VKD_H_Dialog
{
    Q_OBJECT

public:
    /// `project` is open; it is not owned and outlives the dialog.
    DesignDialog(OpenProject* project, QWidget* parent);
    ~DesignDialog() override;

    /// Reads the records and texts of the project. Returns a VkdZobStatus. Call showPage() next.
    cd_error_t load();
    /// Writes the accepted rows into the project, completely or not at all. Returns a VkdZobStatus,
    /// or PartChanged if the project has a newer state that must not be replaced. It can be called
    /// again.
    cd_error_t store(SeenPart::Newer newer);
    /// Creates a new page with the rows that were read or accepted, before the dialog is shown.
    void showPage();
    /// Must be called after the project was replaced by a copy: store() writes into the copy.
    void continueWithCopy();

    /// Returns the number of accepted rows without groups. They have no record and are saved with
    /// the texts of the page.
    int rowsWithoutGroups() const;

    void accept() override;

private:
    bool maySharedGroupsStay();
    OpenProject* m_project;
    std::unique_ptr<VKD_H_ZOBDoc> m_desk;
    VKD_H_ProjectDialogPage m_entries;
    VKD_P_DesignParameter* m_page = nullptr;
    VKD_QT_Ok* m_buttons = nullptr;
    QMenu* m_edit;
};

} // namespace workbench
