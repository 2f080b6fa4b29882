#include "widgetTexts.h"

#include "WidgetWalk.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QToolButton>

namespace testsupport {

namespace {
/// Returns the text without formatting, because tool tips may be rich text.
QString plain(const QString& text)
{
    return QTextDocumentFragment::fromHtml(text).toPlainText();
}

void addCells(QSet<QString>& found, const QAbstractItemModel& model, const QModelIndex& parent)
{
    for (int row = 0; row < model.rowCount(parent); ++row)
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex cell = model.index(row, column, parent);
            for (int role : {Qt::DisplayRole, Qt::ToolTipRole})
                found << plain(cell.data(role).toString());
            if (column == 0)
                addCells(found, model, cell);
        }
}

void addHeaders(QSet<QString>& found, const QAbstractItemModel& model)
{
    for (int column = 0; column < model.columnCount(); ++column)
        for (int role : {Qt::DisplayRole, Qt::ToolTipRole})
            found << model.headerData(column, Qt::Horizontal, role).toString();
}

void addMenu(QSet<QString>& found, const QList<QAction*>& actions)
{
    for (const QAction* action : actions) {
        found << action->text() << action->toolTip() << action->statusTip();
        if (action->menu())
            addMenu(found, action->menu()->actions());
    }
}

/// Returns whether the widget is in a dock behind another tab. Qt treats such docks as visible, but
/// places them outside the window.
bool isBehindTab(const QWidget* widget, const QWidget& window)
{
    const auto dock = qobject_cast<const QDockWidget*>(widget);
    if (!dock)
        return widget->parentWidget() && widget->parentWidget() != &window &&
               isBehindTab(widget->parentWidget(), window);
    return !window.rect().intersects(dock->geometry());
}

QStringList titlesOf(const QTabBar* bar)
{
    QStringList titles;
    for (int tab = 0; tab < bar->count(); ++tab)
        titles << bar->tabText(tab);
    return titles;
}

QStringList entriesOf(const QComboBox* combo)
{
    QStringList entries;
    for (int entry = 0; entry < combo->count(); ++entry)
        entries << combo->itemText(entry);
    return entries;
}

/// Processes events until the layout of word-wrapped text no longer changes.
void settle()
{
    for (int round = 0; round < 4; ++round)
        QApplication::processEvents();
}
} // namespace

bool isInView(const QWidget* widget, const QWidget& window)
{
    return widget->isVisible() && widget->window() == &window && !isBehindTab(widget, window);
}

QList<QWidget*> visibleWidgets(QWidget& window)
{
    QList<QWidget*> found{&window};
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (isInView(widget, window))
            found << widget;
    return found;
}

void forEachTab(QWidget& window, const std::function<void()>& act)
{
    settle();
    const auto tabs = window.findChild<QTabWidget*>();
    if (!tabs)
        return act();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        settle();
        act();
    }
}

bool isInCell(const QWidget* widget)
{
    for (const QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget())
        if (qobject_cast<const QAbstractItemView*>(parent))
            return true;
    return false;
}

QStringList textsOf(const QWidget* widget)
{
    if (const auto label = qobject_cast<const QLabel*>(widget))
        return {label->text()};
    if (const auto button = qobject_cast<const QAbstractButton*>(widget))
        return {button->text()};
    if (const auto box = qobject_cast<const QGroupBox*>(widget))
        return {box->title()};
    if (const auto bar = qobject_cast<const QTabBar*>(widget))
        return titlesOf(bar);
    if (const auto combo = qobject_cast<const QComboBox*>(widget))
        return entriesOf(combo);
    if (const QVariant text = widget->property("placeholderText"); text.isValid())
        return {text.toString()};
    if (const auto browser = qobject_cast<const QTextBrowser*>(widget))
        return browser->toPlainText().split(QLatin1Char('\n'));
    if (const auto bar = qobject_cast<const QStatusBar*>(widget))
        return {bar->currentMessage()};
    if (widget->isWindow() || qobject_cast<const QDockWidget*>(widget))
        return {widget->windowTitle()};
    return {};
}

QStringList mnemonicTextsOf(const QWidget* widget)
{
    QStringList found;
    if (const auto bar = qobject_cast<const QMenuBar*>(widget))
        for (const QAction* action : bar->actions())
            found << action->text();
    const auto label = qobject_cast<const QLabel*>(widget);
    if (qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QGroupBox*>(widget) ||
        qobject_cast<const QTabBar*>(widget) || (label && label->buddy()))
        found << textsOf(widget);
    return found;
}

QSet<QString> texts(QWidget& window)
{
    QSet<QString> found;
    forEachTab(window, [&] {
        for (const QWidget* widget : visibleWidgets(window)) {
            for (const QString& text : textsOf(widget))
                found << text;
            found << widget->toolTip() << widget->statusTip() << widget->whatsThis()
                  << widget->accessibleName() << widget->accessibleDescription();
            if (const auto view = qobject_cast<const QAbstractItemView*>(widget))
                if (view->model() && !qobject_cast<const QHeaderView*>(view)) {
                    addCells(found, *view->model(), view->rootIndex());
                    addHeaders(found, *view->model());
                }
            addMenu(found, widget->actions());
        }
    });
    return found;
}

} // namespace testsupport
