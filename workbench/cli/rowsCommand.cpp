#include "cli/commands.h"

#include "cli/CommandLine.h"
#include "cli/DesignRows.h"
#include "cli/rowChanges.h"

#include <record/designFields.h>
#include <record/designStore.h>
#include <VKD_H_ZOBDoc.h>
#include <ZobTransaction.h>

#include <QSaveFile>

#include <functional>

namespace workbench {

namespace {
QString fieldNames()
{
    QStringList names;
    for (const plib::NamedField& field : plib::namedFields())
        names << QString::fromLatin1(field.name);
    return names.join(QLatin1Char(' '));
}

/// Throws a CommandError if the status is an error.
void failOn(const VkdStatus& failure)
{
    if (!failure.isOk())
        throw CommandError{failure.reason};
}

void storeRows(VKD_H_ZOBDoc* document, const std::function<void(DesignRows*)>& edit)
{
    ZobTransaction change(document->handle());
    failOn(change.status());
    plib::checkAndCreateZobDefault(document->index());
    DesignRows rows(document);
    edit(&rows);
    rows.write();
    failOn(change.commit());
}

/// Spreadsheet programs recognise UTF-8 by the byte order mark.
void exportRows(const DesignRows& rows, const QString& path)
{
    const QString text =
        QChar(QChar::ByteOrderMark) + plib::rowTableText(rows.rows(), plib::separatorOfFiles());
    const QByteArray bytes = text.toUtf8();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw CommandError{QStringLiteral("cannot write %1: %2").arg(path, file.errorString())};
}

/// Reads a table in UTF-8 or in the encoding that spreadsheet programs on Windows use.
plib::RowTable readTable(const QString& path)
{
    const QByteArray bytes = readBytes(path);
    const QString text = QString::fromUtf8(bytes);
    const bool isUtf8 = !text.contains(QChar(QChar::ReplacementCharacter));
    return plib::readRowTable(isUtf8 ? text : QString::fromLatin1(bytes));
}

void importRows(VKD_H_ZOBDoc* document, const QString& path, bool isDryRun)
{
    const plib::RowTable table = readTable(path);
    try {
        if (!isDryRun)
            return storeRows(document, [&table](DesignRows* rows) { rows->import(table); });
        DesignRows rows(document);
        const plib::DesignRowList before = rows.rows();
        rows.import(table);
        print(describedChanges(before, rows.rows(), rows.newRow()));
    } catch (const CommandError& error) {
        throw CommandError{path + QLatin1String(": ") + error.text};
    }
}

void checkOptions(const CommandLine& line)
{
    const int given = int(line.has("set-row")) + int(line.has("export")) + int(line.has("import"));
    if (given > 1)
        throw CommandError{QStringLiteral("--set-row, --export and --import cannot be combined")};
    if (line.has("dry-run") && !line.has("import"))
        throw CommandError{QStringLiteral("--import is missing")};
    if (!line.argumentsFrom(1).isEmpty() && !line.has("set-row"))
        throw CommandError{QStringLiteral("--set-row is missing")};
}
} // namespace

int rowsCommand(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral(
            "Prints the design parameters of a project's area elements, one line per set: "
            "groups, type, directions and distances, reinforcement, crack control. FIELD=VALUE "
            "changes the row given by --set-row, in base units (rad, m, mm for bars and crack "
            "widths, cm²/m, N/mm²). The second and third distances are spacings; the value "
            "\"unset\" clears a field. The fields are %1.")
            .arg(fieldNames()),
        {QStringLiteral("FILE"), QStringLiteral("[FIELD=VALUE...]")},
        {{QStringLiteral("set-row"), QStringLiteral("GROUPS"),
          QStringLiteral(
              "Changes the row with exactly these groups, or adds one, and stores the rows. "
              "GROUPS is \"none\", \"remaining\", or numbers of groups, ranges such as 1-5 and "
              "names of secondary groups, separated by spaces, commas or semicolons. The groups of "
              "a new row are removed from other rows.")},
         {QStringLiteral("export"), QStringLiteral("TABLE"),
          QStringLiteral(
              "Writes all rows to a file for spreadsheets, with a line of column headers and a "
              "column for each value. Cells are separated by commas, in German by "
              "semicolons.")},
         {QStringLiteral("import"), QStringLiteral("TABLE"),
          QStringLiteral(
              "Reads such a file, with column headers in any language and order. The column with "
              "the groups is required; each row is set as with --set-row. Values whose columns are "
              "missing do not change. If a cell is invalid, nothing is stored.")},
         {QStringLiteral("dry-run"), QString(),
          QStringLiteral("With --import, prints the changes without storing them.")},
         languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    checkOptions(line);
    const auto document = openProject(line.argument(0));
    if (line.has("set-row"))
        storeRows(document.get(), [&line](DesignRows* rows) {
            rows->setRow(line.value("set-row"), line.argumentsFrom(1));
        });
    if (line.has("export")) {
        exportRows(DesignRows(document.get()), line.value("export"));
        return 0;
    }
    if (line.has("import"))
        importRows(document.get(), line.value("import"), line.has("dry-run"));
    if (line.has("dry-run"))
        return 0;
    print(DesignRows(document.get()).text());
    return 0;
}

} // namespace workbench
