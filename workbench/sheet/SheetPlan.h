#pragma once

#include <QSizeF>
#include <QString>
#include <QVector>

namespace workbench {

/// From where the pictures of a sheet look at the model.
struct PictureView
{
    enum Kind { Unset, Spatial, Flat, PlaneXY, PlaneXZ, PlaneYZ, Free };

    Kind kind = Unset;
    double eye[3] = {1.0, -2.0, 1.0}; ///< direction to the viewer; of a free view only
    double roll = 0.0;                ///< degrees; of a free view only

    bool operator==(const PictureView& other) const;
};

/// A picture of the sheet, as the script orders it.
struct SheetPicture
{
    QString command;
    int view = 0;           ///< index in the views of the plan
    int loadCase = 0;       ///< 0: none
    int secondLoadCase = 0; ///< drawn into the same picture; 0: none
    QString caption;        ///< what the user chose; empty where nobody told
    QString loadCaseTitle;
};

/// What a script of the graphics program puts on paper: the sheet, its division and the pictures in
/// their order, row by row and page by page.
struct SheetPlan
{
    static constexpr double ScaleToFit = 0.0;
    static constexpr double EngineeringScale = -1.0; ///< the largest usual one that fits

    QSizeF size{297.0, 210.0}; ///< mm, as the sheet lies before the reader
    bool hasBorder = true;
    int rows = 1;
    int columns = 1;
    double scale = ScaleToFit; ///< 100 for 1:100, or one of the above
    double textHeight = 2.0;   ///< of capital letters, mm
    QVector<PictureView> views;
    QVector<SheetPicture> pictures;

    bool isEmpty() const { return pictures.isEmpty(); }
    int picturesPerPage() const { return rows * columns; }
    int pageCount() const;
    /// The pictures of a page, counted from 0: the first one, and the one behind the last.
    int firstPicture(int page) const { return page * picturesPerPage(); }
    int endPicture(int page) const;
};

} // namespace workbench
