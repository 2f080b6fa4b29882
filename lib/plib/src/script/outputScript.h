#pragma once

#include "output/OutputSettings.h"
#include "script/Keywords.h"

#include <vector>

namespace plib {

/// Provides those parts of a script that depend neither on the settings nor on the selected lines.
/// Tests use their own implementation, so that they need no project.
class ScriptEnvironment
{
public:
    virtual ~ScriptEnvironment() = default;
    /// Returns the header of the program block, including its newlines.
    virtual QString programHead() const = 0;
    /// Returns the end of the program block, without a newline.
    virtual QString programEnd(Keywords keywords) const = 0;
    /// Returns whether the model contains area elements. Called only if the script is not empty.
    virtual bool hasQuads() const = 0;
    /// Returns the user's camera in the format that follows the keyword for a stored view.
    virtual QString camera() const = 0;
};

/// Returns the script for the lines of the checked plots, with English or German keywords. The
/// script is empty if there are no lines, regardless of `additional`. In the split variant, returns
/// two alternative page setups instead, even if there are no lines. If there is a script and
/// `linesBefore` is not null, it receives the number of lines before the given lines.
QString outputScript(const OutputSettings& settings, const std::vector<QString>& lines,
                     const QString& additional, Keywords keywords,
                     const ScriptEnvironment& environment, int* linesBefore = nullptr);

/// Returns the clause that replaces the standard view in the lines of the script.
QString viewClause(const OutputSettings& settings, Keywords keywords,
                   const ScriptEnvironment& environment);

/// Returns the page setup statement, without a trailing newline. The statement consists of two
/// lines if two pictures share a page.
QString sizeStatement(const OutputSettings& settings, Keywords keywords);

/// Returns the font statement. In the split variant, returns only the font size in centimetres.
QString fontStatement(const OutputSettings& settings, Keywords keywords);

/// Returns five variable definitions that specify whether areas are filled.
QString fillDefinitions(bool fill, Keywords keywords);

} // namespace plib
