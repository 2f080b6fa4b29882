#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace plib {

/// Adds a paragraph to the tool tip of a field. The field may change its own tool tip at any time,
/// for example when it marks a value.
class FieldHint : public QObject
{
public:
    /// The field becomes the parent.
    FieldHint(QWidget* field, const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString m_text;
};

} // namespace plib
