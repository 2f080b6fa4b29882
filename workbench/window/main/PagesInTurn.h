#pragma once

#include <QObject>

class QMainWindow;

namespace workbench {

class OutputDock;
class PageDock;

/// Shows the output page and the design page in turn if the window is too low for both. When the
/// output page is shown beside the script, the design dock below it is hidden if the page would
/// need a vertical scroll bar. The design dock is shown again when the output page is closed or
/// covered. Its unsaved rows are preserved.
class PagesInTurn : public QObject
{
    Q_OBJECT

public:
    /// The design dock stays visible while `banner` is shown, because it is needed for picking
    /// groups. `owner` must destroy the object before the window destroys the widgets.
    PagesInTurn(QMainWindow* window, OutputDock* output, PageDock* design, const QWidget* banner,
                QObject* owner);

private:
    void arrange();
    bool isTooLow() const;

    QMainWindow* m_window;
    OutputDock* m_output;
    PageDock* m_design;
    const QWidget* m_banner;
    bool m_isOutputShown = false;  ///< whether the user sees the output page
    bool m_isDesignHidden = false; ///< whether this object has hidden the design dock
};

} // namespace workbench
