#include "sheet/SheetView.h"

#include "sheet/SheetPainter.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace workbench {

namespace {
constexpr int Room = 10; // pixels around the sheet
constexpr double MmPerInch = 25.4;
constexpr int LineStep = 40; // pixels
} // namespace

SheetView::SheetView(QWidget* parent)
    : QAbstractScrollArea(parent)
{
    setObjectName(QStringLiteral("SheetView"));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Mid);
    verticalScrollBar()->setSingleStep(LineStep);
    horizontalScrollBar()->setSingleStep(LineStep);
    describe();
}

void SheetView::setPlan(const SheetPlan& plan, SheetPainter* painter)
{
    const int before = m_page;
    m_plan = plan;
    m_painter = painter;
    m_page = qBound(0, m_page, qMax(0, m_plan.pageCount() - 1));
    fitScrollBars();
    describe();
    viewport()->update();
    if (m_page != before)
        Q_EMIT pageChanged(m_page);
}

void SheetView::setPage(int page)
{
    const int held = qBound(0, page, qMax(0, m_plan.pageCount() - 1));
    if (held == m_page)
        return;
    m_page = held;
    verticalScrollBar()->setValue(0);
    describe();
    viewport()->update();
    Q_EMIT pageChanged(m_page);
}

void SheetView::setZoom(Zoom zoom)
{
    m_zoom = zoom;
    fitScrollBars();
    viewport()->update();
}

QRectF SheetView::sheetRect() const
{
    if (m_plan.isEmpty())
        return {};
    const QSizeF size = sheetSize();
    const double left = qMax(double(Room), (viewport()->width() - size.width()) / 2.0);
    const double top = qMax(double(Room), (viewport()->height() - size.height()) / 2.0);
    return {QPointF(qRound(left) - horizontalScrollBar()->value(),
                    qRound(top) - verticalScrollBar()->value()),
            size};
}

void SheetView::pageUp()
{
    QScrollBar* bar = verticalScrollBar();
    if (bar->value() > bar->minimum())
        bar->triggerAction(QAbstractSlider::SliderPageStepSub);
    else
        turnPage(-1);
}

void SheetView::pageDown()
{
    QScrollBar* bar = verticalScrollBar();
    if (bar->value() < bar->maximum())
        bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    else
        turnPage(1);
}

void SheetView::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    describe();
    viewport()->update();
}

void SheetView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void SheetView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void SheetView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_PageUp: return pageUp();
    case Qt::Key_PageDown: return pageDown();
    case Qt::Key_Home: return setPage(0);
    case Qt::Key_End: return setPage(m_plan.pageCount() - 1);
    default: QAbstractScrollArea::keyPressEvent(event);
    }
}

void SheetView::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    if (m_plan.isEmpty() || !m_painter) {
        painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(viewport()->rect().adjusted(Room, Room, -Room, -Room),
                         Qt::AlignCenter | Qt::TextWordWrap,
                         tr("No plot is checked. Check plots in Graphical Output."));
    } else {
        paintSheet(painter);
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
}

void SheetView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    fitScrollBars();
}

/// Shows the next or previous page if the current page is already scrolled to its end.
void SheetView::wheelEvent(QWheelEvent* event)
{
    QScrollBar* bar = verticalScrollBar();
    const int delta = event->angleDelta().y();
    const bool isAtEnd =
        delta > 0 ? bar->value() == bar->minimum() : bar->value() == bar->maximum();
    if (delta == 0 || !isAtEnd)
        return QAbstractScrollArea::wheelEvent(event);
    m_wheel = (m_wheel > 0) == (delta > 0) ? m_wheel + delta : delta;
    const int notches = m_wheel / QWheelEvent::DefaultDeltasPerStep;
    m_wheel %= QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0)
        turnPage(-notches);
    event->accept();
}

void SheetView::paintSheet(QPainter& painter)
{
    const QRectF sheet = sheetRect();
    painter.fillRect(sheet.translated(2.0, 2.0), palette().color(QPalette::Shadow));
    m_painter->paint(painter, sheet, m_plan, m_page);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(sheet.toAlignedRect().adjusted(-1, -1, 0, 0));
}

QSizeF SheetView::sheetSize() const
{
    const QSizeF view = maximumViewportSize() - QSize(2 * Room, 2 * Room);
    switch (m_zoom) {
    case WholePage: return m_plan.size.scaled(view.expandedTo({50.0, 50.0}), Qt::KeepAspectRatio);
    case PageWidth: {
        // Always leaves space for the scroll bar, which would otherwise appear and disappear
        // endlessly.
        const double width = qMax(50.0, view.width() - verticalScrollBar()->sizeHint().width());
        return m_plan.size * (width / m_plan.size.width());
    }
    case ActualSize: break;
    }
    return {m_plan.size.width() / MmPerInch * logicalDpiX(),
            m_plan.size.height() / MmPerInch * logicalDpiY()};
}

void SheetView::fitScrollBars()
{
    const QSize size =
        m_plan.isEmpty() ? QSize() : sheetSize().toSize() + QSize(2 * Room, 2 * Room);
    const QSize view = m_zoom == WholePage ? maximumViewportSize() : viewport()->size();
    horizontalScrollBar()->setRange(0, qMax(0, size.width() - view.width()));
    verticalScrollBar()->setRange(0, qMax(0, size.height() - view.height()));
    horizontalScrollBar()->setPageStep(view.width());
    verticalScrollBar()->setPageStep(view.height());
    viewport()->update();
}

/// Changes the page. Going back shows the end of the previous page, as readers expect.
void SheetView::turnPage(int by)
{
    const int before = m_page;
    setPage(m_page + by);
    if (by < 0 && m_page != before)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

/// Describes the sheet for users of screen readers.
void SheetView::describe()
{
    setAccessibleName(tr("Sheet"));
    QStringList texts;
    for (int i = m_plan.firstPicture(m_page); i < m_plan.endPicture(m_page); ++i)
        texts << SheetPainter::captionOf(m_plan.pictures[i]) +
                     QLatin1String(m_plan.pictures[i].loadCase ? ", " : "") +
                     SheetPainter::loadCaseOf(m_plan.pictures[i]);
    setAccessibleDescription(texts.join(QLatin1String("; ")));
}

} // namespace workbench
