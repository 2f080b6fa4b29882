#pragma once

#include <QLatin1String>

namespace workbench {

/// The key pair of the design records in a project.
constexpr int DesignKey1 = 200;
constexpr int DesignKey2 = 6;

/// The keys of the texts in which the design page saves a row without groups: this prefix with 1,
/// 2, and so on.
constexpr QLatin1String DesignEntry("MerPara");

/// The first key of the texts of dialog pages, as VKD_H_ProjectDialogPage stores them; the second
/// key is the number of the page.
constexpr int DialogPageKey = 420;

/// The numbers of the dialog pages whose texts are saved in a project.
enum DialogPage { DesignDialogPage = 1, OutputDialogPage = 2, TextOutputDialogPage = 3 };

} // namespace workbench
