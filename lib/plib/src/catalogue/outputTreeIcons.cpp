#include "outputTreeIcons.h"

#include <QPainter>

namespace plib {

namespace {
constexpr int Grid = 16; // squares to a side

// A plate in its axes, with bands of iso areas.
const char* const Plot[] = {
    "16 15 7 1",        "  c None",         ". c #ffffff",      "# c #000000",
    "x c #808080",      "g c #00c000",      "c c #00c0c0",      "y c #ffe000",
    " xxxxxxxxxxxxxx ", "x..............x", "x..............x", "x..#.yy........x",
    "x..#.yyyy......x", "x..#.ggyyyy....x", "x..#.ggggyyyy..x", "x..#.ccggggyy..x",
    "x..#.ccccgggg..x", "x..#.ccccccgg..x", "x..#.ccccccgg..x", "x..##########..x",
    "x..............x", "x..............x", " xxxxxxxxxxxxxx "};

const char* const RowGerman[] = {
    "16 16 2 1",        "  c None",         "g c #008000",      "                ",
    "                ", "                ", " gg      gggggg ", " gg      gggggg ",
    " gg      gg     ", " gg      gg     ", " gg      ggggg  ", " gg      ggggg  ",
    " gg      gg     ", " gg      gg     ", " gggggg  gg     ", " gggggg  gg     ",
    "                ", "                ", "                "};

const char* const RowEnglish[] = {
    "16 16 2 1",        "  c None",         "g c #008000",      "                ",
    "                ", "                ", " gg       ggggg ", " gg      gggggg ",
    " gg      gg     ", " gg      gg     ", " gg      gg     ", " gg      gg     ",
    " gg      gg     ", " gg      gg     ", " gggggg  gggggg ", " gggggg   ggggg ",
    "                ", "                ", "                "};

const char* const Close[] = {"16 16 4 1",        "  c None",         ". c #ffffff",
                             "# c #000000",      "x c #808080",      "                ",
                             " xxxxxxxxxxxxxx ", " x............x ", " x............x ",
                             " x............x ", " x............x ", " x............x ",
                             " x..########..x ", " x..########..x ", " x............x ",
                             " x............x ", " x............x ", " x............x ",
                             " x............x ", " xxxxxxxxxxxxxx ", "                "};

QPixmap blocks(const QImage& bitmap, int side)
{
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(qreal(side) / Grid, qreal(side) / Grid);
    painter.drawImage(0, 0, bitmap);
    return picture;
}

/// Pictures with the squares as blocks, for the usual sizes of screens, and in their own colours in
/// a selection. This library has no icon engine: Qt's style keeps the icon that it painted last,
/// and would call the engine when the library is no longer loaded.
QIcon bitmapIcon(const char* const xpm[])
{
    const QImage bitmap(xpm);
    QIcon icon;
    for (int side : {16, 20, 24, 28, 32, 40, 48, 64})
        for (QIcon::Mode mode : {QIcon::Normal, QIcon::Selected})
            icon.addPixmap(blocks(bitmap, side), mode);
    return icon;
}
} // namespace

QIcon plotIcon()
{
    return bitmapIcon(Plot);
}

QIcon rowIcon(bool english)
{
    return bitmapIcon(english ? RowEnglish : RowGerman);
}

QIcon closeIcon()
{
    return bitmapIcon(Close);
}

} // namespace plib
