#pragma once

#include <QAbstractItemView>
#include <QAction>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <random>

class QFileDialog;

namespace testsupport {

/// Operates the windows of a program at random, but in the same way for the same seed: with the
/// mouse and its wheel, keys, texts, menus, dropped files and window sizes. A dialog or a menu that
/// blocks the caller is operated until it is closed; a file dialog only gets the names of the
/// monkey's files. The seed is printed; if PLIB_MONKEY_LOG is set, each step is printed, too. A
/// step that hangs ends the process.
class Monkey : public QObject
{
public:
    /// One round of a test, as stored in a row of data.
    static constexpr int StepsInARound = 500;
    /// Creates the rounds of a test: a column "seed" with a row for each round of this many steps,
    /// or of the number in the environment variable PLIB_MONKEY_STEPS. PLIB_MONKEY_SEED is the
    /// first seed.
    static void addRounds(int steps);

    /// `files` are the paths for file dialogs and for dropping.
    explicit Monkey(int seed, const QStringList& files = {});
    ~Monkey() override;

    /// Takes a step in a window that is not blocked.
    void step(QWidget* window);
    void close(QWidget* window);
    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }
    /// Returns the number of steps so far, including those in dialogs and menus.
    int steps() const { return m_steps; }
    /// Returns the menu action that the last step triggered; null if it did something else.
    const QAction* triggered() const { return m_triggered; }

private:
    template <class Widget>
    Widget* pick(const QList<Widget*>& widgets)
    {
        Widget* picked = widgets.isEmpty() ? nullptr : widgets[below(widgets.size())];
        return picked && picked->isVisible() && picked->isEnabled() ? picked : nullptr;
    }
    QWidget* pickPart(QWidget* window);
    QPoint placeIn(const QWidget* widget);

    void note(const char* act, const QObject* target, const QString& more = QString());
    void workOnDialog();
    void workOnPopup(QWidget* popup);
    void nameFile(QFileDialog* dialog);
    void press(QWidget* widget);
    void type(QWidget* widget);
    void clickButton(QWidget* window);
    void act(QWidget* window);
    void drag(QWidget* widget);
    void turnWheel(QWidget* widget);
    void trigger(const QWidget* window);
    void drop(QWidget* widget);
    void changeWindow(QWidget* window);

    std::mt19937 m_random;
    QStringList m_files;
    QWidget* m_window = nullptr; // of the current step
    QPointer<QAction> m_triggered;
    int m_steps = 0;
};

} // namespace testsupport
