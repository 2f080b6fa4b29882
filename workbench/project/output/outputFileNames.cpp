#include "project/output/outputFileNames.h"

#include "project/unusedName.h"

#include <QRegularExpression>

namespace workbench {

namespace {
/// Windows also rejects device names and names that end with a dot.
QString allowedName(QString name)
{
    static const QRegularExpression special(QStringLiteral("[\\x00-\\x1f\\x7f\"*/:<>?\\\\|]|\\.$"));
    static const QRegularExpression device(
        QStringLiteral("^(con|prn|aux|nul|com\\d|lpt\\d)(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    name.replace(special, QStringLiteral("_"));
    const bool isHidden = name.startsWith(QLatin1Char('.'));
    return isHidden || device.match(name).hasMatch() ? QLatin1Char('_') + name : name;
}
} // namespace

QStringList outputFileNames(const QStringList& outputs, const QString& suffix)
{
    QStringList files;
    for (const QString& output : outputs)
        files << unusedName(allowedName(output), [&files](const QString& tried) {
            return files.contains(tried, Qt::CaseInsensitive);
        });
    for (QString& file : files)
        file += suffix;
    return files;
}

} // namespace workbench
