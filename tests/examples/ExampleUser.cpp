#include <VKD_QT_Ok.h>

#include <QApplication>
#include <QGenericPlugin>
#include <QPushButton>
#include <QtTest>

namespace {
constexpr int Pause = 10; // ms, between steps and between looks for a widget

/// A user of an example: works through steps in the dialog that is in front, one after the other,
/// each as soon as its widget is there. "ok" and "cancel" press the buttons at the foot; a name is
/// clicked, an object name or the text of a button; "name:Key" presses that key on it.
class ExampleUser : public QObject
{
public:
    explicit ExampleUser(const QString& steps)
        : m_steps(steps.split(QLatin1Char('+')))
    {
        QTimer::singleShot(Pause, this, &ExampleUser::act);
    }

private:
    static QWidget* find(const QString& name)
    {
        const QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isActiveWindow())
            return nullptr;
        const auto row = dialog->findChild<VKD_QT_Ok*>();
        if (row && name == QLatin1String("ok"))
            return row->cmdOk();
        if (row && name == QLatin1String("cancel"))
            return row->cmdCancel();
        for (QAbstractButton* button : dialog->findChildren<QAbstractButton*>())
            if (button->text() == name)
                return button;
        return dialog->findChild<QWidget*>(name);
    }

    void act()
    {
        if (m_steps.isEmpty())
            return;
        // Before the step, which may open a dialog and come back when that is closed.
        QTimer::singleShot(Pause, this, &ExampleUser::act);
        const QString step = m_steps.first();
        QWidget* widget = find(step.section(QLatin1Char(':'), 0, 0));
        if (!widget || !widget->isVisible())
            return;
        m_steps.removeFirst();
        const QString key = step.section(QLatin1Char(':'), 1);
        if (key.isEmpty())
            QTest::mouseClick(widget, Qt::LeftButton);
        else
            QTest::keyClick(widget, Qt::Key(QKeySequence(key)[0]));
    }

    QStringList m_steps;
};
} // namespace

/// Qt makes the user in any program that is started with
/// QT_QPA_GENERIC_PLUGINS=exampleuser:<steps>, so that the examples are worked with as they are
/// built.
class ExampleUserPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "exampleUser.json")

public:
    QObject* create(const QString&, const QString& steps) override
    {
        return new ExampleUser(steps);
    }
};

#include "ExampleUser.moc"
