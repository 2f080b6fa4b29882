#pragma once

#include "vkd_properties_qt_export.h"

#include <vkd_qt_qt6.h>

#include <QPointer>
#include <QTableView>

#include <vector>

namespace vkd::properties::nextGen {

/// A table view that can be made read-only. In this state, the user cannot change the model with
/// editors, check boxes or drag and drop, but can still scroll, select cells and copy the selected
/// cells. Widgets over cells are disabled, and editable cells are dimmed unless the host sets its
/// own delegate.
class VKD_PROPERTIES_QT_EXPORT QtTableView : public QTableView
{
    Q_OBJECT

public:
    explicit QtTableView(QWidget* parent = nullptr);

    /// Sets whether the view is read-only. Switching to read-only mode commits and closes an
    /// open editor.
    void set_read_only(bool readOnly);
    bool is_read_only() const;

    using QTableView::edit;

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    bool viewportEvent(QEvent* event) override;
    VKD_QT_DECLARE_VIEW_OPTIONS;

private:
    void closeOpenEditor();
    void disableWidgets();
    void disableWidget(QWidget* widget);
    void enableWidgets();

    bool m_readOnly = false;
    std::vector<QPointer<QWidget>> m_disabled; ///< widgets over cells that must be enabled again
};

} // namespace vkd::properties::nextGen
