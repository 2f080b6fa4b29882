#pragma once

#include "AnimatorViewControl.h"
#include "vkd_aniview_export.h"

#include <vkd_progress.h>

#include <QTimer>
#include <QWidget>

#include <memory>
#include <vector>

namespace vkd {
namespace aniview {
class GroupMarks;
class SceneView;
class ScenePainter;
} // namespace aniview
} // namespace vkd

/// A preview of the structural model of a project, to be turned, moved and zoomed with the mouse or
/// the keyboard, and to pick primary groups in. The model is read once and again on reload(). A
/// disabled view ignores the user, looks as before and still obeys slotViewControl().
class VKD_ANIVIEW_EXPORT AnimatorView : public QWidget
{
    Q_OBJECT

public:
    static constexpr int NoGroup = -1;

    /// Shows the model of the project at this database index; below 1 there is none, and a sentence
    /// stands in its place.
    explicit AnimatorView(int index, QWidget* parent = nullptr, const char* name = "AnimatorView");
    ~AnimatorView() override;

    /// Changes to another project, or to none, and reads its model; the camera stays. False if
    /// `goOn` answered false, and the view shows what it showed before.
    bool setProject(int index, const VkdGoOn& goOn = VkdGoOn());
    /// Reads the model again; camera and picked groups stay.
    void reload();

    /// While picking, groups light up below the mouse, a click picks a group or drops it, and those
    /// picked are drawn in the highlight colour and the others paler.
    bool isPicking() const;
    void setPicking(bool picking);

    /// Whether groups light up below the mouse also when nobody picks; at first they do not.
    void setHovering(bool hovering);

    /// Ascending, each once; also those that the model lacks. Setting them emits no signal.
    std::vector<int> pickedGroups() const;
    void setPickedGroups(const std::vector<int>& groups);

    /// Lights up a group, picking or not, as for the current row of a list; or NoGroup.
    void setHighlightedGroup(int group);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Carries out a command before it returns. The value belongs to the suite's interface; no
    /// command uses it.
    void slotViewControl(AnimatorViewControl control, double value);

Q_SIGNALS:
    /// While picking or hovering, the group that came below the mouse, or NoGroup.
    void groupHovered(int group);
    /// The user picked a group or dropped one.
    void pickedGroupsChanged();

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    enum class Hand { Free, Turning, Panning };

    bool isEmpty() const;
    QString emptyText() const;
    void setTexts();
    /// Of an active window, because a disabled view is not to look so.
    QColor activeColour(QPalette::ColorRole role) const;
    void drawScene(QPainter& painter);
    void lookFrom(double x, double y, double z);
    /// Repaints coarsely now and finely when nothing moved for a while.
    void moved();
    void showMarks();

    void drag(const QPoint& by);
    void endDrag();
    void endLostDrag(const QMouseEvent& event);
    void click(const QPoint& place);
    void hoverAt(const QPointF& place);
    void hover(int group);
    bool isHovering() const;
    void updateCursor();
    bool moveByKey(int key, bool shift);
    bool turnOrPanByKey(int key, bool pan);

    int m_index;
    bool m_hovers = false; // also when nobody picks
    std::unique_ptr<vkd::aniview::SceneView> m_scene;
    std::unique_ptr<vkd::aniview::ScenePainter> m_painter;
    std::unique_ptr<vkd::aniview::GroupMarks> m_marks;
    QTimer m_rest; // active while the picture moves

    Hand m_hand = Hand::Free;
    Qt::MouseButton m_button = Qt::NoButton; // the one that began the drag
    QPoint m_pressed;
    QPoint m_last;
    bool m_isClick = false; // pressed and not moved since
};
