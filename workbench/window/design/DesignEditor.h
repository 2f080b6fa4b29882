#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class AnimatorView;

namespace workbench {

class DesignDialog;
class OpenProject;
class PickBanner;
class ProjectAccess;
class WindowMessages;

/// Edits the design parameters of the open project: runs their dialog and stores the records. While
/// the user picks groups in the view, the dialog is hidden and a banner is shown instead.
class DesignEditor : public QObject
{
    Q_OBJECT

public:
    /// The arguments are not owned and must outlive the editor.
    DesignEditor(OpenProject* project, ProjectAccess* access, WindowMessages* messages,
                 AnimatorView* view, PickBanner* banner);
    ~DesignEditor() override;
    /// Sets the function that saves the project under another name, opens it and returns whether it
    /// succeeded. The function is needed because the user cannot trigger the window's action while
    /// the dialog is open.
    void setSaveAs(const std::function<bool()>& saveAs) { m_saveAs = saveAs; }
    /// Sets the groups without area elements, in ascending order. The banner shows a warning for
    /// these groups.
    void setGroupsWithoutAreas(const std::vector<int>& groups) { m_groupsWithoutAreas = groups; }

    /// Runs the dialog. Returns when the dialog has been closed or picking has started.
    void edit();
    /// Returns whether the dialog is open, or hidden for picking.
    bool isActive() const { return bool(m_dialog); }
    /// Adds a group that was selected with the keyboard to the picked groups, or removes it from
    /// the picked groups. Does nothing unless the user is picking groups.
    void pick(int group);

Q_SIGNALS:
    /// Emitted after the records have been stored and the dialog has been closed.
    void stored();
    /// Emitted after picking has started or ended.
    void pickingChanged(bool isPicking);

private:
    void run();
    bool store();
    bool storeElsewhere();
    void sayStored();
    void startPicking();
    void takePicked();
    void stopPicking();
    void cancelPicking();
    void showPicked();

    OpenProject* m_project;
    ProjectAccess* m_access;
    WindowMessages* m_messages;
    AnimatorView* m_view;
    PickBanner* m_banner;
    std::function<bool()> m_saveAs;
    std::vector<int> m_groupsWithoutAreas;
    std::unique_ptr<DesignDialog> m_dialog; // exists while it is open or hidden for picking
};

} // namespace workbench
