#pragma once

#include <QLatin1String>

namespace workbench {

/// The keys of the texts in which the design page saves a row without groups: this prefix with 1,
/// 2, and so on.
constexpr QLatin1String DesignEntry("MerPara");

/// The numbers of the dialog pages whose texts are saved in a project.
enum DialogPage { DesignDialogPage = 1, OutputDialogPage = 2, TextOutputDialogPage = 3 };

} // namespace workbench
