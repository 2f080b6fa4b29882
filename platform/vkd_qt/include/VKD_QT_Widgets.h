#pragma once

#include "vkd_qt_export.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

/// Qt widgets whose constructors set the object name, as the framework requires.

class VKD_QT_PushButton : public QPushButton
{
public:
    VKD_QT_PushButton(const QString& text, QWidget* parent, const char* name)
        : QPushButton(text, parent)
    {
        setObjectName(QLatin1String(name));
    }
    VKD_QT_PushButton(QWidget* parent, const char* name)
        : VKD_QT_PushButton(QString(), parent, name)
    {
    }
};

/// A check box with an object name.
class VKD_QT_CheckBox : public QCheckBox
{
public:
    VKD_QT_CheckBox(const QString& text, QWidget* parent, const char* name)
        : QCheckBox(text, parent)
    {
        setObjectName(QLatin1String(name));
    }
};

/// A group box whose frame is a thin line in the palette's colours in every style.
class VKD_QT_EXPORT VKD_QT_GroupBox : public QGroupBox
{
public:
    VKD_QT_GroupBox(const QString& title, QWidget* parent, const char* name)
        : QGroupBox(title, parent)
    {
        setObjectName(QLatin1String(name));
    }

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A label with an object name.
class VKD_QT_Label : public QLabel
{
public:
    explicit VKD_QT_Label(QWidget* parent, const char* name = nullptr, Qt::WindowFlags flags = {})
        : QLabel(parent, flags)
    {
        setObjectName(QLatin1String(name));
    }
    VKD_QT_Label(const QString& text, QWidget* parent, const char* name = nullptr,
                 Qt::WindowFlags flags = {})
        : VKD_QT_Label(parent, name, flags)
    {
        setText(text);
    }
};
