#include "cli/commands.h"

#include "cli/CommandLine.h"
#include "cli/output/OutputTree.h"
#include "cli/output/savedChoice.h"
#include "cli/output/settingsArguments.h"
#include "project/output/outputFileNames.h"
#include "project/WholeFiles.h"

#include <script/outputScript.h>
#include <script/PlatformScriptEnvironment.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <ZobSnapshot.h>

#include <QDir>
#include <QFileInfo>

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
               QStringLiteral("Writes the script to a file. An existing file is replaced only if "
                              "this succeeds.")),
        option("all", "",
               QStringLiteral("Writes the scripts of all outputs that have plots to the folder "
                              "given by --into. Prints the paths of the files.")),
        option("into", "FOLDER", QStringLiteral("The folder for the scripts of --all.")),
        languageOption(),
    };
    all.insert(all.end(), std::begin(own), std::end(own));
    return all;
}

/// A script, and the selection text for its plots.
struct Script
{
    QString text;
    QString selection;
};

/// Creates the script of one output. The arguments may override its settings.
Script makeScript(const CommandLine& line, VKD_H_ZOBDoc* document, const OutputState& saved)
{
    const plib::Keywords keywords = plib::keywordsIf(
        line.language("keywords", vkd::Language::English) == vkd::Language::English);
    vkd_lib_setvalue(VKD_SETTING_HEAD_LANGUAGE, int(keywords));
    plib::OutputSettings settings = savedSettings(line, saved);
    restoreCamera(saved);
    applySettings(line.values("set"), &settings);
    OutputTree::Rows rows;
    if (line.has("load-cases"))
        rows = readRows(line.value("load-cases"));
    OutputTree tree(document, settings.variant, saved, line.has("load-cases") ? &rows : nullptr);
    tree.applySelection(chosenPlots(line, saved));
    QString additional = line.value("additional");
    // The prefix page inserts the text unchanged, without adding a newline.
    if (settings.variant == VKD_P_GraphicalOutput_Prefix && !additional.isEmpty())
        additional += QLatin1Char('\n');
    const plib::PlatformScriptEnvironment environment(tree.parameter());
    const QString text =
        plib::outputScript(settings, tree.scriptLines(keywords), additional, keywords, environment);
    return {text, tree.selectionText()};
}

/// Throws a CommandError if writing has failed.
void check(bool isWritten, const WholeFiles& files)
{
    if (isWritten)
        return;
    QString text = QStringLiteral("cannot write %1: %2").arg(files.failedPath(), files.reason());
    if (const QStringList replaced = files.replaced(); !replaced.isEmpty())
        text += QStringLiteral("; already written: %1").arg(replaced.join(QLatin1String(", ")));
    throw CommandError{text};
}

/// Writes the script and the selection.
void writeResults(const CommandLine& line, const Script& script)
{
    const auto place = [&line](const char* option) {
        return QDir::cleanPath(QFileInfo(line.value(option)).absoluteFilePath());
    };
    if (line.has("o") && line.has("selection-out") && place("o") == place("selection-out"))
        throw CommandError{QStringLiteral("the script and the choice cannot both be written to %1")
                               .arg(line.value("o"))};
    WholeFiles files;
    if (line.has("o"))
        check(files.add(line.value("o"), script.text.toUtf8()), files);
    if (line.has("selection-out"))
        check(files.add(line.value("selection-out"), script.selection.toUtf8()), files);
    if (!line.has("o"))
        print(script.text);
    check(files.commit(), files);
}

void checkOptionsOfAll(const CommandLine& line)
{
    for (const char* option : {"output", "proposed", "progname", "selection", "selection-out", "o"})
        if (line.has(option))
            throw CommandError{
                QStringLiteral("--all and %1%2 cannot be combined")
                    .arg(QLatin1String(qstrlen(option) > 1 ? "--" : "-"), QLatin1String(option))};
    if (!line.has("into"))
        throw CommandError{QStringLiteral("--into is missing")};
}

/// Reads all outputs from the same state of the project and writes their scripts. Prints the paths
/// of the files and a warning that lists the outputs without plots. They have no script.
void writeAll(const CommandLine& line, VKD_H_ZOBDoc* document)
{
    const ZobSnapshot snapshot(document->handle());
    if (!snapshot.status().isOk())
        throw CommandError{snapshot.status().reason};
    const OutputList outputs = savedOutputs(document->handle());
    const QStringList names = outputFileNames(outputs.names(), QStringLiteral(".dat"));
    const QDir folder(line.value("into"));
    if (!folder.mkpath(QStringLiteral(".")))
        throw CommandError{QStringLiteral("cannot create the folder %1").arg(line.value("into"))};
    WholeFiles files;
    QString paths;
    QStringList skipped;
    for (int i = 0; i < names.size(); ++i) {
        const QString script = makeScript(line, document, outputs.at(i).state).text;
        if (script.isEmpty()) {
            skipped << outputs.name(i);
            continue;
        }
        check(files.add(folder.filePath(names[i]), script.toUtf8()), files);
        paths += folder.filePath(names[i]) + QLatin1Char('\n');
    }
    check(files.commit(), files);
    print(paths);
    if (!skipped.isEmpty())
        warn(QStringLiteral("outputs without plots: ") + skipped.join(QLatin1String(", ")));
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
    if (line.has("all"))
        checkOptionsOfAll(line);
    else if (line.has("into"))
        throw CommandError{QStringLiteral("--all is missing")};
    const auto document = openProject(line.argument(0));
    if (line.has("all"))
        writeAll(line, document.get());
    else
        writeResults(line, makeScript(line, document.get(), savedChoice(line, document->handle())));
    return 0;
}

} // namespace workbench
