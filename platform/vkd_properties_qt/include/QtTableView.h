#pragma once

#include "vkd_properties_qt_export.h"

#include <QPointer>
#include <QTableView>

#include <vector>

namespace vkd::properties::nextGen {

/// A table view that can be made read-only. The user then changes nothing in its model, neither by
/// editors and check boxes nor by dropping something into it, but still scrolls, selects and
/// copies. Cells that could be edited are dimmed, unless the host sets a delegate of its own, and
/// so are widgets that lie over cells. Copying takes all selected cells.
class VKD_PROPERTIES_QT_EXPORT QtTableView : public QTableView
{
    Q_OBJECT

public:
    explicit QtTableView(QWidget* parent = nullptr);

    /// An open editor closes, and the model gets what was typed so far.
    void set_read_only(bool readOnly);
    bool is_read_only() const;

    using QTableView::edit;

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    bool viewportEvent(QEvent* event) override;
    QStyleOptionViewItem viewOptions() const override;

private:
    void closeOpenEditor();
    void disableWidgets();
    void disableWidget(QWidget* widget);
    void enableWidgets();

    bool m_readOnly = false;
    std::vector<QPointer<QWidget>> m_disabled; ///< widgets over cells that are to be enabled again
};

} // namespace vkd::properties::nextGen
