#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace plib {

/// Handles the Delete key in an editor over a table cell. Otherwise the key would trigger the
/// table's shortcut, which deletes the row.
class DeleteKey : public QObject
{
public:
    DeleteKey(QObject* parent, std::function<void()> act);

    /// Also handles the key in this widget.
    void listenTo(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_act;
};

} // namespace plib
