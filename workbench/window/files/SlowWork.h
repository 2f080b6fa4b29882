#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

namespace workbench {

/// Shows the wait cursor during work that does not process events, until the object is destroyed or
/// a dialog opens.
class WaitCursor : public QObject
{
    Q_OBJECT

public:
    WaitCursor();
    ~WaitCursor() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void end();

    bool m_isOn = true;
};

/// Shows the user that a long-running operation is in progress: immediately with the wait cursor,
/// and after half a second with a progress dialog with a Cancel button. No events are processed
/// until the dialog is open. While it is open, the user can use only this dialog.
class SlowWork
{
    Q_DECLARE_TR_FUNCTIONS(workbench::SlowWork)

public:
    /// `parent` is the parent of the dialog. `maximum` is the final progress value, or 0 if it is
    /// unknown.
    SlowWork(QWidget* parent, const QString& text, int maximum);
    ~SlowWork();
    SlowWork(const SlowWork&) = delete;
    SlowWork& operator=(const SlowWork&) = delete;

    /// Updates the progress; must be called regularly. Returns false if the user has cancelled.
    bool goOn(int value);
    /// Returns the time since the work began, in ms.
    int elapsed() const;

private:
    void showBox();

    QElapsedTimer m_clock;
    QWidget* m_parent;
    QString m_text;
    int m_maximum;
    WaitCursor m_cursor;
    std::unique_ptr<QProgressDialog> m_box; // created after half a second
};

} // namespace workbench
