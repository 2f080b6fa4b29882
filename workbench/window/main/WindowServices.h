#pragma once

#include <vkd_progress.h>

#include <QString>
#include <QVector>

#include <array>
#include <functional>

namespace workbench {

/// The captions of a plot, from the top of the tree down to the plot's own.
using PlotTitles = std::array<QString, 3>;

/// What the window needs of the library's logic. It sees the library only through its exported
/// headers, so the program that opens the window brings these along; each may be missing.
struct WindowServices
{
    /// Makes a project file, which does not exist yet, from the name of a sample or a model file.
    /// The result is why it cannot be made, empty if it was; any text if `goOn` answered false.
    std::function<QString(const QString& path, const QString& model, const VkdGoOn& goOn)>
        makeProject;

    /// The captions of all plots of the catalogue, in its order, in a language as setting 102 has
    /// it. Empty if there is no catalogue.
    std::function<QVector<PlotTitles>(int language)> plotTitles;
};

} // namespace workbench
