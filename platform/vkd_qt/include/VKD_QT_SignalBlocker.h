#pragma once

#include <QSignalBlocker>

/// Blocks the signals of an object, which may be null, for as long as it lives.
class VKD_QT_SignalBlocker : public QSignalBlocker
{
public:
    explicit VKD_QT_SignalBlocker(QObject* object)
        : QSignalBlocker(object)
    {
    }
};
