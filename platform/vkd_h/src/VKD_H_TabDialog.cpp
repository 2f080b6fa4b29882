#include "VKD_H_TabDialog.h"

#include "VKD_H_LineEdit.h"

#include <QTabWidget>

void VKD_H_TabDialog::accept()
{
    for (int number = 0; number < tabWidget()->count(); ++number) {
        QWidget* page = tabWidget()->widget(number);
        if (!VKD_H_LineEdit::showFirstRefused(page))
            continue;
        tabWidget()->setCurrentWidget(page);
        VKD_H_LineEdit::showFirstRefused(page); // on a hidden page it could not be shown
        return;
    }
    VKD_QT_TabDialog::accept();
}
