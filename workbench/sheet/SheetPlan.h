#pragma once

#include <QSizeF>
#include <QString>
#include <QVector>

namespace workbench {

/// The viewing direction of pictures on a sheet.
struct PictureView
{
    enum Kind { Unset, Spatial, Flat, PlaneXY, PlaneXZ, PlaneYZ, Free };

    Kind kind = Unset;
    double eye[3] = {1.0, -2.0, 1.0}; ///< direction to the viewer; only for free views
    double roll = 0.0;                ///< degrees; only for free views

    bool operator==(const PictureView& other) const;
};

/// A picture that the script draws on a sheet.
struct SheetPicture
{
    QString command;
    int view = 0;           ///< index into the views of the plan
    int loadCase = 0;       ///< 0: none
    int secondLoadCase = 0; ///< drawn in the same picture; 0: none
    QString caption;        ///< the plot that the user selected; empty if unknown
    QString loadCaseTitle;
};

/// The paper output of a script: the sheet, its division into frames, and the pictures in order,
/// row by row and page by page.
struct SheetPlan
{
    static constexpr double ScaleToFit = 0.0;
    static constexpr double EngineeringScale = -1.0; ///< the largest common scale that fits

    QSizeF size{297.0, 210.0}; ///< mm, in reading orientation
    bool hasBorder = true;
    int rows = 1;
    int columns = 1;
    double scale = ScaleToFit; ///< 100 for 1:100, or one of the constants above
    double textHeight = 2.0;   ///< height of capital letters, mm
    QVector<PictureView> views;
    QVector<SheetPicture> pictures;

    bool isEmpty() const { return pictures.isEmpty(); }
    /// Returns whether everything except the views and pictures is equal.
    bool hasSameSheet(const SheetPlan& other) const;
    int picturesPerPage() const { return rows * columns; }
    int pageCount() const;
    /// These functions return the index of the first picture of a page, and the index after its
    /// last picture, counted from 0.
    int firstPicture(int page) const { return page * picturesPerPage(); }
    int endPicture(int page) const;
};

} // namespace workbench

Q_DECLARE_TYPEINFO(workbench::SheetPicture, Q_MOVABLE_TYPE);
