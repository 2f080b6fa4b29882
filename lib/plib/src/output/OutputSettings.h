#pragma once

#include <VKD_P_WidgetGraphicalOutput_Progname.h>

#include <QString>
#include <QStringList>

namespace plib {

/// The settings of a graphical output page that the script depends on. A page creates a new object
/// for each script; the initial values are those of a new page.
struct OutputSettings
{
    VKD_P_WidgetGraphicalOutput_Progname variant = VKD_P_GraphicalOutput_Standard;
    int scaleMode = 1;     ///< 0 engineering scale, 1 scale to fit
    int scaleIndex = 0;    ///< row of the scale list, 0 is "Auto"
    QString scaleText;     ///< text of that row, such as "1:100"
    int pageSplitId = 0;   ///< division of the sheet, 0 to 5; split variant only
    bool hasFormat = true; ///< false in the split variant, which has no format to choose
    int formatId = 0;      ///< 0 portrait, 1 landscape
    int picturesId = 1;    ///< 0 one per page, 1 two per page
    int viewId = 3;        ///< 0 X/Y, 1 X/Z, 2 Y/Z, 3 3D standard, 4 user defined
    QString fontSizeText = QStringLiteral("2"); ///< in millimetres, as typed
    bool fillAreas = false;                     ///< iso areas are filled
};

/// Returns the rows of the scale list without the first one, "Auto", which is translated.
QStringList engineeringScales();
/// Returns all rows of the scale list.
QStringList scaleRows();

/// Selects a row of the scale list and the engineering scale, as a click in the list of a page
/// does.
void chooseScale(int row, OutputSettings* settings);

/// Selecting a format changes the number of pictures: a landscape sheet has one, a portrait sheet
/// two.
int picturesForFormat(int formatId);
void chooseFormat(int formatId, OutputSettings* settings);

} // namespace plib
