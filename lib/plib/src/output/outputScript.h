#pragma once

#include "OutputSettings.h"

#include <vector>

namespace plib {

/// The texts of a script that do not come from the settings or the selected lines.
class ScriptEnvironment
{
public:
    virtual ~ScriptEnvironment() = default;
    /// Opens the block of the graphics program, with its line ends.
    virtual QString programHead() const = 0;
    /// Closes it, without a line end.
    virtual QString programEnd(bool english) const = 0;
    /// Whether the model holds area elements. Asked only for a script that is not empty.
    virtual bool hasQuads() const = 0;
    /// The user's camera, as it stands behind the keyword for a stored view.
    virtual QString camera() const = 0;
};

/// The script for the lines that the checked plots make, in English or German keywords. Without
/// lines it is empty, whatever `additional` holds. The split variant gives no script but the page
/// setup as two alternatives, with or without lines.
QString outputScript(const OutputSettings& settings, const std::vector<QString>& lines,
                     const QString& additional, bool english, const ScriptEnvironment& environment);

/// The clause that takes the place of the standard view in a line of the script.
QString viewClause(const OutputSettings& settings, bool english,
                   const ScriptEnvironment& environment);

/// The page setup statement; without a line end, but with one inside where two pictures share a
/// page.
QString sizeStatement(const OutputSettings& settings, bool english);

/// The font statement; in the split variant the font size in centimetres alone.
QString fontStatement(const OutputSettings& settings, bool english);

/// Five definitions that say whether areas are filled.
QString fillDefinitions(bool fill, bool english);

} // namespace plib
