#pragma once

#include "AnimatorViewControl.h"
#include "vkd_aniview_export.h"

#include <vkd_progress.h>
#include <vkd_status.h>
#include <ZobHandle.h>

#include <QTimer>
#include <QWidget>

#include <map>
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

/// A preview of the structural model of a project. The user rotates, pans and zooms the view with
/// the mouse or the keyboard and can pick primary groups. The model is read in the constructor, by
/// setProject() and by reload(). A disabled view ignores user input, but looks the same, and
/// slotViewControl() still works.
class VKD_ANIVIEW_EXPORT AnimatorView : public QWidget
{
    Q_OBJECT

public:
    static constexpr int NoGroup = -1;

    /// Shows the model of the project, or a message if the handle is null.
    explicit AnimatorView(ZobHandle project, QWidget* parent = nullptr,
                          const char* name = "AnimatorView");
    ~AnimatorView() override;

    /// Switches to another project or, if the handle is null, to no project. Reads the model and
    /// keeps the camera. Returns the status of readModel(). If it is VKD_ZOB_CANCELLED, the view
    /// does not change. After any other failure, the view shows the part of the model that was
    /// read.
    VkdStatus setProject(ZobHandle project, const VkdGoOn& goOn = VkdGoOn());
    /// Reloads the model and keeps the camera and the picked groups.
    void reload();

    /// While picking is enabled, the group under the mouse pointer is highlighted, and a click adds
    /// it to the picked groups or removes it. Picked groups have the highlight colour, and the
    /// other groups are paler.
    bool isPicking() const;
    void setPicking(bool picking);

    /// Sets whether the group under the mouse pointer is highlighted even while picking is
    /// disabled. The default is false.
    void setHovering(bool hovering);

    /// Returns the picked groups in ascending order without duplicates, including numbers that do
    /// not exist in the model. The setter does not emit a signal.
    std::vector<int> pickedGroups() const;
    void setPickedGroups(const std::vector<int>& groups);

    /// Highlights a group, for example that of the current row in a list, or no group (NoGroup).
    /// Works whether picking is enabled or disabled.
    void setHighlightedGroup(int group);

    /// Highlights several groups, for example those of the current row in a table, in addition to
    /// the group that setHighlightedGroup() highlights. Packed names denote secondary groups (see
    /// vkd_dbo_packedNames.h).
    void setSelectedGroups(const std::vector<int>& groups);

    /// Sets the colours of groups; all other groups are pale. If the map is empty, each group has
    /// its default colour. Highlighted groups do not dim the others while colours are set.
    void setGroupColours(const std::map<int, QColor>& colours);
    /// Returns a colour for setGroupColours(). The colours differ in hue and lightness, so that
    /// colour-blind users can distinguish them; adjacent indexes differ most. The index must not be
    /// negative.
    static QColor distinctColour(int index);

    /// Sets the groups that are neither drawn nor picked. The default is none.
    void setHiddenGroups(const std::vector<int>& groups);

    /// Returns whether the last painted image contains all items. The image contains fewer items
    /// while the view is moving and until the full image of a large model is complete.
    bool isPictureComplete() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Executes a command synchronously. The value belongs to the suite's interface and is ignored.
    void slotViewControl(AnimatorViewControl control, double value);

Q_SIGNALS:
    /// Emitted when the group under the mouse pointer changes while picking or hovering is enabled.
    /// NoGroup means that there is no group.
    void groupHovered(int group);
    /// Emitted after the user has picked a group or has removed a group from the picked groups.
    void pickedGroupsChanged();
    /// Emitted after a click on a group while picking is disabled.
    void groupClicked(int group);
    /// Emitted when the user requests a context menu, with the group at this place or NoGroup.
    void menuRequested(int group, const QPoint& globalPlace);

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
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
    /// Returns a palette colour of an active window, because a disabled view must not look
    /// disabled.
    QColor activeColour(QPalette::ColorRole role) const;
    void drawScene(QPainter& painter);
    void drawQuickly(QPainter& painter);
    void drawAtRest(QPainter& painter);
    /// Paints a part of the full image. Returns true if the image is complete.
    bool paintSomeAtRest();
    /// Continues to paint the full image of a large model.
    void paintStep();
    /// Discards the full image and repaints.
    void changed();
    void lookFrom(double x, double y, double z);
    /// Repaints immediately without antialiasing, and with antialiasing after the view has stopped
    /// moving.
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
    bool m_hovers = false; // highlights the hovered group even while picking is disabled
    std::unique_ptr<vkd::aniview::SceneView> m_scene;
    std::unique_ptr<vkd::aniview::ScenePainter> m_painter;
    std::unique_ptr<vkd::aniview::PaintingPace> m_pace;
    std::unique_ptr<vkd::aniview::RestPicture> m_restPicture;
    std::unique_ptr<vkd::aniview::GroupMarks> m_marks;
    QTimer m_rest; // active while the view is moving
    QTimer m_step; // triggers the next step of the full image

    Hand m_hand = Hand::Free;
    Qt::MouseButton m_button = Qt::NoButton; // button that started the drag
    QPoint m_pressed;
    QPoint m_last;
    bool m_isClick = false; // the mouse has not moved since the button was pressed
};
