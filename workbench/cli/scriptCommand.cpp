#include "commands.h"

#include "CommandLine.h"
#include "OutputTree.h"
#include "settingsArguments.h"

#include <outputScript.h>
#include <PlatformScriptEnvironment.h>
#include <vkd_lib_value.h>

#include <QFileInfo>
#include <QSaveFile>

namespace workbench {

namespace {
std::vector<CommandLine::Option> options()
{
    const auto option = [](const char* name, const char* value, const QString& description) {
        return CommandLine::Option{QString::fromLatin1(name), QString::fromLatin1(value),
                                   description};
    };
    return {
        option("keywords", "english|german",
               QStringLiteral("Language of the script's keywords; "
                              "english by default.")),
        option("progname", "N",
               QStringLiteral("Kind of page: 1 standard (default), 122 split, "
                              "222 prefix.")),
        option("additional", "TEXT",
               QStringLiteral("Text that goes behind the plots, on the prefix "
                              "page ahead of them.")),
        option(
            "set", "NAME=VALUE",
            QStringLiteral("A setting of the page, as often as needed: %1.").arg(settingsHelp())),
        option("selection", "FILE", QStringLiteral("Takes the choice from a selection text.")),
        option("selection-out", "FILE", QStringLiteral("Writes the choice as a selection text.")),
        option("load-cases", "FILE",
               QStringLiteral("Takes the load cases from lines of kind, number "
                              "and name, not from the project.")),
        option("o", "FILE", QStringLiteral("Writes the script into a file, whole or not at all.")),
        languageOption(),
    };
}

void write(QSaveFile* file, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    const QFileInfo existing(file->fileName());
    if (existing.exists() && !existing.isFile()) // a pipe or device would be replaced by a file
        throw CommandError{QStringLiteral("cannot write %1: it is no file").arg(file->fileName())};
    if (!file->open(QIODevice::WriteOnly) || file->write(bytes) != bytes.size() || !file->flush())
        throw CommandError{
            QStringLiteral("cannot write %1: %2").arg(file->fileName(), file->errorString())};
}

void commit(QSaveFile* file)
{
    if (!file->commit())
        throw CommandError{
            QStringLiteral("cannot write %1: %2").arg(file->fileName(), file->errorString())};
}

plib::OutputSettings settingsFrom(const CommandLine& line)
{
    plib::OutputSettings settings;
    settings.variant = VKD_P_WidgetGraphicalOutput_Progname(
        line.number("progname", VKD_P_GraphicalOutput_Standard));
    settings.hasFormat = settings.variant != VKD_P_GraphicalOutput_Split;
    applySettings(line.values("set"), &settings);
    return settings;
}

/// No file is touched before all that is to be written has been.
void writeResults(const CommandLine& line, const QString& script, const QString& selection)
{
    if (line.has("o") && line.value("o") == line.value("selection-out"))
        throw CommandError{QStringLiteral("the script and the choice cannot both go into %1")
                               .arg(line.value("o"))};
    QSaveFile scriptFile(line.value("o"));
    QSaveFile selectionFile(line.value("selection-out"));
    if (line.has("o"))
        write(&scriptFile, script);
    if (line.has("selection-out"))
        write(&selectionFile, selection);
    if (!line.has("o"))
        print(script);
    else
        commit(&scriptFile);
    if (line.has("selection-out"))
        commit(&selectionFile);
}
} // namespace

int scriptCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("Prints the script for the plots that are chosen in a project, "
                                    "by default those that the catalogue proposes."),
                     {QStringLiteral("FILE")}, options());
    line.parse(arguments);
    applyLanguage(line);
    const bool english = line.english("keywords", true);
    vkd_lib_setvalue(VKD_SETTING_HEAD_LANGUAGE, english ? 1 : 0);
    const plib::OutputSettings settings = settingsFrom(line);
    OutputTree::Rows rows;
    if (line.has("load-cases"))
        rows = readRows(line.value("load-cases"));
    OutputTree tree(line.argument(0), settings.variant, line.has("load-cases") ? &rows : nullptr);
    if (line.has("selection"))
        tree.applySelection(readText(line.value("selection")));
    QString additional = line.value("additional");
    // On the prefix page the line end is the caller's business.
    if (settings.variant == VKD_P_GraphicalOutput_Prefix && !additional.isEmpty())
        additional += QLatin1Char('\n');
    const plib::PlatformScriptEnvironment environment(tree.parameter());
    const QString script =
        plib::outputScript(settings, tree.scriptLines(english), additional, english, environment);
    writeResults(line, script, tree.selectionText());
    return 0;
}

} // namespace workbench
