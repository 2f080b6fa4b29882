#include "cli/output/settingsArguments.h"

#include "cli/CommandLine.h"

#include <output/fontSize.h>

#include <iterator>
#include <type_traits>

namespace workbench {

namespace {
using plib::OutputSettings;

enum class Pages { All, Split, AllButSplit };

/// A setting and the function that sets it, with the same side effects as its control on a page.
struct Setting
{
    const char* name;
    int highest; ///< largest number, counted from 0; NoNumber for a text setting
    Pages pages;
    void (*set)(const QString& value, OutputSettings* settings);
};
constexpr int NoNumber = -1;

template <auto member>
void setNumber(const QString& value, OutputSettings* settings)
{
    settings->*member = std::decay_t<decltype(settings->*member)>(value.toInt());
}

void setScaleIndex(const QString& value, OutputSettings* settings)
{
    plib::chooseScale(value.toInt(), settings);
}

void setScaleText(const QString& value, OutputSettings* settings)
{
    const QStringList scales = plib::engineeringScales();
    const int scale = scales.indexOf(value);
    if (scale < 0)
        throw CommandError{QStringLiteral("scaleText must be one of %1, not \"%2\"")
                               .arg(scales.join(QLatin1Char(' ')), value)};
    plib::chooseScale(scale + 1, settings); // "Auto" comes first
}

void setFormat(const QString& value, OutputSettings* settings)
{
    settings->hasFormat = true;
    plib::chooseFormat(plib::PageFormat(value.toInt()), settings);
}

/// Throws a CommandError if the sheets are not in portrait format, because the page offers a choice
/// of pictures only for this format.
void setPictures(const QString& value, OutputSettings* settings)
{
    const auto pictures = plib::PagePictures(value.toInt());
    const bool isFree = settings->hasFormat && settings->formatId == plib::PageFormat::Portrait;
    if (!isFree && pictures != settings->picturesId)
        throw CommandError{QStringLiteral("picturesId=%1 requires the portrait format, formatId=0")
                               .arg(int(pictures))};
    settings->picturesId = pictures;
}

void setFontSize(const QString& value, OutputSettings* settings)
{
    const QString size = plib::fontSizeText(value);
    if (size.isNull())
        throw CommandError{QStringLiteral("fontSizeText must be a number from %1 to %2, not \"%3\"")
                               .arg(plib::fontSizeField().minimum)
                               .arg(plib::fontSizeField().maximum)
                               .arg(value)};
    settings->fontSizeText = size;
}

constexpr Setting Settings[] = {
    {"scaleMode", int(plib::ScaleMode::ToFit), Pages::All, setNumber<&OutputSettings::scaleMode>},
    {"scaleIndex", int(std::size(plib::EngineeringScales)), Pages::All, setScaleIndex},
    {"scaleText", NoNumber, Pages::All, setScaleText},
    {"pageSplitId", plib::PageSplitCount - 1, Pages::Split,
     setNumber<&OutputSettings::pageSplitId>},
    {"hasFormat", 1, Pages::AllButSplit, setNumber<&OutputSettings::hasFormat>},
    {"formatId", int(plib::PageFormat::Landscape), Pages::AllButSplit, setFormat},
    {"picturesId", int(plib::PagePictures::Two), Pages::AllButSplit, setPictures},
    {"viewId", int(plib::OutputView::UserDefined), Pages::AllButSplit,
     setNumber<&OutputSettings::viewId>},
    {"fontSizeText", NoNumber, Pages::All, setFontSize},
    {"fillAreas", 1, Pages::AllButSplit, setNumber<&OutputSettings::fillAreas>},
};

QStringList names()
{
    QStringList all;
    for (const Setting& setting : Settings)
        all << QString::fromLatin1(setting.name);
    return all;
}

const Setting& settingOf(const QString& name)
{
    for (const Setting& setting : Settings)
        if (name == QLatin1String(setting.name))
            return setting;
    throw CommandError{QStringLiteral("unknown setting \"%1\"; there are %2")
                           .arg(name, names().join(QLatin1String(", ")))};
}

void checkPage(const Setting& setting, VKD_P_WidgetGraphicalOutput_Progname page)
{
    const bool isSplit = page == VKD_P_GraphicalOutput_Split;
    if (setting.pages == (isSplit ? Pages::AllButSplit : Pages::Split))
        throw CommandError{QStringLiteral("the page of --progname %1 has no %2")
                               .arg(page)
                               .arg(QLatin1String(setting.name))};
}

void checkNumber(const Setting& setting, const QString& value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (setting.highest != NoNumber && (!isNumber || number < 0 || number > setting.highest))
        throw CommandError{
            QStringLiteral("%1 must be a number from 0 to %2, not \"%3\"")
                .arg(QLatin1String(setting.name), QString::number(setting.highest), value)};
}
} // namespace

void applySettings(const QStringList& arguments, plib::OutputSettings* settings)
{
    for (const QString& argument : arguments) {
        const int equals = argument.indexOf(QLatin1Char('='));
        if (equals < 1)
            throw CommandError{
                QStringLiteral("--set requires NAME=VALUE, not \"%1\"").arg(argument)};
        const Setting& setting = settingOf(argument.left(equals));
        const QString value = argument.mid(equals + 1);
        checkNumber(setting, value);
        checkPage(setting, settings->variant);
        setting.set(value, settings);
    }
}

QString settingsHelp()
{
    QStringList all;
    for (const Setting& setting : Settings) {
        const QString name = QLatin1String(setting.name);
        all << (setting.highest == NoNumber
                    ? name
                    : QStringLiteral("%1 (0 to %2)").arg(name).arg(setting.highest));
    }
    return all.join(QLatin1String(", "));
}

} // namespace workbench
