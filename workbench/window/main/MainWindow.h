#pragma once

#include "project/ProjectWatch.h"
#include "project/SeenPart.h"
#include "sheet/SheetPlan.h"
#include "window/main/makeProjectFile.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class AnimatorView;
class QDockWidget;
class QLabel;
class VKD_H_ZOBDoc;

namespace workbench {

class ChangeBar;
class DesignDialog;
class GroupList;
class OutputDialog;
struct OutputPresent;
struct OutputState;
class PickBanner;
class RecordsPane;
class ScriptPane;
class TextOutputDialog;
struct TextOutputState;
class SheetPreview;
class WindowActions;

/// The desktop around the library's pages: a project's model with its groups, the dialogs of the
/// pages, the script of the present choice and the design records in the project file.
///
/// OK in a dialog writes into the project file at once. What may be unsaved is the choice in an
/// open dialog of an output, which is asked for before the project is left; the script follows from
/// the choice and is never asked for.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `makeProject` creates the files of new projects.
    explicit MainWindow(MakeProject makeProject = makeProjectFile, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Opens a project in place of the present one. If it cannot be opened, the user is told, and
    /// the present one stays.
    bool openProject(const QString& path);
    /// Opens it once the window is painted, which a message or a slow disk would hold up.
    void openBehindPainting(const QString& path) { m_pathToOpen = path; }

protected:
    void changeEvent(QEvent* event) override;
    void childEvent(QChildEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addCentre();
    void addDocks();
    QDockWidget* addDock(Qt::DockWidgetArea area, QWidget* widget, const char* name);
    void connectActions();
    void connectHelp();
    void connectPanes();
    void setTexts();
    void nameTabBars();
    void setTitle();
    void showContents();
    void say(const QString& text);
    void complain(const QString& text);
    void complainOfWriting(const QString& path, const QString& reason);
    /// Complains about a file by a sentence that names it, with the reason behind; not if the user
    /// cancelled. False for any status but VKD_ZOB_OK.
    bool succeeds(cd_error_t status, const QString& path, const QString& sentence);
    /// Does what needs the project file, waiting for other programs, and complains if it fails.
    bool withProject(const std::function<cd_error_t()>& work, const QString& sentence);
    /// What became of storing a part of the project; Reload: the user wants its newer state.
    enum class Stored { Yes, No, Reload };
    /// Stores a part by `store`. If somebody else has changed it meanwhile, asks the user.
    Stored storePart(const std::function<cd_error_t(SeenPart::Newer)>& store,
                     const QString& sentence);
    /// Asks whether to store what is changed, and does it. False if the user wants to stay, or if
    /// it could not be stored.
    bool mayLeave(const QString& question, const std::function<bool()>& store);
    bool canRead();
    void enableActions();
    void saveWindowState() const;
    int index() const;
    QString folder() const;

    void newProject(const QString& model);
    bool makeProject(const QString& path, const QString& model);
    void chooseModel();
    void chooseProject();
    bool saveAs();
    bool takeOver(const QString& path);
    void setDocument(std::unique_ptr<VKD_H_ZOBDoc> document);
    bool openDocument(const QString& path, bool keepsCamera);
    void reload();
    /// Shows what others have done to the project, as far as nothing of the user's is in the way.
    void showNews();
    void followOthers();
    bool showModel(int index);
    void showFirstProject();
    void showProject();
    void showRecords();
    bool mayLeaveProject();
    bool mayLeaveMissingFile();

    void editDesign();
    void runDesign();
    bool storeDesign();
    bool storeDesignElsewhere();
    void sayDesignIsStored();
    void startPicking();
    void takePicked();
    void stopPicking();
    void chooseGroup(int group);
    void showPicked();

    /// Made when it is first asked for; null, after a word with the user, if the project cannot be
    /// read for it.
    OutputDialog* output();
    void makeOutput(const OutputState& state);
    void remakeOutput(const OutputPresent& before);
    void showOutput();
    bool storeOutput();
    void reloadOutput();
    void showNoScript();
    void refreshScript();
    void setKeywords(bool english);
    void copyScript();
    void saveScript();

    void showTextOutput();
    void reloadTextOutput();
    void reopenTextOutput(const TextOutputState& state);
    void makeTextOutput();
    void remakeTextOutput();
    void closeTextOutput();
    bool storeTextOutput();
    bool mayLeaveTextOutput();
    void showModified();
    SheetPlan newSheetPlan();
    void refreshSheet();
    void showSheet();
    void exportSheet();

    void setLanguage(int language);
    void showHelp(const QString& topic, QWidget* caller);
    void showAbout();

    MakeProject m_makeProject;
    std::unique_ptr<VKD_H_ZOBDoc> m_document;
    WindowActions* m_actions;
    // The panes in the order of Tab, which is column by column.
    GroupList* m_groups;
    ChangeBar* m_news;
    PickBanner* m_banner;
    AnimatorView* m_view;
    RecordsPane* m_records = nullptr; // until there is a project
    ScriptPane* m_script;
    SheetPreview* m_sheet;
    QDockWidget* m_groupDock = nullptr;
    QDockWidget* m_scriptDock = nullptr;
    QDockWidget* m_sheetDock = nullptr;
    QDockWidget* m_recordDock = nullptr;
    QLabel* m_contents;
    ProjectWatch* m_watch;
    int m_followed = 0; // changes by others that are shown
    ProjectWatch::File m_shownFile = ProjectWatch::File::Present;
    bool m_isSheetSeen = false;
    QString m_pathToOpen;
    bool m_isProjectToShow = false;         // behind the next painting
    std::unique_ptr<DesignDialog> m_design; // while it is open or away for picking
    std::unique_ptr<OutputDialog> m_output;
    std::unique_ptr<TextOutputDialog> m_textOutput; // while it is open
    SeenPart m_seenOutput{ProjectPart::Output};     // when the dialog's choice was read
    SeenPart m_seenTextOutput{ProjectPart::TextOutput};
};

} // namespace workbench
