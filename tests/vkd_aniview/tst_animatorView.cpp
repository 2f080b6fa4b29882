#include "TemporaryProject.h"
#include "WidgetTestSupport.h"

#include <AnimatorView.h>
#include <vkd_dbo_camera.h>
#include <vkd_dbo_model.h>
#include <vkd_dbo_packedNames.h>

#include <QDialog>
#include <QSignalSpy>
#include <QWheelEvent>

#include <limits>

using namespace vkd::dbo;
using Groups = std::vector<int>;

namespace {
const QPoint Left(150, 200);
const QPoint Right(450, 200);
const QPoint Corner(300, 30);
const QVector<QPoint> Across{Left, Right};
constexpr auto Shift = Qt::ShiftModifier;
const QLatin1String Aimed("camera1 3 -1 0.5 20 2 1.5 0.25 4");

/// Two plates of groups 7 and 8, side by side. Seen from above in a view of 600 by 400 pixels,
/// they are in the middle of the view, one in the left half and one in the right.
Model plates()
{
    Model model;
    for (double y : {0.0, 4.0})
        for (double x : {0.0, 4.0, 8.0})
            model.nodes.push_back({int(model.nodes.size()) + 1, {x, y, 0.0}});
    model.quads.push_back({1, 7, {1, 2, 5, 4}, 0.2});
    model.quads.push_back({2, 8, {2, 3, 6, 5}, 0.2});
    return model;
}

/// Sends the event without QTest, which logs a warning about an event that no object accepts.
void send(QWidget& view, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
          Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const bool isUp = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, at, view.mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : button,
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

/// Returns the camera of the view, read through the desktop's camera.
Camera cameraOf(AnimatorView& view)
{
    view.slotViewControl(AnimatorStoreCamera, 0.0);
    return camera(ZobHandle::scratch());
}

QString textOf(AnimatorView& view)
{
    view.slotViewControl(AnimatorStoreCamera, 0.0);
    return getAnimatorPerspektive(0, 2);
}

using Gesture = void (*)(QWidget&);
} // namespace

/// Tests the view through its user interface.
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

    /// Each command starts from a loaded camera, even in a locked view.
    void commands()
    {
        const char* const cameras[] = {
            "camera1 1 -2 1 0 0 0 0 1", "camera1 3 -1 0.5 20 0 0 0 1", Aimed.data(),
            "camera1 0 0 1 0 0 0 0 1",  "camera1 0 -1 0 0 0 0 0 1",    "camera1 1 0 0 0 0 0 0 1"};
        for (bool enabled : {true, false}) {
            m_view->setEnabled(enabled);
            for (int control = AnimatorStandardView; control <= AnimatorViewYZ; ++control) {
                takeCamera(Aimed);
                setCamera(ZobHandle::scratch(), Camera());
                QCOMPARE(textOf(*m_view), Aimed);
                m_view->slotViewControl(AnimatorViewControl(control), 0.0);
                QCOMPARE(textOf(*m_view), QLatin1String(cameras[control]));
            }
        }
    }

    /// The changes caused by each gesture (e: eye, c: centre, z: zoom). A locked view ignores all
    /// gestures.
    void gestures()
    {
        const QList<QPair<const char*, Gesture>> gestures{
            {"left ez", [](QWidget& view) { drag(view, Across); }},
            {"right c", [](QWidget& view) { drag(view, Across, Qt::RightButton); }},
            {"middle c", [](QWidget& view) { drag(view, Across, Qt::MiddleButton); }},
            {"Shift+left c", [](QWidget& view) { drag(view, Across, Qt::LeftButton, Shift); }},
            {"wheel cz", [](QWidget& view) { wheel(view, -60); }},
            {"plus z", [](QWidget& view) { key(view, Qt::Key_Plus); }},
            {"minus z", [](QWidget& view) { key(view, Qt::Key_Minus, Qt::KeypadModifier); }},
            {"arrow ez", [](QWidget& view) { key(view, Qt::Key_Left); }},
            {"Shift+arrow c", [](QWidget& view) { key(view, Qt::Key_Down, Shift); }},
            {"Home cz", [](QWidget& view) { key(view, Qt::Key_Home); }},
            {"double cz",
             [](QWidget& view) { send(view, QEvent::MouseButtonDblClick, Left, Qt::LeftButton); }},
            {"click ", [](QWidget& view) { drag(view, {Left}); }},
            {"move ", [](QWidget& view) { send(view, QEvent::MouseMove, Right, Qt::NoButton); }}};
        for (const auto& one : gestures) {
            takeCamera(Aimed);
            m_view->setEnabled(false);
            one.second(*m_view);
            QCOMPARE(textOf(*m_view), Aimed);
            m_view->setEnabled(true);
            const Camera before = cameraOf(*m_view);
            one.second(*m_view);
            const Camera after = cameraOf(*m_view);
            const QString wanted = QLatin1String(one.first);
            QString changes = wanted.left(wanted.indexOf(QLatin1Char(' ')) + 1);
            if (!std::equal(before.eye, before.eye + 3, after.eye))
                changes += QLatin1Char('e');
            if (!std::equal(before.centre, before.centre + 3, after.centre))
                changes += QLatin1Char('c');
            if (before.zoom != after.zoom)
                changes += QLatin1Char('z');
            QCOMPARE(changes, wanted);
            QCOMPARE(after.roll, before.roll);
        }
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

    void releaseElsewhere()
    {
        m_view->setHovering(true);
        const QString before = textOf(*m_view);
        send(*m_view, QEvent::MouseButtonPress, Left, Qt::LeftButton);
        send(*m_view, QEvent::MouseMove, Right, Qt::NoButton);
        QCOMPARE(textOf(*m_view), before);
        send(*m_view, QEvent::MouseButtonPress, Left, Qt::LeftButton);
        QDialog box;
        box.setModal(true);
        box.show();
        send(*m_view, QEvent::MouseMove, Right, Qt::LeftButton);
        QCOMPARE(textOf(*m_view), before);
        box.hide();
        send(*m_view, QEvent::MouseButtonPress, Left, Qt::LeftButton);
        drag(*m_view, Across, Qt::RightButton); // always moves the view
        const Camera after = cameraOf(*m_view);
        QVERIFY(after.eye[0] == 0.0 && after.centre[0] < 0.0);
    }

    /// A slot connected to any signal may delete the view.
    void deletedByListener()
    {
        m_view->setPicking(true);
        connect(m_view.get(), &AnimatorView::pickedGroupsChanged, [this] { m_view.reset(); });
        drag(*m_view, {Left});
        QVERIFY(!m_view);
        m_view = viewOf(plates());
        m_view->setPicking(true);
        connect(m_view.get(), &AnimatorView::groupHovered, [this] { m_view.reset(); });
        drag(*m_view, {Left});
        QVERIFY(!m_view);
    }

    void highlightedGroup()
    {
        const auto picture = [this] { return m_view->grab().toImage(); };
        const QImage plain = picture();
        m_view->setHighlightedGroup(7);
        QVERIFY(picture() != plain);
        m_view->setHighlightedGroup(99); // a group without elements
        QVERIFY(picture() == plain);
        // Highlighting a secondary group dims the rest of its primary group.
        Model model = plates();
        model.secondaryGroups.push_back({QStringLiteral("S"), QString(), {1}, {}});
        model.quads[0].group = model.quads[1].group = 7;
        m_view = viewOf(model);
        const QColor others = picture().pixelColor(Right);
        QCOMPARE(picture().pixelColor(Left), others);
        m_view->setSelectedGroups({packedName(QStringLiteral("S"))});
        QCOMPARE(picture().pixelColor(Left), others);
        QVERIFY(picture().pixelColor(Right) != others);
    }

    /// Outlines are dark at the rim of the plates and between groups.
    void outlines()
    {
        const QImage picture = m_view->grab().toImage();
        const int ground = picture.pixelColor(Left).lightness();
        const auto crossed = [&](QPoint place, const QPoint& step) {
            int count = 0;
            for (bool wasDark = true; picture.rect().contains(place); place += step) {
                const bool isDark = picture.pixelColor(place).lightness() < ground / 2;
                count += isDark && !wasDark;
                wasDark = isDark;
            }
            return count;
        };
        QCOMPARE(crossed({3, Left.y()}, {1, 0}), 3);
        QCOMPARE(crossed({Left.x(), 3}, {0, 1}), 2);
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
    }

    void noPick()
    {
        m_view->setPicking(true);
        drag(*m_view, {Left, Left + QPoint(0, 20), Left}); // all points are on the plate
        m_view->slotViewControl(AnimatorViewXY, 0.0);
        drag(*m_view, {Left}, Qt::RightButton);
        drag(*m_view, {Corner});
        m_view->setEnabled(false);
        drag(*m_view, {Left});
        m_view->setEnabled(true);
        QCOMPARE(m_view->pickedGroups(), Groups());
        drag(*m_view, {Left});
        QCOMPARE(m_view->pickedGroups(), Groups{7});
        send(*m_view, QEvent::MouseButtonDblClick, Left, Qt::LeftButton);
        send(*m_view, QEvent::MouseButtonRelease, Left, Qt::LeftButton);
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
        m_view->setHovering(true);
        send(*m_view, QEvent::MouseMove, Left, Qt::NoButton);
        m_view->reload();
        QCOMPARE(groups(), (Groups{7, AnimatorView::NoGroup}));
    }

    void cursors()
    {
        const auto shape = [this] { return m_view->cursor().shape(); };
        for (const auto& [button, dragging] :
             {std::make_pair(Qt::LeftButton, Qt::ClosedHandCursor),
              std::make_pair(Qt::RightButton, Qt::SizeAllCursor)}) {
            send(*m_view, QEvent::MouseButtonPress, Corner, button);
            QCOMPARE(shape(), dragging);
            send(*m_view, QEvent::MouseButtonRelease, Corner, button);
            QCOMPARE(shape(), Qt::OpenHandCursor);
        }
        m_view->setPicking(true);
        send(*m_view, QEvent::MouseMove, Left, Qt::NoButton);
        QCOMPARE(shape(), Qt::PointingHandCursor);
        send(*m_view, QEvent::MouseButtonPress, Left, Qt::LeftButton); // may become a click
        QCOMPARE(shape(), Qt::PointingHandCursor);
        send(*m_view, QEvent::MouseMove, Right, Qt::LeftButton);
        QCOMPARE(shape(), Qt::ClosedHandCursor);
        send(*m_view, QEvent::MouseButtonRelease, Corner, Qt::LeftButton);
        QCOMPARE(shape(), Qt::ArrowCursor);
        m_view->setPicking(false);
        m_view->setEnabled(false);
        QCOMPARE(shape(), Qt::ArrowCursor);
        m_view->setEnabled(true);
        QVERIFY(m_view->setProject(ZobHandle()).isOk());
        QCOMPARE(shape(), Qt::ArrowCursor);
    }

    void noModel()
    {
        for (const ZobHandle project : {ZobHandle(), m_project->handle()}) {
            QVERIFY(storeModel(m_project->handle(), Model()).isOk());
            AnimatorView view(project);
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
        QVERIFY(storeModel(m_project->handle(), model).isOk());
        drag(*m_view, {Left});
        QCOMPARE(m_view->pickedGroups(), Groups{7});
        m_view->reload();
        drag(*m_view, {Left});
        QCOMPARE(m_view->pickedGroups(), (Groups{7, 70}));
        model.quads.clear();
        model.nodes.resize(2000);
        QVERIFY(storeModel(m_project->handle(), model).isOk());
        for (int questions : {0, 2}) { // while the model is being read, and afterwards
            const auto goOn = [&questions](int) { return questions-- > 0; };
            QCOMPARE(m_view->setProject(m_project->handle(), goOn).code, int(VKD_ZOB_CANCELLED));
        }
        drag(*m_view, {Left}); // the view still shows the old model
        QCOMPARE(m_view->pickedGroups(), Groups{7});
        QVERIFY(m_view->setProject(ZobHandle()).isOk());
        m_view->setPickedGroups({7, 70});
        drag(*m_view, {Left});
        QCOMPARE(m_view->pickedGroups(), (Groups{7, 70}));
    }

    /// Malformed elements can be drawn from all sides, and the valid plate next to them is still
    /// visible.
    void oddElements()
    {
        constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
        constexpr double Endless = std::numeric_limits<double>::infinity();
        Model model = plates();
        model.quads[0].thickness = -1.0;
        model.quads[1].thickness = Endless;
        model.nodes += {{9, {4, 0, 0}}, {10, {Nan, 0, 0}}, {11, {0, 1e300, 0}}};
        model.quads += {{3, 9, {1, 2, 3, 2}, 0.2}, // no area
                        {3, 9, {1, 1, 1, 1}, 0.2},
                        {3, 9, {2, 9, 2, 0}, 0.2},  // coincident nodes
                        {3, 9, {1, 2, 99, 4}, 0.2}, // node 99 does not exist
                        {3, 9, {1, 10, 11, 0}, 0.2}};
        model.beams += {{3, 9, 1, {2, 2}}, {3, 9, 1, {1, 99}}, {3, 9, 1, {1, 11}}};
        model.springs += {{4, 9, {2, 2}, 1.0}, {4, 9, {99, 0}, 1.0}};
        model.bricks += {{5, 9, {}}, {5, 9, {1, 2, 5, 4, 1, 2, 5, 4}}}; // the second brick is flat
        model.supports.push_back({99, 7});
        for (int fixed = 0; fixed < 64; ++fixed)
            model.supports.push_back({1 + fixed % 6, fixed});
        const auto view = viewOf(model);
        view->setPicking(true);
        drag(*view, {Right});
        QCOMPARE(view->pickedGroups(), Groups{8});
        for (int control : {0, 3, 4, 5}) {
            view->slotViewControl(AnimatorViewControl(control), 0.0);
            QVERIFY(!view->grab().isNull());
        }
    }

    /// A large model is painted in steps. The first step already shows the model, and each change
    /// restarts painting.
    void largeModel()
    {
        constexpr int Side = 200;
        Model model;
        for (int y = 0; y < Side; ++y)
            for (int x = 0; x < Side; ++x)
                model.nodes.push_back({int(model.nodes.size()) + 1, {double(x), double(y), 0.0}});
        for (int i = 1; i < Side * (Side - 1); ++i)
            if (i % Side)
                model.quads.push_back({i, 7, {i, i + 1, i + Side + 1, i + Side}, 0.2});
        const auto view = viewOf(model);
        const auto middle = [&view] { return view->grab().toImage().pixelColor(300, 200); };
        const QColor atOnce = middle();
        QVERIFY(atOnce != view->palette().color(QPalette::Base));
        for (bool turns : {false, true}) {
            if (turns)
                view->slotViewControl(AnimatorStandardView, 0.0);
            middle();
            QVERIFY(!view->isPictureComplete());
            QTRY_VERIFY(view->isPictureComplete());
            QVERIFY(middle() != view->palette().color(QPalette::Base));
            QVERIFY(view->isPictureComplete());
        }
    }

    /// After the ten hues, there are ten light and ten dark colours.
    void distinctColours()
    {
        for (int i = 0; i < 10; ++i) {
            const auto lightness = [i](int round) {
                return AnimatorView::distinctColour(i + 10 * round).lightness();
            };
            QVERIFY(lightness(1) > lightness(0) && lightness(2) < lightness(0));
            QCOMPARE(lightness(3), lightness(0));
        }
    }

private:
    void takeCamera(const QString& text)
    {
        setAnimatorPerspektive(0, text);
        m_view->slotViewControl(AnimatorTakeCamera, 0.0);
    }

    /// Shows the model from above.
    std::unique_ptr<AnimatorView> viewOf(const Model& model) const
    {
        if (!storeModel(m_project->handle(), model).isOk())
            qFatal("model not stored");
        auto view = std::make_unique<AnimatorView>(m_project->handle());
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
