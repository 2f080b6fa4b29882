#include "dialogs/dialogFrame.h"

#include <VKD_QT_Ok.h>

#include <QVariant>

#include <algorithm>

namespace plib {

void dressDialog(VKD_QT_Dialog* dialog, const QString& title, const char* topic)
{
    setHelpTopic(dialog, topic);
    dialog->setPalette(QPalette(Qt::white));
    dialog->setAutoFillBackground(true);
    dialog->setWindowTitle(title);
}

/// Uses a dynamic property, because the help key is handled by the host and not by each dialog.
void setHelpTopic(QWidget* dialog, const char* topic)
{
    dialog->setProperty("helpTopic", QLatin1String("MERDAN/") + QLatin1String(topic));
}

void addOkRow(VKD_QT_Dialog* dialog, VKD_QT_VBoxLayout* layout)
{
    auto row = new VKD_QT_Ok(dialog, 3, "okayandcancelbutton");
    QObject::connect(row->cmdOk(), &QPushButton::clicked, dialog, &QDialog::accept);
    QObject::connect(row->cmdCancel(), &QPushButton::clicked, dialog, &QDialog::reject);
    layout->addWidget(row);
}

VKD_QT_Label* addLabel(VKD_QT_GridLayout* grid, int row, int column, const QString& text)
{
    auto label = new VKD_QT_Label(text, grid->parentWidget());
    grid->addWidget(label, row, column);
    return label;
}

void addField(VKD_QT_GridLayout* grid, int row, int column, QWidget* field, const QString& about)
{
    grid->addWidget(field, row, column);
    field->setAccessibleDescription(about);
}

namespace {
QGridLayout* gridOf(const QGroupBox* box)
{
    return static_cast<QGridLayout*>(box->layout());
}

/// Returns the width required by the widgets that do not span several columns.
int widthNeeded(const QGridLayout* grid, int column)
{
    int width = 0;
    for (int row = 0; row < grid->rowCount(); ++row) {
        const QLayoutItem* item = grid->itemAtPosition(row, column);
        const bool isAlone = column == 0 || item != grid->itemAtPosition(row, column - 1);
        if (item && isAlone && item != grid->itemAtPosition(row, column + 1))
            width = std::max(width, item->sizeHint().width());
    }
    return width;
}

void alignColumns(const std::vector<QGroupBox*>& boxes)
{
    int columns = gridOf(boxes.front())->columnCount();
    for (const QGroupBox* box : boxes)
        columns = std::min(columns, gridOf(box)->columnCount());
    for (int column = 0; column < columns; ++column) {
        int width = 0;
        for (const QGroupBox* box : boxes)
            width = std::max(width, widthNeeded(gridOf(box), column));
        if (width == 0)
            continue; // an empty column keeps its minimum width
        for (const QGroupBox* box : boxes)
            gridOf(box)->setColumnMinimumWidth(column, width);
    }
}

/// Returns the widgets that Tab reaches. A widget that spans several columns belongs to the first.
std::vector<QWidget*> tabStops(const std::vector<QGroupBox*>& boxes, TabOrder order)
{
    struct Stop
    {
        int column;
        QWidget* widget;
    };
    std::vector<Stop> stops; // by rows
    for (const QGroupBox* box : boxes)
        for (int row = 0; row < gridOf(box)->rowCount(); ++row)
            for (int column = 0; column < gridOf(box)->columnCount(); ++column) {
                QLayoutItem* item = gridOf(box)->itemAtPosition(row, column);
                QWidget* widget = item ? item->widget() : nullptr;
                if (widget && (widget->focusPolicy() & Qt::TabFocus) &&
                    (stops.empty() || stops.back().widget != widget))
                    stops.push_back({column, widget});
            }
    if (order == TabOrder::ByColumns)
        std::stable_sort(stops.begin(), stops.end(),
                         [](const Stop& a, const Stop& b) { return a.column < b.column; });
    std::vector<QWidget*> widgets(stops.size());
    std::transform(stops.begin(), stops.end(), widgets.begin(),
                   [](const Stop& stop) { return stop.widget; });
    return widgets;
}
} // namespace

void removeBoxes(VKD_QT_Dialog* dialog)
{
    qDeleteAll(dialog->findChildren<QGroupBox*>(QString(), Qt::FindDirectChildrenOnly));
}

/// The tab order is circular: the buttons, which were created first, follow the fields.
void insertBoxes(VKD_QT_Dialog* dialog, const std::vector<QGroupBox*>& boxes, TabOrder order)
{
    auto layout = static_cast<QBoxLayout*>(dialog->layout());
    for (std::size_t i = 0; i < boxes.size(); ++i)
        layout->insertWidget(int(i), boxes[i]);
    if (dialog->isVisible()) // the layout would show the boxes later, without the focus
        for (QGroupBox* box : boxes)
            box->show();
    alignColumns(boxes);
    const std::vector<QWidget*> stops = tabStops(boxes, order);
    for (std::size_t i = 1; i < stops.size(); ++i)
        QWidget::setTabOrder(stops[i - 1], stops[i]);
    stops.front()->setFocus(); // the buttons were created before the fields
}

} // namespace plib
