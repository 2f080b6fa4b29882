#pragma once

#include <QLabel>

namespace plib {

/// A line of plain text that takes the width that is left in its layout. If the text is too long,
/// it is elided and shown in a tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent);

    /// Shows a text, which is also the accessible name.
    void setFullText(const QString& text);

    bool event(QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();

    QString m_text;
};

} // namespace plib
