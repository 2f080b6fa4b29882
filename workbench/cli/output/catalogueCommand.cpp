#include "cli/commands.h"

#include "cli/CommandLine.h"
#include "project/installedFile.h"

#include <catalogue/Catalogue.h>
#include <catalogue/catalogueLint.h>

#include <QFile>

#include <cstdio>

namespace workbench {

namespace {
QString cataloguePath(const QString& given)
{
    if (!given.isEmpty())
        return given;
    const QLatin1String name(plib::CatalogueFile);
    const QString found = installedFile(name);
    if (found.isEmpty())
        throw CommandError{QStringLiteral("%1 is not on the search path").arg(name)};
    return found;
}

QString recordLine(const plib::GraphicalOutputRecord& r)
{
    const auto number = [](int value) { return QString::number(value); };
    return QStringList{number(r.prog1),
                       number(r.prog2),
                       number(r.prog3),
                       r.title1,
                       r.title2,
                       r.title3,
                       r.contentTag,
                       r.caseWord,
                       number(r.preselect),
                       number(r.viewKind),
                       number(r.systemMask),
                       r.scriptGerman,
                       r.scriptEnglish}
               .join(QLatin1Char('\t')) +
           QLatin1Char('\n');
}
} // namespace

int catalogueCommand(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral("Prints the plots of a catalogue, one per line with tabs between the "
                       "columns, and findings on standard error. Without FILE, uses the "
                       "installed catalogue."),
        {QStringLiteral("[FILE]")},
        {{QStringLiteral("strict"), QString(),
          QStringLiteral("Exits with code 1 if there are findings.")},
         languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    QFile file(cataloguePath(line.argument(0)));
    if (!file.open(QIODevice::ReadOnly))
        throw CommandError{
            QStringLiteral("cannot read %1: %2").arg(file.fileName(), file.errorString())};
    std::vector<plib::GraphicalOutputRecord> records;
    const auto findings = plib::lintCatalogue(file, &records);
    QString text;
    for (const auto& record : records)
        text += recordLine(record);
    print(text);
    for (const auto& finding : findings)
        std::fprintf(stderr, "%s:%d: %s\n", qUtf8Printable(file.fileName()), finding.line,
                     qUtf8Printable(finding.text));
    return line.has("strict") && !findings.empty() ? 1 : 0;
}

} // namespace workbench
