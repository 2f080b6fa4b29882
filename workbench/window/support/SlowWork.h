#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

namespace workbench {

/// The wait cursor for work in one piece. It ends with the work, or when a dialog asks something.
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

/// Tells the user about work that the window waits for: the wait cursor at once, and after half a
/// second a box with the progress and Cancel. Until the box is there no event is let in, behind it
/// the user reaches only the box.
class SlowWork
{
    Q_DECLARE_TR_FUNCTIONS(workbench::SlowWork)

public:
    /// The box belongs to `parent` and counts to `maximum`; with 0 it only shows that work goes on.
    SlowWork(QWidget* parent, const QString& text, int maximum);
    ~SlowWork();
    SlowWork(const SlowWork&) = delete;
    SlowWork& operator=(const SlowWork&) = delete;

    /// To be called every now and then; false once the user has cancelled.
    bool goOn(int value);
    /// Since the work began, in ms.
    int elapsed() const;

private:
    void showBox();

    QElapsedTimer m_clock;
    QWidget* m_parent;
    QString m_text;
    int m_maximum;
    WaitCursor m_cursor;
    std::unique_ptr<QProgressDialog> m_box; // once it took long enough
};

} // namespace workbench
