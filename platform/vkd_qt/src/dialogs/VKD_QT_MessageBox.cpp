#include "VKD_QT_MessageBox.h"

#include "standardButtons.h"

#include <QCloseEvent>
#include <QPushButton>

VKD_QT_MessageBox::VKD_QT_MessageBox(Icon icon, QWidget* parent, const QString& title,
                                     const QString& text)
    : QMessageBox(icon, title, text, NoButton, parent)
{
    setTextFormat(Qt::PlainText); // file names may look like tags
}

int VKD_QT_MessageBox::warning(QWidget* parent, const QString& title, const QString& text,
                               int button0, int button1, int button2)
{
    VKD_QT_MessageBox box(Warning, parent, title, text);
    for (int button : {button0, button1, button2})
        if (button)
            vkd::qt::translateStandardButton(box.addButton(StandardButton(button)));
    box.exec();
    if (box.clickedButton())
        return box.standardButton(box.clickedButton());
    for (StandardButton refusal : {Cancel, No})
        if (box.button(refusal))
            return refusal;
    return 0;
}

int VKD_QT_MessageBox::warning(QWidget* parent, const QString& title, const QString& text,
                               const QString& button0, const QString& button1,
                               const QString& button2, int defaultButton, int escapeButton)
{
    VKD_QT_MessageBox box(Warning, parent, title, text);
    return box.ask({button0, button1, button2}, defaultButton, escapeButton);
}

int VKD_QT_MessageBox::critical(QWidget* parent, const QString& title, const QString& text,
                                const QString& button0, const QString& button1,
                                const QString& button2, int defaultButton, int escapeButton)
{
    VKD_QT_MessageBox box(Critical, parent, title, text);
    return box.ask({button0, button1, button2}, defaultButton, escapeButton);
}

void VKD_QT_MessageBox::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        close(); // Qt would choose and click a button
    else
        QMessageBox::keyPressEvent(event);
}

void VKD_QT_MessageBox::closeEvent(QCloseEvent* event)
{
    // QMessageBox refuses to close a box without an Escape button.
    QDialog::closeEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

int VKD_QT_MessageBox::ask(const QStringList& labels, int defaultButton, int escapeButton)
{
    QVector<QAbstractButton*> buttons;
    for (const QString& label : labels)
        if (!label.isEmpty())
            buttons << addButton(label, ActionRole);
    if (buttons.isEmpty())
        buttons << addButton(Ok);
    setDefaultButton(qobject_cast<QPushButton*>(buttons.value(defaultButton)));
    exec();
    const int pressed = buttons.indexOf(clickedButton());
    return pressed >= 0 ? pressed : escapeButton;
}
