#include "outputTreeIcons.h"

#include <QIconEngine>
#include <QPainter>

#include <vector>

namespace plib {

namespace {
constexpr int Grid = 16; // squares to a side

struct Block
{
    int x, y, width, height;
    QRgb colour;
};
using Blocks = std::vector<Block>;

constexpr QRgb White = qRgb(255, 255, 255);
constexpr QRgb Black = qRgb(0, 0, 0);
constexpr QRgb Grey = qRgb(128, 128, 128);
constexpr QRgb Green = qRgb(0, 128, 0);
constexpr QRgb Lime = qRgb(0, 192, 0);
constexpr QRgb Cyan = qRgb(0, 192, 192);
constexpr QRgb Yellow = qRgb(255, 224, 0);

/// Paints blocks of a grid. Their edges lie on whole pixels where a square takes whole ones, which
/// it does at all usual sizes.
class BlockIconEngine : public QIconEngine
{
public:
    explicit BlockIconEngine(const Blocks& blocks)
        : m_blocks(blocks)
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
        for (const Block& block : m_blocks)
            painter.fillRect(block.x, block.y, block.width, block.height, QColor(block.colour));
        return picture;
    }

    QIconEngine* clone() const override { return new BlockIconEngine(*this); }

private:
    Blocks m_blocks;
    QPixmap m_picture; ///< as painted last: all rows of a tree are painted alike
    QIcon::Mode m_mode = QIcon::Normal;
};

QIcon icon(const Blocks& blocks)
{
    return QIcon(new BlockIconEngine(blocks));
}

const Blocks LetterL{{1, 3, 2, 10, Green}, {3, 11, 4, 2, Green}};
const Blocks LetterF{{9, 3, 2, 10, Green}, {11, 3, 4, 2, Green}, {11, 7, 3, 2, Green}};
const Blocks LetterC{{9, 4, 2, 8, Green}, {10, 3, 5, 2, Green}, {10, 11, 5, 2, Green}};
} // namespace

QIcon plotIcon()
{
    // A plate in its axes, with bands of iso areas.
    return icon({{0, 0, 16, 15, Grey},
                 {1, 1, 14, 13, White},
                 {3, 3, 1, 9, Black},
                 {3, 11, 10, 1, Black},
                 {5, 7, 2, 4, Cyan},
                 {5, 5, 2, 2, Lime},
                 {5, 3, 2, 2, Yellow},
                 {7, 8, 2, 3, Cyan},
                 {7, 6, 2, 2, Lime},
                 {7, 4, 2, 2, Yellow},
                 {9, 9, 2, 2, Cyan},
                 {9, 7, 2, 2, Lime},
                 {9, 5, 2, 2, Yellow},
                 {11, 8, 2, 3, Lime},
                 {11, 6, 2, 2, Yellow}});
}

QIcon rowIcon(bool english)
{
    Blocks blocks = LetterL;
    const Blocks& second = english ? LetterC : LetterF;
    blocks.insert(blocks.end(), second.begin(), second.end());
    return icon(blocks);
}

QIcon closeIcon()
{
    return icon({{1, 1, 14, 14, Grey}, {2, 2, 12, 12, White}, {4, 7, 8, 2, Black}});
}

} // namespace plib
