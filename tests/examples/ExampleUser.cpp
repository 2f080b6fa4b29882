#include <QApplication>
#include <QDialog>
#include <QGenericPlugin>
#include <QTimer>

/// Presses OK in each dialog of a program that is started with QT_QPA_GENERIC_PLUGINS=exampleuser,
/// so that the examples can be tested without changing them.
class ExampleUserPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "exampleUser.json")

public:
    QObject* create(const QString&, const QString&) override
    {
        auto timer = new QTimer;
        connect(timer, &QTimer::timeout, [] {
            if (auto dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->accept();
        });
        timer->start(10);
        return timer;
    }
};

#include "ExampleUser.moc"
