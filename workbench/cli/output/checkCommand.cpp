#include "cli/commands.h"

#include "check/ScriptCheck.h"
#include "cli/CommandLine.h"

#include <catalogue/Catalogue.h>
#include <script/possibleLines.h>
#include <vkd_dbo_model.h>
#include <VKD_H_ZOBDoc.h>

namespace workbench {

namespace {
ScriptGrammars catalogueGrammars()
{
    plib::Catalogue catalogue;
    plib::loadCatalogue(catalogue, vkd::desktopLanguage(),
                        [](const QString&, const QString& text) { throw CommandError{text}; });
    return {ScriptGrammar(possibleLines(catalogue.list, plib::Keywords::German)),
            ScriptGrammar(possibleLines(catalogue.list, plib::Keywords::English))};
}

ScriptCheck::LoadCases loadCasesOf(const QString& project)
{
    QSet<int> numbers;
    const auto document = openProject(project);
    for (const vkd::dbo::LoadCase& loadCase : vkd::dbo::readLoadCases(document->handle()))
        numbers.insert(loadCase.number);
    return numbers;
}
} // namespace

int checkCommand(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral("Checks whether a script is one that the catalogue's plots can make: "
                       "statements, keywords, values, definitions, load cases, and the beginning "
                       "and end of the program block. Prints a line FILE:LINE:COLUMN for each "
                       "finding, and exits with code 1 if there are findings."),
        {QStringLiteral("FILE")},
        {{QStringLiteral("keywords"), QStringLiteral("english|german"),
          QStringLiteral("Language of the script's keywords; by default the language in which "
                         "more statements are known.")},
         {QStringLiteral("project"), QStringLiteral("FILE"),
          QStringLiteral("Also checks the load cases, which must be those of the project.")},
         languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    const QString path = line.argument(0);
    const QString script = readText(path);
    const ScriptGrammars grammars = catalogueGrammars();
    const vkd::Language keywords = line.language("keywords", likelyKeywords(script, grammars));
    const auto findings =
        checkScript(script, grammars, keywords,
                    line.has("project") ? loadCasesOf(line.value("project")) : std::nullopt);
    QString text;
    for (const ScriptFinding& finding : findings)
        text += path + QLatin1Char(':') + findingText(finding) + QLatin1Char('\n');
    print(findings.isEmpty() ? path + QStringLiteral(": no findings\n") : text);
    return findings.isEmpty() ? 0 : 1;
}

} // namespace workbench
