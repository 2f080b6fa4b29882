#include "TestSupport.h"

#include <groupInput.h>
#include <shownName.h>
#include <vkd_dbo_packedNames.h>

#include <algorithm>
#include <numeric>

using namespace vkd::h;
using Groups = std::vector<int>;

namespace {
QString joined(const Groups& groups)
{
    QStringList texts;
    for (int group : groups)
        texts << QString::number(group);
    return texts.join(QLatin1Char(' '));
}

QString names(const Groups& groups)
{
    QStringList texts;
    for (int group : groups)
        texts << shownName(group);
    return texts.join(QLatin1Char(' '));
}

Groups packed(const QStringList& list)
{
    Groups groups;
    for (const QString& name : list)
        groups.push_back(vkd::dbo::packedName(name));
    std::sort(groups.begin(), groups.end());
    return groups;
}
} // namespace

/// What users type to choose groups, against the groups 0, 1, 2, 3, 5, 9 and 999 or against names.
class TestGroupInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_data()
    {
        const Columns<QString, QString, QString, QString> columns("text", "groups", "unreadable",
                                                                  "missing");
        const auto row = [&columns](const char* text, const char* groups,
                                    const char* unreadable = "", const char* missing = "") {
            columns(text, text, groups, unreadable, missing);
        };
        row("", "");
        row(" ;,\t ", "");
        row("3", "3");
        row("0", "0");
        row("003", "3");
        row("9 1,5;2", "1 2 5 9");
        row("1-5 9", "1 2 3 5 9");
        row("5-1", "1 2 3 5");
        row("2 2-3 3-2", "2 3");
        row("1 - 2, 9 -999", "1 2 9 999");
        row("1–2 5−9", "1 2 5 9");
        row("4", "", "", "4");
        row("4 5 6-8", "5", "", "4|6-8");
        row("4-4 4-5", "5", "", "4-4");
        row("1-2000000000", "1 2 3 5 9 999");
        row("99999999999999999999", "", "", "99999999999999999999");
        row("5-99999999999999999999", "5 9 999");
        row("99999999999999999999-99999999999999999998", "", "",
            "99999999999999999999-99999999999999999998");
        row("-", "", "-");
        row("-5", "", "-5");
        row("5-", "", "5-");
        row("1--5", "", "1--5");
        row("1-2-3 9", "9", "1-2-3");
        row("abc 1 2x +3 1.5 ٣", "1", "abc|2x|+3|1.5|٣");
    }

    void numbers()
    {
        QFETCH(const QString, text);
        const GroupInput input = readNumbers(text, {0, 1, 2, 3, 5, 9, 999});
        QTEST(joined(input.groups), "groups");
        QTEST(input.unreadable.join(QLatin1Char('|')), "unreadable");
        QTEST(input.missing.join(QLatin1Char('|')), "missing");
    }

    void names_data()
    {
        const Columns<QString, QString, QString> row("text", "groups", "missing");
        row("each separator", "COLS LOW;A1,LOW", "A1 LOW COLS", "");
        row("any case", "cols a1", "A1 COLS", "");
        row("case tells two apart", "abcd", "abcd", "");
        row("case tells nothing", "aBcD", "ABCD abcd", "");
        row("too long", "COLS1 LO", "", "COLS1|LO");
        row("a hyphen is no range", "A1-LOW", "", "A1-LOW");
    }

    void names()
    {
        QFETCH(const QString, text);
        const Groups existing =
            packed({QStringLiteral("COLS"), QStringLiteral("LOW"), QStringLiteral("A1"),
                    QStringLiteral("ABCD"), QStringLiteral("abcd")});
        const GroupInput input = readNames(text, existing);
        QTEST(::names(input.groups), "groups");
        QTEST(input.missing.join(QLatin1Char('|')), "missing");
        QVERIFY(input.unreadable.isEmpty());
    }

    void packing()
    {
        QCOMPARE(vkd::dbo::packedName(QStringLiteral("COLS")), 0x534c4f43);
        QCOMPARE(vkd::dbo::packedName(QStringLiteral("A")), 0x20202041);
        QCOMPARE(shownName(0x20202041), QStringLiteral("A"));
        QCOMPARE(shownName(vkd::dbo::FirstPackedName), QStringLiteral("@B?")); // no letter
    }

    void longInputTakesLittle()
    {
        Groups existing(5000);
        std::iota(existing.begin(), existing.end(), 1);
        const QString ranges = QStringLiteral("2000000000-1 ").repeated(100000);
        QElapsedTimer timer;
        timer.start();
        const GroupInput input = readNumbers(QString(100000, QLatin1Char(' ')) + ranges, existing);
        QVERIFY(input.groups == existing);
        QVERIFY2(timer.elapsed() < 5000, "seconds for what takes well under one");
    }
};

PLIB_TEST_MAIN(TestGroupInput)
#include "tst_groupInput.moc"
