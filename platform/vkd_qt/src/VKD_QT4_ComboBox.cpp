#include "VKD_QT4_ComboBox.h"

#include <QWheelEvent>

VKD_QT4_ComboBox::VKD_QT4_ComboBox(QWidget* parent, const char* name)
    : QComboBox(parent)
{
    setObjectName(QLatin1String(name));
    setFocusPolicy(Qt::StrongFocus); // and not Qt's own, which takes the focus by the wheel
}

void VKD_QT4_ComboBox::addEntry(const QString& text, int id)
{
    addItem(text, id);
}

int VKD_QT4_ComboBox::getCurrentId() const
{
    const QVariant id = currentData();
    return id.isValid() ? id.toInt() : NoId;
}

bool VKD_QT4_ComboBox::setCurrentId(int id)
{
    const int entry = findData(id);
    if (entry >= 0)
        setCurrentIndex(entry);
    return entry >= 0;
}

void VKD_QT4_ComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
