#include "LanguageSupport.h"
#include "TestSupport.h"

#include <exchange/patchRows.h>
#include <exchange/rowParameters.h>
#include <exchange/rowRecords.h>
#include <exchange/rowTable.h>
#include <history/TextChange.h>
#include <record/commonRecord.h>
#include <record/designRecord.h>
#include <vkd_language.h>

using namespace plib;
using vkd::Language;

namespace {
/// A row in which every parameter has a different value. Many of the values have no short text
/// form.
DesignParameterRow oddRow()
{
    DesignParameterRow row{nullptr, getDefaultMerPara(true), {3, 4}};
    float value = 0.1F;
    for (const NamedField& field : namedFields())
        if (field.real)
            row.record.*field.real = (value += 1.0F / 3);
    row.record.rioi = -0.123456789F;
    row.record.hioi = row.record.asu = NotSet;
    row.record.type = 3;
    return row;
}
} // namespace

class TestRowExchange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { testsupport::setLanguage(testsupport::English); }

    /// A table that was copied in one language can be read in the other language without losing a
    /// bit.
    void copiedRowsAreReadBack_data()
    {
        const Columns<int, int, QChar> row("written", "read", "separator");
        row("English clipboard, German reader", 1, 0, QLatin1Char('\t'));
        row("German file", 0, 0, QLatin1Char(';'));
        row("German file, English reader", 0, 1, QLatin1Char(';'));
        row("English file", 1, 1, QLatin1Char(','));
    }

    void copiedRowsAreReadBack()
    {
        QFETCH(const int, written);
        QFETCH(const int, read);
        QFETCH(const QChar, separator);
        const DesignRowList rows{oddRow(), {nullptr, getDefaultMerPara(false), {}}};
        vkd::setDesktopLanguage(Language(written));
        const QString text = rowTableText(rows, separator);
        vkd::setDesktopLanguage(Language(read));
        const RowTable table = readRowTable(text);
        QCOMPARE(table.faults.join(QLatin1Char('\n')), QString());
        QVERIFY(table.hasGroups && looksLikeRowTable(text));
        for (const auto& copied : {table.rows, rowsOfBytes(bytesOfRows(rows))}) {
            DesignRowList changed(2, {nullptr, getDefaultMerPara(true), {}});
            QCOMPARE(patchRows(copied, 0, &changed), QStringList());
            changed[0].record.group = rows[0].record.group; // record keys are not copied
            changed[1].record.group = rows[1].record.group;
            changed[0].groups = rows[0].groups;
            QVERIFY(changeBetween(rows, changed).isEmpty());
        }
    }

    void reading_data()
    {
        const Columns<QString, QString> row("text", "expected");
        row("any order and subset, both decimal separators, empty lines and columns",
            "\nCOVER\t\tArt\r\n33,5\t\tCIRCULAR\r\n\t\t\r\n34.5\t\t2\r\n", "0.0335 4|0.0345 2");
        row("header below empty lines", "\n ; \nType;x\n1;2",
            "Row 3: \"x\" is not a column header.");
        row("German types", "Art\nRINGFÖRMIG\nKeine  Bemessung", "0.035 4|0.035 0");
        row("an empty cell clears", "type;COVER\n1;", "-99999 1");
        row("a missing column leaves", "type\n1", "0.035 1");
        row("quoted", "\"Type\",\"COVER\"\n\"Two\nLayers\",\"1\"\"\"",
            "Row 2, Distance H upper principal [mm]: \"1\"\" is not a number.");
        row("another unit, a column twice", "Distance H upper principal [cm];type;type\n1;2;3",
            "Row 1: \"Distance H upper principal [cm]\" is not a column header.|"
            "Row 1: there are two columns \"type\".");
        row("each bad cell", "Type;COVER;Diameter upper cross [mm]\n1;1.234,5;0\nx;-1;9;7",
            "Row 2, Distance H upper principal [mm]: \"1.234,5\" has two decimal separators.|"
            "Row 2, Diameter upper cross [mm]: \"0\" is too small.|"
            "Row 3, Type: \"x\" is not a type.|"
            "Row 3, Distance H upper principal [mm]: \"-1\" is too small.|"
            "Row 3, column 4: \"7\" has no column header.");
        row("no rows", "type", "There are no rows below the column headers.");
        row("nothing", "", "There are no rows below the column headers.");
        row("minimum above the maximum",
            "Minimum reinforcement lower cross [cm²/m]\tMaximum reinforcement lower cross [cm²/m]"
            "\n2\t1",
            "Row 2, Minimum reinforcement lower cross [cm²/m]: the minimum is greater than the "
            "maximum.");
    }

    void reading()
    {
        QFETCH(QString, text);
        const QString cover = QStringLiteral("Distance H upper principal [mm]");
        const RowTable table = readRowTable(text.replace(QLatin1String("COVER"), cover));
        DesignRowList rows(table.rows.size(), {nullptr, getDefaultMerPara(false), {}});
        QStringList lines = table.faults;
        if (table.faults.isEmpty())
            lines = patchRows(table.rows, 0, &rows);
        for (std::size_t i = 0; lines.size() == int(i) && i < rows.size(); ++i)
            lines << QStringLiteral("%1 %2").arg(rows[i].record.hio).arg(rows[i].record.type);
        QTEST(lines.join(QLatin1Char('|')), "expected");
    }

    void limits()
    {
        for (std::size_t i = 0; i < fields::Minimum.size(); ++i)
            for (float maximum : {1.0F, 2.0F, NotSet}) {
                tagZOB_QUAD_RIM record = getDefaultMerPara(true);
                record.*fields::Minimum[i] = 2;
                record.*fields::Maximum[i] = maximum;
                QCOMPARE(limitFault(record, 1).isEmpty(), maximum != 1);
            }
    }

    void pasting()
    {
        const auto faults = [](std::size_t copied, std::size_t selected, int kind = 0) {
            DesignRowList rows(selected, {nullptr, getDefaultMerPara(true), {7}});
            const QStringList found =
                patchRows(std::vector(copied, RowPatch(oddRow().record)), kind, &rows);
            for (const DesignParameterRow& row : rows)
                if (row.record.type != (found.isEmpty() ? 3 : 1) || row.groups.front() != 7)
                    return -1;
            return rows.front().record.hio == NotSet ? 100 : int(found.size());
        };
        QCOMPARE(faults(1, 3), 0);
        QCOMPARE(faults(3, 3), 0);
        QCOMPARE(faults(2, 3), 1);
        QCOMPARE(faults(3, 1), 1);
        QCOMPARE(faults(1, 1, 10), 100); // a plane system
    }

    void foreignBytesAreRefused()
    {
        const QByteArray bytes = bytesOfRows({oddRow()});
        QCOMPARE(rowsOfBytes(bytes).size(), std::size_t(1));
        for (int byte : {0, 7 + 4, 7 + 8, 7 + 16, 7 + 23}) { // header, subId, type, mark, a NaN
            QByteArray damaged = bytes;
            damaged.replace(byte == 7 + 23 ? byte - 1 : byte, byte == 7 + 23 ? 2 : 1,
                            byte == 7 + 23 ? "\xC0\x7F" : "\x33");
            QVERIFY(rowsOfBytes(damaged).empty());
        }
        QVERIFY(rowsOfBytes(bytes.left(bytes.size() - 1)).empty());
    }

    /// The description of a row contains the values of its dialogs, even those that its cells do
    /// not show, and no others.
    void describing_data()
    {
        const Columns<int, QString> row("type", "expected");
        row("no design", 0, "");
        row("one direction", 1, "Direction principal 0.0 – °|CRACK");
        row("two directions", 2, "Direction principal 0.0 – °|Direction cross – 30.0 °|CRACK");
        row("third layer", 3,
            "Direction principal 0.0 – °|Direction cross – 30.0 °|CRACK|"
            "Steel stress third layer – 240.5 N/mm²");
        row("midpoint", 4, "Direction principal 0.0 – °|Midpoint Y 2.000 m|CRACK");
    }

    void describing()
    {
        QFETCH(const int, type);
        DesignParameterRow row{nullptr, {}, {3, 1, 2, 7}};
        for (const NamedField& field : namedFields())
            if (field.real)
                row.record.*field.real = NotSet;
        row.record.type = type;
        row.record.rio = 0;
        row.record.riuq = 0.5235988F;
        row.record.yref = 2;
        row.record.wkoq = 0.3F;
        row.record.sigui = 240.5F;
        const auto lines = describeRow(row, {{2, QStringLiteral("Slab <1>")}, {9, {}}});
        QStringList texts;
        for (const DescriptionLine& line : lines)
            texts << (QStringList(line.name) + line.values + QStringList(line.unit))
                         .join(QLatin1Char(' '))
                         .trimmed();
        QCOMPARE(texts.takeFirst(), QStringLiteral("Groups 1-3, 7\n2: Slab <1>"));
        texts.removeFirst();
        texts.replaceInStrings(QStringLiteral("Crack width cross 0.30 – mm"),
                               QStringLiteral("CRACK"));
        QTEST(texts.join(QLatin1Char('|')), "expected");
    }

    void descriptionAsHtml()
    {
        const std::vector<DescriptionLine> lines{
            {QStringLiteral("Name"), {QStringLiteral("<1>\n2")}, {}},
            {QStringLiteral("Spin"), {QStringLiteral("1"), QStringLiteral("2")}, {}},
            {QStringLiteral("Size"), {QStringLiteral("3")}, QStringLiteral("m")}};
        QString html = descriptionHtml(lines, QStringLiteral("a\n&b"));
        html.remove(QLatin1String(" style='white-space:nowrap'"))
            .remove(QLatin1String(" align='right'"))
            .replace(QLatin1String("</td><td"), QLatin1String("|"));
        QCOMPARE(html, QStringLiteral("<table cellspacing='0' cellpadding='2'>"
                                      "<tr><td>Name| colspan='3'>&lt;1&gt;<br>2</td></tr>"
                                      "<tr><td>|>Upper|>Lower|></td></tr>"
                                      "<tr><td>Spin|>1|>2|></td></tr>"
                                      "<tr><td>Size|>3|>|>m</td></tr></table>"
                                      "<p>a<br>&amp;b</p>"));
        QCOMPARE(descriptionHtml({lines[0]}, {}).count(QLatin1String("<tr>")), 1);
        QVERIFY(descriptionHtml({lines[0]}, {}).endsWith(QLatin1String("</table>")));
    }

    /// The parameters of a row, as hosts exchange them, preserve every bit.
    void parametersAreReadBack()
    {
        const tagZOB_QUAD_RIM record = oddRow().record;
        tagZOB_QUAD_RIM read = getDefaultMerPara(false);
        RowPatch patch;
        QCOMPARE(readParameters(parametersOf(record), &patch), QStringList());
        patch.applyTo(read);
        QVERIFY(recordsEqual(read, record));
    }

    void parameters_data()
    {
        const Columns<QString, QVariant, QString> row("name", "value", "expected");
        row("real", "hio", 0.04, "Distance H principal 40.0 mm");
        row("lower side", "hiu", 0.04, "Distance H principal  40.0 mm");
        row("not set", "wko", QVariant(), "Crack width principal – mm");
        row("first type", "type", 0.0, "Type No design");
        row("last type", "type", 4.0, "Type Circular");
        row("above the last type", "type", 5.0, "\"5\" is not a type.");
        row("below the first type", "type", -1.0, "\"-1\" is not a type.");
        row("no type", "type", 1.5, "\"1.5\" is not a type.");
        row("type out of range", "type", 1e20, "\"1e+20\" is not a type.");
        row("unknown", "group", 1, "There is no parameter \"group\".");
        row("reserved", "reservedD", 1, "There is no parameter \"reservedD\".");
        row("too small", "hio", -0.001, "Distance H upper principal [mm]: \"-1\" is too small.");
        row("too large", "sigo", 1e6,
            "Steel stress upper principal [N/mm²]: \"1000000\" is too large.");
        row("zero bar", "dio", 0, "Diameter upper principal [mm]: \"0\" is too small.");
        row("NaN", "hio", std::numeric_limits<double>::quiet_NaN(),
            "Distance H upper principal [mm]: \"nan\" is not a number.");
    }

    void parameters()
    {
        QFETCH(const QString, name);
        QFETCH(const QVariant, value);
        RowPatch patch;
        QStringList texts = readParameters({{name, value}}, &patch);
        if (texts.isEmpty())
            for (const DescriptionLine& line : describeParameters({{name, value}}))
                texts << (QStringList(line.name) + line.values + QStringList(line.unit))
                             .join(QLatin1Char(' '))
                             .trimmed();
        QTEST(texts.join(QLatin1Char('|')), "expected");
    }

    /// In this test, each letter represents a row.
    void changes_data()
    {
        const Columns<QString, QString, QString> row("before", "after", "expected");
        row("none", "abc", "abc", "3  ");
        row("one", "abc", "axc", "1 b x");
        row("moved", "abcd", "acbd", "1 bc cb");
        row("added", "ab", "abb", "2  b");
        row("deleted", "abcde", "ace", "1 bcd c");
        row("all", "ab", "", "0 ab ");
    }

    void changes()
    {
        const auto rowsOf = [](const QString& letters) {
            DesignRowList rows;
            for (QChar letter : letters)
                rows.push_back({nullptr, getDefaultMerPara(false), {letter.unicode()}});
            return rows;
        };
        const auto lettersOf = [](const DesignRowList& rows) {
            QString letters;
            for (const DesignParameterRow& row : rows)
                letters += QChar(row.groups.front());
            return letters;
        };
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        DesignRowList rows = rowsOf(after);
        const RowsChange change = changeBetween(rowsOf(before), rows);
        QTEST(QStringLiteral("%1 %2 %3")
                  .arg(QString::number(change.first), lettersOf(change.before),
                       lettersOf(change.after)),
              "expected");
        replaceRows(rows, change.first, int(change.after.size()), change.before);
        QCOMPARE(lettersOf(rows), before);
    }

    /// An undo step saves the change between two texts without the parts that they have in common.
    void textChanges_data()
    {
        const Columns<QString, QString, QString> row("before", "after", "expected");
        row("replaced", "<a>1</a>", "<a>23</a>", "3 1 23");
        row("inserted into equal letters", "aa", "aaa", "2  a");
        row("removed", "abcbc", "abc", "3 bc ");
        row("equal", "ab", "ab", "2  ");
        row("all", "", "ab", "0  ab");
    }

    void textChanges()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        const TextChange change = textChange(before, after);
        QTEST(QStringLiteral("%1 %2 %3").arg(change.first).arg(change.before, change.after),
              "expected");
        QCOMPARE(redone(before, change), after);
        QCOMPARE(undone(after, change), before);
    }

    /// Rows share the fields that all their types have. Rounding errors do not count as
    /// differences. Only pairs of limits that a change touches are checked.
    void commonValues()
    {
        DesignRowList rows(3, oddRow());
        const std::set<int> all{0, 1, 2};
        const auto typeOf = [&](int a, int b) {
            rows[0].record.type = a;
            rows[1].record.type = rows[2].record.type = b;
            return commonRecord(rows, all).record.type;
        };
        QCOMPARE(typeOf(3, 2), 2);
        QCOMPARE(typeOf(4, 3), 1);
        QCOMPARE(typeOf(4, 4), 4);
        rows[1].record.hioq = 0.045F - 0.035F;
        rows[0].record.hioq = rows[2].record.hioq = 0.035F - 0.025F;
        rows[2].record.dio = NotSet;
        const CommonRecord common = commonRecord(rows, all);
        QVERIFY(common.mixed == std::vector<RealField>{&tagZOB_QUAD_RIM::dio});
        QVERIFY(common.record.dio == NotSet && common.record.riu == rows[0].record.riu);
        RowPatch patch;
        patch.set(&tagZOB_QUAD_RIM::asu, 9);
        rows[1].record.amo = 0; // below its minimum
        rows[0].record.amu = rows[1].record.amu = rows[2].record.amu = 9;
        QVERIFY(!limitFault(rows, all, patch));
        rows[2].record.amu = 8;
        QCOMPARE(limitFault(rows, all, patch)->row, 2);
    }
};

PLIB_TEST_MAIN(TestRowExchange)
#include "tst_rowExchange.moc"
