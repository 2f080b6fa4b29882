#include "cli/commands.h"

#include "cli/CommandLine.h"
#include "cli/DesignRows.h"

#include <record/designFields.h>
#include <record/designStore.h>
#include <VKD_H_ZOBDoc.h>
#include <ZobTransaction.h>

namespace workbench {

namespace {
QString fieldNames()
{
    QStringList names;
    for (const plib::NamedField& field : plib::namedFields())
        names << QString::fromLatin1(field.name);
    return names.join(QLatin1Char(' '));
}
/// Throws a CommandError if the status is a failure.
void failOn(const VkdStatus& failure)
{
    if (!failure.isOk())
        throw CommandError{failure.reason};
}

void storeRow(VKD_H_ZOBDoc* document, const QString& groups, const QStringList& fields)
{
    ZobTransaction change(document->handle());
    failOn(change.status());
    plib::checkAndCreateZobDefault(document->index());
    DesignRows rows(document);
    rows.setRow(groups, fields);
    rows.write();
    failOn(change.commit());
}
} // namespace

int rowsCommand(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral(
            "Prints the design parameters of a project's area elements, one line per set: "
            "groups, type, directions and distances, reinforcement, crack control. FIELD=VALUE "
            "changes the row given by --set-row, in base units (rad, m, mm for bars and crack "
            "widths, cm²/m, N/mm²). The second and third distance are spacings; the value "
            "\"unset\" clears a field. The fields are %1.")
            .arg(fieldNames()),
        {QStringLiteral("FILE"), QStringLiteral("[FIELD=VALUE...]")},
        {{QStringLiteral("set-row"), QStringLiteral("GROUPS"),
          QStringLiteral(
              "Changes the row with exactly these groups, or adds one, and stores the rows. "
              "GROUPS is \"none\", \"remaining\", or numbers of groups, ranges such as 1-5 and "
              "names of secondary groups, separated by blanks, commas or semicolons. The groups of "
              "a new row are removed from other rows.")},
         languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    const QStringList fields = line.argumentsFrom(1);
    if (!fields.isEmpty() && !line.has("set-row"))
        throw CommandError{QStringLiteral("--set-row is missing")};
    const auto document = openProject(line.argument(0));
    if (line.has("set-row"))
        storeRow(document.get(), line.value("set-row"), fields);
    print(DesignRows(document.get()).text());
    return 0;
}

} // namespace workbench
