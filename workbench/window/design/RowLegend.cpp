#include "window/design/RowLegend.h"

#include <QMouseEvent>
#include <QPainter>

namespace workbench {

namespace {
constexpr int LegendMargin = 6;
} // namespace

RowLegend::RowLegend(QWidget* view)
    : QFrame(view)
{
    setObjectName(QStringLiteral("RowLegend"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setCursor(Qt::PointingHandCursor);
    setContextMenuPolicy(Qt::PreventContextMenu); // the view would open the menu of a group
    view->installEventFilter(this);
    hide();
}

void RowLegend::setEntries(const QVector<Entry>& entries)
{
    m_entries = entries;
    QStringList lines;
    for (const Entry& entry : entries)
        lines << text(entry);
    setAccessibleName(tr("Colours of the rows"));
    setAccessibleDescription(lines.join(QLatin1Char('\n')));
    place();
    setVisible(!entries.isEmpty());
    update();
}

bool RowLegend::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QFrame::eventFilter(watched, event);
}

void RowLegend::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LanguageChange)
        setEntries(m_entries);
}

/// Without this function, the view would turn the model.
void RowLegend::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void RowLegend::mouseReleaseEvent(QMouseEvent* event)
{
    const int line = (event->pos().y() - LegendMargin) / lineHeight();
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && line >= 0 &&
        line < shownEntries())
        Q_EMIT rowClicked(m_entries[line].row);
}

void RowLegend::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const int height = lineHeight();
    const int square = height * 2 / 3;
    QRect line(LegendMargin, LegendMargin, width() - 2 * LegendMargin, height);
    for (int i = 0; i < shownEntries(); ++i) {
        const QRect swatch(line.left(), line.top() + (height - square) / 2, square, square);
        painter.setPen(palette().color(QPalette::Text));
        painter.setBrush(m_entries[i].colour);
        painter.drawRect(swatch);
        const QRect place = line.adjusted(square + LegendMargin, 0, 0, 0);
        painter.drawText(
            place, Qt::AlignVCenter,
            fontMetrics().elidedText(text(m_entries[i]), Qt::ElideRight, place.width()));
        line.translate(0, height);
    }
    if (shownEntries() < m_entries.size())
        painter.drawText(line, Qt::AlignVCenter,
                         tr("%1 more rows").arg(m_entries.size() - shownEntries()));
}

/// The legend covers at most a third of the width of the view.
void RowLegend::place()
{
    int widest = fontMetrics().horizontalAdvance(tr("%1 more rows").arg(1000));
    for (int i = 0; i < shownEntries(); ++i)
        widest = qMax(widest, fontMetrics().horizontalAdvance(text(m_entries[i])));
    const int lines = shownEntries() + (shownEntries() < m_entries.size() ? 1 : 0);
    const int wanted = widest + lineHeight() + 3 * LegendMargin;
    const QSize room = parentWidget()->size();
    resize(qMin(wanted, qMax(room.width() / 3, 8 * lineHeight())),
           lines * lineHeight() + 2 * LegendMargin);
    move(room.width() - width() - LegendMargin, LegendMargin);
}

int RowLegend::lineHeight() const
{
    return fontMetrics().height() + 2;
}

int RowLegend::shownEntries() const
{
    const int lines = qMax(1, (parentWidget()->height() - 4 * LegendMargin) / lineHeight());
    return m_entries.size() <= lines ? m_entries.size() : lines - 1;
}

QString RowLegend::text(const Entry& entry) const
{
    return QStringLiteral("%1: %2").arg(entry.row + 1).arg(entry.groups);
}

} // namespace workbench
