#pragma once

#include <QWidget>

class QLabel;

namespace plib {

class ElidedLabel;

/// A line beside the buttons of the table that explains an effect of the last step. It fills the
/// remaining width. Text that is too long is elided, and the tool tip shows it in full.
class RowsNotice : public QWidget
{
    Q_OBJECT

public:
    explicit RowsNotice(QWidget* parent);

    /// Shows the text. An empty text clears the line.
    void setText(const QString& text);

private:
    QLabel* m_sign;
    ElidedLabel* m_label;
};

} // namespace plib
