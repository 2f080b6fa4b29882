#include "window/choice/loadCaseKinds.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace workbench {

namespace {
struct KindText
{
    Q_DECLARE_TR_FUNCTIONS(LoadCaseKinds)
};

QRegularExpression words(const char* pattern)
{
    return QRegularExpression(QString::fromUtf8(pattern),
                              QRegularExpression::UseUnicodePropertiesOption);
}

/// The first match is used, so "prestress of the crane girders" is not a crane load. The patterns
/// match words and compound words, except those that begin with the same letters by chance, such as
/// "Krankenhaus". Quasi-permanent loads are not permanent.
const struct
{
    QRegularExpression words;
    const char* text;
} Kinds[] = {
    {words("\\bprestress|\\bvorspann"), QT_TRANSLATE_NOOP("LoadCaseKinds", "Prestress")},
    {words("\\bself[- ]?weight|\\bdead\\b|eigengewicht|eigenlast|\\bausbau|"
           "(?<!quasi.)(?<!non.)\\bpermanent|(?<!quasi.)(?<!nicht.)\\bständig"),
     QT_TRANSLATE_NOOP("LoadCaseKinds", "Permanent loads")},
    {words("\\bsnow|schnee"), QT_TRANSLATE_NOOP("LoadCaseKinds", "Snow")},
    {words("\\bwind(?!ow|ing|ung|en?\\b)"), QT_TRANSLATE_NOOP("LoadCaseKinds", "Wind")},
    {words("temperat"), QT_TRANSLATE_NOOP("LoadCaseKinds", "Temperature")},
    {words("\\bcranes?\\b|kran\\b|kräne\\b|\\bkran(?!k|z)"),
     QT_TRANSLATE_NOOP("LoadCaseKinds", "Cranes")},
    {words("\\blive\\b|\\bimposed\\b|\\btraffic\\b|nutzlast|verkehrslast|\\bverkehr\\b"),
     QT_TRANSLATE_NOOP("LoadCaseKinds", "Live loads")},
};
} // namespace

QString loadCaseKind(const QString& title)
{
    const QString words = title.toLower();
    for (const auto& kind : Kinds)
        if (kind.words.match(words).hasMatch())
            return KindText::tr(kind.text);
    return KindText::tr("Other loads");
}

} // namespace workbench
