#include "settingsArguments.h"

#include "CommandLine.h"

namespace workbench {

namespace {
using plib::OutputSettings;

struct NumberField
{
    const char* name;
    int OutputSettings::*member;
    int highest;
};

struct SwitchField
{
    const char* name;
    bool OutputSettings::*member;
};

struct TextField
{
    const char* name;
    QString OutputSettings::*member;
};

constexpr NumberField Numbers[] = {
    {"scaleMode", &OutputSettings::scaleMode, 1},
    {"scaleIndex", &OutputSettings::scaleIndex, 11},
    {"pageSplitId", &OutputSettings::pageSplitId, 5},
    {"formatId", &OutputSettings::formatId, 1},
    {"picturesId", &OutputSettings::picturesId, 1},
    {"viewId", &OutputSettings::viewId, 4},
};
constexpr SwitchField Switches[] = {
    {"hasFormat", &OutputSettings::hasFormat},
    {"fillAreas", &OutputSettings::fillAreas},
};
constexpr TextField Texts[] = {
    {"scaleText", &OutputSettings::scaleText},
    {"fontSizeText", &OutputSettings::fontSizeText},
};

int numberUpTo(int highest, const QString& name, const QString& value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (!isNumber || number < 0 || number > highest)
        throw CommandError{QStringLiteral("%1 is a number from 0 to %2, not \"%3\"")
                               .arg(name, QString::number(highest), value)};
    return number;
}

void set(const QString& name, const QString& value, OutputSettings* settings)
{
    for (const NumberField& field : Numbers)
        if (name == QLatin1String(field.name))
            settings->*field.member = numberUpTo(field.highest, name, value);
    for (const SwitchField& field : Switches)
        if (name == QLatin1String(field.name))
            settings->*field.member = numberUpTo(1, name, value) == 1;
    for (const TextField& field : Texts)
        if (name == QLatin1String(field.name))
            settings->*field.member = value;
}

QStringList names()
{
    QStringList all;
    for (const NumberField& field : Numbers)
        all << QString::fromLatin1(field.name);
    for (const SwitchField& field : Switches)
        all << QString::fromLatin1(field.name);
    for (const TextField& field : Texts)
        all << QString::fromLatin1(field.name);
    return all;
}

/// Makes row and text of the scale agree where only one of them was given.
void completeScale(const QStringList& given, OutputSettings* settings)
{
    const QStringList scales = plib::engineeringScales();
    const bool hasIndex = given.contains(QLatin1String("scaleIndex"));
    const bool hasText = given.contains(QLatin1String("scaleText"));
    if (hasText && !hasIndex) {
        const int row = scales.indexOf(settings->scaleText);
        if (row < 0)
            throw CommandError{QStringLiteral("scaleText is one of %1, not \"%2\"")
                                   .arg(scales.join(QLatin1Char(' ')), settings->scaleText)};
        settings->scaleIndex = row + 1;
    } else if (hasIndex && !hasText && settings->scaleIndex > 0) {
        settings->scaleText = scales[settings->scaleIndex - 1];
    }
}
} // namespace

void applySettings(const QStringList& arguments, plib::OutputSettings* settings)
{
    QStringList given;
    for (const QString& argument : arguments) {
        const int equals = argument.indexOf(QLatin1Char('='));
        if (equals < 1)
            throw CommandError{QStringLiteral("--set needs NAME=VALUE, not \"%1\"").arg(argument)};
        const QString name = argument.left(equals);
        if (!names().contains(name))
            throw CommandError{QStringLiteral("unknown setting \"%1\"; there are %2")
                                   .arg(name, names().join(QLatin1String(", ")))};
        set(name, argument.mid(equals + 1), settings);
        given << name;
    }
    completeScale(given, settings);
}

QString settingsHelp()
{
    QStringList all = names();
    for (const NumberField& field : Numbers)
        all.replace(
            all.indexOf(QLatin1String(field.name)),
            QStringLiteral("%1 (0 to %2)").arg(QLatin1String(field.name)).arg(field.highest));
    for (const SwitchField& field : Switches)
        all.replace(all.indexOf(QLatin1String(field.name)),
                    QStringLiteral("%1 (0 or 1)").arg(QLatin1String(field.name)));
    return all.join(QLatin1String(", "));
}

} // namespace workbench
