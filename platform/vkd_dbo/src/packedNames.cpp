#include "vkd_dbo_packedNames.h"

#include <QtEndian>

namespace vkd {
namespace dbo {

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
    return name.trimmed();
}

} // namespace dbo
} // namespace vkd
