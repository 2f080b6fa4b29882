#include "geometry/coarseGeometry.h"
#include "TestSupport.h"
#include "view/GroupMarks.h"
#include "view/SceneView.h"

#include <QLineF>

#include <cmath>
#include <set>

using namespace vkd::aniview;
using vkd::dbo::Model;

Q_DECLARE_METATYPE(Position)

namespace {
constexpr double Tolerance = 1e-3; // pixels, due to single precision
constexpr int None = GroupMarks::NoGroup;

bool isClose(const Position& a, const Position& b)
{
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]) < 1e-9;
}

bool isClose(const QPointF& a, const QPointF& b)
{
    return QLineF(a, b).length() < Tolerance;
}

/// Nodes 1 to 4 form the square from (0, 0) to (4, 4) at z = 0, and nodes 5 to 8 form the same
/// square at z = 3.
Model squares()
{
    Model model;
    for (int i = 0; i < 8; ++i) {
        const double x = i % 4 == 1 || i % 4 == 2 ? 4.0 : 0.0;
        const double y = i % 4 > 1 ? 4.0 : 0.0;
        model.nodes.push_back({i + 1, {x, y, i < 4 ? 0.0 : 3.0}});
    }
    return model;
}

/// The squares as plates of groups 1 and 2, an off-centre column of group 3 between them, and an
/// edge beam of group 4 from node 5 to node 6.
Model storey()
{
    Model model = squares();
    model.nodes += {{9, {2.0, 2.5, 0.0}}, {10, {2.0, 2.5, 3.0}}};
    model.quads += {{1, 1, {1, 2, 3, 4}, 0.2}, {2, 2, {5, 6, 7, 8}, 0.2}};
    model.beams += {{3, 3, 1, {9, 10}}, {4, 4, 1, {5, 6}}};
    return model;
}

/// Two plates, one above the other, with beams along one edge. The lower plate consists of groups 1
/// and 2, which are side by side in the x direction.
Model largeStorey(int side)
{
    Model model;
    const auto node = [side](int x, int y, int z) {
        return (z * (side + 1) + y) * (side + 1) + x + 1;
    };
    for (int z = 0; z < 2; ++z)
        for (int y = 0; y <= side; ++y)
            for (int x = 0; x <= side; ++x)
                model.nodes.push_back({node(x, y, z), {double(x), double(y), double(z)}});
    for (int z = 0; z < 2; ++z)
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                model.quads.push_back(
                    {int(model.quads.size()) + 1,
                     z == 0 ? (x < side / 3 ? 1 : 2) : 3,
                     {node(x, y, z), node(x + 1, y, z), node(x + 1, y + 1, z), node(x, y + 1, z)},
                     0.2});
    for (int x = 0; x < side; ++x)
        model.beams.push_back({x + 1, 4, 1, {node(x, 0, 0), node(x + 1, 0, 0)}});
    return model;
}

/// Returns the bounding rectangle of all faces in the drawing order.
QRectF extentOf(const SceneView::Drawn& drawn, int group)
{
    QPointF least(1e9, 1e9);
    QPointF most(-1e9, -1e9);
    for (int item : drawn.picture.order())
        if (size_t(item) < drawn.geometry.faces.size()) {
            const Face& face = drawn.geometry.faces[size_t(item)];
            for (int i = 0; i < face.count && face.part == group; ++i) {
                const QPointF& at = drawn.picture.point(face.points[i]);
                least = {std::min(least.x(), at.x()), std::min(least.y(), at.y())};
                most = {std::max(most.x(), at.x()), std::max(most.y(), at.y())};
            }
        }
    return {least, most};
}

/// Returns the smallest and the largest x-coordinate of a group's faces.
std::pair<float, float> rangeOf(const SceneView::Drawn& drawn, int group)
{
    std::pair<float, float> range(1e9F, -1e9F);
    for (const Face& face : drawn.geometry.faces)
        for (int i = 0; i < face.count && face.part == group; ++i) {
            const float x = drawn.geometry.x[size_t(face.points[i])];
            range = {std::min(range.first, x), std::max(range.second, x)};
        }
    return range;
}

SceneView viewOf(const Model& model, const Position& eye)
{
    SceneView view;
    view.setGeometry(std::make_shared<ModelGeometry>(buildGeometry(model)));
    view.setSize({856, 656}); // 800 by 600 without the margin of 28
    view.setCamera(lookingFrom(eye));
    return view;
}
} // namespace

/// Tests the drawing of a model and the groups at its points, without widgets.
class TestSceneView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void axes()
    {
        const Position x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1};
        const struct
        {
            Position eye;
            double roll;
            Position right, up;
        } rows[] = {{z, 0.0, x, y},
                    {{0, -1, 0}, 0.0, x, z},
                    {x, 0.0, y, z},
                    {{0, 0, -1}, 0.0, x, {0, -1, 0}},
                    {{0, -1e-200, 0}, 0.0, x, z}, // its length does not matter
                    {{1e308, 1e308, 0}, 0.0, {-std::sqrt(0.5), std::sqrt(0.5), 0}, z},
                    {{1, -2, 1},
                     0.0,
                     {2 / std::sqrt(5), 1 / std::sqrt(5), 0},
                     {-1 / std::sqrt(30), 2 / std::sqrt(30), 5 / std::sqrt(30)}},
                    {z, 90.0, {0, -1, 0}, x},
                    {z, -1440.0, x, y}};
        for (const auto& row : rows) {
            Camera camera = lookingFrom(row.eye);
            camera.roll = row.roll;
            const ViewAxes seen = axesOf(camera);
            QVERIFY2(isClose(seen.right, row.right) && isClose(seen.up, row.up) &&
                         isClose(seen.eye, cross(row.right, row.up)),
                     qPrintable(QString::number(&row - rows)));
        }
    }

    /// The whole model is centred and has a margin, even if it is far from the origin.
    void fixedViews()
    {
        const QList<QPair<Position, QPointF>> farCorners{
            {{0, 0, 1}, {828, 168}}, {{0, -1, 0}, {828, 88}}, {{1, 0, 0}, {628, 28}}};
        Model model;
        model.nodes += {{1, {5e6, -3e5, 100}}, {2, {5e6 + 10, -3e5 + 4, 106}}};
        model.beams.push_back({1, 1, 1, {1, 2}});
        for (const auto& [eye, farCorner] : farCorners) {
            SceneView view = viewOf(model, eye);
            QVERIFY(isClose(view.picture().point(1), farCorner));
            QVERIFY(isClose(view.picture().point(0), QPointF(856, 656) - farCorner));
            QVERIFY(isClose(view.projection().toScreen({5e6 + 10, -3e5 + 4, 106}), farCorner));
        }
    }

    /// Rotating moves the near side of the model with the mouse.
    void hand()
    {
        const QList<QPair<double, QPointF>> ways{
            {0.0, {0.2, 0}}, {0.0, {0, 0.2}}, {30.0, {-0.2, -0.1}}, {180.0, {0, 0.2}}};
        for (const auto& [roll, way] : ways) {
            SceneView view = viewOf(squares(), {0, -1, 0});
            Camera camera = view.camera();
            camera.roll = roll;
            view.setCamera(camera);
            const QPointF before = view.projection().toScreen({0, -10, 0});
            view.turn(way.x(), way.y());
            const QPointF moved = view.projection().toScreen({0, -10, 0}) - before;
            const double angle = QLineF({}, moved).angleTo(QLineF({}, way));
            QVERIFY2(std::min(angle, 360.0 - angle) < 1.0, qPrintable(QString::number(angle)));
        }
    }

    /// The view preserves its azimuth even when it looks straight down.
    void steepest()
    {
        SceneView view = viewOf(storey(), {3, -1, 1});
        const ViewAxes before = axesOf(view.camera());
        view.turn(0.0, 5000.0);
        QVERIFY(axesOf(view.camera()).eye[2] > 0.999);
        view.turn(0.0, -5000.0);
        QVERIFY(axesOf(view.camera()).eye[2] < -0.999);
        view.turn(0.0, 30.0);
        QVERIFY(isClose(axesOf(view.camera()).right, before.right));
    }

    void zoomAndPan()
    {
        SceneView view = viewOf(storey(), {1, -2, 1});
        const Position corner{4.0, 0.0, 3.0};
        const QPointF place = view.projection().toScreen(corner);
        const double scale = view.projection().scale();
        view.zoom(3.0, place);
        QVERIFY(isClose(view.projection().toScreen(corner), place));
        QVERIFY(qFuzzyCompare(view.projection().scale(), 3.0 * scale));
        view.pan({30.0, -20.0});
        QVERIFY(isClose(view.projection().toScreen(corner), place + QPointF(30.0, -20.0)));
        view.turn(40.0, 10.0);
        QVERIFY(qFuzzyCompare(view.projection().scale(), 3.0 * scale));
        view.showAll();
        QVERIFY(isClose(view.projection().toScreen({2.0, 2.0, 1.5}), {428.0, 328.0}));
        for (int i = 0; i < 2000; ++i)
            view.zoom(0.5, place);
        QVERIFY(view.projection().scale() > 0.0);
    }

    void frontmost_data()
    {
        // at: a point of the model; the test picks the group at its projection
        const Columns<Position, Position, int> row("eye", "at", "group");
        const Position above{0, 0, 1};
        const Position below{0, 0, -1};
        const Position front{0, -1, 0};
        const Position oblique{0, -1, 0.8};
        row("upper plate", above, {2, 1, 0}, 2);
        row("lower plate", below, {2, 1, 3}, 1);
        row("column below its plate", above, {2, 2.5, 0}, 2);
        row("column between", front, {2, 2.5, 1.5}, 3);
        row("column before a plate", oblique, {2, 2.5, 0.5}, 3);
        row("column's end behind a plate", oblique, {2, 2.5, 2.9}, 2);
        row("edge beam from above", above, {2, 0, 3}, 4);
        row("edge beam from below", {0, -1, -0.8}, {2, 0, 3}, 4);
        row("edge beam at the far edge", {0, 1, 0.8}, {2, 0.02, 3}, 4);
        row("plate seen edge-on", front, {1, 0, 0}, 1);
        row("between the plates", front, {1, 0, 1.5}, None);
        row("outside", above, {5, 5, 0}, None);
    }

    void frontmost()
    {
        QFETCH(const Position, eye);
        QFETCH(const Position, at);
        QTEST(viewOf(storey(), eye).groupAt(viewOf(storey(), eye).projection().toScreen(at)),
              "group");
    }

    /// One end of a long line is in front of a plate, the other is behind it.
    void lineThroughPlate()
    {
        Model model;
        const auto node = [](int column, int row) { return 9 * row + column + 1; };
        for (int y = 0; y < 9; ++y)
            for (int x = 0; x < 9; ++x)
                model.nodes.push_back({int(model.nodes.size()) + 1, {double(x), double(y), 0.0}});
        for (int i = 0; i < 64; ++i) {
            const int x = i % 8, y = i / 8;
            model.quads.push_back(
                {i, 1, {node(x, y), node(x + 1, y), node(x + 1, y + 1), node(x, y + 1)}, 0.2});
        }
        model.nodes.push_back({100, {4.5, -1.5, 4.0}});
        model.nodes.push_back({101, {4.5, 9.5, -4.0}});
        model.beams.push_back({1, 2, 1, {100, 101}});
        SceneView view = viewOf(model, {0, 0, 1});
        QCOMPARE(view.groupAt(view.projection().toScreen({4.5, 1, 0})), 2);
        QCOMPARE(view.groupAt(view.projection().toScreen({4.5, 7, 0})), 1);
    }

    /// The coarse drawing of a large model has fewer items, but the same outline and folds.
    void quickPicture()
    {
        constexpr int Side = 150;
        SceneView view = viewOf(largeStorey(Side), {1, -2, 1});
        const SceneView::Drawn full = view.quickPicture(1000000);
        QCOMPARE(&full.geometry, &view.geometry());
        for (int most : {20000, 4000}) {
            const SceneView::Drawn quick = view.quickPicture(most);
            QVERIFY(int(quick.picture.order().size()) < most);
            QVERIFY(int(quick.picture.order().size()) > most / 8);
            QCOMPARE(extentOf(quick, 2), extentOf(full, 2));
            QCOMPARE(extentOf(quick, 0) | extentOf(quick, 1),
                     extentOf(full, 0) | extentOf(full, 1));
            QCOMPARE(rangeOf(quick, 0).second, rangeOf(quick, 1).first); // without a gap
            QCOMPARE(quick.geometry.meshCell, full.geometry.meshCell);
            const bool isStrong =
                std::any_of(quick.geometry.faces.begin(), quick.geometry.faces.end(),
                            [](const Face& face) { return face.strongEdges == 0xf; });
            QVERIFY(!isStrong); // only the rim has strong outlines
            QVERIFY(!quick.geometry.lines.empty());
        }
        view.zoom(20.0, {428, 328}); // only a few items are still visible
        QCOMPARE(&view.quickPicture(10000).geometry, &view.geometry());
    }

    /// Faces whose corners are merged have fewer corners or vanish.
    void mergedFaces()
    {
        Model model = largeStorey(40);
        for (vkd::dbo::Node& node : model.nodes)
            node.position[0] += 0.03 * node.position[1]; // a skewed mesh
        const ModelGeometry fine = buildGeometry(model);
        const ModelGeometry coarse = mergedInCells(fine, 2.5F * fine.cell);
        QVector<size_t> faces(5);
        for (const Face& face : coarse.faces) {
            std::set<int> corners;
            for (int i = 0; i < face.count; ++i)
                if (size_t(face.points[i]) < coarse.x.size())
                    corners.insert(face.points[i]);
            QCOMPARE(int(corners.size()), face.count);
            ++faces[face.count];
        }
        QVERIFY(faces[3] > 0 && faces[4] > 0);
        QVERIFY(coarse.faces.size() < fine.faces.size() / 2);
    }

    void triangle()
    {
        Model model = squares();
        model.quads.push_back({1, 1, {1, 2, 3, 0}, 0.2});
        SceneView view = viewOf(model, {0, 0, -1});
        QCOMPARE(view.groupAt(view.projection().toScreen({3, 1, 0})), 1);
        QCOMPARE(view.groupAt(view.projection().toScreen({1, 2, 0})), None);
    }

    /// Two bricks on top of each other show ten faces; the common face does not hide other faces.
    void bricks()
    {
        Model model = squares();
        for (int i = 0; i < 4; ++i) {
            model.nodes.push_back(model.nodes[i]);
            model.nodes.last().number = 9 + i;
            model.nodes.last().position[2] = 5.0;
        }
        model.bricks.push_back({1, 1, {1, 2, 3, 4, 5, 6, 7, 8}});
        model.bricks.push_back({2, 2, {5, 6, 7, 8, 9, 10, 11, 12}});
        const ModelGeometry geometry = buildGeometry(model);
        QCOMPARE(int(geometry.faces.size()), 10);
        for (size_t i = 0; i < geometry.faces.size(); ++i) {
            const int* points = geometry.faces[i].points;
            const SortPlace& middle = geometry.sortPlaces[i];
            const std::pair<const std::vector<float>&, float> axes[] = {
                {geometry.x, middle.x}, {geometry.y, middle.y}, {geometry.z, middle.z}};
            int changes = 0;
            for (const auto& [values, mean] : axes) {
                float sum = 0;
                for (int corner = 0; corner < 4; ++corner) {
                    const float value = values[size_t(points[corner])];
                    changes += value != values[size_t(points[(corner + 1) % 4])];
                    sum += value;
                }
                QVERIFY(std::abs(sum / 4 - mean) < 1e-5F);
            }
            QCOMPARE(changes, 4); // the edges are parallel to the axes, so none is a diagonal
        }
    }

    /// A spring to the ground is drawn below its node.
    void springs()
    {
        for (bool hasPlate : {false, true}) {
            Model model = squares();
            model.springs += {{1, 1, {1, 0}, 1.0}, {2, 1, {1, 5}, 1.0}};
            if (hasPlate)
                model.quads.push_back({1, 1, {1, 2, 3, 4}, 0.2});
            const ModelGeometry geometry = buildGeometry(model);
            QCOMPARE(int(geometry.lines.size()), 2);
            const double rises[] = {hasPlate ? -2.0 : -0.5, 3.0};
            for (size_t i = 0; i < 2; ++i) {
                const Line& line = geometry.lines[i];
                QCOMPARE(line.kind, i == 0 ? LineKind::GroundSpring : LineKind::Spring);
                const float rise =
                    geometry.z[size_t(line.points[1])] - geometry.z[size_t(line.points[0])];
                QVERIFY(std::abs(geometry.unit * double(rise) - rises[i]) < 1e-5);
            }
        }
    }

    /// Outlines are strong only at the rim of a plate, at folds and between groups.
    void strongEdges()
    {
        const auto count = [](int group, double rise) {
            Model model = squares();
            model.nodes += {{9, {8, 0, rise}}, {10, {8, 4, rise}}};
            model.quads += {{1, 1, {1, 2, 3, 4}, 0.2}, {2, group, {3, 2, 9, 10}, 0.2}};
            int strong = 0;
            for (const Face& face : buildGeometry(model).faces)
                for (unsigned bit = 0; bit < 4; ++bit)
                    strong += int(face.strongEdges >> bit & 1U);
            return strong;
        };
        QCOMPARE(count(1, 0.5), 6); // one plate
        QCOMPARE(count(1, 3.0), 8); // fold
        QCOMPARE(count(2, 0.0), 8); // two groups
    }
};

PLIB_TEST_MAIN(TestSceneView)
#include "tst_sceneView.moc"
