#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace plib {

/// Handles the Delete key in an editor over a table cell. Otherwise the key would trigger the
/// shortcut of the table, which deletes the row.
class DeleteKey : public QObject
{
public:
    DeleteKey(QObject* parent, std::function<void()> act);

    /// Handles the key in this widget as well.
    void listenTo(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_act;
};

} // namespace plib
