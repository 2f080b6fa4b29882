#pragma once

class QWidget;

namespace workbench {

enum class NewerAnswer { Overwrite, Reload, GoBack };

/// Asks how to proceed if the data of a dialog would replace newer data that another program has
/// stored since the dialog was opened.
NewerAnswer askAboutNewer(QWidget* parent);

} // namespace workbench
