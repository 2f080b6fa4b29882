#include "OutputSettings.h"

#include <QCoreApplication>

namespace plib {

QStringList engineeringScales()
{
    QStringList rows;
    for (int scale : {1, 2, 5, 10, 20, 25, 50, 100, 200, 500, 1000})
        rows << QStringLiteral("1:%1").arg(scale);
    return rows;
}

QStringList scaleRows()
{
    return QStringList(QCoreApplication::translate("VKD_P_WidgetGraphicalOutput", "Auto"))
           << engineeringScales();
}

int picturesForFormat(int formatId)
{
    constexpr int Landscape = 1;
    constexpr int OnePerPage = 0;
    constexpr int TwoPerPage = 1;
    return formatId == Landscape ? OnePerPage : TwoPerPage;
}

} // namespace plib
