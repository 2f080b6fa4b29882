#pragma once

#include <QObject>
#include <QString>

namespace plib {

/// Gives the message box that a widget opens, while this lives, a second text below the first: for
/// boxes that are made by a function which takes one text.
class BoxExplanation : public QObject
{
public:
    BoxExplanation(QObject* opener, const QString& text);

    bool eventFilter(QObject* opener, QEvent* event) override;

private:
    QString m_text;
};

} // namespace plib
