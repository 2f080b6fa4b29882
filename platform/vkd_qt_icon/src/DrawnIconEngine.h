#pragma once

#include "drawings.h"

#include <QIconEngine>

namespace vkd {
namespace qt {

/// An icon engine that draws its icon for each size, state and palette.
class DrawnIconEngine : public QIconEngine
{
public:
    explicit DrawnIconEngine(Drawing drawing);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;

private:
    Drawing m_drawing;
};

} // namespace qt
} // namespace vkd
