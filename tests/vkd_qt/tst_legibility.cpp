#include "WidgetTestSupport.h"

#include <VKD_QT_TableWidget.h>
#include <VKD_QT_TreeWidget.h>
#include <VKD_QT_Widgets.h>

#include <QHeaderView>

/// Whether what styles draw of our widgets can be seen, by what is in the picture and not by how.
class tst_legibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyCheckBoxAndGrid_data();
    void emptyCheckBoxAndGrid();
    void titleOfABox();
};

namespace {
/// The greatest difference in lightness, 0 to 255, between the ground and anything on it.
int contrast(QAbstractItemView& view)
{
    const int ground = view.palette().color(QPalette::Base).lightness();
    const QImage picture = view.viewport()->grab().toImage();
    int greatest = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            greatest = qMax(greatest, qAbs(picture.pixelColor(x, y).lightness() - ground));
    return greatest;
}

/// The width of what is drawn on the upper edge of a widget.
int inkWidth(QWidget& widget)
{
    const QImage picture =
        widget.grab(QRect(0, 0, widget.width(), widget.fontMetrics().height())).toImage();
    const QRgb ground = picture.pixel(picture.width() - 1, 0);
    int first = picture.width(), last = 0;
    for (int y = 0; y < picture.height() - 2; ++y) // above the frame
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) != ground) {
                first = qMin(first, x);
                last = qMax(last, x);
            }
    return last - first;
}
} // namespace

void tst_legibility::emptyCheckBoxAndGrid_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << QPalette(QColor(239, 239, 239));
    QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
    dark.setColor(QPalette::Base, QColor(35, 35, 35));
    QTest::newRow("dark") << dark;
}

void tst_legibility::emptyCheckBoxAndGrid()
{
    constexpr int Visible = 35;
    QFETCH(QPalette, palette);
    VKD_QT_TreeWidget tree;
    tree.setPalette(palette);
    (new QTreeWidgetItem(&tree))->setCheckState(0, Qt::Unchecked);
    QVERIFY2(contrast(tree) > Visible, qPrintable(QString::number(contrast(tree))));
    VKD_QT_TableWidget table(2, 2);
    table.setPalette(palette);
    QVERIFY2(contrast(table) > Visible, qPrintable(QString::number(contrast(table))));
}

void tst_legibility::titleOfABox()
{
    const QString title =
        QStringLiteral("Querschnitte in cm²/m nach Durchmesser und Abstand in mm");
    VKD_QT_Label label(title, nullptr);
    VKD_QT_GroupBox box(title, nullptr, "box");
    for (QWidget* widget : {static_cast<QWidget*>(&label), static_cast<QWidget*>(&box)})
        widget->setFont(QFont(QStringLiteral("DejaVu Sans"), 9)); // has lost a stroke of the last m
    label.resize(800, 40);
    label.setAlignment(Qt::AlignTop);
    box.resize(800, 80);
    QCOMPARE(inkWidth(box), inkWidth(label));
}

PLIB_WIDGET_TEST_MAIN(tst_legibility)
#include "tst_legibility.moc"
