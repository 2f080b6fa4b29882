#pragma once

class QWidget;

namespace workbench {

enum class NewerAnswer { Overwrite, Reload, GoBack };

/// Asks what to do if the data of a dialog would replace newer data, which another program has
/// stored since the dialog read them.
NewerAnswer askAboutNewer(QWidget* parent);

} // namespace workbench
