#include "VKD_H_TableWidgetBox.h"

#include "VKD_H_TableWidget.h"

#include <VKD_QT_Layouts.h>

#include <QEvent>
#include <QShortcut>

VKD_H_TableWidgetBox::VKD_H_TableWidgetBox(VKD_H_TableWidget* table, const QString& title,
                                           QWidget* parent, const char* name)
    : VKD_QT_GroupBox(title, parent, name)
    , m_table(table)
    , m_row(new VKD_QT_HBoxLayout)
{
    m_row->addStretch();
}

void VKD_H_TableWidgetBox::createDefaultLayout(bool buttonsAbove, bool buttonsBelow)
{
    auto layout = new VKD_QT_VBoxLayout(this);
    if (buttonsAbove)
        layout->addLayout(m_row);
    layout->addWidget(m_table);
    if (buttonsBelow && !buttonsAbove)
        layout->addLayout(m_row);
}

void VKD_H_TableWidgetBox::addButton(Buttons button, bool toTheRight)
{
    const bool isNew = button == New;
    auto widget = new VKD_QT_PushButton(QString(), this, isNew ? "btnNew" : "btnDelete");
    m_buttons[button] = widget;
    setTexts();
    if (toTheRight)
        m_row->addWidget(widget);
    else
        addWidget(widget);
    auto key = new QShortcut(isNew ? Qt::Key_Insert : Qt::Key_Delete, m_table);
    key->setContext(Qt::WidgetWithChildrenShortcut);
    connect(key, &QShortcut::activated, widget, [widget] { widget->click(); });
}

QPushButton* VKD_H_TableWidgetBox::getButton(Buttons button) const
{
    const auto found = m_buttons.find(button);
    return found == m_buttons.end() ? nullptr : found->second;
}

void VKD_H_TableWidgetBox::addWidget(QWidget* widget)
{
    if (auto button = qobject_cast<QPushButton*>(widget))
        button->setAutoDefault(false); // Enter in the table must not click the button
    m_row->insertWidget(m_left++, widget);
}

void VKD_H_TableWidgetBox::changeEvent(QEvent* event)
{
    VKD_QT_GroupBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void VKD_H_TableWidgetBox::setTexts()
{
    for (const auto& [button, widget] : m_buttons)
        widget->setText(button == New ? tr("New") : tr("Delete"));
}
