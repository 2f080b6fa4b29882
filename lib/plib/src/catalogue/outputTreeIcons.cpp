#include "outputTreeIcons.h"

#include <QIconEngine>
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

/// Paints a bitmap with its squares as blocks, so that it is sharp on every screen. Their edges lie
/// on whole pixels where a square takes whole ones, which it does at all usual sizes.
class BitmapIconEngine : public QIconEngine
{
public:
    BitmapIconEngine(const char* name, const char* const xpm[])
        : m_name(QLatin1String(name))
        , m_bitmap(xpm)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QSize pixels = rect.size() * painter->device()->devicePixelRatioF();
        if (m_picture.size() != pixels || m_mode != mode) {
            m_picture = pixmap(pixels, mode, state);
            m_mode = mode;
        }
        painter->drawPixmap(rect, m_picture);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.scale(qreal(size.width()) / Grid, qreal(size.height()) / Grid);
        if (mode == QIcon::Disabled)
            painter.setOpacity(0.4);
        painter.drawImage(0, 0, m_bitmap);
        return picture;
    }

    QString iconName() const override { return m_name; }
    QIconEngine* clone() const override { return new BitmapIconEngine(*this); }

private:
    QString m_name;
    QImage m_bitmap;
    QPixmap m_picture; ///< as painted last: all rows of a tree are painted alike
    QIcon::Mode m_mode = QIcon::Normal;
};
} // namespace

QIcon plotIcon()
{
    return QIcon(new BitmapIconEngine("plot", Plot));
}

QIcon rowIcon(bool english)
{
    return QIcon(english ? new BitmapIconEngine("LC", RowEnglish)
                         : new BitmapIconEngine("LF", RowGerman));
}

QIcon closeIcon()
{
    return QIcon(new BitmapIconEngine("close", Close));
}

} // namespace plib
