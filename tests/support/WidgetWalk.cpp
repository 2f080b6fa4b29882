#include "WidgetWalk.h"

#include "widgetTexts.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMap>
#include <QMenu>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

namespace testsupport {

namespace {
class Walk
{
public:
    Walk(QWidget& window, const QSet<QString>& fixedColumns)
        : m_window(window)
        , m_fixedColumns(fixedColumns)
    {
    }

    void look();
    QStringList found() const { return m_found.values(); }

private:
    void note(const QWidget* widget, const QString& what);
    void lookForNames();
    void lookForCuts(QWidget* widget);
    void lookForPlace(const QWidget* widget);
    void lookAtHeader(const QHeaderView* header);
    void lookForOrder();
    void lookForMnemonics();
    void lookAtMenu(const QWidget* menu);
    void lookForShortcuts();

    QWidget& m_window;
    const QSet<QString>& m_fixedColumns;
    QSet<QString> m_found;
};

/// Whether the widget is a part of a control that the user knows as one. The tabs of docks are the
/// docks' titles, and Qt names their bar by the one in front.
bool isInner(const QWidget* widget)
{
    return widget->focusProxy() || qobject_cast<const QMainWindow*>(widget->parentWidget()) ||
           widget->objectName().startsWith(QLatin1String("qt_")) ||
           qobject_cast<const QComboBox*>(widget->parentWidget()) ||
           qobject_cast<const QLineEdit*>(widget->parentWidget());
}

QString nameOf(const QWidget* widget, QAccessible::Text part = QAccessible::Name)
{
    // Qt names a field of choices by what is chosen.
    if (part == QAccessible::Name && qobject_cast<const QComboBox*>(widget) &&
        !widget->accessibleName().isEmpty())
        return widget->accessibleName();
    QAccessibleInterface* face =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    return face ? face->text(part) : QString();
}

/// The title of the box around the widget, which is read out with its name.
QString boxTitle(const QWidget* widget)
{
    for (const QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget())
        if (const auto box = qobject_cast<const QGroupBox*>(parent))
            return box->title();
    return QString();
}

/// The place of a widget in one that lies above it.
QRect placeIn(const QWidget* ancestor, const QWidget* widget)
{
    return {widget->mapTo(const_cast<QWidget*>(ancestor), QPoint()), widget->size()};
}

/// Whether the eye comes to `first` no later than to `second`.
bool isInReadingOrder(const QRect& first, const QRect& second)
{
    const int shared = qMin(first.bottom(), second.bottom()) - qMax(first.top(), second.top());
    const bool isOneLine = 2 * shared > qMin(first.height(), second.height());
    return isOneLine ? first.left() <= second.left() : first.top() <= second.top();
}

int widest(const QFontMetrics& metrics, const QStringList& texts)
{
    int width = 0;
    for (const QString& text : texts)
        width = qMax(width, metrics.horizontalAdvance(text));
    return width;
}

/// The size without which a text of the widget is cut; empty for widgets without texts.
QSize needed(const QWidget* widget)
{
    const QFontMetrics metrics = widget->fontMetrics();
    if (const auto label = qobject_cast<const QLabel*>(widget)) {
        if (!label->wordWrap())
            return label->sizeHint();
        const int margins = label->width() - label->contentsRect().width();
        return {
            widest(metrics, label->text().split(QRegularExpression(QStringLiteral("[\\s/-]")))) +
                margins,
            label->heightForWidth(label->width())};
    }
    const auto button = qobject_cast<const QAbstractButton*>(widget);
    if ((button && !button->text().isEmpty()) || qobject_cast<const QTabBar*>(widget))
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

/// The room that a field leaves to its text.
int textWidth(const QComboBox* combo)
{
    QStyleOptionComboBox option;
    option.initFrom(combo);
    option.editable = combo->isEditable();
    return combo->style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
        .width();
}

int textWidth(const QLineEdit* edit)
{
    QStyleOptionFrame option;
    option.initFrom(edit);
    option.lineWidth = edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit);
    int width =
        edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).width() - 4;
    for (const auto button : edit->findChildren<QToolButton*>())
        width -= button->width();
    return width;
}

void Walk::look()
{
    lookForNames();
    lookForOrder();
    lookForMnemonics();
    lookForShortcuts();
    for (QWidget* widget : visibleWidgets(m_window)) {
        lookForCuts(widget);
        lookForPlace(widget);
    }
}

void Walk::note(const QWidget* widget, const QString& what)
{
    m_found << QStringLiteral("%1: %2 %3 \"%4\": %5")
                   .arg(m_window.windowTitle().isEmpty() ? m_window.objectName()
                                                         : m_window.windowTitle(),
                        widget->objectName(), QLatin1String(widget->metaObject()->className()),
                        textsOf(widget).join(QLatin1Char('|')).left(80), what);
}

void Walk::lookForNames()
{
    QMap<QString, const QWidget*> known;
    for (const QWidget* widget : visibleWidgets(m_window)) {
        if (widget->focusPolicy() == Qt::NoFocus || isInner(widget))
            continue;
        const QString name = nameOf(widget);
        const QString whole = name + QLatin1Char('/') + nameOf(widget, QAccessible::Description);
        const QString key =
            QStringList{QLatin1String(widget->metaObject()->className()), boxTitle(widget), whole}
                .join(QLatin1Char('/'));
        if (name.trimmed().isEmpty())
            note(widget, QStringLiteral("has no accessible name"));
        else if (known.contains(key))
            note(widget, QStringLiteral("has the accessible name \"%1\" of %2")
                             .arg(whole, known[key]->objectName()));
        known.insert(key, widget);
    }
}

void Walk::lookForCuts(QWidget* widget)
{
    const QSize need = needed(widget);
    if (need.width() > widget->width() || need.height() > widget->height())
        note(widget, QStringLiteral("is cut: %1 x %2 in %3 x %4")
                         .arg(need.width())
                         .arg(need.height())
                         .arg(widget->width())
                         .arg(widget->height()));
    if (widget->objectName() == QLatin1String("qt_toolbar_ext_button"))
        note(widget->parentWidget(), QStringLiteral("has no room for all its buttons"));
    if (const auto header = qobject_cast<QHeaderView*>(widget))
        lookAtHeader(header);
    const QFontMetrics metrics = widget->fontMetrics();
    if (const auto combo = qobject_cast<QComboBox*>(widget)) {
        const int width = widest(metrics, textsOf(combo));
        if (width > textWidth(combo) && !isInCell(combo))
            note(combo, QStringLiteral("cuts an entry: %1 in %2").arg(width).arg(textWidth(combo)));
    } else if (const auto edit = qobject_cast<QLineEdit*>(widget)) {
        const int width = widest(metrics, {edit->text(), edit->placeholderText()});
        if (width > textWidth(edit) && !isInCell(edit))
            note(edit, QStringLiteral("cuts its text: %1 in %2").arg(width).arg(textWidth(edit)));
    }
}

/// Only what scrolls may stand out of the widget around it.
void Walk::lookForPlace(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    if (widget == &m_window || widget->isWindow() || isInCell(widget) || isInner(widget) ||
        qobject_cast<const QAbstractScrollArea*>(parent->parentWidget()))
        return;
    if (!parent->rect().contains(widget->geometry()))
        note(widget, QStringLiteral("stands out of %1").arg(parent->objectName()));
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

/// A widget that holds others is one stop of its own parent, and Tab enters it once.
void Walk::lookForOrder()
{
    QMap<const QWidget*, QVector<const QWidget*>> visited; // of each parent, in the order of Tab
    for (const QWidget* stop = m_window.nextInFocusChain(); stop != &m_window;
         stop = stop->nextInFocusChain()) {
        if (!m_window.isAncestorOf(stop) || !isInView(stop, m_window) ||
            !(stop->focusPolicy() & Qt::TabFocus) || isInner(stop))
            continue;
        for (const QWidget* child = stop; child != &m_window; child = child->parentWidget()) {
            QVector<const QWidget*>& before = visited[child->parentWidget()];
            if (!before.isEmpty() && before.last() == child)
                continue;
            for (const QWidget* other : qAsConst(before))
                if (other == child)
                    note(child, QStringLiteral("is left and entered again by Tab at %1 %2")
                                    .arg(QLatin1String(stop->metaObject()->className()),
                                         stop->objectName()));
                else if (!isInReadingOrder(placeIn(child->parentWidget(), other),
                                           placeIn(child->parentWidget(), child)))
                    note(child, QStringLiteral("comes behind %1 \"%2\" by Tab")
                                    .arg(other->objectName(),
                                         textsOf(other).join(QLatin1Char('|')).left(30)));
            before << child;
        }
    }
}

void Walk::lookForMnemonics()
{
    QMap<QString, QString> known;
    const auto look = [&](const QWidget* widget, const QString& text) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty())
            return;
        if (known.contains(key))
            note(widget, QStringLiteral("%1 is also that of \"%2\"").arg(key, known.value(key)));
        known.insert(key, text);
    };
    for (const QWidget* widget : visibleWidgets(m_window)) {
        for (const QString& text : mnemonicTextsOf(widget))
            look(widget, text);
    }
    for (const auto menu : m_window.findChildren<QMenu*>())
        lookAtMenu(menu);
    if (qobject_cast<QMenu*>(&m_window))
        lookAtMenu(&m_window);
}

void Walk::lookAtMenu(const QWidget* menu)
{
    QMap<QString, QString> known;
    for (const QAction* action : menu->actions()) {
        const QString key = QKeySequence::mnemonic(action->text()).toString();
        if (!key.isEmpty() && known.contains(key))
            note(menu, QStringLiteral("%1 of \"%2\" is also that of \"%3\"")
                           .arg(key, action->text(), known.value(key)));
        known.insert(key, action->text());
    }
}

void Walk::lookForShortcuts()
{
    QMap<QString, const QAction*> known;
    for (const auto action : m_window.findChildren<QAction*>())
        for (const QKeySequence& key : action->shortcuts()) {
            const QAction* other = known.value(key.toString());
            if (other && other != action && action->shortcutContext() != Qt::WidgetShortcut)
                note(&m_window, QStringLiteral("%1 is for %2 and %3")
                                    .arg(key.toString(), other->text(), action->text()));
            known.insert(key.toString(), action);
        }
}
} // namespace

QStringList faults(QWidget& window, const QSet<QString>& fixedColumns)
{
    Walk walk(window, fixedColumns);
    forEachTab(window, [&walk] { walk.look(); });
    QStringList found = walk.found();
    found.sort();
    return found;
}

} // namespace testsupport
