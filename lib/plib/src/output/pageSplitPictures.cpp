#include "output/pageSplitPictures.h"

#include <QImage>
#include <QVector>

namespace plib {

namespace {
constexpr int Side = 32;
constexpr QRgb Line = 0xff0000ff;
constexpr QRgb Shadow = 0xff000080;
constexpr QRgb Paper = 0xffffffff;

/// The outermost pixel columns and rows of a sheet, starting at 0.
struct Sheet
{
    int left, right, top, bottom;
};

constexpr Sheet Portrait{5, 25, 3, 29};
constexpr Sheet Landscape{2, 28, 6, 26};

struct Division
{
    Sheet sheet;
    QVector<int> rows;
    QVector<int> columns;
};

const QVector<Division>& divisions()
{
    static const QVector<Division> all{
        {Portrait, {}, {}},         {Portrait, {16}, {}}, {Portrait, {16}, {15}},
        {Portrait, {12, 20}, {15}}, {Landscape, {}, {}},  {Landscape, {16}, {15}},
    };
    return all;
}

void drawRow(QImage& image, int row, int from, int to, QRgb colour)
{
    for (int column = from; column <= to; ++column)
        image.setPixel(column, row, colour);
}

void drawColumn(QImage& image, int column, int from, int to, QRgb colour)
{
    for (int row = from; row <= to; ++row)
        image.setPixel(column, row, colour);
}
} // namespace

QPixmap pageSplitPicture(int id)
{
    const Division& division = divisions().at(id);
    const Sheet& sheet = division.sheet;
    QImage image(Side, Side, QImage::Format_ARGB32);
    image.fill(Paper);
    // The shadow is offset by one pixel upwards and to the right.
    drawRow(image, sheet.top - 1, sheet.left + 1, sheet.right + 1, Shadow);
    drawColumn(image, sheet.right + 1, sheet.top - 1, sheet.bottom - 1, Shadow);
    for (int row : {sheet.top, sheet.bottom})
        drawRow(image, row, sheet.left, sheet.right, Line);
    for (int column : {sheet.left, sheet.right})
        drawColumn(image, column, sheet.top, sheet.bottom, Line);
    for (int row : division.rows)
        drawRow(image, row, sheet.left, sheet.right, Line);
    for (int column : division.columns)
        drawColumn(image, column, sheet.top, sheet.bottom, Line);
    return QPixmap::fromImage(image);
}

} // namespace plib
