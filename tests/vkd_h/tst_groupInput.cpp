#include "TestSupport.h"

#include <groups/shownName.h>
#include <vkd_dbo_groupTexts.h>
#include <vkd_dbo_packedNames.h>
#include <vkd_h_groupInput.h>

#include <algorithm>

using namespace vkd::h;
using Groups = std::vector<int>;

/// Returns the result in the form "groups/unreadable/missing".
static QString told(const GroupInput& input, const std::function<QString(int)>& name)
{
    QStringList groups;
    for (int group : input.groups)
        groups << name(group);
    const QChar bar(QLatin1Char('|'));
    return QStringList{groups.join(QLatin1Char(' ')), input.unreadable.join(bar),
                       input.missing.join(bar)}
        .join(QLatin1Char('/'));
}

/// Tests the input with which users choose groups. The existing groups are either 0, 1, 2, 3, 5, 9
/// and 999, or have names.
class TestGroupInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers()
    {
        const auto read = [](const QString& text) {
            return told(readNumbers(text, {0, 1, 2, 3, 5, 9, 999}),
                        [](int group) { return QString::number(group); });
        };
        compareCases(read, " ;,\t  => //\n"
                           "003 => 3//\n"
                           "0 9 1,5;2 => 0 1 2 5 9//\n"
                           "1-5 9 => 1 2 3 5 9//\n"
                           "5-1 => 1 2 3 5//\n"
                           "1 - 2, 9 -999 => 1 2 9 999//\n"
                           "1–2 5−9 => 1 2 5 9//\n"
                           "4 5 6-8 => 5//4|6-8\n"
                           "4-4 4-5 => 5//4-4\n"
                           "1-2000000000 => 1 2 3 5 9 999//\n"
                           "99999999999999999999 => //99999999999999999999\n"
                           "5-99999999999999999999 => 5 9 999//\n"
                           "- => /-/\n"
                           "-5 => /-5/\n"
                           "5- => /5-/\n"
                           "1-2-3 9 => 9/1-2-3/\n"
                           "abc 1 2x +3 1.5 ٣ => 1/abc|2x|+3|1.5|٣/\n");
    }

    void ranges()
    {
        const auto ranges = [](const QString& text) {
            Groups groups;
            for (const QString& number : text.split(QLatin1Char(' ')))
                groups.push_back(number.toInt());
            return vkd::dbo::groupRanges(groups);
        };
        compareCases(ranges, "0 => 0\n"
                             "2 1 => 1, 2\n"
                             "3 1 2 12 5 6 7 8 5 => 1-3, 5-8, 12\n"
                             "-2 -1 0 1 => 0, 1\n"
                             "538976321 538976322 538976323 => A, B, C\n"); // packed names
    }

    void names()
    {
        Groups existing;
        for (const char* name : {"COLS", "LOW", "A1", "ABCD", "abcd"})
            existing.push_back(vkd::dbo::packedName(QLatin1String(name)));
        std::sort(existing.begin(), existing.end());
        const GroupNames names(existing);
        const auto read = [&](const QString& text) {
            return told(readNames(text, names), shownName);
        };
        compareCases(read, R"(
COLS LOW;A1,LOW => A1 LOW COLS//
cols a1 => A1 COLS//
abcd => abcd//
aBcD => ABCD abcd//
COLS1 LO => //COLS1|LO
A1-LOW => //A1-LOW
)");
        const auto readBoth = [&](const QString& text) {
            return told(readNumbersAndNames(text, {1, 2, 3}, names), [](int group) {
                return group < vkd::dbo::FirstPackedName ? QString::number(group)
                                                         : shownName(group);
            });
        };
        compareCases(readBoth, "COLS 2–3;a1 => 2 3 A1 COLS//\n"
                               "1-2000000000 => 1 2 3//\n"
                               "4 ROOF 1- => //ROOF|1-|4\n");
        QCOMPARE(vkd::dbo::packedName(QStringLiteral("COLS")), 0x534c4f43);
        QCOMPARE(vkd::dbo::packedName(QStringLiteral("A")), 0x20202041);
        QCOMPARE(shownName(vkd::dbo::FirstPackedName), QStringLiteral("@B?")); // not a letter
    }
};

PLIB_TEST_MAIN(TestGroupInput)
#include "tst_groupInput.moc"
