#pragma once

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

/// The layouts of the framework, which bear an object name. One that is given a parent becomes the
/// layout of that widget.
template <class Layout>
class VKD_QT_Layout : public Layout
{
public:
    explicit VKD_QT_Layout(QWidget* parent = nullptr, const char* name = nullptr)
        : Layout(parent)
    {
        this->setObjectName(QLatin1String(name));
    }
};

/// QBoxLayout's constructors without a parent exist apart from those with one; both take null.
using VKD_QT_VBoxLayout = VKD_QT_Layout<QVBoxLayout>;
using VKD_QT_HBoxLayout = VKD_QT_Layout<QHBoxLayout>;
using VKD_QT_GridLayout = VKD_QT_Layout<QGridLayout>;
