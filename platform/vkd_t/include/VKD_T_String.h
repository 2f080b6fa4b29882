#pragma once

#include <QString>

/// A string for the suite's services, constructed from UTF-8. A null pointer results in an empty
/// string.
class VKD_T_String
{
public:
    // The constructor is implicit so that callers can pass literals.
    VKD_T_String(const char* utf8)
        : m_text(QString::fromUtf8(utf8))
    {
    }

    operator const QString&() const { return m_text; }

private:
    QString m_text;
};
