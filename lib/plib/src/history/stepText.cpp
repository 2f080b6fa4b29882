#include "history/stepText.h"

#include <QCoreApplication>

namespace plib {

QString stepText(const QStringList& name)
{
    if (name.size() < 2)
        return name.value(0);
    const QString text =
        QCoreApplication::translate(name[0].toUtf8().constData(), name[1].toUtf8().constData());
    return name.size() > 2 ? text.arg(name[2]) : text;
}

QStringList stepName(const char* context, const char* sourceText)
{
    return {QString::fromUtf8(context), QString::fromUtf8(sourceText)};
}

QStringList stepName(const char* context, const char* sourceText, const QString& argument)
{
    return stepName(context, sourceText) << argument;
}

} // namespace plib
