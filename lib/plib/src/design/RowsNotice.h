#pragma once

#include <QWidget>

class QLabel;

namespace plib {

class ElidedLabel;

/// A line beside the buttons of the table that explains an effect of the last step. It takes the
/// room that is left. Text that is too long is elided and shown in a tool tip.
class RowsNotice : public QWidget
{
    Q_OBJECT

public:
    explicit RowsNotice(QWidget* parent);

    /// Shows a text, or nothing if the text is empty.
    void setText(const QString& text);

private:
    QLabel* m_sign;
    ElidedLabel* m_label;
};

} // namespace plib
