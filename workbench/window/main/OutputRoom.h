#pragma once

#include <QObject>
#include <QWidgetList>

class QDockWidget;
class QMainWindow;

namespace workbench {

class OutputDock;

/// Makes room for the docked output page beside the script. In a window that is too narrow for the
/// page, the model and the script, the page takes the place of the model, because the page has a
/// view of its own. The model is shown again while another dock covers the page.
class OutputRoom : public QObject
{
    Q_OBJECT

public:
    /// The widgets that are arranged or watched.
    struct Widgets
    {
        QMainWindow* window;
        OutputDock* output;
        QDockWidget* groups; ///< tabbed with the page
        QDockWidget* script;
        QWidgetList messages; ///< while one of them is shown, the centre of the window is visible
    };

    /// `owner` must destroy the object before the window destroys the widgets.
    OutputRoom(const Widgets& widgets, QObject* owner);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setShown(bool isShown);
    void arrange();
    void restore();
    bool isDocked() const;
    bool showsModel() const;

    Widgets m_widgets;
    bool m_isShown = false; ///< whether the user sees the page
    // The widths of the other docks before the page was shown; 0 if they need not be restored.
    int m_groupWidth = 0;
    int m_scriptWidth = 0;
};

} // namespace workbench
