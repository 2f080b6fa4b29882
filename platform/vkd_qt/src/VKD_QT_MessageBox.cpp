#include "VKD_QT_MessageBox.h"

#include <QCloseEvent>
#include <QPushButton>

VKD_QT_MessageBox::VKD_QT_MessageBox(QWidget* parent, const QString& title, const QString& text)
    : QMessageBox(Warning, title, text, NoButton, parent)
{
}

int VKD_QT_MessageBox::warning(QWidget* parent, const QString& title, const QString& text,
                               int button0, int button1, int button2)
{
    VKD_QT_MessageBox box(parent, title, text);
    for (int button : {button0, button1, button2})
        if (button)
            box.addButton(StandardButton(button));
    box.exec();
    return box.clickedButton() ? box.standardButton(box.clickedButton()) : 0;
}

int VKD_QT_MessageBox::warning(QWidget* parent, const QString& title, const QString& text,
                               const QString& button0, const QString& button1,
                               const QString& button2, int defaultButton, int escapeButton)
{
    VKD_QT_MessageBox box(parent, title, text);
    QVector<QAbstractButton*> buttons;
    for (const QString& label : {button0, button1, button2})
        if (!label.isEmpty())
            buttons << box.addButton(label, ActionRole);
    if (buttons.isEmpty())
        buttons << box.addButton(Ok);
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.value(defaultButton)));
    box.exec();
    const int pressed = buttons.indexOf(box.clickedButton());
    return pressed >= 0 ? pressed : escapeButton;
}

void VKD_QT_MessageBox::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        close(); // Qt's would press the button that it thinks fit
    else
        QMessageBox::keyPressEvent(event);
}

void VKD_QT_MessageBox::closeEvent(QCloseEvent* event)
{
    QDialog::closeEvent(event);
}
