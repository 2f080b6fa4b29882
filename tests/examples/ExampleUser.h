#pragma once

#include <QObject>
#include <QStringList>

class QWidget;

/// A user of an example: works through steps in the dialog that is in front, one after the other,
/// each as soon as its widget is there. "ok" and "cancel" press the buttons at the foot; a name is
/// clicked, an object name or the text of a button; "name:Key" presses that key on it.
class ExampleUser : public QObject
{
    Q_OBJECT

public:
    explicit ExampleUser(const QString& steps);

private:
    void act();
    static QWidget* find(const QString& name);

    QStringList m_steps;
};
