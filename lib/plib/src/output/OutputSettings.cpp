#include "output/OutputSettings.h"

#include <QCoreApplication>

namespace plib {

QStringList engineeringScales()
{
    QStringList rows;
    for (int scale : EngineeringScales)
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
    settings->scaleMode = ScaleMode::Engineering;
    settings->scaleIndex = row;
    settings->scaleText = scaleRows().value(row);
}

PagePictures picturesForFormat(PageFormat format)
{
    return format == PageFormat::Landscape ? PagePictures::One : PagePictures::Two;
}

void chooseFormat(PageFormat format, OutputSettings* settings)
{
    settings->formatId = format;
    settings->picturesId = picturesForFormat(format);
}

/// The setting for the number of pictures has no effect on landscape sheets.
bool hasTwoPictures(const OutputSettings& settings)
{
    return settings.hasFormat && settings.formatId == PageFormat::Portrait &&
           settings.picturesId == PagePictures::Two;
}

int sheetCount(int pictures, const OutputSettings& settings)
{
    return hasTwoPictures(settings) ? (pictures + 1) / 2 : pictures;
}

} // namespace plib
