#include "TestSupport.h"

#include <record/designFields.h>
#include <record/designRecord.h>
#include <record/groupsNotice.h>
#include <record/rowText.h>
#include <record/rowTitle.h>
#include <record/sharedGroups.h>
#include <VKD_A_BarDiameterData.h>
#include <vkd_lib_value.h>

#include <QTextBoundaryFinder>

namespace {
/// Returns the painted form of a summary with "|" at each place where a line can break.
QString brokenText(const QString& summary)
{
    const QString painted = plib::withBreaksBetweenValues(summary);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, painted);
    QStringList lines;
    for (int begin = 0, end = finder.toNextBoundary(); end > 0;
         begin = end, end = finder.toNextBoundary())
        lines << painted.mid(begin, end - begin)
                     .replace(QChar(QChar::Nbsp), QLatin1Char(' '))
                     .remove(QRegularExpression(QStringLiteral("[\\x{200B}\\x{2060}\\n]")));
    return lines.join(QLatin1Char('|'));
}
} // namespace

class TestRowText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { vkd_lib_setvalue(102, 1); }

    void groups_data()
    {
        const Columns<QVector<int>, QString> row("groups", "expected");
        const auto packed = [](int a, int b, int c, int d) {
            return a | b << 8 | c << 16 | d << 24;
        };
        row("none", {}, "None");
        row("remaining", {-1}, "Remaining Groups");
        row("numbers as they stand", {7, 3, 4}, "7;3;4");
        row("-1 among others", {-1, 4}, "-1;4");
        row("last number", {999999}, "999999");
        row("blanks go", {packed('A', 'B', ' ', ' ')}, "AB");
        row("a zero ends it", {packed('A', 'B', 0, 'C')}, "AB");
        row("four letters", {5, packed('C', 'O', 'R', 'N')}, "5;CORN");
        row("Latin-1", {packed(0xD6, 'L', ' ', ' ')}, "ÖL");
        row("first that is a name", {1000000}, "@B\x0F");
    }

    void groups()
    {
        QFETCH(const QVector<int>, groups);
        plib::DesignParameterRow row;
        row.groups = {groups.begin(), groups.end()};
        QTEST(plib::rowText(row, 0), "expected");
    }

    void titlesOfRows()
    {
        plib::DesignRowList rows(4);
        rows[0].groups = {-1};
        rows[1].groups = {45, 3, 2, 1, 7, 8, 1, 0x204e504f}; // the name OPN
        rows[2].groups = {4};
        const auto title = [&](const std::set<int>& numbers) {
            return plib::rowTitle(rows, numbers);
        };
        QCOMPARE(title({0}), QStringLiteral("Row 1: remaining groups"));
        QCOMPARE(title({1}), QStringLiteral("Row 2: groups 1-3, 7, 8, 45, OPN"));
        QCOMPARE(title({3}), QStringLiteral("Row 4: no groups"));
        QCOMPARE(title({0, 1, 2, 3}),
                 QStringLiteral("Rows 1-4: groups 1-4, 7, 8, 45, OPN and remaining groups"));
    }

    void noticesOfGroups()
    {
        constexpr int Open = 0x204e504f;
        plib::DesignRowList rows(3);
        rows[0].groups = {1, 2, 3, 4};
        rows[1].groups = {3, Open};
        rows[2].groups = {4};
        QCOMPARE(
            plib::groupsNotice(rows, 0, {Open}),
            QStringLiteral("Removed from row 1: OPN (see Undo). Groups also in row 2, 3: 3, 4."));
        QCOMPARE(plib::groupsNotice(rows, 1, {1, 2, Open}),
                 QStringLiteral("Groups also in row 1: 3."));
        rows[0].groups = {-1};
        QCOMPARE(plib::groupsNotice(rows, 2, {-1}), QString());
        rows[2].groups = {-1, 3};
        QCOMPARE(plib::groupsNotice(rows, 2, {}),
                 QStringLiteral("Groups also in row 1, 2: 3 and remaining groups."));
        rows[1].groups = {};
        QCOMPARE(plib::groupsNotice(rows, 2, {}),
                 QStringLiteral("Groups also in row 1: remaining groups."));
    }

    /// Tests the text of rows with groups, with ", " instead of newlines.
    void sharedGroups()
    {
        const auto told = [](const QString& text) {
            std::vector<plib::DesignParameterRow> rows;
            for (const QString& groups : text.split(QLatin1Char('|'))) {
                rows.emplace_back();
                for (const QString& group : groups.split(QLatin1Char(' '), Qt::SkipEmptyParts))
                    rows.back().groups.push_back(group.toInt());
            }
            const auto shared = plib::sharedGroups(rows);
            const auto ofRows = plib::sharedGroupsOfRows(shared, rows.size());
            QStringList texts;
            for (size_t row = 0; row < rows.size(); ++row)
                texts << plib::sharedGroupsText(int(row), ofRows[row])
                             .replace(QLatin1Char('\n'), QLatin1String(", "));
            return texts.join(QLatin1Char('|'));
        };
        compareCases(told, "-1|1 2|| => |||\n"
                           "-1|3 3|4 => ||\n"
                           "-1|3 1|4|1 => |Group 1: also in row 4||Group 1: also in row 2\n"
                           "-1|-1 => Remaining Groups: also in row 2|"
                           "Remaining Groups: also in row 1\n"
                           "5|4 5|5 4 => Group 5: also in row 2, 3|Group 4: also in row 3, "
                           "Group 5: also in row 1, 3|Group 4: also in row 2, "
                           "Group 5: also in row 1, 2\n"
                           "6||6 6|6|6|6|6 => Group 6: also in row 3, 4, 5, 6, 7||"
                           "Group 6: also in row 1, 4, 5, 6, 7|"
                           "Group 6: also in row 1, 3, 5, 6, 7|"
                           "Group 6: also in row 1, 3, 4, 6, 7|"
                           "Group 6: also in row 1, 3, 4, 5, 7|"
                           "Group 6: also in row 1, 3, 4, 5, 6\n"
                           "1 2 3 4 5 6|6|6|6|6|6|6 => Group 6: also in row 2, 3, 4, 5, 6, …|"
                           "Group 6: also in row 1, 3, 4, 5, 6, …|"
                           "Group 6: also in row 1, 2, 4, 5, 6, …|"
                           "Group 6: also in row 1, 2, 3, 5, 6, …|"
                           "Group 6: also in row 1, 2, 3, 4, 6, …|"
                           "Group 6: also in row 1, 2, 3, 4, 5, …|"
                           "Group 6: also in row 1, 2, 3, 4, 5, …\n");
    }

    void columns_data()
    {
        // expected: columns 1 to 4
        const Columns<int, QStringList> row("type", "expected");
        const QString bars =
            QStringLiteral("Ø12 ;18.00 cm²/m ;24.00 cm²/m\nØ15 ;21.00 cm²/m ;27.00 cm²/m");
        const QString stresses = QStringLiteral("36.0 N/mm² ;37.0 N/mm² ;38.0 N/mm²\n"
                                                "39.0 N/mm² ;40.0 N/mm² ;41.0 N/mm² ;");
        const QString straight = QStringLiteral("0.0° ;171.9°\n6.0 mm ;9.0 mm ;7.0 mm ;10.0 mm ;");
        row("no design", 0, {QStringLiteral("No design"), {}, {}, {}});
        row("orthogonal", 1,
            {QStringLiteral("Two Layers (orthogonal)"), straight, bars,
             QStringLiteral("30.00 mm ;31.00 mm ;32.00 mm\n"
                            "33.00 mm ;34.00 mm ;35.00 mm ;")});
        row("two layers", 2,
            {QStringLiteral("Two Layers"),
             QStringLiteral("0.0° ;171.9° ;57.3° ;229.2°\n"
                            "6.0 mm ;9.0 mm ;7.0 mm ;10.0 mm ;"),
             bars, stresses});
        row("three layers", 3,
            {QStringLiteral("Three Layers"),
             QStringLiteral("0.0° ;171.9° ;57.3° ;229.2°\n6.0 mm ;"
                            "9.0 mm ;7.0 mm ;10.0 mm ;8.0 mm ;11.0 mm ;"),
             bars, stresses});
        row("circular", 4, {QStringLiteral("Circular"), straight, bars, stresses});
        row("5 has no name and reads like 4", 5, {{}, straight, bars, stresses});
        row("6", 6, {{}, {}, {}, {}});
        row("12 is called as 2", 12, {QStringLiteral("Two Layers"), {}, {}, {}});
        row("negative", -1, {{}, {}, {}, {}});
    }

    void columns()
    {
        QFETCH(int, type);
        VKD_A_BarDiameterData bars;
        plib::DesignParameterRow row;
        row.barData = &bars;
        row.record.type = type;
        // Each field has a different value, so that a wrong field is detected.
        float value = 0;
        for (const plib::NamedField& field : plib::namedFields()) {
            if (!field.real)
                continue;
            const int code = plib::dimensionCode(field.real);
            if (code == 1001)
                continue;
            row.record.*field.real = value * (code == 1024 ? 0.001F : 1.0F);
            value += 1;
        }
        QStringList texts;
        for (int column = 1; column < 5; ++column)
            texts << plib::rowText(row, column);
        QTEST(texts, "expected");
        for (int column = 1; column < 4; ++column)
            QCOMPARE(brokenText(texts[column]),
                     QString(texts[column])
                         .replace(QLatin1Char('\n'), QLatin1String("|"))
                         .replace(QLatin1String(" ;"), QLatin1String(" ;|"))
                         .remove(QRegularExpression(QStringLiteral("\\|$"))));
        QCOMPARE(plib::rowText(row, 5), QString());
        QCOMPARE(plib::rowText(row, -1), QString());
    }

    void germanNumbers()
    {
        vkd_lib_setvalue(102, 0);
        VKD_A_BarDiameterData bars;
        plib::DesignParameterRow row{&bars, plib::getDefaultMerPara(true), {}};
        row.record.rio = -99999.0F;
        row.record.riu = -0.0001F;
        row.record.dio = 11.5F; // not in the bar table
        row.record.diu = -99999.0F;
        QCOMPARE(plib::rowText(row, 2),
                 QStringLiteral(" -  ;0,0°\n35,0 mm ;35,0 mm ;45,0 mm ;45,0 mm ;"));
        QCOMPARE(plib::rowText(row, 3), QStringLiteral("Ø11,5 ; -  ; - \n -  ; -  ; - "));
        QCOMPARE(plib::rowText(row, 4), QStringLiteral(" -  ; -  ; - \n -  ; -  ; -  ;"));
    }
};

PLIB_TEST_MAIN(TestRowText)
#include "tst_rowText.moc"
