#include "TemporaryProject.h"
#include "WidgetTestSupport.h"

#include <AnimatorView.h>
#include <vkd_dbo_camera.h>
#include <vkd_dbo_model.h>

#include <QSignalSpy>
#include <QWheelEvent>

#include <limits>

using namespace vkd::dbo;
using Groups = std::vector<int>;
Q_DECLARE_METATYPE(Model)

namespace {
const QPoint Left(150, 200);
const QPoint Right(450, 200);
const QPoint Corner(300, 30);
const QString Aimed = QStringLiteral("camera1 3 -1 0.5 20 2 1.5 0.25 4");

/// Two plates of the groups 7 and 8 side by side; seen from above in 600 by 400 they cover the
/// left and the right half of the middle.
Model plates()
{
    Model model;
    for (int i = 0; i < 6; ++i)
        model.nodes.push_back({i + 1, {double(i % 3) * 4.0, double(i / 3) * 4.0, 0.0}});
    model.quads.push_back({1, 7, {1, 2, 5, 4}, 0.2});
    model.quads.push_back({2, 8, {2, 3, 6, 5}, 0.2});
    return model;
}

/// Sent past QTest, which complains when nobody takes an event.
void send(QWidget& view, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
          Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const bool isUp = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, at, type == QEvent::MouseMove ? Qt::NoButton : button,
                      isUp ? Qt::NoButton : button, modifiers);
    QCoreApplication::sendEvent(&view, &event);
}

void drag(QWidget& view, const QVector<QPoint>& way, Qt::MouseButton button = Qt::LeftButton,
          Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    send(view, QEvent::MouseButtonPress, way.first(), button, modifiers);
    for (const QPoint& place : way.mid(1))
        send(view, QEvent::MouseMove, place, button, modifiers);
    send(view, QEvent::MouseButtonRelease, way.last(), button, modifiers);
}

void key(QWidget& view, int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent event(QEvent::KeyPress, code, modifiers);
    QCoreApplication::sendEvent(&view, &event);
}

void wheel(QWidget& view, int delta)
{
    const QPointF place = Left;
    QWheelEvent event(place, place, {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&view, &event);
}

/// The camera of the view, by way of the desktop.
Camera cameraOf(AnimatorView& view)
{
    view.slotViewControl(AnimatorStoreCamera, 0.0);
    return camera(0);
}

QString textOf(AnimatorView& view)
{
    view.slotViewControl(AnimatorStoreCamera, 0.0);
    return getAnimatorPerspektive(0, 2);
}

using Gesture = void (*)(QWidget&);
} // namespace
Q_DECLARE_METATYPE(Gesture)

/// The view as its users handle it.
class TestAnimatorView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project = std::make_unique<testsupport::TemporaryProject>();
        m_view = viewOf(plates());
    }

    void cleanup() { m_view.reset(); }

    void commands_data()
    {
        const Columns<int, QString> row("control", "camera");
        row("standard", 0, "camera1 1 -2 1 0 0 0 0 1");
        row("show all", 1, "camera1 3 -1 0.5 20 0 0 0 1");
        row("nothing", 2, Aimed);
        row("X/Y", 3, "camera1 0 0 1 0 0 0 0 1");
        row("X/Z", 4, "camera1 0 -1 0 0 0 0 0 1");
        row("Y/Z", 5, "camera1 1 0 0 0 0 0 0 1");
        row("unknown", 99, Aimed);
    }

    /// From a camera that was taken, also in a locked view.
    void commands()
    {
        QFETCH(const int, control);
        for (bool enabled : {true, false}) {
            m_view->setEnabled(enabled);
            setAnimatorPerspektive(0, Aimed);
            m_view->slotViewControl(AnimatorTakeCamera, 0.0);
            setCamera(0, Camera());
            QCOMPARE(textOf(*m_view), Aimed);
            m_view->slotViewControl(AnimatorViewControl(control), 0.0);
            QTEST(textOf(*m_view), "camera");
        }
    }

    void gestures_data()
    {
        // changes: e: eye, c: centre, z: zoom
        const Columns<QString, Gesture> row("changes", "gesture");
        row("left", "ez", [](QWidget& view) { drag(view, {Left, Right}); });
        row("right", "c", [](QWidget& view) { drag(view, {Left, Right}, Qt::RightButton); });
        row("middle", "c", [](QWidget& view) { drag(view, {Left, Right}, Qt::MiddleButton); });
        row("Shift and left", "c", [](QWidget& view) {
            drag(view, {Left, Right}, Qt::LeftButton, Qt::ShiftModifier);
        });
        row("wheel", "cz", [](QWidget& view) { wheel(view, 120); });
        row("wheel back", "cz", [](QWidget& view) { wheel(view, -60); });
        row("plus", "z", [](QWidget& view) { key(view, Qt::Key_Plus); });
        row("minus", "z", [](QWidget& view) { key(view, Qt::Key_Minus, Qt::KeypadModifier); });
        row("arrow", "ez", [](QWidget& view) { key(view, Qt::Key_Left); });
        row("Shift and arrow", "c",
            [](QWidget& view) { key(view, Qt::Key_Down, Qt::ShiftModifier); });
        row("Home", "cz", [](QWidget& view) { key(view, Qt::Key_Home); });
        row("double click", "cz",
            [](QWidget& view) { send(view, QEvent::MouseButtonDblClick, Left, Qt::LeftButton); });
        row("click", "", [](QWidget& view) { drag(view, {Left}); });
        row("other key", "", [](QWidget& view) { key(view, Qt::Key_A); });
        row("move without a button", "",
            [](QWidget& view) { send(view, QEvent::MouseMove, Right, Qt::NoButton); });
    }

    /// What each gesture changes; in a locked view none changes anything.
    void gestures()
    {
        QFETCH(const Gesture, gesture);
        setAnimatorPerspektive(0, Aimed);
        m_view->slotViewControl(AnimatorTakeCamera, 0.0);
        m_view->setEnabled(false);
        gesture(*m_view);
        QCOMPARE(textOf(*m_view), Aimed);

        m_view->setEnabled(true);
        const Camera before = cameraOf(*m_view);
        gesture(*m_view);
        const Camera after = cameraOf(*m_view);
        QString changes;
        if (!std::equal(before.eye, before.eye + 3, after.eye))
            changes += QLatin1Char('e');
        if (!std::equal(before.centre, before.centre + 3, after.centre))
            changes += QLatin1Char('c');
        if (before.zoom != after.zoom)
            changes += QLatin1Char('z');
        QTEST(changes, "changes");
        QCOMPARE(after.roll, before.roll);
    }

    void lockedWhileDragging()
    {
        send(*m_view, QEvent::MouseButtonPress, Left, Qt::LeftButton);
        m_view->setEnabled(false);
        m_view->setEnabled(true);
        const QString before = textOf(*m_view);
        send(*m_view, QEvent::MouseMove, Right, Qt::LeftButton);
        QCOMPARE(textOf(*m_view), before);
    }

    void picking()
    {
        QSignalSpy changed(m_view.get(), &AnimatorView::pickedGroupsChanged);
        drag(*m_view, {Left});
        QCOMPARE(m_view->pickedGroups(), Groups());
        m_view->setPicking(true);
        m_view->setPickedGroups({12, 9, 12});
        QCOMPARE(changed.count(), 0);
        drag(*m_view, {Right});
        QCOMPARE(m_view->pickedGroups(), (Groups{8, 9, 12}));
        drag(*m_view, {Left});
        drag(*m_view, {Right});
        QCOMPARE(m_view->pickedGroups(), (Groups{7, 9, 12}));
        QCOMPARE(changed.count(), 3);
        QVERIFY(!m_view->grab().isNull());
    }

    void noPick_data()
    {
        const Columns<Gesture> row("gesture");
        row("drag", [](QWidget& view) { drag(view, {Left, Right}); });
        row("away and back", [](QWidget& view) { drag(view, {Left, Right, Left}); });
        row("right button", [](QWidget& view) { drag(view, {Left}, Qt::RightButton); });
        row("beside the model", [](QWidget& view) { drag(view, {Corner}); });
        row("locked", [](QWidget& view) {
            view.setEnabled(false);
            drag(view, {Left});
        });
        row("double click", [](QWidget& view) {
            drag(view, {Left});
            send(view, QEvent::MouseButtonDblClick, Left, Qt::LeftButton);
            send(view, QEvent::MouseButtonRelease, Left, Qt::LeftButton);
        });
    }

    void noPick()
    {
        QFETCH(const Gesture, gesture);
        m_view->setPicking(true);
        gesture(*m_view);
        QCOMPARE(m_view->pickedGroups(), Groups());
    }

    void hovering()
    {
        QSignalSpy hovered(m_view.get(), &AnimatorView::groupHovered);
        const auto groups = [&hovered] {
            Groups all;
            while (!hovered.isEmpty())
                all.push_back(hovered.takeFirst().first().toInt());
            return all;
        };
        send(*m_view, QEvent::MouseMove, Left, Qt::NoButton);
        QCOMPARE(groups(), Groups());
        m_view->setPicking(true);
        for (const QPoint& place : {Left, Left + QPoint(5, 5), Right, Corner, Right})
            send(*m_view, QEvent::MouseMove, place, Qt::NoButton);
        QCOMPARE(groups(), (Groups{7, 8, AnimatorView::NoGroup, 8}));
        m_view->setEnabled(false);
        QCOMPARE(groups(), Groups{AnimatorView::NoGroup});
        m_view->setEnabled(true);
        send(*m_view, QEvent::MouseMove, Left, Qt::NoButton);
        m_view->setPicking(false);
        QCOMPARE(groups(), (Groups{7, AnimatorView::NoGroup}));
        m_view->setHovering(true);
        send(*m_view, QEvent::MouseMove, Right, Qt::NoButton);
        m_view->setPicking(true);
        m_view->setPicking(false);
        send(*m_view, QEvent::MouseMove, Left, Qt::NoButton);
        m_view->setHovering(false);
        QCOMPARE(groups(), (Groups{8, AnimatorView::NoGroup, 7, AnimatorView::NoGroup}));
    }

    void noModel()
    {
        for (int index : {-1, 0, m_project->index()}) {
            QVERIFY(storeModel(m_project->index(), Model()));
            AnimatorView view(index);
            view.setPicking(true);
            view.resize(300, 200);
            drag(view, {{10, 10}, {100, 50}});
            wheel(view, 120);
            key(view, Qt::Key_Left);
            QVERIFY(!view.grab().isNull());
            QCOMPARE(textOf(view), QStringLiteral("camera1 1 -2 1 0 0 0 0 1"));
        }
    }

    void reload()
    {
        m_view->setPicking(true);
        Model model = plates();
        model.quads[0].group = 70;
        QVERIFY(storeModel(m_project->index(), model));
        drag(*m_view, {Left});
        QCOMPARE(m_view->pickedGroups(), Groups{7});
        m_view->reload();
        drag(*m_view, {Left});
        QCOMPARE(m_view->pickedGroups(), (Groups{7, 70}));
        model.quads.clear();
        model.nodes.resize(2000);
        QVERIFY(storeModel(m_project->index(), model));
        QVERIFY(!m_view->setProject(m_project->index(), [](int) { return false; }));
        drag(*m_view, {Left}); // it still shows what it did
        QCOMPARE(m_view->pickedGroups(), Groups{7});
        QVERIFY(m_view->setProject(-1));
        m_view->setPickedGroups({7, 70});
        drag(*m_view, {Left});
        QCOMPARE(m_view->pickedGroups(), (Groups{7, 70}));
    }

    void oddElements_data()
    {
        QTest::addColumn<Model>("model");
        const auto row = [](const char* name, void (*spoil)(Model&)) {
            Model model = plates();
            spoil(model);
            QTest::newRow(name) << model;
        };
        row("no area", [](Model& model) { model.quads.push_back({3, 9, {1, 2, 3, 2}, 0.2}); });
        row("one node four times", [](Model& model) {
            model.quads.push_back({3, 9, {1, 1, 1, 1}, 0.2});
        });
        row("coincident nodes", [](Model& model) {
            model.nodes.push_back({9, {4, 0, 0}});
            model.quads.push_back({3, 9, {2, 9, 2, 0}, 0.2});
        });
        row("line at one node", [](Model& model) {
            model.beams.push_back({3, 9, 1, {2, 2}});
            model.springs.push_back({4, 9, {2, 2}, 1.0});
        });
        row("nodes that are not there", [](Model& model) {
            model.quads.push_back({3, 9, {1, 2, 99, 4}, 0.2});
            model.beams.push_back({3, 9, 1, {1, 99}});
            model.springs.push_back({4, 9, {99, 0}, 1.0});
            model.bricks.push_back({5, 9, {}});
            model.supports.push_back({99, 7});
        });
        row("nodes nowhere", [](Model& model) {
            model.nodes.push_back({9, {std::numeric_limits<double>::quiet_NaN(), 0, 0}});
            model.nodes.push_back({10, {0, 1e300, 0}});
            model.quads.push_back({3, 9, {1, 9, 10, 0}, 0.2});
            model.beams.push_back({4, 9, 1, {1, 10}});
        });
        row("flat brick", [](Model& model) {
            model.bricks.push_back({3, 9, {1, 2, 5, 4, 1, 2, 5, 4}});
        });
        row("supports of every sort", [](Model& model) {
            for (int fixed = 0; fixed < 64; ++fixed)
                model.supports.push_back({1 + fixed % 6, fixed});
        });
        row("thickness", [](Model& model) {
            model.quads[0].thickness = std::numeric_limits<double>::infinity();
            model.quads[1].thickness = -1.0;
        });
    }

    /// Drawn from all sides, and the sound plate beside them is still there.
    void oddElements()
    {
        QFETCH(const Model, model);
        const auto view = viewOf(model);
        view->setPicking(true);
        drag(*view, {Right});
        QCOMPARE(view->pickedGroups(), Groups{8});
        for (int control : {0, 3, 4, 5}) {
            view->slotViewControl(AnimatorViewControl(control), 0.0);
            QVERIFY(!view->grab().isNull());
        }
    }

    void onePoint()
    {
        Model model;
        model.nodes.push_back({1, {3, 3, 3}});
        model.beams.push_back({1, 5, 1, {1, 1}});
        const auto view = viewOf(model);
        view->setPicking(true);
        drag(*view, {view->rect().center()});
        QCOMPARE(view->pickedGroups(), Groups{5});
        QVERIFY(!view->grab().isNull());
    }

    void strangeCameras()
    {
        for (const char* text :
             {"camera1 1 1 1 0 1e300 0 0 1", "camera1 0 0 1 1e300 0 0 0 1e300",
              "camera1 1e-300 0 0 0 1 1 1 1e-300", "camera1 1e308 1e308 -1e308 7 0 0 0 1"}) {
            setAnimatorPerspektive(0, QLatin1String(text));
            m_view->slotViewControl(AnimatorTakeCamera, 0.0);
            QVERIFY(!m_view->grab().isNull());
            drag(*m_view, {Left, Right});
            wheel(*m_view, -120);
            QVERIFY(!m_view->grab().isNull());
        }
    }

private:
    /// Seen from above.
    std::unique_ptr<AnimatorView> viewOf(const Model& model) const
    {
        if (!storeModel(m_project->index(), model))
            qFatal("model not stored");
        auto view = std::make_unique<AnimatorView>(m_project->index());
        view->resize(600, 400);
        view->show();
        view->slotViewControl(AnimatorViewXY, 0.0);
        return view;
    }

    std::unique_ptr<testsupport::TemporaryProject> m_project;
    std::unique_ptr<AnimatorView> m_view;
};

PLIB_WIDGET_TEST_MAIN(TestAnimatorView)
#include "tst_animatorView.moc"
