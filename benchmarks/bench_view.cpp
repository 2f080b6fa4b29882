// The view of a model while it is rotated, and at rest.

#include "memory.h"
#include "processorTime.h"
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

constexpr int Few = 10000; // number of quads that are shown in a small view
constexpr QSize SmallSize(800, 600);
constexpr QSize LargeSize(1280, 800);
constexpr double Extent = 100.0; // metres

/// Returns the number of quads along each side.
int sideOf(const benchmark::State& state)
{
    return int(std::sqrt(double(state.range(0))));
}

QSize sizeOf(const benchmark::State& state)
{
    return state.range(0) > Few ? LargeSize : SmallSize;
}

/// Returns the height of a wavy shell. Like the surface of a real model, parts of the shell hide
/// other parts, and it has many shades.
double heightAt(double x, double y)
{
    return 8.0 * std::sin(x * 0.13) * std::cos(y * 0.11);
}

vkd::dbo::Model shell(int side)
{
    vkd::dbo::Model model;
    const auto node = [side](int column, int row) { return row * (side + 1) + column + 1; };
    for (int row = 0; row <= side; ++row)
        for (int column = 0; column <= side; ++column) {
            const double x = column * Extent / side;
            const double y = row * Extent / side;
            model.nodes.push_back({node(column, row), {x, y, heightAt(x, y)}});
        }
    for (int row = 0; row < side; ++row)
        for (int column = 0; column < side; ++column)
            model.quads.push_back({row * side + column + 1,
                                   1 + 4 * row / side,
                                   {node(column, row), node(column + 1, row),
                                    node(column + 1, row + 1), node(column, row + 1)},
                                   0.2});
    return model;
}

/// Returns a project with a shell that has this number of quads along each side. The last project
/// is cached for the next run.
ZobHandle projectOf(int side)
{
    static int known = 0;
    static std::unique_ptr<QTemporaryDir> folder;
    static std::unique_ptr<VKD_H_ZOBDoc> doc;
    if (known != side) {
        doc.reset();
        folder = std::make_unique<QTemporaryDir>();
        doc = VKD_H_ZOBDoc::create(folder->filePath(QStringLiteral("p.zob")));
        vkd::dbo::storeModel(doc->handle(), shell(side));
        known = side;
    }
    return doc->handle();
}

class ShownShell
{
public:
    explicit ShownShell(const benchmark::State& state)
        : view(projectOf(sideOf(state)))
        , image(sizeOf(state), QImage::Format_ARGB32_Premultiplied)
    {
        view.resize(image.size());
        view.slotViewControl(AnimatorStandardView, 0.0);
    }

    void turn()
    {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &key);
        view.render(&image);
    }

    AnimatorView view;
    QImage image;
};

void turnView(benchmark::State& state)
{
    ShownShell shown(state);
    shown.turn(); // the first frame reserves memory
    for (auto _ : state)
        shown.turn();
}

/// Paints the high-quality image of a view at rest, in as many steps as the view needs.
void restView(benchmark::State& state)
{
    ShownShell shown(state);
    for (auto _ : state) {
        shown.view.slotViewControl(AnimatorStandardView, 0.0);
        shown.view.render(&shown.image);
        while (!shown.view.isPictureComplete())
            QApplication::processEvents();
        shown.view.render(&shown.image);
    }
}

/// Moves the mouse over a rotated model before the full image has been painted.
void hoverAfterTurn(benchmark::State& state)
{
    ShownShell shown(state);
    shown.view.setHovering(true);
    int step = 0;
    for (auto _ : state) {
        shown.turn();
        const QPointF place(shown.image.width() * (++step % 9) / 9.0, shown.image.height() / 2.0);
        QMouseEvent move(QEvent::MouseMove, place, shown.view.mapToGlobal(place.toPoint()),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        const double start = processorSeconds();
        QCoreApplication::sendEvent(&shown.view, &move);
        state.SetIterationTime(processorSeconds() - start);
    }
}

/// Highlights the groups of another design row in each frame.
void lightRow(benchmark::State& state)
{
    ShownShell shown(state);
    shown.view.render(&shown.image);
    int group = 1;
    for (auto _ : state) {
        shown.view.setSelectedGroups({group, 1 + group % 4});
        group = 1 + group % 4;
        shown.view.render(&shown.image);
    }
}

/// Compares the memory of a view after a rotation with the memory of the model itself.
void memoryOfView(benchmark::State& state)
{
    projectOf(sideOf(state));
    for (auto _ : state) {
        const double before = heapInUse();
        ShownShell shown(state);
        shown.turn();
        state.counters["bytes"] = heapInUse() - before;
    }
}

void memoryOfModel(benchmark::State& state)
{
    const ZobHandle project = projectOf(sideOf(state));
    for (auto _ : state) {
        const double before = heapInUse();
        const vkd::dbo::Model model = vkd::dbo::readModel(project);
        state.counters["bytes"] = heapInUse() - before;
    }
}

/// Returns the points of the shell in the standard view, rotated by this angle.
std::vector<QPointF> projected(double angle, int side, const QSize& size)
{
    const double scale = size.height() / 88.0; // the scale of the view
    std::vector<QPointF> points;
    for (int row = 0; row <= side; ++row)
        for (int column = 0; column <= side; ++column) {
            const double x = column * Extent / side;
            const double y = row * Extent / side;
            const double right =
                (x - Extent / 2) * std::cos(angle) - (y - Extent / 2) * std::sin(angle);
            const double away =
                (x - Extent / 2) * std::sin(angle) + (y - Extent / 2) * std::cos(angle);
            const double up = 0.41 * away + 0.91 * heightAt(x, y);
            points.emplace_back(size.width() / 2.0 + scale * right,
                                size.height() / 2.0 - scale * up);
        }
    return points;
}

/// Fills the same polygons without sorting them, using a single pen for all polygons.
void fillPolygons(benchmark::State& state)
{
    const int side = sideOf(state);
    QImage image(sizeOf(state), QImage::Format_ARGB32_Premultiplied);
    double angle = 0.46;
    for (auto _ : state) {
        const std::vector<QPointF> points = projected(angle += 0.09, side, image.size());
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::white);
        painter.setBrush(Qt::lightGray);
        for (int row = 0; row < side; ++row)
            for (int column = 0; column < side; ++column) {
                const auto first = size_t(row) * size_t(side + 1) + size_t(column);
                const QPointF corners[] = {points[first], points[first + 1],
                                           points[first + size_t(side) + 2],
                                           points[first + size_t(side) + 1]};
                painter.drawConvexPolygon(corners, 4);
            }
    }
}

BENCHMARK(turnView)->Arg(Few)->Arg(100000)->Arg(1000000);
BENCHMARK(hoverAfterTurn)->Arg(1000000)->UseManualTime();
BENCHMARK(lightRow)->Arg(100000);
BENCHMARK(restView)->Arg(Few)->Arg(100000);
BENCHMARK(fillPolygons)->Arg(Few)->Arg(100000);
BENCHMARK(memoryOfView)->Arg(100000);
BENCHMARK(memoryOfModel)->Arg(100000);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const char fill[] = "fills the same polygons in one colour, without sorting them";
    return runBenchmarks(argc, argv,
                         {{"turnView/10000", "fillPolygons/10000", 1.6, fill},
                          {"turnView/10000", "", 33.0, "milliseconds for a frame"},
                          {"turnView/100000", "", 33.0, "milliseconds for a frame"},
                          {"turnView/1000000", "", 33.0, "milliseconds for a frame"},
                          {"hoverAfterTurn/1000000/manual_time", "", 10.0,
                           "milliseconds, so that the frame has time for painting"},
                          {"lightRow/100000", "", 33.0, "milliseconds for a frame"},
                          {"restView/10000", "fillPolygons/10000", 3.6, fill},
                          {"restView/100000", "fillPolygons/100000", 2.5, fill},
                          {"memoryOfView/100000", "memoryOfModel/100000", 3.0,
                           "reads the model from the project", Figure::Memory}});
}
