#pragma once

#include <QtTest>

#include <random>

/// Presses keys and clicks at random, the same ones for the same seed.
class Monkey : public QObject
{
protected:
    explicit Monkey(int seed)
        : m_random(unsigned(seed))
    {
    }

    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }

    template <class List>
    auto pick(const List& list)
    {
        return list[below(int(std::size(list)))];
    }

    void pressKey(QWidget* widget, Qt::Key key)
    {
        QTest::keyClick(widget, key, below(9) ? Qt::NoModifier : Qt::ControlModifier);
    }

    void clickIn(QWidget* widget)
    {
        const QPoint place(below(qMax(1, widget->width())), below(qMax(1, widget->height())));
        QWidget* hit = widget->childAt(place);
        QWidget* target = hit ? hit : widget;
        const QPoint local = target->mapFrom(widget, place);
        const QList<Qt::KeyboardModifier> modifiers{Qt::NoModifier, Qt::NoModifier,
                                                    Qt::ControlModifier, Qt::ShiftModifier};
        if (below(15) == 0)
            QTest::mouseDClick(target, Qt::LeftButton, {}, local);
        else
            QTest::mouseClick(target, Qt::LeftButton, pick(modifiers), local);
    }

private:
    std::mt19937 m_random;
};
