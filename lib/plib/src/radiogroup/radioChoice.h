#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace plib {

/// Returns the text that a host saves for a row of radio buttons: "checked:" and the name of the
/// checked button. If several are checked, their names are joined. The ids are those of
/// VKD_P_RadioGroup::ButtonID.
QString choiceText(const std::vector<int>& checkedIds);

/// Returns the id of the button in such a text, -1 if the name is unknown. Returns nothing for a
/// text of another format.
std::optional<int> chosenId(const QString& text);

} // namespace plib
