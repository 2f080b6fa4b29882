#include "VKD_H_TabDialog.h"

#include "VKD_H_LineEdit.h"

#include <QTabWidget>

void VKD_H_TabDialog::accept()
{
    for (int number = 0; number < tabWidget()->count(); ++number)
        if (tabWidget()->isTabVisible(number) &&
            VKD_H_LineEdit::showFirstRefused(tabWidget()->widget(number)))
            return;
    VKD_QT_TabDialog::accept();
}
