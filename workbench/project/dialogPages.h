#pragma once

namespace workbench {

/// The numbers of the dialog pages whose entries are saved in a project.
enum DialogPage {
    DesignDialogPage = 1,
    OutputDialogPage = 2,
    TextOutputDialogPage = 3,
    PresetsDialogPage = 4
};

} // namespace workbench
