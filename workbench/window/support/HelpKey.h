#pragma once

#include <QObject>

class QWidget;

namespace workbench {

/// Gives a widget and all in it a topic of the help, `BOOK/TOPIC`: the dynamic property
/// "helpTopic", which the dialogs of the libraries set themselves.
void setHelpTopic(QWidget* widget, const char* topic);

/// The topic of the widget or else of its nearest ancestor that has one, in its window or above: a
/// message box has the topic of the dialog that asks. Empty if there is none.
QString helpTopic(const QWidget* widget);

/// Handles the help key in a window and in all dialogs that belong to it, modal ones too. While a
/// list or a menu is open the key does nothing.
class HelpKey : public QObject
{
    Q_OBJECT

public:
    /// The window becomes the owner.
    explicit HelpKey(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void helpWanted(QWidget* caller);

private:
    bool isOfWindow(const QWidget* widget) const;

    QWidget* m_window;
};

} // namespace workbench
