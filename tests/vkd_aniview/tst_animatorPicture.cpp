#include "WidgetTestSupport.h"

#include <AnimatorPicture.h>
#include <VKD_H_ZOBDoc.h>

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

using namespace vkd::dbo;

namespace {
constexpr QSize Size(400, 300);

Camera from(double x, double y, double z)
{
    Camera camera;
    camera.eye[0] = x;
    camera.eye[1] = y;
    camera.eye[2] = z;
    return camera;
}

/// The length of what is drawn in the middle row or column, dots.
int drawn(const QImage& image, bool isRow)
{
    int first = -1;
    int last = -2;
    const int length = isRow ? image.width() : image.height();
    for (int i = 0; i < length; ++i) {
        const QPoint place = isRow ? QPoint(i, image.height() / 2) : QPoint(image.width() / 2, i);
        if (image.pixelColor(place) == QColor(Qt::white))
            continue;
        first = first < 0 ? i : first;
        last = i;
    }
    return last - first + 1;
}
} // namespace

class tst_animatorPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scale_data();
    void scale();
    void noModel();
};

void tst_animatorPicture::scale_data()
{
    QTest::addColumn<QVector<double>>("eye");
    QTest::addColumn<QSizeF>("seen"); // metres
    QTest::newRow("from above") << QVector<double>{0, 0, 1} << QSizeF(8, 4);
    QTest::newRow("along Y") << QVector<double>{0, -3, 0} << QSizeF(8, 2);
    QTest::newRow("along X") << QVector<double>{1, 0, 0} << QSizeF(4, 2);
}

/// The model stands in the middle, wherever its origin is, and is as large as its scale makes it.
void tst_animatorPicture::scale()
{
    QFETCH(const QVector<double>, eye);
    QFETCH(const QSizeF, seen);
    const QTemporaryDir folder;
    const auto document = VKD_H_ZOBDoc::create(folder.filePath(QStringLiteral("p.zob")));
    QVERIFY(document);
    Model block;
    block.bricks.push_back({1, 1, {1, 2, 3, 4, 5, 6, 7, 8}});
    for (int i = 0; i < 8; ++i)
        block.nodes.push_back({i + 1,
                               {1000.0 + (i % 4 == 1 || i % 4 == 2 ? 8.0 : 0.0),
                                i % 4 >= 2 ? 4.0 : 0.0, i >= 4 ? 2.0 : 0.0}});
    QVERIFY(storeModel(document->index(), block));
    AnimatorPicture picture(document->index());
    QVERIFY(!picture.isEmpty());
    const Camera camera = from(eye[0], eye[1], eye[2]);
    QCOMPARE(picture.sizeSeen(camera).toSize(), seen.toSize());
    const double fitting = picture.fittingScale(camera, Size);
    for (double pixels : {fitting, 10.0, 25.0}) {
        QImage image(2 * Size, QImage::Format_RGB32); // two dots to a pixel
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(2.0, 2.0);
        picture.paint(painter, Size, camera, pixels);
        painter.end();
        QVERIFY(qAbs(drawn(image, true) - 2.0 * pixels * seen.width()) < 5.0);
        QVERIFY(qAbs(drawn(image, false) - 2.0 * pixels * seen.height()) < 5.0);
    }
    QVERIFY(fitting * seen.width() < Size.width() && fitting * seen.height() < Size.height());
}

void tst_animatorPicture::noModel()
{
    AnimatorPicture picture(0);
    QVERIFY(picture.isEmpty());
    QVERIFY(picture.fittingScale(Camera(), Size) > 0.0);
}

PLIB_WIDGET_TEST_MAIN(tst_animatorPicture)
#include "tst_animatorPicture.moc"
