#pragma once

#include <QSignalBlocker>

/// Blocks the signals of an object, which may be null, until the blocker is destroyed.
class VKD_QT_SignalBlocker : public QSignalBlocker
{
public:
    explicit VKD_QT_SignalBlocker(QObject* object)
        : QSignalBlocker(object)
    {
    }
};
