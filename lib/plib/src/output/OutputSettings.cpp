#include "output/OutputSettings.h"

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

void chooseScale(int row, OutputSettings* settings)
{
    constexpr int EngineeringScale = 0;
    settings->scaleMode = EngineeringScale;
    settings->scaleIndex = row;
    settings->scaleText = scaleRows().value(row);
}

int picturesForFormat(int formatId)
{
    constexpr int Landscape = 1;
    constexpr int OnePerPage = 0;
    constexpr int TwoPerPage = 1;
    return formatId == Landscape ? OnePerPage : TwoPerPage;
}

void chooseFormat(int formatId, OutputSettings* settings)
{
    settings->formatId = formatId;
    settings->picturesId = picturesForFormat(formatId);
}

} // namespace plib
