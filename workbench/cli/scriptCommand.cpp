#include "cli/commands.h"

#include "cli/CommandLine.h"
#include "cli/OutputTree.h"
#include "cli/savedChoice.h"
#include "cli/settingsArguments.h"

#include <script/outputScript.h>
#include <script/PlatformScriptEnvironment.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>

#include <QDir>
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
    std::vector<CommandLine::Option> all = choiceOptions();
    const CommandLine::Option own[] = {
        option("keywords", "english|german",
               QStringLiteral("Language of the script's keywords; "
                              "english by default.")),
        option("additional", "TEXT",
               QStringLiteral("Text that is inserted after the plots, or before "
                              "them on the prefix page.")),
        option("set", "NAME=VALUE",
               QStringLiteral("Changes a setting of the page; may be repeated. Each has the same "
                              "effect as its control on the page, in the given order: %1.")
                   .arg(settingsHelp())),
        option("selection-out", "FILE", QStringLiteral("Writes the plots to a selection text.")),
        option("load-cases", "FILE",
               QStringLiteral("Reads the load cases from lines of kind, number "
                              "and name, not from the project.")),
        option("o", "FILE",
               QStringLiteral("Writes the script to a file, completely or not at all.")),
        languageOption(),
    };
    all.insert(all.end(), std::begin(own), std::end(own));
    return all;
}

void write(QSaveFile* file, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    const QFileInfo existing(file->fileName());
    if (existing.exists() && !existing.isFile()) // saving would replace a pipe or a device
        throw CommandError{
            QStringLiteral("cannot write %1: it is not a file").arg(file->fileName())};
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

/// Writes the script and the selection. Replaces files only after all output has been written, so
/// that a failed write leaves all files unchanged.
void writeResults(const CommandLine& line, const QString& script, const QString& selection)
{
    const auto place = [&line](const char* option) {
        return QDir::cleanPath(QFileInfo(line.value(option)).absoluteFilePath());
    };
    if (line.has("o") && line.has("selection-out") && place("o") == place("selection-out"))
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
    CommandLine line(QStringLiteral("Prints the script for the plots that are chosen in a project. "
                                    "Uses the plots, load cases and settings that the window has "
                                    "saved in the project. If none are saved, uses the plots that "
                                    "the catalogue proposes, all load cases and the settings of a "
                                    "new page. Options override saved values."),
                     {QStringLiteral("FILE")}, options());
    line.parse(arguments);
    applyLanguage(line);
    const plib::Keywords keywords = plib::keywordsIf(
        line.language("keywords", vkd::Language::English) == vkd::Language::English);
    vkd_lib_setvalue(VKD_SETTING_HEAD_LANGUAGE, int(keywords));
    auto document = openProject(line.argument(0));
    const OutputState saved = savedChoice(line, document->handle());
    plib::OutputSettings settings = savedSettings(line, saved);
    restoreCamera(saved);
    applySettings(line.values("set"), &settings);
    OutputTree::Rows rows;
    if (line.has("load-cases"))
        rows = readRows(line.value("load-cases"));
    OutputTree tree(std::move(document), settings.variant, saved,
                    line.has("load-cases") ? &rows : nullptr);
    tree.applySelection(chosenPlots(line, saved));
    QString additional = line.value("additional");
    // The prefix page inserts the text unchanged, without adding a newline.
    if (settings.variant == VKD_P_GraphicalOutput_Prefix && !additional.isEmpty())
        additional += QLatin1Char('\n');
    const plib::PlatformScriptEnvironment environment(tree.parameter());
    const QString script =
        plib::outputScript(settings, tree.scriptLines(keywords), additional, keywords, environment);
    writeResults(line, script, tree.selectionText());
    return 0;
}

} // namespace workbench
