#include "groups/GroupView.h"

#include "groups/GroupTableModel.h"

#include <vkd_qt_visibleLines.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace vkd {
namespace h {

namespace {
constexpr int FewestRows = 8;
constexpr int MostRows = 20;
constexpr int WidestColumn = 48; // characters
} // namespace

GroupView::GroupView(QWidget* parent)
    : QTreeView(parent)
{
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
}

void GroupView::fitColumns(const GroupTableModel& groups)
{
    setColumnHidden(GroupTableModel::Remark, !groups.hasRemarks());
    m_contentWidth = 0;
    for (int column = 0; column < GroupTableModel::ColumnCount; ++column) {
        if (isColumnHidden(column))
            continue;
        const int width = columnWidthFor(groups, column);
        header()->resizeSection(column, width);
        m_contentWidth += width;
    }
}

/// Measures only the longest strings. Measuring thousands of strings would take most of the time
/// needed to open the dialog.
int GroupView::columnWidthFor(const GroupTableModel& groups, int column) const
{
    const QFontMetrics metrics = fontMetrics();
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    int width = 0;
    const QStringList texts = groups.longestTexts(column);
    for (const QString& text : texts)
        width = qMax(width, metrics.horizontalAdvance(text));
    width = qMin(width, WidestColumn * metrics.averageCharWidth()) + 2 * margin;
    if (column == GroupTableModel::Group)
        width += style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) + margin;
    return qMax(width, header()->sectionSizeHint(column));
}

QSize GroupView::sizeHint() const
{
    const int frame = 2 * frameWidth();
    const int rows = qBound(FewestRows, model()->rowCount(), MostRows);
    return {m_contentWidth + verticalScrollBar()->sizeHint().width() + frame,
            header()->sizeHint().height() + rows * sizeHintForRow(0) + frame};
}

void GroupView::focusInEvent(QFocusEvent* event)
{
    QTreeView::focusInEvent(event);
    Q_EMIT reached();
}

void GroupView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier) {
        QTreeView::keyPressEvent(event);
        return;
    }
    QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty() && currentIndex().isValid())
        rows << currentIndex().siblingAtColumn(0);
    if (!rows.isEmpty())
        Q_EMIT toggleRequested(rows);
}

void GroupView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(viewport()->rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("No group matches the filter."));
}

VKD_QT_DEFINE_VIEW_OPTIONS(GroupView, QTreeView, vkd_qt_visibleLines)

} // namespace h
} // namespace vkd
