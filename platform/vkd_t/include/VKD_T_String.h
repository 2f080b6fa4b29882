#pragma once

#include <QString>

/// A text for the suite's services, constructed from UTF-8; null gives an empty text.
class VKD_T_String
{
public:
    // Implicit, so that callers can pass literals.
    VKD_T_String(const char* utf8)
        : m_text(QString::fromUtf8(utf8))
    {
    }

    operator const QString&() const { return m_text; }

private:
    QString m_text;
};
