#pragma once

#include <VKD_H_Dialog.h>

class VKD_H_ZOBDoc;
class VKD_P_DesignParameter;

namespace workbench {

/// The design parameters of a project, with OK and Cancel. exec() may also answer
/// VKD_H_SelGRP_Dialog::PickOutside: then the groups are to be picked in the view, and the same
/// dialog is to be shown again.
class DesignDialog : public VKD_H_Dialog
{
    Q_OBJECT

public:
    /// `document` is not owned and outlives the dialog.
    DesignDialog(VKD_H_ZOBDoc* document, QWidget* parent);

    /// Writes what the page shows into the project. False if the store refused the texts of the
    /// page; what became of the records stands in the platform's log.
    bool store();

    void accept() override;

private:
    VKD_H_ZOBDoc* m_document;
    VKD_P_DesignParameter* m_page;
};

} // namespace workbench
