#include "cli/output/savedChoice.h"

#include <output/SavedPage.h>
#include <vkd_dbo_camera.h>

namespace workbench {

namespace {
QString partOf(const OutputState& saved, const char* tag)
{
    return plib::SavedPage(saved.page, plib::OutputSettings()).part(tag);
}
} // namespace

std::vector<CommandLine::Option> choiceOptions()
{
    return {
        {QStringLiteral("progname"), QStringLiteral("N"),
         QStringLiteral("Kind of page: 1 standard (default), 122 split, 222 prefix. Only the "
                        "standard page has a saved choice.")},
        {QStringLiteral("output"), QStringLiteral("NAME"),
         QStringLiteral("Uses the saved choice of this output, by default of the first output. The "
                        "command `outputs` prints the names.")},
        {QStringLiteral("selection"), QStringLiteral("FILE"),
         QStringLiteral("Reads the plots from a selection text.")},
        {QStringLiteral("proposed"), QString(),
         QStringLiteral("Ignores the saved choice and starts with the plots that the catalogue "
                        "proposes.")},
    };
}

int progname(const CommandLine& line)
{
    return line.number("progname", VKD_P_GraphicalOutput_Standard);
}

OutputList savedOutputs(ZobHandle project)
{
    VkdStatus status;
    OutputList outputs = OutputList::read(project, &status);
    if (!status.isOk())
        throw CommandError{status.reason};
    return outputs;
}

OutputState savedChoice(const CommandLine& line, ZobHandle project)
{
    const QString name = line.value("output");
    if (line.has("proposed") || progname(line) != VKD_P_GraphicalOutput_Standard) {
        if (line.has("output"))
            throw CommandError{
                QStringLiteral("--output requires the saved choice of --progname 1")};
        return OutputState();
    }
    const OutputList outputs = savedOutputs(project);
    const int index = line.has("output") ? outputs.indexOf(name) : 0;
    if (index < 0)
        throw CommandError{QStringLiteral("there is no output \"%1\", only \"%2\"")
                               .arg(name, outputs.names().join(QLatin1String("\", \"")))};
    return outputs.at(index).state;
}

plib::OutputSettings savedSettings(const CommandLine& line, const OutputState& saved)
{
    plib::OutputSettings settings;
    settings.variant = VKD_P_WidgetGraphicalOutput_Progname(progname(line));
    settings.hasFormat = settings.variant != VKD_P_GraphicalOutput_Split;
    return plib::SavedPage(saved.page, settings).settings();
}

void restoreCamera(const OutputState& saved)
{
    vkd::dbo::setCamera(ZobHandle::scratch(), vkd::dbo::Camera()); // used if none is saved
    vkd::dbo::setAnimatorPerspektive(vkd::dbo::DesktopCamera,
                                     partOf(saved, plib::savedtag::Camera));
}

QString chosenPlots(const CommandLine& line, const OutputState& saved)
{
    return line.has("selection") ? readText(line.value("selection"))
                                 : partOf(saved, plib::savedtag::Plots);
}

} // namespace workbench
