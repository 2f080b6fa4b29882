#include "AnimatorView.h"

#include "geometry/sharedGeometry.h"
#include "view/GroupColours.h"
#include "view/GroupMarks.h"
#include "view/PaintingPace.h"
#include "view/RestPicture.h"
#include "view/ScenePainter.h"
#include "view/SceneView.h"
#include "view/symbols.h"

#include <vkd_dbo_camera.h>

#include <QElapsedTimer>
#include <QEvent>
#include <QPainter>

using namespace vkd::aniview;

namespace {
constexpr int RestMs = 200;
constexpr size_t ItemsAtOnce = 30000; // a full image with more items is painted in steps
} // namespace

AnimatorView::AnimatorView(ZobHandle project, QWidget* parent, const char* name)
    : QWidget(parent)
    , m_project(project)
    , m_scene(std::make_unique<SceneView>())
    , m_painter(std::make_unique<ScenePainter>())
    , m_pace(std::make_unique<PaintingPace>())
    , m_restPicture(std::make_unique<RestPicture>())
    , m_marks(std::make_unique<GroupMarks>())
{
    setObjectName(QLatin1String(name));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_rest.setSingleShot(true);
    m_rest.setInterval(RestMs);
    connect(&m_rest, &QTimer::timeout, this, QOverload<>::of(&QWidget::update));
    m_step.setSingleShot(true);
    connect(&m_step, &QTimer::timeout, this, &AnimatorView::paintStep);
    setTexts();
    reload();
}

AnimatorView::~AnimatorView() = default;

VkdStatus AnimatorView::setProject(ZobHandle project, const VkdGoOn& goOn)
{
    VkdStatus status;
    auto geometry = sharedGeometry(project, goOn, &status);
    if (!geometry)
        return status;
    m_project = project;
    m_scene->setGeometry(std::move(geometry));
    updateCursor();
    showMarks();
    hover(NoGroup);
    return status;
}

void AnimatorView::reload()
{
    setProject(m_project);
}

bool AnimatorView::isPicking() const
{
    return m_marks->isPicking();
}

void AnimatorView::setPicking(bool picking)
{
    if (!m_marks->setPicking(picking))
        return;
    endDrag();
    setMouseTracking(isHovering());
    setTexts();
    showMarks();
    hover(NoGroup);
}

void AnimatorView::setHovering(bool hovering)
{
    m_hovers = hovering;
    setMouseTracking(isHovering());
    if (!isHovering())
        hover(NoGroup);
}

std::vector<int> AnimatorView::pickedGroups() const
{
    return m_marks->picked();
}

void AnimatorView::setPickedGroups(const std::vector<int>& groups)
{
    if (m_marks->setPicked(groups))
        showMarks();
}

void AnimatorView::setHighlightedGroup(int group)
{
    if (m_marks->setHighlighted(group))
        showMarks();
}

void AnimatorView::setSelectedGroups(const std::vector<int>& groups)
{
    if (m_marks->setSelected(groups))
        showMarks();
}

void AnimatorView::setGroupColours(const std::map<int, QColor>& colours)
{
    std::map<int, unsigned> rgb;
    for (const auto& [group, colour] : colours)
        rgb[group] = colour.rgb();
    if (m_marks->setColours(rgb))
        showMarks();
}

QColor AnimatorView::distinctColour(int index)
{
    return GroupColours::distinctColour(index);
}

void AnimatorView::setHiddenGroups(const std::vector<int>& groups)
{
    m_scene->setHiddenGroups(groups);
    hover(NoGroup);
    changed();
}

bool AnimatorView::isPictureComplete() const
{
    return !m_rest.isActive() && !m_step.isActive();
}

QSize AnimatorView::sizeHint() const
{
    return {480, 360};
}

QSize AnimatorView::minimumSizeHint() const
{
    return {160, 120};
}

void AnimatorView::slotViewControl(AnimatorViewControl control, double /*value*/)
{
    switch (control) {
    case AnimatorStandardView: m_scene->setCamera(Camera()); break;
    case AnimatorShowAll: m_scene->showAll(); break;
    case AnimatorNoChange: return;
    case AnimatorViewXY: lookFrom(0, 0, 1); break;
    case AnimatorViewXZ: lookFrom(0, -1, 0); break;
    case AnimatorViewYZ: lookFrom(1, 0, 0); break;
    case AnimatorStoreCamera: vkd::dbo::setCamera(ZobHandle::scratch(), m_scene->camera()); return;
    case AnimatorTakeCamera: m_scene->setCamera(vkd::dbo::camera(ZobHandle::scratch())); break;
    }
    changed();
}

void AnimatorView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
        endDrag();
        hover(NoGroup);
        break;
    case QEvent::LanguageChange: setTexts(); break;
    case QEvent::PaletteChange: showMarks(); break;
    default: break;
    }
}

bool AnimatorView::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked) // the modal window will receive the release event
        endDrag();
    return QWidget::event(event);
}

void AnimatorView::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_step.stop();
    endDrag();
    hover(NoGroup);
}

void AnimatorView::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    if (m_hand == Hand::Free)
        hover(NoGroup);
}

void AnimatorView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), activeColour(QPalette::Base));
    if (isEmpty()) {
        painter.setPen(activeColour(QPalette::Text));
        painter.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap,
                         emptyText());
    } else {
        drawScene(painter);
    }
    const int width = hasFocus() ? 2 : 1;
    const QRegion frame = QRegion(rect()) - rect().adjusted(width, width, -width, -width);
    painter.setClipRegion(frame);
    painter.fillRect(rect(), activeColour(hasFocus() ? QPalette::Highlight : QPalette::Mid));
}

void AnimatorView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_scene->setSize(size());
    changed();
}

bool AnimatorView::isEmpty() const
{
    return m_scene->geometry().isEmpty();
}

QString AnimatorView::emptyText() const
{
    return m_project.isNull() ? tr("No project is open.")
                              : tr("The project contains no structural model.");
}

void AnimatorView::setTexts()
{
    setAccessibleName(tr("Model view"));
    setAccessibleDescription(tr("Arrow keys turn the model and, with Shift, move it. Plus and "
                                "minus zoom, Home shows all."));
    const QString mouse = tr("Left button: turn\nRight button, or Shift and left: move\n"
                             "Wheel: zoom\nDouble click: show all");
    setToolTip(isPicking() ? tr("Click: pick or unpick a group") + QLatin1Char('\n') + mouse
                           : mouse);
    update();
}

QColor AnimatorView::activeColour(QPalette::ColorRole role) const
{
    return palette().color(QPalette::Active, role);
}

void AnimatorView::drawScene(QPainter& painter)
{
    const Projection projection = m_scene->projection();
    if (m_rest.isActive())
        drawQuickly(painter);
    else
        drawAtRest(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    const double length = qBound(12.0, 0.06 * qMin(width(), height()), 26.0);
    const double inset = length + 16.0; // leaves space for an axis name and the frame
    QFont names = font();
    names.setPixelSize(qMin(QFontInfo(names).pixelSize(), qRound(0.75 * length)));
    painter.setFont(names);
    drawTriad(painter, projection.axes(), {inset, height() - inset}, length,
              {activeColour(QPalette::Text), activeColour(QPalette::Base)});
}

void AnimatorView::drawQuickly(QPainter& painter)
{
    const SceneView::Drawn drawn = m_scene->quickPicture(m_pace->itemsInFrame());
    QElapsedTimer clock;
    clock.start();
    m_painter->paint(painter, palette(), drawn.geometry, drawn.picture, m_scene->projection(),
                     *m_marks);
    m_pace->painted(drawn.picture.order().size(), 1e-9 * double(clock.nsecsElapsed()));
}

/// Draws the full image, which is cached until the scene changes. For a large model, the image is
/// painted in steps and shown when it is complete.
void AnimatorView::drawAtRest(QPainter& painter)
{
    bool isComplete = m_restPicture->isComplete(devicePixelRatioF());
    const bool isLarge =
        m_scene->geometry().coarser && m_scene->picture().order().size() > ItemsAtOnce;
    while (!isComplete && !isLarge)
        isComplete = paintSomeAtRest();
    if (isComplete) {
        painter.drawImage(QPointF(), m_restPicture->image());
        return;
    }
    drawQuickly(painter);
    m_step.start();
}

bool AnimatorView::paintSomeAtRest()
{
    return m_restPicture->paintSome(*m_painter, size(), devicePixelRatioF(), palette(),
                                    m_scene->geometry(), m_scene->picture(), m_scene->projection(),
                                    *m_marks);
}

void AnimatorView::paintStep()
{
    if (paintSomeAtRest())
        update();
    else
        m_step.start();
}

void AnimatorView::changed()
{
    m_step.stop();
    m_restPicture->drop();
    update();
}

void AnimatorView::lookFrom(double x, double y, double z)
{
    m_scene->setCamera(lookingFrom({x, y, z}));
}

void AnimatorView::moved()
{
    m_rest.start();
    changed();
}

void AnimatorView::showMarks()
{
    m_painter->forgetColours();
    changed();
}
