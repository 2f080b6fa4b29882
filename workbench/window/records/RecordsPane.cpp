#include "window/records/RecordsPane.h"

#include "window/records/RecordTableModel.h"

#include <vkd_qt_copyCells.h>
#include <vkd_qt_visibleLines.h>

#include <QHeaderView>
#include <QKeyEvent>

namespace workbench {

RecordsPane::RecordsPane(QWidget* parent)
    : QTableView(parent)
    , m_model(new RecordTableModel(this))
{
    setObjectName(QStringLiteral("Records"));
    setModel(m_model);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    setTexts();
}

bool RecordsPane::setProject(ZobHandle project)
{
    const bool isWhole = m_model->read(project);
    fitColumns();
    return isWhole;
}

void RecordsPane::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void RecordsPane::keyPressEvent(QKeyEvent* event)
{
    if (event == QKeySequence::Copy)
        vkd_qt_copyCells(selectedIndexes(),
                         [](const QModelIndex& cell) { return cell.data().toString(); });
    else
        QTableView::keyPressEvent(event);
}

VKD_QT_DEFINE_VIEW_OPTIONS(RecordsPane, QTableView, vkd_qt_visibleLines)

void RecordsPane::setTexts()
{
    setAccessibleName(tr("Design records"));
    setToolTip(
        tr("The design records as they are stored in the project file. Each row is a word of four "
           "bytes."));
    fitColumns();
}

/// Gives all columns the same width, because resizing thousands of columns one by one takes
/// seconds.
void RecordsPane::fitColumns()
{
    const int columns = m_model->columnCount();
    if (columns == 0)
        return;
    const int number = fontMetrics().horizontalAdvance(m_model->longestText());
    const int heading = horizontalHeader()->sectionSizeHint(columns - 1);
    horizontalHeader()->setDefaultSectionSize(
        qMax(number + 2 * fontMetrics().averageCharWidth(), heading));
}

} // namespace workbench
