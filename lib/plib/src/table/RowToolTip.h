#pragma once

#include "exchange/rowDescription.h"

#include <QObject>

#include <optional>

class DesignParameter;
class QHelpEvent;

namespace plib {

/// Shows all values of a row of the design page in a tool tip of the table. The text is created
/// only when it is shown. The titles of the groups are read once, because a page shows the state of
/// the project that it has read. The object is a child of the page.
class RowToolTip : public QObject
{
    Q_OBJECT

public:
    explicit RowToolTip(DesignParameter* page);

    /// Handles events of the table's viewport and of the widgets over its cells.
    bool eventFilter(QObject* widget, QEvent* event) override;

private:
    void show(const QHelpEvent& event);

    DesignParameter* m_page;
    std::optional<GroupTitles> m_titles; ///< not set before the first tool tip
};

} // namespace plib
