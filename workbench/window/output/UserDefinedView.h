#pragma once

#include <QObject>

class AnimatorView;
class QWidget;

namespace workbench {

/// The user-defined view of an output page: the camera that the user sets by turning, panning and
/// zooming the model. The desktop's camera is this view. Neither the page nor its view reports
/// changes to the camera, so the input events of the view are watched.
class UserDefinedView : public QObject
{
    Q_OBJECT

public:
    /// The arguments are not owned. `view` is the view in `page`.
    UserDefinedView(const QWidget* page, AnimatorView* view, QObject* parent);

    /// Saves the camera of the view as the desktop's camera, unless a fixed view is chosen.
    void store();
    /// Replaces the camera in the saved string of a page with the desktop's camera. The page writes
    /// the camera of its view even if it is a fixed view, which would discard the user-defined
    /// view.
    static QString withCamera(QString page);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted after input that may have changed the camera.
    void moved();

private:
    bool isShown() const;

    const QWidget* m_page;
    AnimatorView* m_view;
};

} // namespace workbench
