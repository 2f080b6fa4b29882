#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QTimer>
#include <QtTest>

#include <random>

/// Clicks and presses keys in a window at random, the same ones for the same seed. A dialog or a
/// menu that blocks the caller is worked on for a few steps, and is left then.
class Monkey : public QObject
{
public:
    Monkey(QWidget* window, int seed)
        : m_window(window)
        , m_random(unsigned(seed))
    {
        workOnDialog();
    }

    void step()
    {
        switch (below(4)) {
        case 0: press(QApplication::focusWidget(), below(4) ? randomKey() : Qt::Key_Tab); break;
        case 1: act(m_window); break;
        case 2:
            if (auto view = pick(m_window->findChildren<QAbstractItemView*>()))
                press(view, randomKey());
            break;
        default: clickButton(m_window);
        }
        if (below(4) == 0)
            QApplication::processEvents();
    }

    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }

private:
    template <class Widget>
    Widget* pick(const QList<Widget*>& widgets)
    {
        Widget* picked = widgets.isEmpty() ? nullptr : widgets[below(widgets.size())];
        return picked && picked->isVisible() && picked->isEnabled() ? picked : nullptr;
    }

    Qt::Key randomKey()
    {
        static const Qt::Key keys[] = {
            Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right, Qt::Key_F2,
            Qt::Key_Enter, Qt::Key_Space,  Qt::Key_Home,     Qt::Key_End,   Qt::Key_Insert,
            Qt::Key_D,     Qt::Key_Down,   Qt::Key_Right,    Qt::Key_A,     Qt::Key_PageDown,
            Qt::Key_1,     Qt::Key_Delete, Qt::Key_Asterisk, Qt::Key_Minus, Qt::Key_Backspace,
            Qt::Key_Comma, Qt::Key_Space,  Qt::Key_Right,    Qt::Key_Space, Qt::Key_F2,
        };
        return keys[below(int(std::size(keys)))];
    }

    void press(QWidget* widget, Qt::Key key)
    {
        if (widget)
            QTest::keyClick(widget, key, below(9) ? Qt::NoModifier : Qt::ControlModifier);
    }

    void clickButton(QWidget* window)
    {
        if (auto button = pick(window->findChildren<QAbstractButton*>()))
            QTest::mouseClick(button, Qt::LeftButton);
    }

    /// A click, a double click or the menu at some place of some widget.
    void act(QWidget* window)
    {
        QWidget* widget = pick(window->findChildren<QWidget*>());
        if (!widget || widget->window() != window)
            return;
        const QPoint place(below(qMax(1, widget->width())), below(qMax(1, widget->height())));
        switch (below(9)) {
        case 0:
            QCoreApplication::postEvent(
                widget,
                new QContextMenuEvent(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place)));
            break;
        case 1: QTest::mouseDClick(widget, Qt::LeftButton, {}, place); break;
        case 2: QTest::mouseClick(widget, Qt::LeftButton, Qt::ControlModifier, place); break;
        default: QTest::mouseClick(widget, Qt::LeftButton, {}, place);
        }
    }

    void workOnDialog()
    {
        QTimer::singleShot(0, this, [this] { workOnDialog(); }); // first: a step may open another
        if (QWidget* popup = QApplication::activePopupWidget()) {
            QWidget* list = popup->findChild<QAbstractItemView*>();
            const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter, Qt::Key_Escape};
            return QTest::keyClick(list ? list : popup, keys[below(4)]);
        }
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || dialog == m_window)
            return;
        switch (below(12)) {
        case 0: return QTest::keyClick(dialog, Qt::Key_Escape);
        case 1:
        case 2:
        case 3: return act(dialog);
        case 4:
        case 5:
        case 6: return clickButton(dialog);
        default: return press(dialog->focusWidget(), randomKey());
        }
    }

    QWidget* m_window;
    std::mt19937 m_random;
};
