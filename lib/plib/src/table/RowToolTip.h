#pragma once

#include "exchange/rowDescription.h"

#include <QObject>

#include <optional>

class DesignParameter;
class QHelpEvent;

namespace plib {

/// Shows all values of a row in a tool tip of the table of the design page, whose child it is. The
/// text is created only when it is shown. The titles of the groups are read once, because a page
/// shows the state of the project that it has read.
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
