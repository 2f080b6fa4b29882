#pragma once

namespace workbench {

/// The numbers under which the window's dialogs keep their texts in a project.
enum DialogPage { DesignDialogPage = 1, OutputDialogPage = 2, TextOutputDialogPage = 3 };

} // namespace workbench
