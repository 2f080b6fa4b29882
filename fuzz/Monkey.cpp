#include "Monkey.h"

#include "WidgetTestSupport.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QUrl>
#include <QWheelEvent>

#include <unistd.h>

namespace testsupport {

namespace {
constexpr int DefaultSeed = 20261121;
constexpr unsigned HangSeconds = 120;

int fromEnvironment(const char* variable, int usual)
{
    bool isSet = false;
    const int value = qEnvironmentVariableIntValue(variable, &isSet);
    return isSet ? value : usual;
}

/// Returns the enabled actions of the window's menus.
QList<QAction*> offered(const QList<QAction*>& actions)
{
    QList<QAction*> found;
    for (QAction* action : actions)
        if (action->isEnabled() && action->isVisible() && !action->isSeparator())
            found += action->menu() ? offered(action->menu()->actions()) : QList<QAction*>{action};
    return found;
}
} // namespace

void Monkey::addRounds(int steps)
{
    QTest::addColumn<int>("seed");
    const int first = fromEnvironment("PLIB_MONKEY_SEED", DefaultSeed);
    const int rounds = fromEnvironment("PLIB_MONKEY_STEPS", steps) / StepsInARound;
    for (int round = 0; round < rounds; ++round)
        QTest::addRow("seed %d", first + round) << first + round;
}

Monkey::Monkey(int seed, const QStringList& files)
    : m_random(unsigned(seed))
    , m_files(files)
{
    std::fprintf(stderr, "seed %d\n", seed);
    workOnDialog();
}

Monkey::~Monkey()
{
    alarm(0);
}

void Monkey::note(const char* act, const QObject* target, const QString& more)
{
    ++m_steps;
    alarm(HangSeconds);
    if (qEnvironmentVariableIsSet("PLIB_MONKEY_LOG"))
        std::fprintf(stderr, "%6d %s %s %s %s\n", m_steps, act, target->metaObject()->className(),
                     qPrintable(target->objectName()), qPrintable(more.left(80)));
}

void Monkey::step(QWidget* window)
{
    m_window = window;
    m_triggered = nullptr;
    switch (below(12)) {
    case 0:
    case 1:
    case 2: press(QApplication::focusWidget()); break;
    case 3:
    case 4: act(window); break;
    case 5:
    case 6: press(pick(window->findChildren<QAbstractItemView*>())); break;
    case 7: trigger(window); break;
    case 8: changeWindow(window); break;
    default: clickButton(window);
    }
    if (below(4) == 0)
        QApplication::processEvents();
}

void Monkey::stepIn(QWidget* part)
{
    m_window = part->window();
    m_triggered = nullptr;
    if (below(2))
        act(part);
    else
        clickButton(part);
}

void Monkey::workOnDialog()
{
    QTimer::singleShot(0, this, [this] { workOnDialog(); }); // this step may open a dialog
    if (QWidget* popup = QApplication::activePopupWidget())
        return workOnPopup(popup);
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog || dialog == m_window)
        return;
    if (auto files = qobject_cast<QFileDialog*>(dialog))
        return nameFile(files);
    switch (below(12)) {
    case 0: note("escape", dialog); return QTest::keyClick(dialog, Qt::Key_Escape);
    case 1:
    case 2:
    case 3: return act(dialog);
    case 4:
    case 5:
    case 6: return clickButton(dialog);
    default: return press(dialog->focusWidget());
    }
}

void Monkey::workOnPopup(QWidget* popup)
{
    auto list = popup->findChild<QAbstractItemView*>();
    QWidget* target = list ? list->viewport() : popup;
    const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Enter,
                            Qt::Key_Escape};
    const int act = below(6);
    note("popup", popup, QString::number(act));
    if (act == 5)
        QTest::mouseClick(target, Qt::LeftButton, {}, placeIn(target));
    else
        QTest::keyClick(list ? list : popup, keys[act]);
}

/// A file dialog can also rename and delete files, so only the given names are entered.
void Monkey::nameFile(QFileDialog* dialog)
{
    const QString file =
        m_files.isEmpty() || below(4) == 0 ? QString() : m_files[below(m_files.size())];
    note("file", dialog, QFileInfo(file).fileName());
    if (file.isEmpty())
        return dialog->reject();
    enterFile(dialog, file);
}

QWidget* Monkey::pickPart(QWidget* window)
{
    QWidget* widget = pick(window->findChildren<QWidget*>());
    return widget && widget->window() == window->window() ? widget : nullptr;
}

QPoint Monkey::placeIn(const QWidget* widget)
{
    const int x = below(qMax(1, widget->width()));
    return {x, below(qMax(1, widget->height()))};
}

void Monkey::press(QWidget* widget)
{
    static const Qt::Key keys[] = {
        Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right, Qt::Key_F2,
        Qt::Key_Enter, Qt::Key_Space,  Qt::Key_Home,     Qt::Key_End,   Qt::Key_Insert,
        Qt::Key_D,     Qt::Key_Down,   Qt::Key_Right,    Qt::Key_A,     Qt::Key_PageDown,
        Qt::Key_1,     Qt::Key_Delete, Qt::Key_Asterisk, Qt::Key_Minus, Qt::Key_Backspace,
        Qt::Key_Comma, Qt::Key_Space,  Qt::Key_Right,    Qt::Key_Space, Qt::Key_F2,
        Qt::Key_Tab,   Qt::Key_Tab,    Qt::Key_Tab,      Qt::Key_F1,    Qt::Key_PageUp,
    };
    static const Qt::Key withControl[] = {
        Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X,    Qt::Key_Z, Qt::Key_S,
        Qt::Key_G, Qt::Key_T, Qt::Key_D, Qt::Key_O,    Qt::Key_Q, Qt::Key_P,
        Qt::Key_0, Qt::Key_3, Qt::Key_E, Qt::Key_Home, Qt::Key_F, Qt::Key_R,
    };
    if (!widget)
        return;
    const int kind = below(30);
    if (kind < 3)
        return type(widget);
    Qt::KeyboardModifiers modifiers;
    Qt::Key key = keys[below(int(std::size(keys)))];
    if (kind < 6) {
        key = withControl[below(int(std::size(withControl)))];
        modifiers = Qt::ControlModifier;
    } else if (kind == 6) {
        key = Qt::Key(Qt::Key_A + below(26));
        modifiers = Qt::AltModifier;
    }
    if (kind == 3 || kind == 7)
        modifiers |= Qt::ShiftModifier;
    note("key", widget, QKeySequence(int(modifiers) | key).toString());
    QTest::keyClick(widget, key, modifiers);
}

void Monkey::type(QWidget* widget)
{
    static const char* const texts[] = {"2,5",   "-3",   "abc", "1e9",          "2;4;99",
                                        "0.001", "1:50", "3-5", "999999999999", ""};
    const char* text = texts[below(int(std::size(texts)))];
    const QPointer<QWidget> typed = widget;
    note("type", widget, QLatin1String(text));
    QTest::keyClick(typed, Qt::Key_A, Qt::ControlModifier);
    if (below(2) == 0)
        return QTest::keyClicks(typed, QLatin1String(text));
    QApplication::clipboard()->setText(QLatin1String(text));
    QTest::keyClick(typed, Qt::Key_V, Qt::ControlModifier);
}

void Monkey::clickButton(QWidget* window)
{
    auto button = pick(window->findChildren<QAbstractButton*>());
    if (!button)
        return;
    note("button", button, button->text());
    QTest::mouseClick(button, Qt::LeftButton);
}

/// Clicks, double-clicks, drags, turns the mouse wheel or opens the context menu at a random point
/// of a random widget.
void Monkey::act(QWidget* window)
{
    QWidget* widget = pickPart(window);
    if (!widget)
        return;
    const QPoint place = placeIn(widget);
    const int kind = below(12);
    note("act", widget, QString::number(kind));
    switch (kind) {
    case 0:
        QCoreApplication::postEvent(widget, new QContextMenuEvent(QContextMenuEvent::Mouse, place,
                                                                  widget->mapToGlobal(place)));
        break;
    case 1: QTest::mouseDClick(widget, Qt::LeftButton, {}, place); break;
    case 2: QTest::mouseClick(widget, Qt::LeftButton, Qt::ControlModifier, place); break;
    case 3: drag(widget); break;
    case 4: turnWheel(widget); break;
    case 5: QTest::mouseMove(widget, place); break;
    default: QTest::mouseClick(widget, Qt::LeftButton, {}, place);
    }
}

void Monkey::drag(QWidget* widget)
{
    const QPointer<QWidget> dragged = widget;
    QTest::mousePress(widget, Qt::LeftButton, {}, placeIn(widget));
    for (int move = below(4); move >= 0 && dragged; --move) {
        const QPoint to = placeIn(widget);
        QMouseEvent event(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(widget, &event);
    }
    if (dragged)
        QTest::mouseRelease(widget, Qt::LeftButton, {}, placeIn(widget));
}

void Monkey::turnWheel(QWidget* widget)
{
    const QPoint place = placeIn(widget);
    const QPoint turn(0, below(2) ? 120 : -120);
    QWheelEvent event(place, widget->mapToGlobal(place), {}, turn, Qt::NoButton,
                      below(4) ? Qt::NoModifier : Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void Monkey::trigger(const QWidget* window)
{
    const auto bar = window->findChild<QMenuBar*>();
    const QList<QAction*> actions = bar ? offered(bar->actions()) : QList<QAction*>();
    if (actions.isEmpty())
        return;
    m_triggered = actions[below(actions.size())];
    note("action", m_triggered, m_triggered->text());
    m_triggered->trigger();
}

void Monkey::drop(QWidget* widget)
{
    QMimeData data;
    const QString file = m_files.isEmpty() ? QString() : m_files[below(m_files.size())];
    data.setUrls({QUrl::fromLocalFile(file)});
    note("drop", widget, QFileInfo(file).fileName());
    const QPoint place = placeIn(widget);
    QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted())
        return;
    QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(widget, &drop);
    QApplication::processEvents(); // opens the file before any other input
}

void Monkey::close(QWidget* window)
{
    m_window = window;
    m_triggered = nullptr;
    note("close", window);
    window->close();
}

/// Drops a file onto the window or resizes the window.
void Monkey::changeWindow(QWidget* window)
{
    if (below(2)) {
        const QSize size(200 + below(1400), 150 + below(900));
        note("resize", window, QStringLiteral("%1 %2").arg(size.width()).arg(size.height()));
        window->resize(size);
    } else if (QWidget* part = pickPart(window)) {
        drop(part);
    }
}

} // namespace testsupport
