#pragma once

#include <QObject>

class QWidget;

namespace workbench {

/// Sets the help topic `BOOK/TOPIC` of a widget and its children. The topic is stored in the
/// dynamic property "helpTopic", as in the dialogs of the libraries.
void setHelpTopic(QWidget* widget, const char* topic);

/// Returns the topic of the widget, otherwise that of its nearest ancestor with a topic, across
/// windows: a message box has the topic of its dialog. Empty if there is none.
QString helpTopic(const QWidget* widget);

/// Handles the help key in a window and in all its dialogs, even modal ones. While a list or a menu
/// is open, the key does nothing.
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
