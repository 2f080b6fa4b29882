#pragma once

namespace workbench {

/// The key pair of the design records in a project.
constexpr int DesignKey1 = 200;
constexpr int DesignKey2 = 6;

/// The numbers under which the window's dialogs keep their texts in a project.
enum DialogPage { DesignDialogPage = 1, OutputDialogPage = 2, TextOutputDialogPage = 3 };

} // namespace workbench
