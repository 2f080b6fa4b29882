#pragma once

#include "window/design/DesignPage.h"

#include <QObject>

#include <functional>
#include <optional>

namespace workbench {

class DesignDock;
class ProjectAccess;
class WindowMessages;

/// Edits the design parameters of the open project: reads the rows into the page in the dock, and
/// stores them.
class DesignEditor : public QObject
{
    Q_OBJECT

public:
    /// The arguments are not owned and must outlive the editor.
    DesignEditor(OpenProject* project, ProjectAccess* access, WindowMessages* messages,
                 DesignDock* dock);
    ~DesignEditor() override;
    /// Sets the function that saves the project under another name, opens it and returns whether it
    /// succeeded.
    void setSaveAs(const std::function<bool()>& saveAs) { m_saveAs = saveAs; }

    /// Opens the dock, if the project can be read, and gives it the focus.
    void edit();
    /// Applies the input that the user is typing. If it is not accepted, shows the reason and
    /// returns false.
    bool finishEditing();
    /// Returns whether there are rows that are not stored.
    bool isChanged() const;
    /// Stores the rows in the project. Returns whether they are stored.
    bool store();
    /// Asks whether to store changes. Returns false if the user cancels or storing fails.
    bool mayLeave();

    /// Returns the rows for restore(), or an empty optional if the dock is closed.
    std::optional<DesignPage::State> state() const;
    /// Creates a new page with these rows, for the project that is open now.
    void restore(const DesignPage::State& state);
    /// Creates a new page after the document of the project has been replaced. Preserves changed
    /// rows; store() then still detects newer rows in the project. The undo steps are preserved if
    /// the rows are the same.
    void showAgain(const std::optional<DesignPage::State>& before);
    /// Destroys the page without asking. The dock stays open.
    void close();
    /// Reads the rows of the project that is open now if the dock is open without a page.
    void showProject();
    /// Reads the rows again if another program has stored newer rows and there are no changes.
    /// Returns false if the user's rows are older than those in the project.
    bool followOthers();

Q_SIGNALS:
    /// Emitted after the rows have been stored.
    void stored();
    /// Emitted when isChanged() may have changed.
    void modified();
    /// Emitted after the page has been created or destroyed.
    void pageChanged();

private:
    bool load(const std::optional<DesignPage::State>& before);
    void setPage(std::unique_ptr<DesignPage> page);
    bool storeElsewhere();
    void sayStored();

    OpenProject* m_project;
    ProjectAccess* m_access;
    WindowMessages* m_messages;
    DesignDock* m_dock;
    std::function<bool()> m_saveAs;
    std::optional<DesignPage::State> m_closed; ///< the page when the user closed the dock
};

} // namespace workbench
