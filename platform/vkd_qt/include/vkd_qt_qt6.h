#pragma once

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointF>

/// The same names for functions that differ between Qt 5 and Qt 6.

/// Declares the virtual function of an item view that returns its view options. The second macro
/// defines it for a class with the given base; `adapted` changes a copy of the options.
#if QT_VERSION_MAJOR < 6
#define VKD_QT_DECLARE_VIEW_OPTIONS QStyleOptionViewItem viewOptions() const override
#define VKD_QT_DEFINE_VIEW_OPTIONS(View, Base, adapted) \
    QStyleOptionViewItem View::viewOptions() const      \
    {                                                   \
        return adapted(Base::viewOptions());            \
    }
#else
#define VKD_QT_DECLARE_VIEW_OPTIONS \
    void initViewItemOption(QStyleOptionViewItem* option) const override
#define VKD_QT_DEFINE_VIEW_OPTIONS(View, Base, adapted)               \
    void View::initViewItemOption(QStyleOptionViewItem* option) const \
    {                                                                 \
        Base::initViewItemOption(option);                             \
        *option = adapted(*option);                                   \
    }
#endif

/// Returns the folder of Qt's own translations.
inline QString vkd_qt_translationsFolder()
{
#if QT_VERSION_MAJOR < 6
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

/// Returns the exact position of a mouse event in the widget. This function and the next one are
/// templates because libraries without Qt Gui also include this header.
template <typename MouseEvent>
QPointF vkd_qt_position(const MouseEvent& event)
{
#if QT_VERSION_MAJOR < 6
    return event.localPos();
#else
    return event.position();
#endif
}

/// Returns the delegate that shows an item of the view.
template <typename View, typename Index>
auto vkd_qt_delegateOf(const View& view, const Index& index)
{
#if QT_VERSION_MAJOR < 6
    return view.itemDelegate(index);
#else
    return view.itemDelegateForIndex(index);
#endif
}

/// Reads and writes a settings file in UTF-8, as Qt 6 always does, so that builds with both
/// versions can share the file. Escaped characters, which Qt 5 writes by default, are still read.
/// Must be called directly after the settings are created.
template <typename Settings>
void vkd_qt_useUtf8([[maybe_unused]] Settings& settings)
{
#if QT_VERSION_MAJOR < 6
    settings.setIniCodec("UTF-8");
#endif
}

/// Enables scaling on high-resolution screens before the application is created. Qt 6 always
/// scales.
inline void vkd_qt_enableHighDpi()
{
#if QT_VERSION_MAJOR < 6
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}
