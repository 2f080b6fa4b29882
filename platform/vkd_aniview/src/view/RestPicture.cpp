#include "view/RestPicture.h"

#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>

namespace vkd {
namespace aniview {

namespace {
constexpr int StepMs = 25;
constexpr size_t ItemsBetweenLooks = 1000; // items painted between two time checks
} // namespace

bool RestPicture::paintSome(ScenePainter& painter, const QSize& size, qreal pixelRatio,
                            const QPalette& palette, const ModelGeometry& geometry,
                            const Picture& picture, const Projection& projection,
                            const GroupMarks& marks)
{
    if (!isFor(pixelRatio)) {
        m_image = QImage(size * pixelRatio, QImage::Format_ARGB32_Premultiplied);
        m_image.setDevicePixelRatio(pixelRatio);
        m_image.fill(palette.color(QPalette::Active, QPalette::Base));
        m_painted = 0;
    }
    QElapsedTimer clock;
    clock.start();
    QPainter target(&m_image);
    target.setRenderHint(QPainter::Antialiasing);
    const size_t count = picture.order().size();
    while (m_painted < count && clock.elapsed() < StepMs) {
        const size_t end = std::min(count, m_painted + ItemsBetweenLooks);
        painter.paint(target, palette, geometry, picture, projection, marks, {m_painted, end});
        m_painted = end;
    }
    m_isComplete = m_painted == count;
    return m_isComplete;
}

} // namespace aniview
} // namespace vkd
