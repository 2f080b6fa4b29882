#pragma once

#include <QAbstractItemView>
#include <QAction>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <random>

class QFileDialog;

namespace testsupport {

/// Uses the windows of a program at random: clicks, turns the mouse wheel, presses keys, types,
/// opens menus, drops files and resizes windows. The same seed always results in the same steps. If
/// a step opens a dialog or menu that blocks the caller, the monkey uses this dialog or menu until
/// it is closed. In file dialogs, only the given files are entered. The seed is printed. If
/// PLIB_MONKEY_LOG is set, each step is printed, too. A step that hangs terminates the process.
class Monkey : public QObject
{
public:
    /// The number of steps in a round. Each round is one row of test data.
    static constexpr int StepsInARound = 500;
    /// Adds the rounds of a test as rows with a column "seed". `steps` is the total number of
    /// steps; the environment variable PLIB_MONKEY_STEPS overrides it, and PLIB_MONKEY_SEED sets
    /// the first seed.
    static void addRounds(int steps);

    /// `files` are the paths that the monkey enters in file dialogs and drops onto windows.
    explicit Monkey(int seed, const QStringList& files = {});
    ~Monkey() override;

    /// Performs one step in a window that is not blocked by a modal dialog.
    void step(QWidget* window);
    /// Performs one step with the mouse in a part of a window.
    void stepIn(QWidget* part);
    void close(QWidget* window);
    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }
    /// Returns the number of steps so far, including steps in dialogs and menus.
    int steps() const { return m_steps; }
    /// Returns the menu action that the last step triggered, or null.
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
    QWidget* m_window = nullptr; // window of the current step
    QPointer<QAction> m_triggered;
    int m_steps = 0;
};

} // namespace testsupport
