#include "OutputSettings.h"

namespace plib {

QStringList engineeringScales()
{
    QStringList rows;
    for (int scale : {1, 2, 5, 10, 20, 25, 50, 100, 200, 500, 1000})
        rows << QStringLiteral("1:%1").arg(scale);
    return rows;
}

} // namespace plib
