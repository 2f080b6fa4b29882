#pragma once

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

/// A Qt layout whose constructor sets the object name, as the framework requires. A layout with a
/// parent becomes the layout of that widget.
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

/// Qt's box layouts have separate constructors with and without a parent. The constructors of these
/// classes accept a null parent.
using VKD_QT_VBoxLayout = VKD_QT_Layout<QVBoxLayout>;
using VKD_QT_HBoxLayout = VKD_QT_Layout<QHBoxLayout>;
using VKD_QT_GridLayout = VKD_QT_Layout<QGridLayout>;
