#pragma once

#include <QApplication>
#include <QWidget>

#include <cstdlib>

/// An application that exits once a main window has been painted, so that the run time of the
/// process is the time until the user sees the window. If the name of a child widget is given,
/// windows without that child are ignored.
class EndedByPicture : public QApplication
{
public:
    EndedByPicture(int& argc, char* argv[], const QString& child)
        : QApplication(argc, argv)
        , m_child(child)
    {
    }

    bool notify(QObject* receiver, QEvent* event) override
    {
        ++m_depth;
        const bool result = QApplication::notify(receiver, event);
        --m_depth;
        if (event->type() == QEvent::Paint && receiver->inherits("QMainWindow"))
            m_isPainted = m_child.isEmpty() || receiver->findChild<QWidget*>(m_child);
        if (m_isPainted && m_depth == 0) // the window contents have been passed to the screen
            std::_Exit(EXIT_SUCCESS);
        return result;
    }

private:
    QString m_child;
    int m_depth = 0;
    bool m_isPainted = false;
};
