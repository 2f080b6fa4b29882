#include "tree/outputTreeIcons.h"

#include <QImage>
#include <QPixmap>

namespace plib {

namespace {
constexpr int Grid = 16; // width and height of a bitmap in pixels

// A plate with coloured iso areas and axes.
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

/// Returns an icon with the bitmap in the common sizes. Each pixel is enlarged to a square block.
/// The colours are the same in selected items. The icon consists of pixmaps and does not use an
/// icon engine of this library, because Qt's style caches the last painted icon and would call the
/// engine after the library has been unloaded.
QIcon bitmapIcon(const char* const xpm[])
{
    const QImage bitmap = QImage(xpm)
                              .convertToFormat(QImage::Format_ARGB32_Premultiplied)
                              .copy(0, 0, Grid, Grid); // fills a missing row with transparency
    QIcon icon;
    for (int side : {16, 20, 24, 28, 32, 40, 48, 64}) {
        const QPixmap blocks = QPixmap::fromImage(bitmap.scaled(side, side), Qt::NoOpaqueDetection);
        icon.addPixmap(blocks, QIcon::Normal);
        icon.addPixmap(blocks, QIcon::Selected);
    }
    return icon;
}
} // namespace

QIcon plotIcon()
{
    return bitmapIcon(Plot);
}

QIcon rowIcon(vkd::Language language)
{
    return bitmapIcon(language == vkd::Language::English ? RowEnglish : RowGerman);
}

QIcon closeIcon()
{
    return bitmapIcon(Close);
}

} // namespace plib
