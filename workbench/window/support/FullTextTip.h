#pragma once

#include <QObject>

class QAbstractItemView;
class QModelIndex;

namespace workbench {

/// Shows the full text of a cell that is too narrow for it in a tool tip. Cells with a tool tip of
/// their own keep it.
class FullTextTip : public QObject
{
    Q_OBJECT

public:
    /// The view owns the object.
    explicit FullTextTip(QAbstractItemView* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isElided(const QModelIndex& cell) const;

    QAbstractItemView* m_view;
};

} // namespace workbench
