#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace plib {

/// The text that a host keeps of a row of radio buttons: "checked:" and the name of the checked
/// button. Ids are those of VKD_P_RadioGroup::ButtonID; of several, each has its name in the text.
QString choiceText(const std::vector<int>& checkedIds);

/// The id that such a text names, -1 if it names none that is known. Nothing for any other text.
std::optional<int> chosenId(const QString& text);

} // namespace plib
