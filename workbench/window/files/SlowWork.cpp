#include "window/files/SlowWork.h"

#include <QApplication>
#include <QEvent>
#include <QProgressDialog>

#include <limits>

namespace workbench {

namespace {
constexpr int PatienceMs = 500;
} // namespace

WaitCursor::WaitCursor()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    qApp->installEventFilter(this);
}

WaitCursor::~WaitCursor()
{
    end();
}

bool WaitCursor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && qobject_cast<QDialog*>(watched))
        end();
    return false;
}

void WaitCursor::end()
{
    if (m_isOn)
        QApplication::restoreOverrideCursor();
    m_isOn = false;
}

SlowWork::SlowWork(QWidget* parent, const QString& text, int maximum)
    : m_parent(parent)
    , m_text(text)
    , m_maximum(maximum)
{
    m_clock.start();
}

SlowWork::~SlowWork() = default;

bool SlowWork::goOn(int value)
{
    if (!m_box && elapsed() < PatienceMs)
        return true;
    if (!m_box)
        showBox();
    m_box->setValue(value);
    QApplication::processEvents();
    return !m_box->wasCanceled();
}

int SlowWork::elapsed() const
{
    return int(m_clock.elapsed());
}

void SlowWork::showBox()
{
    m_box = std::make_unique<QProgressDialog>(m_text, tr("Cancel"), 0, m_maximum, m_parent);
    m_box->setObjectName(QStringLiteral("SlowWork"));
    m_box->setWindowTitle(tr("Workbench"));
    m_box->setWindowModality(Qt::ApplicationModal);
    m_box->setMinimumDuration(std::numeric_limits<int>::max()); // SlowWork shows it
    m_box->setAutoReset(false);
    m_box->show();
}

} // namespace workbench
