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

/// The design parameters of a project, with OK and Cancel. If exec() returns
/// VKD_H_SelGRP_Dialog::PickOutside, the caller must let the user pick groups in the view and show
/// the same dialog again.
///
/// The page works on a scratch store, because writing irreversibly converts the rows of a page to
/// the stored form. If the records cannot be stored in the project, a new page reads them from the
/// scratch store.
class DesignDialog : public VKD_H_Dialog
{
    Q_OBJECT

public:
    /// `project` must be open. It is not owned and must outlive the dialog.
    DesignDialog(OpenProject* project, QWidget* parent);
    ~DesignDialog() override;

    /// Reads the records and the dialog page entries of the project. Returns a VkdZobStatus. Call
    /// showPage() next.
    cd_error_t load();
    /// Writes all accepted rows to the project, or no row if this fails. Returns a VkdZobStatus, or
    /// PartChanged if the project contains a newer state that must not be replaced. The function
    /// can be called again.
    cd_error_t store(SeenPart::Newer newer);
    /// Creates a new page with the rows that were read or accepted. Call it before the dialog is
    /// shown.
    void showPage();
    /// Must be called after the project has been replaced with a copy, so that store() writes to
    /// the copy.
    void continueWithCopy();

    /// Returns the number of accepted rows without groups. These rows have no records and are saved
    /// with the entries of the page.
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
