#pragma once

#include <vkd_qt_qt6.h>
#include <ZobHandle.h>

#include <QTableView>

namespace workbench {

class RecordTableModel;

/// Shows the design records of the project field by field. The names and units of the fields stay
/// visible while the records are scrolled. Selected cells can be copied.
class RecordsPane : public QTableView
{
    Q_OBJECT

public:
    explicit RecordsPane(QWidget* parent = nullptr);

    /// Reloads the records of the project, or clears the pane if the handle is null. Returns
    /// whether all records were read.
    bool setProject(ZobHandle project);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    VKD_QT_DECLARE_VIEW_OPTIONS;

private:
    void setTexts();
    void fitColumns();

    RecordTableModel* m_model;
};

} // namespace workbench
