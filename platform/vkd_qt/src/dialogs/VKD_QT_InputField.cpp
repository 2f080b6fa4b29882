#include "VKD_QT_InputField.h"

#include <QTabWidget>

namespace {
/// Returns the tab widget that contains the widget as a page, or null.
QTabWidget* tabsOf(const QWidget* widget)
{
    const QWidget* stack = widget->parentWidget();
    auto tabs = stack ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr;
    return tabs && tabs->indexOf(const_cast<QWidget*>(widget)) >= 0 ? tabs : nullptr;
}

/// Returns whether the widget was hidden explicitly. Widgets on a tab that has never been selected
/// are also hidden, but not explicitly.
bool isTakenAway(const QWidget* widget)
{
    return widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

bool isReachable(const QWidget* field, const QWidget* page)
{
    for (const QWidget* part = field; part != page; part = part->parentWidget()) {
        const QTabWidget* tabs = tabsOf(part);
        const bool isAway = tabs ? !tabs->isTabVisible(tabs->indexOf(const_cast<QWidget*>(part)))
                                 : isTakenAway(part);
        if (isAway || part->isWindow())
            return false;
    }
    return true;
}

void bringTabForward(QWidget* field)
{
    for (QWidget* part = field; !part->isWindow(); part = part->parentWidget())
        if (QTabWidget* tabs = tabsOf(part))
            tabs->setCurrentWidget(part);
}
} // namespace

QWidget* vkd_qt_leadToRefusedField(QWidget* page)
{
    const QList<QWidget*> widgets = page->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        auto field = qobject_cast<VKD_QT_InputField*>(widget);
        if (!field || !widget->isEnabled() || field->refusal().isEmpty() ||
            !isReachable(widget, page))
            continue;
        bringTabForward(widget);
        field->showRefusal();
        return widget;
    }
    return nullptr;
}
