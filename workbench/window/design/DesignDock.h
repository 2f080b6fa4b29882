#pragma once

#include "window/support/PageDock.h"

#include <memory>

class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace workbench {

class DesignPage;

/// The dock with the design page of the open project and its buttons. DesignEditor reads and stores
/// the rows.
class DesignDock : public PageDock
{
    Q_OBJECT

public:
    explicit DesignDock(QWidget* parent);

    /// Replaces the page, or removes it if the pointer is null.
    void setPage(std::unique_ptr<DesignPage> page);
    /// Returns null while no project is edited.
    DesignPage* page() const { return m_page; }
    /// Marks unsaved rows in the title, and enables Apply.
    void setModified(bool isModified);
    /// Adds a button to the column beside the page, above Presets. Takes ownership.
    void addTool(QWidget* button);
    void setTexts();
    QList<QAction*> pageActions() const override;

Q_SIGNALS:
    void applyRequested();

private:
    void orderTabs();

    DesignPage* m_page = nullptr;
    QScrollArea* m_place;
    QVBoxLayout* m_tools;
    QPushButton* m_presets;
    QPushButton* m_apply;
};

} // namespace workbench
