#include "VKD_QT_TableWidgetButton.h"

#include "vkd_qt_qt6.h"

#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTableWidget>
#include <QToolTip>

namespace {
constexpr int Margin = 3;
constexpr int MarkWidth = 12;
constexpr int Wrapped = Qt::AlignCenter | Qt::TextWordWrap;

/// Elides each line separately; eliding the whole text would drop the second line.
QString elided(const QString& text, const QFontMetrics& metrics, int width)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines)
        line = metrics.elidedText(line, Qt::ElideRight, width);
    return lines.join(QLatin1Char('\n'));
}

bool isWithin(const QPersistentModelIndex& cell, const QModelIndex& first, const QModelIndex& last)
{
    return cell.row() >= first.row() && cell.row() <= last.row() &&
           cell.column() >= first.column() && cell.column() <= last.column();
}

/// Paints three dots at the bottom right of the area.
void paintMark(QPainter& painter, const QRect& area)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int dot = 0; dot < 3; ++dot)
        painter.drawEllipse(QPointF(area.right() - 1.5 - 4 * dot, area.bottom() - 2), 1.2, 1.2);
}
} // namespace

VKD_QT_TableWidgetButton::VKD_QT_TableWidgetButton(QWidget* table, QTableWidgetItem* item,
                                                   ButtonModus modus)
    : QPushButton(table)
    , m_modus(modus)
{
    if (item && item->tableWidget())
        m_index = item->tableWidget()->model()->index(item->row(), item->column());
    setAutoDefault(false);
    if (!m_index.isValid())
        return;
    takeName();
    connect(m_index.model(), &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last) {
                if (isWithin(m_index, first, last))
                    takeName();
            });
}

void VKD_QT_TableWidgetButton::takeName()
{
    if (!m_index.isValid())
        return; // the item was deleted before its button
    const QVariant header = m_index.model()->headerData(m_index.column(), Qt::Horizontal);
    setAccessibleName(header.toString() + QLatin1String(": ") + itemText());
}

QString VKD_QT_TableWidgetButton::itemText() const
{
    return m_index.data().toString();
}

QString VKD_QT_TableWidgetButton::shownText() const
{
    const auto view = qobject_cast<const QTableWidget*>(
        m_index.isValid() ? static_cast<const QObject*>(m_index.model())->parent() : nullptr);
    const auto delegate = qobject_cast<const QStyledItemDelegate*>(
        view ? vkd_qt_delegateOf(*view, m_index) : nullptr);
    const QString text = delegate ? delegate->displayText(m_index.data(), locale()) : itemText();
    return QString(text).replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
}

QSize VKD_QT_TableWidgetButton::sizeHint() const
{
    QSize size = fontMetrics().size(0, itemText()) + QSize(2 * Margin, 2 * Margin);
    if (m_modus == MarkBeside)
        size.rwidth() += MarkWidth;
    return size;
}

void VKD_QT_TableWidgetButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const QRect inner = rect().adjusted(Margin, 0, -Margin, 0);
    const QRect beside = inner.adjusted(0, 0, -MarkWidth, 0);
    if (m_modus != MarkOnly) // long text may cover the mark
        paintText(&painter, option, m_modus == MarkBeside && fits(beside) ? beside : inner);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = inner.adjusted(0, Margin, 0, -Margin);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
    painter.setBrush(option.palette.color(QPalette::ButtonText));
    paintMark(painter, inner.adjusted(0, 0, 0, -Margin));
}

bool VKD_QT_TableWidgetButton::fits(const QRect& area) const
{
    const QRect needed = fontMetrics().boundingRect(area, Wrapped, shownText());
    return needed.height() <= area.height() && needed.width() <= area.width();
}

/// Wraps the text as the cell does. If there is not enough space, keeps only the text's own line
/// breaks and elides each line.
void VKD_QT_TableWidgetButton::paintText(QStylePainter* painter, const QStyleOptionButton& option,
                                         const QRect& area) const
{
    const bool isWhole = fits(area);
    painter->drawItemText(area, isWhole ? Wrapped : int(Qt::AlignCenter), option.palette,
                          isEnabled(),
                          isWhole ? shownText() : elided(shownText(), fontMetrics(), area.width()),
                          QPalette::ButtonText);
}

bool VKD_QT_TableWidgetButton::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QPushButton::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), itemText(), this);
    return true;
}
