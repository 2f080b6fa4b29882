#include "dialogs/dialogFrame.h"

#include <VKD_H_LineEdit.h>
#include <VKD_QT_Ok.h>

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
} // namespace

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

void showValue(VKD_H_LineEdit* edit, const tagZOB_QUAD_RIM& record, RealField field)
{
    edit->setVal(double(record.*field));
}

float readValue(const VKD_H_LineEdit* edit)
{
    return float(edit->getVal());
}

} // namespace plib
