#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace plib {

/// Gives the Delete key a meaning of its own in a widget over a cell, where it otherwise is the
/// short cut of the table that deletes the row.
class DeleteKey : public QObject
{
public:
    DeleteKey(QObject* parent, std::function<void()> act);

    /// For the key in this widget, too.
    void listenTo(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_act;
};

} // namespace plib
