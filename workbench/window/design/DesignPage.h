#pragma once

#include "project/SeenPart.h"

#include <QVector>
#include <QWidget>

#include <memory>

class QTableWidget;
class VKD_H_ZOBDoc;
class VKD_P_DesignParameter;

namespace workbench {

class OpenProject;

/// The design parameters of a project on the library's page, and functions for the rows that the
/// page publishes. The page reads a copy of the records in the scratch store; otherwise, it would
/// store default records in a project that has none.
class DesignPage : public QWidget
{
    Q_OBJECT

public:
    /// The rows and undo steps of a page, for another page of the same project or of its copy.
    struct State
    {
        QByteArray rows;
        QByteArray steps;
        bool isModified;
        int currentRow;
        int currentColumn;
    };

    /// `project` must be open. It is not owned and must outlive the page.
    DesignPage(OpenProject* project, QWidget* parent);
    ~DesignPage() override;

    /// Reads the records and the dialog page entries of the project. Returns a VkdZobStatus. Before
    /// any other function is called, this function must have succeeded, or restore() must have been
    /// called.
    cd_error_t load();
    /// Writes all rows to the project, or no row if this fails. Returns a VkdZobStatus, or
    /// PartChanged if the project contains a newer state that must not be replaced. The page can be
    /// used afterwards.
    cd_error_t store(SeenPart::Newer newer);

    State state();
    /// Creates the page with the rows of another page. The project may contain a newer state than
    /// that on which the rows are based; store() still detects this.
    void restore(const State& state);
    /// Selects the current cell of another page, and continues with its undo steps if the rows are
    /// the same. load() must have succeeded.
    void continueFrom(const State& state);

    /// Returns the page's table, which shows one row for each set of parameters.
    QTableWidget* table() const;
    /// Returns whether the rows differ from those in the project.
    bool isModified() const;
    /// Must be called if the project contains newer rows. The rows then stay modified even if the
    /// user undoes all changes.
    void setOutdated();
    /// Applies the input that the user is typing. If it is not accepted, shows the reason and
    /// returns false. Must be called before the rows are stored or the user leaves the page.
    bool finishEditing();
    /// Returns the groups of a row in ascending order; -1 represents the remaining groups.
    QVector<int> groups(int row) const;
    /// Assigns groups to a row as one undo step and removes them from other rows. Returns whether
    /// rows have changed.
    bool setGroups(int row, const QVector<int>& groups);
    int rowsWithoutGroups() const;
    /// If several rows have the same group, asks the user for confirmation, because each of these
    /// rows would store a record for the group. If the user wants to change the rows, selects the
    /// first such row and returns false.
    bool maySharedGroupsStay();

Q_SIGNALS:
    void modifiedChanged(bool isModified);
    void rowsChanged();
    /// Emitted when the user wants to pick the groups of the current row in the view.
    void pickingRequested();

private:
    cd_error_t copyProject();
    void createPage();
    void setSteps(const State& state);

    OpenProject* m_project;
    std::unique_ptr<VKD_H_ZOBDoc> m_desk;
    VKD_P_DesignParameter* m_page = nullptr;
    QObject* m_rows = nullptr; // see VKD_P_DesignParameter_Rows.h
};

} // namespace workbench
