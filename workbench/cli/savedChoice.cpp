#include "cli/savedChoice.h"

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

OutputState savedChoice(const CommandLine& line, ZobHandle project)
{
    const bool isSaved = !line.has("proposed") && progname(line) == VKD_P_GraphicalOutput_Standard;
    return isSaved ? OutputState::read(project) : OutputState();
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
    vkd::dbo::setAnimatorPerspektive(vkd::dbo::DesktopCamera,
                                     partOf(saved, plib::savedtag::Camera));
}

QString chosenPlots(const CommandLine& line, const OutputState& saved)
{
    return line.has("selection") ? readText(line.value("selection"))
                                 : partOf(saved, plib::savedtag::Plots);
}

} // namespace workbench
