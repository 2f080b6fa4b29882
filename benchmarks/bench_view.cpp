// The view of a model while it is rotated, and at rest.

#include "RatioReporter.h"

#include <AnimatorView.h>
#include <vkd_dbo_model.h>
#include <VKD_H_ZOBDoc.h>

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QTemporaryDir>

#include <cmath>

namespace {

constexpr int Side = 100; // quads along each side, 10 000 in all
constexpr int Width = 800;
constexpr int Height = 600;

/// Returns the height of a wavy shell. It hides parts of itself and has many shades, as a real
/// model does.
double heightAt(int column, int row)
{
    return 8.0 * std::sin(column * 0.13) * std::cos(row * 0.11);
}

vkd::dbo::Model shell()
{
    vkd::dbo::Model model;
    const auto node = [](int column, int row) { return row * (Side + 1) + column + 1; };
    for (int row = 0; row <= Side; ++row)
        for (int column = 0; column <= Side; ++column)
            model.nodes.push_back(
                {node(column, row), {double(column), double(row), heightAt(column, row)}});
    for (int row = 0; row < Side; ++row)
        for (int column = 0; column < Side; ++column)
            model.quads.push_back({row * Side + column + 1,
                                   1 + row / 25,
                                   {node(column, row), node(column + 1, row),
                                    node(column + 1, row + 1), node(column, row + 1)},
                                   0.2});
    return model;
}

class ShownShell
{
public:
    ShownShell()
        : m_doc(VKD_H_ZOBDoc::create(m_folder.filePath(QStringLiteral("p.zob"))))
        , view((vkd::dbo::storeModel(m_doc->handle(), shell()), m_doc->handle()))
    {
        view.resize(Width, Height);
        view.slotViewControl(AnimatorStandardView, 0.0);
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;

public:
    AnimatorView view;
    QImage image{Width, Height, QImage::Format_ARGB32_Premultiplied};
};

void turnView(benchmark::State& state)
{
    ShownShell shown;
    for (auto _ : state) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
        QCoreApplication::sendEvent(&shown.view, &key);
        shown.view.render(&shown.image);
    }
}

/// Paints the high-quality picture of a view at rest.
void restView(benchmark::State& state)
{
    ShownShell shown;
    for (auto _ : state)
        shown.view.render(&shown.image);
}

/// Returns the points of the shell in the standard view, rotated by this angle.
std::vector<QPointF> projected(double angle)
{
    std::vector<QPointF> points;
    for (int row = 0; row <= Side; ++row)
        for (int column = 0; column <= Side; ++column) {
            const double x = column - Side / 2.0;
            const double y = row - Side / 2.0;
            const double right = x * std::cos(angle) - y * std::sin(angle);
            const double away = x * std::sin(angle) + y * std::cos(angle);
            const double up = 0.41 * away + 0.91 * heightAt(column, row);
            points.emplace_back(Width / 2.0 + 5.4 * right, Height / 2.0 - 5.4 * up);
        }
    return points;
}

/// Fills the same polygons without sorting them, and with the same pen for all.
void fillPolygons(benchmark::State& state)
{
    QImage image(Width, Height, QImage::Format_ARGB32_Premultiplied);
    double angle = 0.46;
    for (auto _ : state) {
        const std::vector<QPointF> points = projected(angle += 0.09);
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::white);
        painter.setBrush(Qt::lightGray);
        for (int row = 0; row < Side; ++row)
            for (int column = 0; column < Side; ++column) {
                const auto first = size_t(row * (Side + 1) + column);
                const QPointF corners[] = {points[first], points[first + 1],
                                           points[first + Side + 2], points[first + Side + 1]};
                painter.drawConvexPolygon(corners, 4);
            }
    }
}

BENCHMARK(turnView);
BENCHMARK(restView);
BENCHMARK(fillPolygons);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const char fill[] = "fills the same polygons in one colour, without sorting them";
    return runBenchmarks(
        argc, argv,
        {{"turnView", "fillPolygons", 1.6, fill}, {"restView", "fillPolygons", 3.6, fill}});
}
