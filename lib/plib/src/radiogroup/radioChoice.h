#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace plib {

/// Returns the string that a host saves for a row of radio buttons: "checked:" followed by the name
/// of the checked button. If several buttons are checked, their names are concatenated. The IDs are
/// defined in VKD_P_RadioGroup::ButtonID.
QString choiceText(const std::vector<int>& checkedIds);

/// Parses a string returned by choiceText() and returns the ID of the button, or -1 if the name is
/// unknown. Returns nothing if the string has a different format.
std::optional<int> chosenId(const QString& text);

} // namespace plib
