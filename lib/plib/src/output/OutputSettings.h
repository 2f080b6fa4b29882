#pragma once

#include <VKD_P_WidgetGraphicalOutput_Progname.h>

#include <QString>
#include <QStringList>

namespace plib {

// The choices in the radio groups of a page. The values are the indexes of the entries; the saved
// string and command line arguments contain these indexes.
enum class ScaleMode : int { Engineering, ToFit };
enum class PageFormat : int { Portrait, Landscape };
enum class PagePictures : int { One, Two };
enum class OutputView : int { PlaneXY, PlaneXZ, PlaneYZ, Standard3D, UserDefined };

/// The index of the row "Auto" in the scale list. The rows of the scales follow.
constexpr int AutoScaleRow = 0;
constexpr int EngineeringScales[] = {1, 2, 5, 10, 20, 25, 50, 100, 200, 500, 1000};
constexpr int PageSplitCount = 6; ///< divisions of a sheet

/// The settings of a graphical output page on which the script depends. A page creates a new object
/// for each script. The default values are the settings of a new page.
struct OutputSettings
{
    VKD_P_WidgetGraphicalOutput_Progname variant = VKD_P_GraphicalOutput_Standard;
    ScaleMode scaleMode = ScaleMode::ToFit;
    int scaleIndex = AutoScaleRow; ///< row of the scale list
    QString scaleText;             ///< text of that row, such as "1:100"
    int pageSplitId = 0;           ///< division of the sheet; only in the split variant
    bool hasFormat = true;         ///< false in the split variant, which has no choice of format
    PageFormat formatId = PageFormat::Portrait;
    PagePictures picturesId = PagePictures::Two; ///< number of pictures on a page
    OutputView viewId = OutputView::Standard3D;
    QString fontSizeText = QStringLiteral("2"); ///< in millimetres, as typed
    bool fillAreas = false;                     ///< whether iso areas are filled
};

/// Returns the rows of the scale list except for the first row, "Auto", which is translated.
QStringList engineeringScales();
/// Returns all rows of the scale list.
QStringList scaleRows();

/// Selects a row of the scale list and the engineering scale, like a click on this row.
void chooseScale(int row, OutputSettings* settings);

/// Returns the default number of pictures for a format: one for a landscape sheet, two for a
/// portrait sheet.
PagePictures picturesForFormat(PageFormat format);
void chooseFormat(PageFormat format, OutputSettings* settings);

/// Returns whether a sheet has two pictures.
bool hasTwoPictures(const OutputSettings& settings);
/// Returns the number of sheets that the pictures need.
int sheetCount(int pictures, const OutputSettings& settings);

} // namespace plib
