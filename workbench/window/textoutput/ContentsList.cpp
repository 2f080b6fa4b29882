#include "window/textoutput/ContentsList.h"

#include "window/support/FullTextTip.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStringListModel>

namespace workbench {

ContentsList::ContentsList(QWidget* parent)
    : QtTableView(parent)
    , m_lines(new QStringListModel(this))
{
    setModel(m_lines);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false); // otherwise, lines break at spaces and the rest is hidden
    setTextElideMode(Qt::ElideMiddle);
    horizontalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1); // the style's minimum is higher
    verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing());
    new FullTextTip(this);
}

void ContentsList::setText(const QString& text)
{
    const int top = verticalScrollBar()->value();
    m_lines->setStringList(text.split(QLatin1Char('\n'), Qt::SkipEmptyParts));
    doItemsLayout(); // updates the range of the scroll bar
    verticalScrollBar()->setValue(top);
}

void ContentsList::paintEvent(QPaintEvent* event)
{
    QtTableView::paintEvent(event);
    if (m_lines->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(4, 4, -4, -4), Qt::AlignTop | Qt::TextWordWrap,
                     tr("Nothing is printed."));
}

} // namespace workbench
