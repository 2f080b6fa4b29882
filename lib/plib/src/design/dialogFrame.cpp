#include "dialogFrame.h"

#include <VKD_H_LineEdit.h>
#include <VKD_QT_Ok.h>

namespace plib {

void dressDialog(VKD_QT_Dialog* dialog, const QString& title)
{
    dialog->setPalette(QPalette(Qt::white));
    dialog->setAutoFillBackground(true);
    dialog->setWindowTitle(title);
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

void showValue(VKD_H_LineEdit* edit, const tagZOB_QUAD_RIM& record, RealField field)
{
    edit->setVal(double(record.*field));
}

float readValue(const VKD_H_LineEdit* edit)
{
    return float(edit->getVal());
}

} // namespace plib
