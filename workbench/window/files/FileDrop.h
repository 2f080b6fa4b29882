#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace workbench {

/// Lets the user drop a file onto a window. The window only reads the file, so only the copy action
/// is accepted: a source that moves a file deletes it after the drop.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// The window becomes the owner of the object. `isAllowed` returns whether files are accepted
    /// at the moment.
    FileDrop(QWidget* window, const std::function<bool()>& isAllowed);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted after the drop has ended, so that the source does not wait for the user to answer
    /// questions.
    void dropped(const QString& path);

private:
    std::function<bool()> m_isAllowed;
};

} // namespace workbench
