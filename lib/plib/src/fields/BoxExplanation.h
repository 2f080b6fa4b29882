#pragma once

#include <QObject>
#include <QString>

namespace plib {

/// Adds an informative text to the message boxes that a widget opens during the lifetime of this
/// object. It is required for message boxes created by a function that has only one text parameter.
class BoxExplanation : public QObject
{
public:
    BoxExplanation(QObject* opener, const QString& text);

    bool eventFilter(QObject* opener, QEvent* event) override;

private:
    QString m_text;
};

} // namespace plib
