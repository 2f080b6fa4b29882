#include "window/choice/loadCaseKinds.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace workbench {

namespace {
struct KindText
{
    Q_DECLARE_TR_FUNCTIONS(LoadCaseKinds)
};

/// The first match is used, so "superimposed dead load" comes before "imposed load".
const struct
{
    QRegularExpression words;
    const char* text;
} Kinds[] = {
    {QRegularExpression(QStringLiteral("self-?weight|dead|permanent|eigengewicht|eigenlast|"
                                       "ausbau|ständig")),
     QT_TRANSLATE_NOOP("LoadCaseKinds", "Permanent loads")},
    {QRegularExpression(QStringLiteral("snow|schnee")), QT_TRANSLATE_NOOP("LoadCaseKinds", "Snow")},
    {QRegularExpression(QStringLiteral("\\bwind")), QT_TRANSLATE_NOOP("LoadCaseKinds", "Wind")},
    {QRegularExpression(QStringLiteral("temperat")),
     QT_TRANSLATE_NOOP("LoadCaseKinds", "Temperature")},
    {QRegularExpression(QStringLiteral("crane|kran")),
     QT_TRANSLATE_NOOP("LoadCaseKinds", "Cranes")},
    {QRegularExpression(QStringLiteral("\\blive|imposed|traffic|nutzlast|verkehr")),
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
