#pragma once

#include <QObject>

class QWidget;

namespace workbench {

/// Sets the help topic of a widget and its children, in the form `BOOK/TOPIC`. The topic is stored
/// in the dynamic property "helpTopic", as in the dialogs of the libraries.
void setHelpTopic(QWidget* widget, const char* topic);

/// Returns the topic of the widget, or the topic of its nearest ancestor with a topic, or an empty
/// string if there is no such ancestor. The search continues across windows, so a message box has
/// the topic of its dialog.
QString helpTopic(const QWidget* widget);

/// Handles the help key in a window and in all its dialogs, even in modal dialogs. While a list or
/// a menu is open, the key does nothing.
class HelpKey : public QObject
{
    Q_OBJECT

public:
    /// The window becomes the owner of the object.
    explicit HelpKey(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void helpWanted(QWidget* caller);

private:
    bool isOfWindow(const QWidget* widget) const;

    QWidget* m_window;
};

} // namespace workbench
