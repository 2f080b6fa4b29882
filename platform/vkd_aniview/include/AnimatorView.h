#pragma once

#include "AnimatorViewControl.h"
#include "vkd_aniview_export.h"

#include <vkd_progress.h>
#include <vkd_status.h>
#include <ZobHandle.h>

#include <QTimer>
#include <QWidget>

#include <memory>
#include <vector>

namespace vkd {
namespace aniview {
class GroupMarks;
class PaintingPace;
class RestPicture;
class SceneView;
class ScenePainter;
} // namespace aniview
} // namespace vkd

/// A preview of the structural model of a project. The user turns, moves and zooms it with the
/// mouse or the keyboard and can pick primary groups. The model is read in the constructor, by
/// setProject() and by reload(). A disabled view ignores the user's input, but looks the same and
/// still carries out slotViewControl().
class VKD_ANIVIEW_EXPORT AnimatorView : public QWidget
{
    Q_OBJECT

public:
    static constexpr int NoGroup = -1;

    /// Shows the model of the project, or a message if the handle is null.
    explicit AnimatorView(ZobHandle project, QWidget* parent = nullptr,
                          const char* name = "AnimatorView");
    ~AnimatorView() override;

    /// Switches to another project or to none, reads its model and keeps the camera. Returns the
    /// status of readModel(). If it is VKD_ZOB_CANCELLED, the view does not change; after any other
    /// failure it shows the part of the model that was read.
    VkdStatus setProject(ZobHandle project, const VkdGoOn& goOn = VkdGoOn());
    /// Reloads the model and keeps the camera and the picked groups.
    void reload();

    /// While picking is on, the group under the mouse is highlighted, and a click adds it to the
    /// picked groups or removes it from them. Picked groups have the highlight colour, the others
    /// are paler.
    bool isPicking() const;
    void setPicking(bool picking);

    /// Sets whether the group under the mouse is highlighted even while picking is off; the default
    /// is false.
    void setHovering(bool hovering);

    /// Returns the picked groups in ascending order without duplicates, including numbers that the
    /// model lacks. The setter emits no signal.
    std::vector<int> pickedGroups() const;
    void setPickedGroups(const std::vector<int>& groups);

    /// Highlights a group, for example the current row of a list, or none (NoGroup). Works with
    /// picking on and off.
    void setHighlightedGroup(int group);

    /// Returns whether the last picture was the full one. While the picture moves, and until that
    /// of a large model is complete, it has fewer items.
    bool isPictureComplete() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Carries out a command synchronously. The value belongs to the suite's interface; no command
    /// uses it.
    void slotViewControl(AnimatorViewControl control, double value);

Q_SIGNALS:
    /// Emitted when the group under the mouse changes while picking or hovering is on; NoGroup
    /// stands for none.
    void groupHovered(int group);
    /// Emitted after the user picked a group or removed one from the picked groups.
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
    /// Returns a colour of an active window; a disabled view must not look disabled.
    QColor activeColour(QPalette::ColorRole role) const;
    void drawScene(QPainter& painter);
    void drawQuickly(QPainter& painter);
    void drawAtRest(QPainter& painter);
    /// Continues the full picture of a large model.
    void paintStep();
    /// Discards the full picture and repaints.
    void changed();
    void lookFrom(double x, double y, double z);
    /// Repaints without antialiasing now, and with it once the picture has rested for a while.
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

    ZobHandle m_project;
    bool m_hovers = false; // highlights even while picking is off
    std::unique_ptr<vkd::aniview::SceneView> m_scene;
    std::unique_ptr<vkd::aniview::ScenePainter> m_painter;
    std::unique_ptr<vkd::aniview::PaintingPace> m_pace;
    std::unique_ptr<vkd::aniview::RestPicture> m_restPicture;
    std::unique_ptr<vkd::aniview::GroupMarks> m_marks;
    QTimer m_rest; // active while the picture moves
    QTimer m_step; // for the next step of the full picture

    Hand m_hand = Hand::Free;
    Qt::MouseButton m_button = Qt::NoButton; // started the drag
    QPoint m_pressed;
    QPoint m_last;
    bool m_isClick = false; // the mouse has not moved since the press
};
