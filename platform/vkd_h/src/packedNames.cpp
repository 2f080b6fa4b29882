#include "packedNames.h"

#include <QtEndian>

namespace vkd {
namespace h {

int packedName(const QString& name)
{
    const QByteArray bytes = name.toLatin1().leftJustified(sizeof(qint32), ' ', true);
    return qFromLittleEndian<qint32>(bytes.constData());
}

QString unpackedName(int packed)
{
    QString name;
    for (quint32 rest = quint32(packed); rest & 0xff; rest >>= 8)
        name += QChar(rest & 0xff);
    name = name.trimmed();
    for (QChar& character : name)
        if (!character.isPrint())
            character = QLatin1Char('?');
    return name;
}

} // namespace h
} // namespace vkd
