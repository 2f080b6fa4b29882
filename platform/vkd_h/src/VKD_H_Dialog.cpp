#include "VKD_H_Dialog.h"

#include "VKD_H_LineEdit.h"

void VKD_H_Dialog::accept()
{
    if (!VKD_H_LineEdit::showFirstRefused(this))
        VKD_QT_Dialog::accept();
}
