#pragma once

#include <QLabel>

namespace plib {

/// A single line of plain text that fills the remaining width of its layout. Text that is too long
/// is elided, and the tool tip shows it in full.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent);

    /// Shows the text and also uses it as the accessible name.
    void setFullText(const QString& text);

    bool event(QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();

    QString m_text;
};

} // namespace plib
