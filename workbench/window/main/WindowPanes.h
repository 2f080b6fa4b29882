#pragma once

#include <QList>
#include <QObject>

class AnimatorView;
class QDockWidget;
class QMainWindow;
class QWidget;

namespace workbench {

class PageDock;
class ChangeBar;
class DesignDock;
class GroupList;
class GroupPane;
class OutputDock;
class OutputsDock;
class OutputsPane;
class PickBanner;
class RecordsPane;
class ScriptPane;
class SheetPreview;
class StartScreen;
class WindowActions;

/// The panes of the main window: model, groups, script, sheets and design records. The class
/// creates the panes and arranges them in the centre of the window and in docks. The window
/// connects them.
class WindowPanes : public QObject
{
    Q_OBJECT

public:
    /// The window owns the object and the panes.
    WindowPanes(const WindowActions& actions, QMainWindow* window);

    /// Sets titles and labels in the language of the desktop.
    void setTexts();
    /// Shows the start page if no project is open, and enables or disables the docks that need one.
    void setProjectOpen(bool isOpen);
    /// Creates the pane with the design records on the first call, because a window without a
    /// project opens faster without this pane.
    RecordsPane* records();
    /// Raises the sheet preview above other docks and gives it the focus.
    void showSheets();
    /// Returns the docks that show parts of the project and need a project.
    QList<PageDock*> pageDocks() const;
    /// These functions restore and save the geometry of the window and its docks in the program
    /// settings.
    void restoreGeometry();
    void saveGeometry() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

    // The panes are in tab order, column by column. The records follow the view.
    GroupPane* const groupPane;
    GroupList* const groups;
    ChangeBar* const news;
    PickBanner* const banner;
    AnimatorView* const view;
    OutputsPane* const outputs;
    ScriptPane* const script;
    SheetPreview* const sheets;
    DesignDock* const design;
    OutputDock* const output;
    StartScreen* const start; ///< initially hidden

Q_SIGNALS:
    /// Emitted when the sheet preview becomes visible or invisible to the user.
    void sheetsVisibleChanged(bool isVisible);

private:
    void addCentre();
    void addDocks(const WindowActions& actions);
    void resizeDocks();
    void makeRoomForDesign();
    void placeOutput();
    void nameTabBars();

    QMainWindow* m_window;
    QDockWidget* m_groupDock = nullptr;
    OutputsDock* m_outputsDock = nullptr;
    QDockWidget* m_scriptDock = nullptr;
    QDockWidget* m_sheetDock = nullptr;
    QDockWidget* m_recordDock = nullptr;
    RecordsPane* m_records = nullptr;
    bool m_isDesignBelow = false;
    bool m_isDesignPlaced = false;
    bool m_isOutputPlaced = false;
};

} // namespace workbench
