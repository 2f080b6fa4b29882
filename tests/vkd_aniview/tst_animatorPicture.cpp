#include "TemporaryProject.h"
#include "WidgetTestSupport.h"

#include <AnimatorPicture.h>

#include <QImage>
#include <QPainter>

using namespace vkd::dbo;

namespace {
constexpr QSize Size(400, 300);

/// Returns the length of the drawing in the middle row or column, in device pixels.
int drawn(const QImage& image, bool isRow)
{
    QVector<int> dots;
    for (int i = 0; i < (isRow ? image.width() : image.height()); ++i) {
        const QPoint place = isRow ? QPoint(i, image.height() / 2) : QPoint(image.width() / 2, i);
        if (image.pixelColor(place) != QColor(Qt::white))
            dots << i;
    }
    return dots.isEmpty() ? 0 : dots.last() - dots.first() + 1;
}
} // namespace

class tst_animatorPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The model is centred, regardless of its origin, and has the size given by the scale.
    void scale()
    {
        const testsupport::TemporaryProject project;
        Model block;
        block.bricks.push_back({1, 1, {1, 2, 3, 4, 5, 6, 7, 8}});
        for (int i = 0; i < 8; ++i)
            block.nodes.push_back({i + 1,
                                   {1000.0 + (i % 4 == 1 || i % 4 == 2 ? 8.0 : 0.0),
                                    i % 4 >= 2 ? 4.0 : 0.0, i >= 4 ? 2.0 : 0.0}});
        QVERIFY(storeModel(project.handle(), block).isOk());
        AnimatorPicture picture(project.handle());
        QVERIFY(!picture.isEmpty());
        const QList<QPair<Camera, QSize>> views{{{{0, 0, 1}}, {8, 4}},
                                                {{{0, -3, 0}}, {8, 2}},
                                                {{{1, 0, 0}}, {4, 2}},
                                                {{{0, 0, 1}, 90.0}, {4, 8}}};
        for (const auto& [camera, seen] : views) { // the size in metres
            QCOMPARE(picture.sizeSeen(camera).toSize(), seen);
            const double fitting = picture.fittingScale(camera, Size);
            for (double pixels : {fitting, 10.0, 25.0}) {
                QImage image(2 * Size, QImage::Format_RGB32); // two device pixels for each pixel
                image.fill(Qt::white);
                QPainter painter(&image);
                painter.scale(2.0, 2.0);
                picture.paint(painter, Size, camera, pixels);
                painter.end();
                QVERIFY(qAbs(drawn(image, true) - 2.0 * pixels * seen.width()) < 5.0);
                QVERIFY(qAbs(drawn(image, false) - 2.0 * pixels * seen.height()) < 5.0);
            }
            QVERIFY(fitting * seen.width() < Size.width());
            QVERIFY(fitting * seen.height() < Size.height());
        }
    }

    /// A wall that is seen edge-on is drawn as thick as in the model, but never as thin as a
    /// hairline.
    void thickness()
    {
        const testsupport::TemporaryProject project;
        Model wall;
        wall.nodes = {{1, {0, 0, 0}}, {2, {8, 0, 0}}, {3, {8, 0, 4}}, {4, {0, 0, 4}}};
        wall.quads.push_back({1, 1, {1, 2, 3, 4}, 0.5});
        QVERIFY(storeModel(project.handle(), wall).isOk());
        AnimatorPicture picture(project.handle());
        for (double pixels : {2.0, 20.0}) {
            QImage image(Size, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            picture.paint(painter, Size, Camera{{0, 0, 1}}, pixels);
            painter.end();
            QVERIFY(qAbs(drawn(image, false) - qMax(2.0, 0.5 * pixels)) < 2.0);
            QVERIFY(qAbs(drawn(image, true) - 8.0 * pixels) < 2.0 + 0.5 * pixels);
        }
    }
};

PLIB_WIDGET_TEST_MAIN(tst_animatorPicture)
#include "tst_animatorPicture.moc"
