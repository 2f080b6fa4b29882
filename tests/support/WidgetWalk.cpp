#include "WidgetWalk.h"

#include "widgetTexts.h"

#include <QAbstractSlider>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMap>
#include <QMenu>
#include <QMetaProperty>
#include <QPointer>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>

namespace testsupport {

namespace {
/// Returns whether the widget is an internal part of another control. The tab bar of docks counts
/// as internal, because its tabs show the titles of the docks, and Qt uses the title of the current
/// dock as the name of the tab bar.
bool isInner(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    return widget->focusProxy() || widget->objectName().startsWith(QLatin1String("qt_")) ||
           qobject_cast<const QMainWindow*>(parent) || qobject_cast<const QComboBox*>(parent) ||
           qobject_cast<const QLineEdit*>(parent);
}

QString spokenText(const QWidget* widget, QAccessible::Text part)
{
    // For a combo box, Qt returns the current entry instead of its name.
    if (part == QAccessible::Name && qobject_cast<const QComboBox*>(widget) &&
        !widget->accessibleName().isEmpty())
        return widget->accessibleName();
    auto face = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    return face ? face->text(part) : QString();
}

/// Returns the title of the group box around the widget, which screen readers add to its name.
QString boxTitle(const QWidget* widget)
{
    do
        widget = widget->parentWidget();
    while (widget && !qobject_cast<const QGroupBox*>(widget));
    return widget ? static_cast<const QGroupBox*>(widget)->title() : QString();
}

/// Returns whether `first` does not follow `second` in reading order. Both are geometries in the
/// same parent.
bool isInReadingOrder(const QRect& first, const QRect& second)
{
    const int shared = qMin(first.bottom(), second.bottom()) - qMax(first.top(), second.top());
    const bool isOneLine = 2 * shared > qMin(first.height(), second.height());
    return isOneLine ? first.left() <= second.left() : first.top() <= second.top();
}

/// Returns whether `first` does not follow `second` if columns are read from left to right. Fields
/// of the same column begin at the same place.
bool isInColumnOrder(const QPoint& first, const QPoint& second)
{
    return first.x() == second.x() ? first.y() <= second.y() : first.x() < second.x();
}

int widest(const QFontMetrics& metrics, const QStringList& texts)
{
    int width = 0;
    for (const QString& text : texts)
        width = qMax(width, metrics.horizontalAdvance(text));
    return width;
}

/// Returns the smallest size that shows the widget's text completely, or an empty size for widgets
/// without text.
QSize needed(const QWidget* widget)
{
    const QFontMetrics metrics = widget->fontMetrics();
    const auto label = qobject_cast<const QLabel*>(widget);
    if (label && label->wordWrap()) {
        static const QRegularExpression breaks(QStringLiteral("[\\s/-]"));
        const int margins = label->width() - label->contentsRect().width();
        return {widest(metrics, label->text().split(breaks)) + margins,
                label->heightForWidth(label->width())};
    }
    const auto button = qobject_cast<const QAbstractButton*>(widget);
    if (label || (button && !button->text().isEmpty()) || qobject_cast<const QTabBar*>(widget))
        return widget->sizeHint();
    if (qobject_cast<const QGroupBox*>(widget))
        return widget->minimumSizeHint();
    if (const auto dock = qobject_cast<const QDockWidget*>(widget))
        return {metrics.horizontalAdvance(dock->windowTitle()) + 2 * metrics.height(), 0};
    if (const auto bar = qobject_cast<const QStatusBar*>(widget)) {
        int width = metrics.horizontalAdvance(bar->currentMessage());
        for (const auto part : bar->findChildren<QLabel*>())
            width += part->width();
        return {width, 0};
    }
    return {};
}

/// Returns the width that a combo box or line edit leaves for its text.
int textRoom(const QWidget* field)
{
    const QStyle* style = field->style();
    if (const auto combo = qobject_cast<const QComboBox*>(field)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        option.editable = combo->isEditable();
        const auto part = QStyle::SC_ComboBoxEditField;
        return style->subControlRect(QStyle::CC_ComboBox, &option, part, combo).width();
    }
    QStyleOptionFrame option;
    option.initFrom(field);
    option.lineWidth = style->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, field);
    int width = style->subElementRect(QStyle::SE_LineEditContents, &option, field).width() - 4;
    for (const auto button : field->findChildren<QToolButton*>())
        width -= button->width();
    return width;
}

/// Returns the current values of all visible input widgets of a window.
QStringList choices(QWidget& window)
{
    QStringList all;
    for (const QWidget* widget : visibleWidgets(window))
        if (!qobject_cast<const QAbstractSlider*>(widget)) // scroll bars may move
            all << widget->metaObject()->userProperty().read(widget).toString() +
                       widget->property("currentIndex").toString(); // of a tab bar
    return all;
}

void turnWheel(QWidget* widget, int angle)
{
    const QPointF place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place.toPoint()), {}, {0, angle}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

class Walk
{
public:
    Walk(QWidget& window, const QSet<QString>& fixedColumns, const QSet<QString>& tabByColumns)
        : m_window(window)
        , m_fixedColumns(fixedColumns)
        , m_isByColumns(tabByColumns.contains(QLatin1String(window.metaObject()->className())))
    {
    }

    void look()
    {
        lookForNames();
        lookForOrder();
        lookForKeys();
        for (QWidget* widget : visibleWidgets(m_window)) {
            lookForCuts(widget);
            lookForPlace(widget);
            lookForCover(widget);
            lookForFace(widget);
        }
    }

    /// Moves the focus to each widget first, because some widgets react to the wheel only while
    /// they have the focus.
    void lookForWheel()
    {
        const QPointer<QWidget> focused = m_window.focusWidget();
        for (QWidget* widget : visibleWidgets(m_window)) {
            if (widget->focusPolicy() & Qt::TabFocus)
                widget->setFocus();
            const QStringList before = choices(m_window); // after a field has reformatted its text
            for (int angle : {120, -120}) {
                turnWheel(widget, angle);
                if (choices(m_window) != before)
                    return note(widget, QStringLiteral("changes by the wheel"));
            }
        }
        if (focused)
            focused->setFocus();
    }

    QStringList found() const { return m_found.values(); }

private:
    using Keys = QMap<QString, QString>;

    void note(const QWidget* widget, const QString& what);
    void noteTwice(Keys& known, const QString& key, const QString& owner, const QWidget* widget);
    void lookForNames();
    void lookForCuts(QWidget* widget);
    void lookForPlace(const QWidget* widget);
    void lookForCover(const QWidget* widget);
    void lookForFace(const QWidget* widget);
    void lookAtHeader(const QHeaderView* header);
    QVector<const QWidget*> tabStops() const;
    void lookForOrder();
    bool isInOrder(const QWidget* first, const QWidget* second) const;
    void lookAtStop(const QWidget* stop, QVector<const QWidget*>& before);
    void lookForKeys();

    QWidget& m_window;
    const QSet<QString>& m_fixedColumns;
    const bool m_isByColumns;
    QSet<QString> m_found;
};

void Walk::note(const QWidget* widget, const QString& what)
{
    const QString title = m_window.windowTitle();
    m_found << QStringLiteral("%1: %2 %3 \"%4\": %5")
                   .arg(title.isEmpty() ? m_window.objectName() : title, widget->objectName(),
                        QLatin1String(widget->metaObject()->className()),
                        textsOf(widget).join(QLatin1Char('|')).left(80), what);
}

void Walk::noteTwice(Keys& known, const QString& key, const QString& owner, const QWidget* widget)
{
    if (!key.isEmpty() && known.contains(key))
        note(widget,
             QStringLiteral("%1 of \"%2\" is also that of \"%3\"").arg(key, owner, known[key]));
    known.insert(key, owner);
}

void Walk::lookForNames()
{
    QMap<QString, QString> known;
    for (const QWidget* widget : visibleWidgets(m_window)) {
        if (widget->focusPolicy() == Qt::NoFocus || isInner(widget))
            continue;
        const QString name = spokenText(widget, QAccessible::Name);
        const QString whole =
            name + QLatin1Char('/') + spokenText(widget, QAccessible::Description);
        const QString kind = QLatin1String(widget->metaObject()->className());
        const QString key = kind + QLatin1Char('/') + boxTitle(widget) + QLatin1Char('/') + whole;
        if (name.trimmed().isEmpty())
            note(widget, QStringLiteral("has no accessible name"));
        else if (known.contains(key))
            note(widget, QStringLiteral("has the accessible name \"%1\" of %2")
                             .arg(whole, known.value(key)));
        known.insert(key, widget->objectName());
    }
}

void Walk::lookForCuts(QWidget* widget)
{
    const QSize need = needed(widget);
    const auto size = [](const QSize& of) {
        return QStringLiteral("%1 x %2").arg(of.width()).arg(of.height());
    };
    if (need.width() > widget->width() || need.height() > widget->height())
        note(widget, QStringLiteral("is cut: %1 in %2").arg(size(need), size(widget->size())));
    if (widget->objectName() == QLatin1String("qt_toolbar_ext_button"))
        note(widget->parentWidget(), QStringLiteral("has no room for all its buttons"));
    if (const auto header = qobject_cast<QHeaderView*>(widget))
        lookAtHeader(header);
    const auto edit = qobject_cast<QLineEdit*>(widget);
    if ((!edit && !qobject_cast<QComboBox*>(widget)) || isInCell(widget))
        return;
    const QStringList texts = textsOf(widget) + (edit ? QStringList(edit->text()) : QStringList());
    const int width = widest(widget->fontMetrics(), texts);
    if (width > textRoom(widget))
        note(widget, QStringLiteral("cuts its text: %1 in %2").arg(width).arg(textRoom(widget)));
}

/// Reports a widget that extends beyond its parent. Only the contents of scroll areas may do so.
void Walk::lookForPlace(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    if (widget == &m_window || widget->isWindow() || isInCell(widget) || isInner(widget) ||
        qobject_cast<const QAbstractScrollArea*>(parent->parentWidget()))
        return;
    if (!parent->rect().contains(widget->geometry()))
        note(widget, QStringLiteral("stands out of %1").arg(parent->objectName()));
}

/// Reports a widget that overlaps another one in a layout.
void Walk::lookForCover(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    if (widget == &m_window || widget->isWindow() || isInner(widget) || !parent->layout())
        return;
    for (const QObject* child : parent->children()) {
        const auto other = qobject_cast<const QWidget*>(child);
        if (other && other != widget && other->isVisible() && !other->isWindow() &&
            !isInner(other) && other->geometry().intersects(widget->geometry()))
            note(widget, QStringLiteral("overlaps ") + other->objectName());
    }
}

/// Reports a label of a field that shows nothing or whose key does not lead to the field. Reports a
/// button that shows nothing, or only a picture without a tool tip. Derived tool buttons may paint
/// their own picture.
void Walk::lookForFace(const QWidget* widget)
{
    const auto label = qobject_cast<const QLabel*>(widget);
    if (label && label->buddy() && label->text().isEmpty())
        note(widget, QStringLiteral("shows nothing"));
    if (label && !label->buddy() && !QKeySequence::mnemonic(label->text()).isEmpty())
        note(widget, QStringLiteral("has a key but no field"));
    const auto button = qobject_cast<const QAbstractButton*>(widget);
    if (!button || !button->text().isEmpty() || isInner(widget) || isInCell(widget))
        return;
    const auto tool = qobject_cast<const QToolButton*>(widget);
    const bool isPainted = tool && tool->metaObject() != &QToolButton::staticMetaObject;
    if (button->icon().isNull() && !isPainted && (!tool || tool->arrowType() == Qt::NoArrow))
        note(widget, QStringLiteral("shows nothing"));
    if (button->toolTip().isEmpty())
        note(widget, QStringLiteral("has no tool tip"));
}

void Walk::lookAtHeader(const QHeaderView* header)
{
    if (header->orientation() == Qt::Vertical || header->isHidden() ||
        m_fixedColumns.contains(header->parentWidget()->objectName()))
        return;
    for (int section = 0; section < header->count(); ++section)
        if (!header->isSectionHidden(section) &&
            header->sectionSizeHint(section) > header->sectionSize(section))
            note(header->parentWidget(), QStringLiteral("cuts the header %1").arg(section));
}

/// Returns the widgets that Tab reaches. The order is circular; in a dialog, it begins at the top.
QVector<const QWidget*> Walk::tabStops() const
{
    QVector<const QWidget*> stops;
    for (const QWidget* stop = m_window.nextInFocusChain(); stop != &m_window;
         stop = stop->nextInFocusChain())
        if (m_window.isAncestorOf(stop) && isInView(stop, m_window) &&
            (stop->focusPolicy() & Qt::TabFocus) && !isInner(stop))
            stops << stop;
    if (!qobject_cast<const QDialog*>(&m_window))
        return stops;
    const auto place = [this](const QWidget* stop) {
        const QPoint corner = stop->mapTo(&m_window, QPoint());
        return std::make_pair(corner.y(), corner.x());
    };
    const auto top =
        std::min_element(stops.begin(), stops.end(),
                         [&](const QWidget* a, const QWidget* b) { return place(a) < place(b); });
    std::rotate(stops.begin(), top, stops.end());
    return stops;
}

/// Checks the tab order in each parent. A container counts as one tab stop of its parent, and Tab
/// must enter the container only once. If Tab follows columns, it ignores group boxes.
void Walk::lookForOrder()
{
    QMap<const QWidget*, QVector<const QWidget*>> visited; // keyed by parent, in tab order
    for (const QWidget* stop : tabStops())
        if (m_isByColumns && qobject_cast<const QGroupBox*>(stop->parentWidget()))
            lookAtStop(stop, visited[nullptr]);
        else
            for (const QWidget* at = stop; at != &m_window; at = at->parentWidget())
                lookAtStop(at, visited[at->parentWidget()]);
}

bool Walk::isInOrder(const QWidget* first, const QWidget* second) const
{
    return !m_isByColumns ? isInReadingOrder(first->geometry(), second->geometry())
                          : isInColumnOrder(first->mapTo(&m_window, QPoint()),
                                            second->mapTo(&m_window, QPoint()));
}

void Walk::lookAtStop(const QWidget* stop, QVector<const QWidget*>& before)
{
    if (!before.isEmpty() && before.last() == stop)
        return;
    if (before.contains(stop))
        note(stop, QStringLiteral("is left and entered again by Tab"));
    for (const QWidget* other : qAsConst(before))
        if (other != stop && !isInOrder(other, stop))
            note(stop, QStringLiteral("comes behind %1 \"%2\" by Tab")
                           .arg(other->objectName(), textsOf(other).value(0).left(30)));
    before << stop;
}

static QWidgetList widgetsWith(const QAction* action)
{
    QWidgetList widgets;
    for (QWidget* widget : QApplication::allWidgets())
        if (widget->actions().contains(const_cast<QAction*>(action)))
            widgets << widget;
    return widgets;
}

/// Returns whether the shortcut of two actions can be ambiguous. It is not ambiguous if the actions
/// belong to different pages and work only while their own page has the focus.
static bool clashes(const QAction* first, const QAction* second)
{
    if (first == second)
        return false;
    for (const QAction* action : {first, second})
        if (action->shortcutContext() != Qt::WidgetWithChildrenShortcut)
            return true;
    for (const QWidget* one : widgetsWith(first))
        for (const QWidget* other : widgetsWith(second))
            if (one == other || one->isAncestorOf(other) || other->isAncestorOf(one))
                return true;
    return false;
}

void Walk::lookForKeys()
{
    const auto mnemonic = [](const QString& text) {
        return QKeySequence::mnemonic(text).toString();
    };
    Keys inWindow;
    for (const QWidget* widget : visibleWidgets(m_window))
        for (const QString& text : mnemonicTextsOf(widget))
            noteTwice(inWindow, mnemonic(text), text, widget);
    QWidgetList menus;
    for (const auto menu : m_window.findChildren<QMenu*>())
        menus << menu;
    if (qobject_cast<QMenu*>(&m_window))
        menus << &m_window;
    for (const QWidget* menu : qAsConst(menus)) {
        Keys inMenu;
        for (const QAction* action : menu->actions())
            noteTwice(inMenu, mnemonic(action->text()), action->text(), menu);
    }
    QMap<QString, QList<QAction*>> shortcuts;
    for (const auto action : m_window.findChildren<QAction*>())
        for (const QKeySequence& key : action->shortcuts())
            if (action->shortcutContext() != Qt::WidgetShortcut && !key.isEmpty())
                shortcuts[key.toString()] << action;
    for (auto it = shortcuts.cbegin(); it != shortcuts.cend(); ++it)
        for (const QAction* action : it.value())
            if (clashes(it.value().first(), action))
                note(&m_window, QStringLiteral("%1 of \"%2\" is also that of \"%3\"")
                                    .arg(it.key(), action->text(), it.value().first()->text()));
}
} // namespace

QStringList faults(QWidget& window, const QSet<QString>& fixedColumns,
                   const QSet<QString>& tabByColumns)
{
    Walk walk(window, fixedColumns, tabByColumns);
    forEachTab(window, [&walk] { walk.look(); });
    if (qobject_cast<QDialog*>(&window))
        forEachTab(window, [&walk] { walk.lookForWheel(); });
    QStringList found = walk.found();
    found.sort();
    return found;
}

} // namespace testsupport
